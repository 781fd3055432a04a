/**
 * moteur - cutting a record into fields and walking its rule table. Knows no
 * message type: everything it needs stands in the rows.
 */
#include "rules/moteur.h"

#include <cstdio>
#include <cstring>

#include "checks/lecture.h"
#include "rules/latin1.h"

namespace quilvane {

namespace {

constexpr int ERR_GENRE = 86;       // field not allowed for the transaction kind
constexpr int ERR_CARACTERE = 106;  // byte outside 0x20..0x7E
constexpr int ERR_TROP_LONG = 107;
constexpr int ERR_TROP_COURT = 108;

/** What a row asks for a transaction kind; other values are not allowed. */
enum ePresence { A_VERIFIER = 0, IGNORE = 1, INTERDIT = -1 };

constexpr texteLatin1 MSG_CARACTERE("VSE  cars non autorisés \n");

/** The presence column of a transaction kind, null when no column is its own. */
using colonne = int sCorps::*;
colonne colonneDuGenre(const char* genre) {
    switch (tValAutorise::cle(genre)) {
        case tValAutorise::cle("CRE"):
        case tValAutorise::cle("ECQ"): return &sCorps::typeCRE;  // an error return is read as a creation
        case tValAutorise::cle("DEM"): return &sCorps::typeDEM;
        case tValAutorise::cle("INV"): return &sCorps::typeINV;
        case tValAutorise::cle("EDI"): return &sCorps::typeEDI;
        case tValAutorise::cle("MOD"): return &sCorps::typeMOD;
        default: return nullptr;
    }
}

/** Framing faults of the record; a fault is reset once it is stored. */
int erreursDeCadrage(int visu, int compte) {
    const auto noter = [&](int& drapeau, const char* message, int numero) {
        if (visu == VISU_INFORMATIQUE) std::fputs(message, stdout);
        if (compte >= MAX_ERREURS) return;
        compte = ajouterErreur(compte, numero);
        drapeau = 0;
    };
    if (codCaract == 1) noter(codCaract, MSG_CARACTERE, ERR_CARACTERE);
    if (codLong == 1)
        noter(codLong, "VSE trop long ", ERR_TROP_LONG);
    else if (codLong == 2)
        noter(codLong, "VSE trop court ", ERR_TROP_COURT);
    return compte;
}

/** The arguments of `verifChamps` that name the table and its slots. */
struct tableAppliquee {
    const sCorps* lignes;
    int nombre;
    valeurVSE* slots;
    const char* genre;   // null: every row is checked
    const char* lettre;  // names the section in traces
};

/** Walks the rows. The console mode is known when this is compiled, so that a
 *  run without traces does not ask for it at each row. */
template <eVisu visu>
int appliquer(const tableAppliquee& t, int compte) {
    const colonne presence = t.genre != nullptr ? colonneDuGenre(t.genre) : nullptr;
    int emplacement = -1;

    for (const sCorps* ligne = t.lignes; ligne != t.lignes + t.nombre; ++ligne) {
        if (ligne->debut != 0) ++emplacement;
        if (visu == VISU_DECRIPTEE) std::printf("champ: %d  ", ligne->numChamp + 1);
        if (compte >= MAX_ERREURS || ligne->pfVerif == nullptr) continue;

        char* const valeur = t.slots[emplacement].valeur;
        const int code = t.genre == nullptr ? A_VERIFIER : presence == nullptr ? INTERDIT : ligne->*presence;
        if (code == IGNORE) {
            if (visu == VISU_DECRIPTEE) std::printf("verif ignoree! '%s'\n", valeur);
            continue;
        }
        int numero = ERR_GENRE;
        if (code == A_VERIFIER) {
            if (visu == VISU_DECRIPTEE) std::printf("'%s'\n", valeur);
            if (ligne->pfVerif(ligne->dependance, valeur, *ligne->sverif)) continue;
            if (visu == VISU_DECRIPTEE) std::printf("! erreurChamp sur [%s]\n", valeur);
            numero = ligne->noErr;
        } else if (visu == VISU_DECRIPTEE) {
            std::printf("verifOblg = [%d]\n", code);
        }
        if (visu == VISU_INFORMATIQUE) std::printf("%s%i.%i;", t.lettre, emplacement + 1, numero);
        compte = ajouterErreur(compte, numero);
    }
    return compte;
}

}  // namespace

void getvseChamps(const sCorps* tCorps, int lCorps, const char* tampon, valeurVSE* tValVSE, int visu) {
    if (tampon != xdebug) retenirVSE(tampon);
    // Columns that a short record lacks are zeros: a field that reaches into them
    // ends there, one that begins behind the record's end is empty, and all are
    // cut in their full width. Few fields are wider than a step; what a step
    // copies too much lies behind the terminator, inside `xdebug` and the slot.
    constexpr int PAS = 16;
    static_assert(LARGEUR_VSE % PAS == 0 && LARGEUR_VSE + PAS <= TAILLE_XDEBUG);
    for (const sCorps* ligne = tCorps; ligne != tCorps + lCorps; ++ligne) {
        if (ligne->fin == 0) continue;
        char* const valeur = (tValVSE++)->valeur;
        const char* const colonnes = xdebug + ligne->debut - 1;
        const int largeur = ligne->fin - ligne->debut + 1;
        std::memcpy(valeur, colonnes, PAS);
        for (int i = PAS; i < largeur; i += PAS)
            std::memcpy(valeur + i, colonnes + i, PAS);
        valeur[largeur] = '\0';
    }
    if (visu == VISU_DECRIPTEE) std::fputc('\n', stdout);
}

int verifChamps(int visu, int nbErreurPassee, const sCorps* pChamps, int lpChamps, valeurVSE* valChampsVSE,
                const char* valE5, const char* premLettre) {
    const tableAppliquee t = {pChamps, lpChamps, valChampsVSE, valE5, premLettre};
    const int compte = erreursDeCadrage(visu, nbErreurPassee);
    if (visu == VISU_INFORMATIQUE) return appliquer<VISU_INFORMATIQUE>(t, compte);
    if (visu == VISU_DECRIPTEE) return appliquer<VISU_DECRIPTEE>(t, compte);
    return appliquer<VISU_AUCUNE>(t, compte);
}

}  // namespace quilvane
