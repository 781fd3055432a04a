/**
 * preuve.h - the proof of a rule table, made by the compiler where the table
 * stands:
 *
 *     static_assert(lignesJustes<examiner(tActi, CORPS)>());
 *
 * A wrong row does not compile. Both compilers name it in plain values: what is
 * wrong, the field, which of the field's rows, its error number, as in
 * `ligneExaminee<LARGEUR_DE_LISTE, 7, 1, 131>` for the first row of field 7,
 * error 131. (A check is no plain value; its place in the field tells it.) A
 * dependency that is neither `aucune` nor the start of a text of the store, such
 * as "", may be refused without a name: the compiler need not know where it is.
 */
#ifndef QUILVANE_RULES_PREUVE_H
#define QUILVANE_RULES_PREUVE_H

#include <type_traits>

#include "rules/usages.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

// With its sanitizers g++ compares no addresses of functions while it compiles:
// there the tables are proved by the tests alone.
#if defined(__SANITIZE_ADDRESS__) && !defined(__clang__)
inline constexpr bool PROUVE_A_LA_COMPILATION = false;
#else
inline constexpr bool PROUVE_A_LA_COMPILATION = true;
#endif

/** What may be wrong with a row. */
enum eFaute {
    AUCUNE_FAUTE,
    COLONNES,          // first and last column: before its neighbour's end, or outside its part
    CHAMP_SANS_PLACE,  // more fields than slots
    LIGNE_EN_PLUS,     // an extra row (columns 0) that does not stand under its field
    CHAMPS_EN_ORDRE,   // a field number that does not rise
    PRESENCE,          // a presence code other than 0, 1, 2, or a check asked for where none is named
    NUMERO_D_ERREUR,   // none for a check, or one for no check
    DEPENDANCE,        // neither `aucune` nor the slot of another field that the table cuts
    LISTE_EN_TROP,     // a list for a check that reads none (rules/usages.h, or the type's own)
    LISTE_ABSENTE,     // `sansListe` for a check that reads a list, or no list at all
    FORME_DE_LISTE,    // another number of entries in a row than the check reads
    LARGEUR_DE_LISTE,  // entries of another width than the check compares
};

/** One wrong row: its field, numbered from 1; the first, second, ... row of that
 *  field; its error number. */
struct faute {
    eFaute quoi = AUCUNE_FAUTE;
    int champ = 0;
    int ligne = 0;
    int erreur = 0;
    bool operator==(const faute&) const = default;
};

/** A part of the record: its columns and its slots. */
struct partie {
    int debut;
    int fin;
    int emplacements;
};
inline constexpr partie ENTETE = {1, 62, 13};
inline constexpr partie CORPS = {63, 230, 100};
inline constexpr partie FIN = {231, 256, 5};

/** What is wrong with the use that a check makes of its list; `largeurChamp` is
 *  the width of its field. */
constexpr eFaute fauteDeListe(const liste& l, eUsage usage, int largeurChamp) {
    if (usage == AUCUN_USAGE) return &l == &sansListe ? AUCUNE_FAUTE : LISTE_EN_TROP;
    if (&l == &sansListe || l.nombre() == 0) return LISTE_ABSENTE;
    const auto forme = [&l](int colonnes, bool largeurs) {
        if (l.colonnes != colonnes) return FORME_DE_LISTE;
        return largeurs ? AUCUNE_FAUTE : LARGEUR_DE_LISTE;
    };
    switch (usage) {
        case ENTIER: return forme(1, largeur(l) == largeurChamp);
        case DEUX_COLONNES: return forme(1, largeur(l) == 2);
        case TROIS_COLONNES: return forme(1, largeur(l) == 3);
        case UNE_COLONNE: return forme(1, largeur(l) == 1);
        case CAUSES: return forme(2, largeur(l, 0) == largeurChamp && largeur(l, 1) == 8);
        case SERIES: return forme(2, largeur(l, 0) == 6);
        case PLAGES: return forme(3, largeur(l) == 6);
        default: return AUCUNE_FAUTE;  // given and not read
    }
}

/** The use that a check makes of its list: of the type's own `propres`, else of
 *  the library. */
constexpr eUsage usageDe(fVerif* verif, const usageDeListe* propres, int nombre) {
    for (int i = 0; i < nombre; ++i)
        if (propres[i].verif == verif) return propres[i].usage;
    for (const usageDeListe& u : USAGES)
        if (u.verif == verif) return u.usage;
    return AUCUN_USAGE;
}

