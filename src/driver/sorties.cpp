#include "driver/sorties.h"

#include <stdio_ext.h>

#include <cstdio>

#include "calendar/horloge.h"
#include "driver/etat.h"

namespace quilvane {

namespace {

void ecrire(std::FILE* fp, const ligneVSE& l) {
    if (l.longueur > 0) std::fwrite(l.tampon, 1, l.longueur, fp);
}

}  // namespace

void preparerSorties() {
    constexpr std::size_t TAILLE_BLOC = 1 << 16;
    static char blocs[2][TAILLE_BLOC];
    std::setvbuf(fp_emis, blocs[0], _IOFBF, TAILLE_BLOC);
    std::setvbuf(fp_erre, blocs[1], _IOFBF, TAILLE_BLOC);
    __fsetlocking(fp_emis, FSETLOCKING_BYCALLER);
    __fsetlocking(fp_erre, FSETLOCKING_BYCALLER);
    ligneVSE place;
    place.blancs(LARGEUR_VSE);
    ecrire(fp_emis, place);
    ecrire(fp_erre, place);
}

void ecrireAjouts(ajouts& a) {
    ecrire(fp_emis, a.emis);
    ecrire(fp_erre, a.erre);
    a.emis.longueur = a.erre.longueur = 0;
}

void ecrireVSEFICH(const lot& l, bool valide) {
    std::FILE* const fp = valide ? fp_emis : fp_erre;
    ligneVSE fich;
    if (valide) {
        faireVSEFICHOk(fich, l);
    } else {
        char maintenant[sizeof l.VSEDate];
        faireVSEDate(maintenant, heureLocale());
        faireVSEFICHNok(fich, l, maintenant);
    }
    std::fseek(fp, 0, SEEK_SET);
    ecrire(fp, fich);
}

}  // namespace quilvane
