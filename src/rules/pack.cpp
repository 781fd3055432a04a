/**
 * pack - the field store and the state that the engine shares with the record
 * stream and the checks.
 */
#include "rules/pack.h"

#include <cstring>

namespace quilvane {

constinit valeurVSE valEnteteVSE[13] = {};
constinit valeurVSE valCorpsVSE[100] = {};
constinit valeurVSE valFinVSE[5] = {};
constinit valeurVSE valFichEnteteVSE[13] = {};
constinit valeurVSE valFichCorpsVSE[9] = {};
constinit valeurVSE valFichFinVSE[5] = {};

constinit char xdebug[TAILLE_XDEBUG] = {};
constinit int codeErreur[MAX_ERREURS + 1] = {};
constinit int nbErreur = 0;
constinit int codCaract = 0;
constinit int codLong = 0;
constinit char bufC11[32] = {};
constinit vseCorps cp = {};

void viderMagasin() {
    std::memset(valEnteteVSE, 0, sizeof valEnteteVSE);
    std::memset(valCorpsVSE, 0, sizeof valCorpsVSE);
    std::memset(valFinVSE, 0, sizeof valFinVSE);
    std::memset(valFichEnteteVSE, 0, sizeof valFichEnteteVSE);
    std::memset(valFichCorpsVSE, 0, sizeof valFichCorpsVSE);
    std::memset(valFichFinVSE, 0, sizeof valFichFinVSE);
    std::memset(codeErreur, 0, sizeof codeErreur);
    std::memset(&cp, 0, sizeof cp);
    std::memset(xdebug, 0, sizeof xdebug);
    nbErreur = 0;
    codCaract = 0;
    codLong = 0;
}

void retenirVSE(const char* tampon) {
    const std::size_t longueur = strnlen(tampon, TAILLE_XDEBUG - 1);
    std::memmove(xdebug, tampon, longueur);
    xdebug[longueur] = '\0';
    if (longueur < LARGEUR_VSE) std::memset(xdebug + longueur, 0, LARGEUR_VSE - longueur);
}

void getVseCorps() {
    const std::size_t longueur = strnlen(xdebug, sizeof xdebug);
    const auto couper = [longueur](char* membre, std::size_t debut, std::size_t largeur) {
        const std::size_t presents = longueur >= debut ? longueur - debut + 1 : 0;
        const std::size_t n = presents < largeur ? presents : largeur;
        std::memcpy(membre, xdebug + debut - 1, n);
        membre[n] = '\0';
    };
    cp.CODE_PAYS_BOV[0] = '\0';
    couper(cp.NUME_NATI_BOV, 65, 12);
    couper(cp.CODE_RESULTAT, 77, 2);
    couper(cp.CODE_EXPLOIT_PROVENANCE, 79, 2);
    couper(cp.NUME_EXPLOIT_PROVENANCE, 81, 12);
    couper(cp.DATE_ENTREE_ABAT, 93, 8);
    couper(cp.DATE_ABATTAGE, 101, 8);
    couper(cp.NUME_TUERIE, 109, 8);
    couper(cp.POIDS_CARCASSE, 117, 7);
    couper(cp.CODE_PAYS_ABAT_NOTIF, 124, 2);
    couper(cp.NUME_IDENT_ABAT_NOTIF, 126, 12);
    couper(cp.INDIC_CREA_INVA_ABATT, 138, 1);
}

}  // namespace quilvane
