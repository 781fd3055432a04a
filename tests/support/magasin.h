/**
 * magasin.h - tables of verdicts of a check. Every verdict is taken in several
 * states of the field store, so that a check that reads or changes more than
 * it has business with is found out.
 */
#ifndef QUILVANE_TESTS_SUPPORT_MAGASIN_H
#define QUILVANE_TESTS_SUPPORT_MAGASIN_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "support/champ.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace essai {

/** One call and its verdict; `apres` is the field as the check must leave it,
 *  when it must change it. */
struct casChamp {
    std::string dependance;
    std::string champ;
    bool accepte;
    std::optional<std::string> apres = std::nullopt;
};

/** A text of the store that the check may read, and what it holds. */
struct texteLu {
    char* ou;
    std::string texte;
};

/** A check with the list that it is called with. */
struct sujet {
    const char* nom;
    quilvane::fVerif* verif;
    const quilvane::liste* sverif = &quilvane::sansListe;

    /** Each case gets its verdict, leaves its field as stated and the store as
     *  it was, whatever the store holds beside `lus`. */
    void prouver(const std::vector<casChamp>& cas, const std::vector<texteLu>& lus = {}) const;
};
#define SUJET(f, ...) \
    essai::sujet { #f, quilvane::f __VA_OPT__(, &) __VA_ARGS__ }

/** A text of the store with its room, terminator included. */
struct zone {
    char* debut;
    std::size_t taille;

    void ecrire(const std::string& texte) const {
        std::memset(debut, 0, taille);
        std::memcpy(debut, texte.data(), std::min(texte.size(), taille - 1));
    }
};

/** All texts that a check could read beside its arguments. */
inline const std::vector<zone>& zones() {
    using namespace quilvane;
    static const std::vector<zone> toutes = [] {
        std::vector<zone> z;
        const auto slots = [&z](auto& tableau) {
            for (valeurVSE& slot : tableau)
                z.push_back({slot.valeur, sizeof slot.valeur});
        };
        slots(valEnteteVSE);
        slots(valCorpsVSE);
        slots(valFinVSE);
        slots(valFichEnteteVSE);
        slots(valFichCorpsVSE);
        slots(valFichFinVSE);
        const auto texte = [&z](auto& t) { z.push_back({t, sizeof t}); };
        texte(xdebug);
        texte(bufC11);
        texte(cp.CODE_PAYS_BOV);
        texte(cp.NUME_NATI_BOV);
        texte(cp.CODE_RESULTAT);
        texte(cp.CODE_EXPLOIT_PROVENANCE);
        texte(cp.NUME_EXPLOIT_PROVENANCE);
        texte(cp.DATE_ENTREE_ABAT);
        texte(cp.DATE_ABATTAGE);
        texte(cp.NUME_TUERIE);
        texte(cp.POIDS_CARCASSE);
        texte(cp.CODE_PAYS_ABAT_NOTIF);
        texte(cp.NUME_IDENT_ABAT_NOTIF);
        texte(cp.INDIC_CREA_INVA_ABATT);
        return z;
    }();
    return toutes;
}

/** Fills the whole store with one text, then the texts of `lus`. */
inline void remplirMagasin(const std::string& partout, const std::vector<texteLu>& lus = {}) {
    for (const zone& z : zones())
        z.ecrire(partout);
    for (const texteLu& l : lus) {
        const auto z =
            std::find_if(zones().begin(), zones().end(), [&l](const zone& c) { return c.debut == l.ou; });
        ASSERT_NE(z, zones().end()) << "no such text in the store";
        z->ecrire(l.texte);
    }
}

/** The bytes of the store and of the record's error state. */
inline std::string etatMagasin() {
    using namespace quilvane;
    std::string etat;
    for (const zone& z : zones())
        etat.append(z.debut, z.taille);
    const auto ajouter = [&etat](const auto& v) { etat.append(reinterpret_cast<const char*>(&v), sizeof v); };
    ajouter(codeErreur);
    ajouter(nbErreur);
    ajouter(codCaract);
    ajouter(codLong);
    return etat;
}

inline void sujet::prouver(const std::vector<casChamp>& cas, const std::vector<texteLu>& lus) const {
    const char* const AUTOUR[] = {
        "", "J", "FR", "  ", "        ", "01011998", "            ", "OFFICEFR    ", "2A345678    "};
    for (const char* autour : AUTOUR) {
        remplirMagasin(autour, lus);
        const std::string avant = etatMagasin();
        for (const casChamp& c : cas) {
            const auto ici = [&] {
                std::string lu;
                for (const texteLu& l : lus)
                    lu += " (" + l.texte + ")";
                return std::string(nom) + " champ " + testing::PrintToString(c.champ) + " dependance " +
                       testing::PrintToString(c.dependance) + " lus" + lu + " autour '" + autour + "'";
            };
            std::string apres;
            EXPECT_EQ(accepte(verif, c.dependance, c.champ, *sverif, &apres), c.accepte) << ici();
            EXPECT_EQ(apres, c.apres.value_or(c.champ)) << ici();
            EXPECT_TRUE(etatMagasin() == avant) << ici() << ": the store has changed";
        }
    }
}

}  // namespace essai

#endif
