#include "vocabulaire/store.h"

#include <cstring>

namespace quilvane {

constinit store leStore = {};
constinit char bufC11[32] = {};

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
