/**
 * moteur - cutting a record into fields and walking its rule table. Knows no
 * message type: everything it needs stands in the rows.
 */
#include "rules/moteur.h"

#include <cstring>

#include "rules/constat.h"
#include "rules/parcours.h"

namespace quilvane {

namespace {

constexpr int ERR_GENRE = 86;       // field not allowed for the transaction kind
constexpr int ERR_CARACTERE = 106;  // byte outside 0x20..0x7E
constexpr int ERR_TROP_LONG = 107;
constexpr int ERR_TROP_COURT = 108;

/** The presence column that a transaction kind is read by, `NB_GENRES` when
 *  none is its own. */
int genreDe(const char* genre) {
    switch (tValAutorise::cle(genre)) {
        case tValAutorise::cle("CRE"):
        case tValAutorise::cle("ECQ"): return GENRE_CRE;  // an error return is read as a creation
        case tValAutorise::cle("DEM"): return GENRE_DEM;
        case tValAutorise::cle("INV"): return GENRE_INV;
        case tValAutorise::cle("EDI"): return GENRE_EDI;
        case tValAutorise::cle("MOD"): return GENRE_MOD;
        default: return NB_GENRES;
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

/** Cuts a field of the record in `xdebug`, whose first column is `debut`, from 0. */
inline void couper(char* valeur, int debut, int largeur) {
    // Columns that a short record lacks are zeros: a field that reaches into them
    // ends there, one that begins behind the record's end is empty, and all are
    // cut in their full width. Few fields are wider than a step; what a step
    // copies too much lies behind the terminator, inside `xdebug` and the slot.
    constexpr int PAS = 16;
    static_assert(LARGEUR_VSE % PAS == 0 && LARGEUR_VSE + PAS <= TAILLE_XDEBUG);
    const char* const colonnes = xdebug + debut;
    std::memcpy(valeur, colonnes, PAS);
    for (int i = PAS; i < largeur; i += PAS)
        std::memcpy(valeur + i, colonnes + i, PAS);
    valeur[largeur] = '\0';
}

}  // namespace

void getvseChamps(const sCorps* tCorps, int lCorps, const char* tampon, valeurVSE* tValVSE,
                  const temoin* vu) {
    if (tampon != xdebug) retenirVSE(tampon);
    for (const sCorps* ligne = tCorps; ligne != tCorps + lCorps; ++ligne)
        if (ligne->fin != 0) couper((tValVSE++)->valeur, ligne->debut - 1, ligne->fin - ligne->debut + 1);
    if (vu != nullptr) annoncer(vu, VU_COUPE);
}

void couperChamps(const parcours& p, valeurVSE* tValVSE) {
    for (const parcours::coupe* champ = p.coupes; champ != p.coupes + p.champs; ++champ)
        couper((tValVSE++)->valeur, champ->debut, champ->largeur);
}

int verifChamps(const temoin* vu, int nbErreurPassee, const sCorps* pChamps, int lpChamps,
                valeurVSE* valChampsVSE, const char* valE5, const char* premLettre) {
    int compte = erreursDeCadrage(vu, nbErreurPassee);
    const int genre = valE5 != nullptr ? genreDe(valE5) : NB_GENRES;
    const valeurVSE* const premier = valChampsVSE;
    valeurVSE* suivant = valChampsVSE;  // slot of the next row with columns
    char* valeur = nullptr;

    for (const sCorps* ligne = pChamps; ligne != pChamps + lpChamps; ++ligne) {
        if (ligne->debut != 0) valeur = (suivant++)->valeur;
        const auto temoigner = [&](eVu quoi, int numero = 0, int code = 0) {
            const int emplacement = static_cast<int>(suivant - premier) - 1;
            dire(vu, {quoi, ligne, premLettre, emplacement, valeur, code, numero});
        };
        temoigner(VU_LIGNE);
        // Only a witness wants to hear of the rows behind the tenth error.
        if (compte >= MAX_ERREURS || ligne->pfVerif == nullptr) continue;

        const int code = valE5 == nullptr     ? A_VERIFIER
                         : genre == NB_GENRES ? INTERDIT
                                              : ligne->*PRESENCES[genre];
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
    }
    return compte;
}

int suivreChamps(const parcours& p, int nbErreurPassee, valeurVSE* valChampsVSE, const char* valE5) {
    const int genre = valE5 != nullptr ? genreDe(valE5) : parcours::SANS_GENRE;
    if (valE5 != nullptr && genre == NB_GENRES)
        return verifChamps(nullptr, nbErreurPassee, p.lignes, p.nombre, valChampsVSE, valE5, "");

    int compte = nbErreurPassee;
    if (codCaract != 0 || codLong != 0) compte = erreursDeCadrage(nullptr, compte);
    if (compte >= MAX_ERREURS) return compte;
    const parcours::etape* const fin = p.etapes[genre] + p.pas[genre];
    for (const parcours::etape* etape = p.etapes[genre]; etape != fin; ++etape) {
        const sCorps& ligne = p.lignes[etape->ligne];
        char* const valeur = valChampsVSE[etape->emplacement].valeur;
        if (!etape->interdit && ligne.pfVerif(ligne.dependance, valeur, *ligne.sverif)) continue;
        compte = ajouterErreur(compte, etape->interdit ? ERR_GENRE : ligne.noErr, ORIGINE_TABLE, &ligne);
        if (compte >= MAX_ERREURS) break;
    }
    return compte;
}

}  // namespace quilvane