/** Whether the text is the start of a slot that every record has, or of a body
 *  field that the table cuts into the slot of its number and that is not
 *  `champ` itself. */
constexpr bool dependanceExiste(const char* dependance, const sCorps* table, int lignes, int champ) {
    for (const valeurVSE& slot : valEnteteVSE)
        if (dependance == slot.valeur) return true;
    for (const valeurVSE& slot : valFinVSE)
        if (dependance == slot.valeur) return true;
    for (const valeurVSE& slot : valFichEnteteVSE)
        if (dependance == slot.valeur) return true;
    int emplacement = 0;
    for (int i = 0; i < lignes; ++i) {
        if (table[i].debut == 0) continue;
        if (dependance == valCorpsVSE[emplacement].valeur)
            return table[i].numChamp == emplacement && table[i].numChamp != champ;
        ++emplacement;
    }
    return false;
}

/** The first wrong row of a table of `lignes` rows, or no fault. */
constexpr faute examiner(const sCorps* table, int lignes, const partie& p,
                         const usageDeListe* propres = nullptr, int nombrePropres = 0) {
    if (!PROUVE_A_LA_COMPILATION && std::is_constant_evaluated()) return {};
    const sCorps* champ = nullptr;  // the row with the columns
    int emplacements = 0;
    int rang = 0;  // of the row among those of its field
    for (int i = 0; i < lignes; ++i) {
        const sCorps& l = table[i];
        rang = i > 0 && l.numChamp == table[i - 1].numChamp ? rang + 1 : 1;
        const auto fautive = [&](eFaute quoi) { return faute{quoi, l.numChamp + 1, rang, l.noErr}; };
        if (l.debut == 0) {
            if (champ == nullptr || l.fin != 0 || l.numChamp != champ->numChamp)
                return fautive(LIGNE_EN_PLUS);
        } else {
            const int libre = champ == nullptr ? p.debut : champ->fin + 1;
            if (l.debut < libre || l.fin < l.debut || l.fin > p.fin) return fautive(COLONNES);
            if (champ != nullptr && l.numChamp <= champ->numChamp) return fautive(CHAMPS_EN_ORDRE);
            if (++emplacements > p.emplacements) return fautive(CHAMP_SANS_PLACE);
            champ = &l;
        }
        for (const int code : {l.typeCRE, l.typeDEM, l.typeINV, l.typeEDI, l.typeMOD})
            if (code < 0 || code > 2 || (l.pfVerif == nullptr && code == 0)) return fautive(PRESENCE);
        if (l.pfVerif != nullptr ? l.noErr < 1 || l.noErr > 999 : l.noErr != 0)
            return fautive(NUMERO_D_ERREUR);
        if (l.dependance != aucune &&
            (l.pfVerif == nullptr || !dependanceExiste(l.dependance, table, lignes, l.numChamp)))
            return fautive(DEPENDANCE);
        const eUsage usage = usageDe(l.pfVerif, propres, nombrePropres);
        if (l.sverif == nullptr) return fautive(LISTE_ABSENTE);
        if (const eFaute f = fauteDeListe(*l.sverif, usage, champ->fin - champ->debut + 1); f != AUCUNE_FAUTE)
            return fautive(f);
    }
    return {};
}
template <int N>
constexpr faute examiner(const sCorps (&table)[N], const partie& p) {
    return examiner(table, N, p);
}
/** The same for a table with checks of its own that read a list. */
template <int N, int M>
constexpr faute examiner(const sCorps (&table)[N], const partie& p, const usageDeListe (&propres)[M]) {
    return examiner(table, N, p, propres, M);
}

/** What was found of a row, spelled out so that a compiler prints it. */
template <eFaute QUOI, int CHAMP, int LIGNE, int ERREUR>
struct ligneExaminee {
    static_assert(QUOI == AUCUNE_FAUTE,
                  "a rule row is wrong: ligneExaminee<what, field, row of the field, error>");
    static constexpr bool juste = true;
};

/** Compiles when there is no fault. */
template <faute F>
constexpr bool lignesJustes() {
    return ligneExaminee<F.quoi, F.champ, F.ligne, F.erreur>::juste;
}

}  // namespace quilvane

#endif
