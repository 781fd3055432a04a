/**
 * conformite - whether an animal or holding number, a tag model, a country of
 * origin or a counter has the prescribed form: one core test of French
 * numbers, its wrappers by country, and the ovine and caprine (OC) and bovine
 * (BV) checks.
 */
#include "checks/conformite.h"

#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

/** What must stand behind the digits of a French number. */
enum eSuite { LIBRE, BLANCS_JUSQUA_12 };

/** The core: a listed department (971 to 976 without 975 overseas) and
 *  `nbChiffres` digits. */
int numeroFrancais(const char* champ, const liste& sverif, int nbChiffres, eSuite suite) {
    if (!debutDansListe(champ, sverif, 2)) return 0;
    if (memeDebut(champ, "97", 2) && (!entre(champ, "971", "976", 3) || memeDebut(champ, "975", 3))) return 0;
    if (!chiffres(champ, 1, nbChiffres)) return 0;
    if (suite == LIBRE) return 1;
    const char* const reste = aPartirDe(champ, nbChiffres + 1);
    return std::strlen(reste) == static_cast<std::size_t>(12 - nbChiffres) && videOuBlanc(reste);
}

bool estFR(const char* pays) { return vaut(pays, "FR"); }
bool estUE(const char* pays) { return dansListe(pays, TCEE); }
bool estECHA(const char* pays) { return dansListe(pays, TECH); }

/** Numbers of ovines and caprines run from 100000 to 683499. */
bool indicatifOC(const char* champ) { return entre(champ, "100000", "683499", 6); }

/** The character of column `col` as a text in the list. */
int caracDansListe(const char* champ, int col, const liste& sverif) {
    const char texte[2] = {carac(champ, col), '\0'};
    return dansListe(texte, sverif);
}

}  // namespace

int fConform8(const char*, char* champ, const liste& sverif) {
    return numeroFrancais(champ, sverif, 8, BLANCS_JUSQUA_12);
}

int fConform10(const char*, char* champ, const liste& sverif) {
    return numeroFrancais(champ, sverif, 10, BLANCS_JUSQUA_12);
}

int fConform10NonNul(const char* dependance, char* champ, const liste& sverif) {
    return fConform10(dependance, champ, sverif) && fVerifDiffZero(champ, 7, 10);
}

int fConform8C(const char*, char* champ, const liste& sverif) {
    return numeroFrancais(champ, sverif, 8, LIBRE);
}

int fConform(const char*, char* champ, const liste& sverif) {
    return numeroFrancais(champ, sverif, 10, LIBRE);
}

int fConform8FR(const char* dependance, char* champ, const liste& sverif) {
    return !estFR(dependance) || fConform8(dependance, champ, sverif);
}

int fConform8FRnon(const char* dependance, char* champ, const liste& sverif) {
    return estFR(dependance) || vaut(dependance, "  ") || fVerifAucunBlanc_SD(dependance, champ, sverif);
}

int fCONFORM8FRNULL(const char* dependance, char* champ, const liste& sverif) {
    return champOuvert(champ) || fConform8FR(dependance, champ, sverif);
}

int fConform10FR(const char* dependance, char* champ, const liste& sverif) {
    return !estFR(dependance) || fConform10(dependance, champ, sverif);
}

int fCONFORM10FRNULL(const char* dependance, char* champ, const liste& sverif) {
    return champOuvert(champ) || fConform10FR(dependance, champ, sverif);
}

int fConform10FRnonUEnon(const char* dependance, char* champ, const liste& sverif) {
    return estUE(dependance) || fConform10(dependance, champ, sverif);
}

int fConform10FRnonECHAnon(const char* dependance, char* champ, const liste& sverif) {
    return estECHA(dependance) || fConform10(dependance, champ, sverif);
}

int fConform10FRnonUEoui(const char* dependance, char* champ, const liste& sverif) {
    return !estUE(dependance) || fConform10FRnon(dependance, champ, sverif);
}

int fConform10FRnonECHAoui(const char* dependance, char* champ, const liste& sverif) {
    return !estECHA(dependance) || fConform10FRnon(dependance, champ, sverif);
}

int fConform10FRnon(const char* dependance, char* champ, const liste& sverif) {
    return estFR(dependance) || fVerifNumEtranger(dependance, champ, sverif);
}

int fConform_OC_UE(const char* dependance, char* champ, const liste& sverif) {
    return fConform10FRnon(dependance, champ, sverif);
}

int fConform_OC_FR(const char* dependance, char* champ, const liste&) {
    if (!estFR(dependance)) return 1;
    return indicatifOC(champ) && chiffres(champ, 1, 11) && vaut(aPartirDe(champ, 12), " ");
}

int fConform_OC_TP(const char* dependance, char* champ, const liste&) {
    if (!estFR(dependance)) return 1;
    if (!indicatifOC(champ) || !chiffres(champ, 1, 6)) return 0;
    const char* const commande = corps(C9);
    const char c7 = carac(champ, 7);
    if (vaut(commande, "PR") ? c7 != 'R' : vaut(commande, "PC") ? c7 != 'C' : !estChiffre(c7)) return 0;
    return (blancs(champ, 8, 11) || chiffres(champ, 8, 11)) && vaut(aPartirDe(champ, 12), " ");
}

int fConform_OC_IND_M(const char*, char* champ, const liste&) {
    return indicatifOC(champ) && chiffres(champ, 1, 6) && vaut(aPartirDe(champ, 7), "      ");
}

int fConform_OC_model1(const char*, char* champ, const liste&) {
    return !contientBlanc(champ, 1, 6) && vaut(aPartirDe(champ, 7), "  ");
}

int fConform_OC_model2(const char*, char* champ, const liste& sverif) {
    return caracDansListe(champ, 1, sverif);
}

int fConform_OC_model3(const char*, char* champ, const liste& sverif) {
    return caracDansListe(champ, 2, sverif);
}

int fConform_OC_model4(const char*, char* champ, const liste& sverif) {
    return caracDansListe(champ, 3, sverif);
}

int fConform_OC_model5(const char*, char* champ, const liste&) { return chiffres(champ, 4, 6); }

int fConform_BV_model2(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fConform_OC_model2(dependance, champ, sverif);
}

int fConform_BV_model3(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fConform_OC_model3(dependance, champ, sverif);
}

int fConform_BV_model4(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fConform_OC_model4(dependance, champ, sverif);
}

int fConform_BV_model5(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fConform_OC_model5(dependance, champ, sverif);
}

int fConform_OC_pays_orig(const char* dependance, char* champ, const liste&) {
    return estFR(dependance) ? dansListe(champ, TP) : vaut(champ, "  ");
}

int fConform_OC_compteur(const char* dependance, char* champ, const liste&) {
    if (carac(dependance, 3) != 'E') return vaut(champ, " ");
    return std::strcmp(champ, "0") >= 0 && std::strcmp(champ, "7") <= 0;
}

int fConform_temoin_bouc2(const char*, char* champ, const liste&) { return !vaut(champ, "0"); }

}  // namespace quilvane
