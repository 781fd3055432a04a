/**
 * moteur - cutting a record into fields and walking its rule table. Knows no
 * message type: everything it needs stands in the rows.
 */
#include "rules/moteur.h"

#include <cstring>

#include "checks/lecture.h"
#include "rules/constat.h"

namespace quilvane {

namespace {

constexpr int ERR_GENRE = 86;       // field not allowed for the transaction kind
constexpr int ERR_CARACTERE = 106;  // byte outside 0x20..0x7E
constexpr int ERR_TROP_LONG = 107;
constexpr int ERR_TROP_COURT = 108;

/** What a row asks for a transaction kind; other values are not allowed. */
enum ePresence { A_VERIFIER = 0, IGNORE = 1, INTERDIT = -1 };

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

/** Tells the witness of what is no row. Apart, so that a run without a witness
 *  does not make room for what it would be told. */
[[gnu::noinline]] void annoncer(const temoin* vu, eVu quoi, int numero = 0) {
    dire(vu, {.quoi = quoi, .numero = numero});
}

/** Framing faults of the record; a fault is reset once it is stored. */
int erreursDeCadrage(const temoin* vu, int compte) {
    const auto noter = [&](int& drapeau, int numero) {
        if (vu != nullptr) annoncer(vu, VU_CADRAGE, numero);
        if (compte >= MAX_ERREURS) return;
        compte = ajouterErreur(compte, numero, ORIGINE_CADRAGE);
        drapeau = 0;
    };
    if (codCaract == 1) noter(codCaract, ERR_CARACTERE);
    if (codLong == 1)
        noter(codLong, ERR_TROP_LONG);
    else if (codLong == 2)
        noter(codLong, ERR_TROP_COURT);
    return compte;
}

/** The arguments of `verifChamps` that name the table and its slots. */
struct tableAppliquee {
    const sCorps* lignes;
    int nombre;
    valeurVSE* slots;
    const char* genre;   // null: every row is checked
    const char* lettre;  // names the section to the witness
};

/** Walks the rows. Whether there is a witness is known when this is compiled,
 *  so that a run without one does not ask for it at each row. */
template <bool observe>
int appliquer(const tableAppliquee& t, int compte, const temoin* vu) {
    if (!observe && compte >= MAX_ERREURS) return compte;
    const colonne presence = t.genre != nullptr ? colonneDuGenre(t.genre) : nullptr;
    valeurVSE* suivant = t.slots;  // slot of the next row with columns
    char* valeur = nullptr;

    for (const sCorps* ligne = t.lignes; ligne != t.lignes + t.nombre; ++ligne) {
        if (ligne->debut != 0) valeur = (suivant++)->valeur;
        const auto temoigner = [&](eVu quoi, int numero = 0, int code = 0) {
            if constexpr (observe) {
                const int emplacement = static_cast<int>(suivant - t.slots) - 1;
                vu->voir(vu->qui, {quoi, ligne, t.lettre, emplacement, valeur, code, numero});
            }
        };
        temoigner(VU_LIGNE);
        if (observe && compte >= MAX_ERREURS) continue;
        if (ligne->pfVerif == nullptr) continue;

        const int code = t.genre == nullptr ? A_VERIFIER : presence == nullptr ? INTERDIT : ligne->*presence;
        if (code == IGNORE) {
            temoigner(VU_IGNOREE);
            continue;
        }
        int numero = ERR_GENRE;
        if (code == A_VERIFIER) {
            temoigner(VU_VERIFIEE);
            if (ligne->pfVerif(ligne->dependance, valeur, *ligne->sverif)) continue;
            numero = ligne->noErr;
            temoigner(VU_REFUSEE, numero);
        } else {
            temoigner(VU_INTERDITE, numero, code);
        }
        compte = ajouterErreur(compte, numero, ORIGINE_TABLE, ligne);
        // Only a witness wants to hear of the rows behind the tenth error.
        if (!observe && compte >= MAX_ERREURS) return compte;
    }
    return compte;
}

}  // namespace

void getvseChamps(const sCorps* tCorps, int lCorps, const char* tampon, valeurVSE* tValVSE,
                  const temoin* vu) {
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
    if (vu != nullptr) annoncer(vu, VU_COUPE);
}

int verifChamps(const temoin* vu, int nbErreurPassee, const sCorps* pChamps, int lpChamps,
                valeurVSE* valChampsVSE, const char* valE5, const char* premLettre) {
    const tableAppliquee t = {pChamps, lpChamps, valChampsVSE, valE5, premLettre};
    const int compte = erreursDeCadrage(vu, nbErreurPassee);
    return vu != nullptr ? appliquer<true>(t, compte, vu) : appliquer<false>(t, compte, vu);
}

}  // namespace quilvane
