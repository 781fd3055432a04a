/**
 * reference - rules that switch on at a reference date, tests of a list with
 * an exception for blanks or for one code, and tests that one of two fields is
 * filled.
 */
#include "checks/reference.h"

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

/** Longer texts are refused outright by the checks that name this limit. */
constexpr std::size_t LONGUEUR_MAX = 98;

bool tropLong(const char* texte) { return std::strlen(texte) > LONGUEUR_MAX; }
bool blancs30(const char* texte) { return egal(texte, trenteBlancs[0].valeur); }

int fVTABP5a8(const char* dependance, char* champ, const liste& sverif, const char* reference) {
    if (tropLong(champ)) return 0;
    if (videOuBlanc(champ) && !fVTABP(dependance, reference)) return 1;
    return dansListe(champ, sverif);
}

int fVDIFFNULLP(const char* dependance, const char* champ, const char* reference) {
    if (tropLong(champ)) return 0;
    return !fVTABP(dependance, reference) || !videOuBlanc(champ);
}

/** A blank number of an animal from before the reference date. */
bool numeroBlancAvant(const char* dependance, const char* champ, const char* reference) {
    return dansListe(champ, DouzeBlancs) && !fVTABP(dependance, reference);
}

}  // namespace

int fVTABP(const char* date, const char* reference) { return fCoherenDCSupInf(reference, date, SUP); }

int fVTABP5(const char* dependance, char* champ, const liste& sverif) {
    return fVTABP5a8(dependance, champ, sverif, P5[0].valeur);
}

int fVTABP6(const char* dependance, char* champ, const liste& sverif) {
    return fVTABP5a8(dependance, champ, sverif, P6[0].valeur);
}

int fVTABP8(const char* dependance, char* champ, const liste& sverif) {
    return fVTABP5a8(dependance, champ, sverif, P8[0].valeur);
}

int fVDIFFNULLP5(const char* dependance, char* champ, const liste&) {
    return fVDIFFNULLP(dependance, champ, P5[0].valeur);
}

int fVDIFFNULLP6(const char* dependance, char* champ, const liste&) {
    return fVDIFFNULLP(dependance, champ, P6[0].valeur);
}

int fVDIFFNULLVTAB(const char*, char* champ, const liste& sverif) {
    return memeDebut(champ, "  ", 2) || memeDebut(champ, "**", 2) || dansListe(champ, sverif);
}

int fVTABDIFFFR(const char*, char* champ, const liste& sverif) {
    return !vaut(champ, "FR") && dansListe(champ, sverif);
}

int fVDIFF2B(const char*, char* champ, const liste& sverif) {
    return vaut(champ, "  ") || dansListe(champ, sverif);
}

int fVEGALDNULLVTAB(const char* dependance, char* champ, const liste& sverif) {
    if (tropLong(dependance)) return 0;
    if (!videOuBlanc(dependance) && memeDebut(champ, "  ", 2)) return 1;
    return dansListe(champ, sverif);
}

int fVDIFFVD(const char* dependance, char* champ, const liste& sverif) {
    const bool tousDeuxEnListe =
        sverif.nombre() > 0 && egal(champ, sverif[0].valeur) && egal(dependance, sverif[0].valeur);
    return !blancs30(champ) || !blancs30(dependance) || tousDeuxEnListe;
}

int fCDIFF(const char* dependance, char* champ, const liste& sverif) {
    if (tropLong(dependance)) return 0;
    return !videOuBlanc(dependance) || !dansListeStricte(champ, sverif);
}

int fConform_BV_model1(const char* dependance, char* champ, const liste&) {
    const bool tardif = fVTABP(dependance, P17[0].valeur);
    const bool blanc = blancs(champ, 1, 8);
    if (tardif && blanc) return 0;
    if (!blanc && contientBlanc(champ, 1, 6)) return 0;
    return vaut(aPartirDe(champ, 7), "  ");
}

int fConform_temoin_bouc1(const char* dependance, char* champ, const liste&) {
    return !fVTABP(dependance, P17[0].valeur) || champ[0] != ' ';
}

int fCONFORM8FRP6(const char* dependance, char* champ, const liste& sverif) {
    return numeroBlancAvant(dependance, champ, P6[0].valeur) || fConform8FR(corps(C16), champ, sverif);
}

int fCONFORM10FRP5(const char* dependance, char* champ, const liste& sverif) {
    return numeroBlancAvant(dependance, champ, P5[0].valeur) || fConform10FR(corps(C10), champ, sverif);
}

int fPaysNonCEE(const char*, char* champ, const liste&) {
    return dansListe(champ, TP) && !dansListe(champ, TCEE);
}

int fVTYPE(const char*, char* champ, const liste& sverif) {
    if (sverif.nombre() < 3) return 0;
    if (egal(champ, sverif[1].valeur) || egal(champ, sverif[2].valeur)) return 1;
    if (!vaut(sverif[0].valeur, "NUM")) return 0;
    return champ[0] != '\0' && chiffres(champ, 1, static_cast<int>(std::strlen(champ)));
}

int fVEGDS(const char* dependance, char* champ, const liste& sverif) {
    if (sverif.nombre() < 2 || tropLong(champ)) return 0;
    const long long a = nombre(sverif[0].valeur);
    const long long largeur = nombre(sverif[1].valeur) - a + 1;
    if (a < 1 || a > LARGEUR_VSE || largeur > LARGEUR_VSE) return 0;
    return largeur <= 0 ||
           memeDebut(champ, aPartirDe(dependance, static_cast<int>(a)), static_cast<int>(largeur));
}

int fVerifDiffZero(const char* champ, int posDebut, int posFin) {
    if (tropLong(champ) || posDebut < 1 || posFin < posDebut) return 0;
    const int n = posFin - posDebut < 5 ? posFin - posDebut + 1 : 5;
    return !memeDebut(aPartirDe(champ, posDebut), "0000", n);
}

}  // namespace quilvane
