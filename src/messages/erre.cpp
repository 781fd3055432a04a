/**
 * ERRE - returns an error found on a slaughter notice. The fields
 * between C10 and C29 have no row and are not cut, so from C29 on a field's
 * slot is its position in the table, not its number.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/dates.h"
#include "checks/identifiants.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

/** Whether the message in error is a slaughter notice (columns 63-66). */
bool surABAT() { return memeDebut(aPartirDe(xdebug, 63), "ABAT", 4); }

/** A two-letter country code of the record. */
struct pays {
    char code[3];
    explicit pays(int col) : code{carac(xdebug, col), carac(xdebug, col + 1), '\0'} {}
    bool estFR() const { return vaut(code, "FR"); }
    /** "CH" or a member state. */
    bool partenaire() const { return vaut(code, "CH") || appartient_UE(code); }
};
constexpr int COL_PAYS_C6 = 84;
constexpr int COL_PAYS_ANIMAL = 176;

int agrementOuExploitation(const char* champ) {
    if (champVide(champ)) return 1;
    return surABAT() ? verifNumAgrementSanitaireFr(champ) : verifNumExploitFr(champ);
}

}  // namespace

/** Only errors about slaughter notices: exactly "ABAT". Error 190. */
int vErre_C1(const char*, char* champ, const liste&) { return vaut(champ, "ABAT"); }

/** Not blank. Errors 185, 21 and 188. */
int vErre_C4(const char*, char* champ, const liste&) { return !champVide(champ); }
int vErre_C8(const char*, char* champ, const liste&) { return !champVide(champ); }
int vErre_C10(const char*, char* champ, const liste&) { return !champVide(champ); }

/** A country (2) of `TP`; blank unless the type is ABAT. Error 1. */
int vErre_C5(const char*, char* champ, const liste&) {
    if (surABAT() && contientBlanc(champ, 1, 2)) return 0;
    if (!surABAT() && vaut(champ, "  ")) return 1;
    return dansListe(champ, TP);
}

/** A number (12) of foreign form for columns 84-85; blank unless ABAT. Error 186. */
int vErre_C6(const char*, char* champ, const liste&) {
    if (champVide(champ)) return !surABAT();
    return fVerifNumEtranger(pays(COL_PAYS_C6).code, champ, sansListe);
}

/** Exactly "FR". Error 21. */
int vErre_C7(const char*, char* champ, const liste&) { return vaut(champ, "FR"); }

/** Blank, or a French approval number (ABAT) or holding number. Error 68. */
int vErre_C8_conf(const char*, char* champ, const liste&) { return agrementOuExploitation(champ); }
/** As `vErre_C8_conf`. Error 189. */
int vErre_C30(const char*, char* champ, const liste&) { return agrementOuExploitation(champ); }

/** Exactly four letters or digits. Error 187. */
int vErre_C9(const char*, char* champ, const liste&) {
    return std::strlen(champ) == 4 && tous(champ, 1, 4, estLettreOuChiffre);
}

/** Blank or exactly "FR". Error 189. */
int vErre_C29(const char*, char* champ, const liste&) { return champVide(champ) || vaut(champ, "FR"); }

/** Two blanks or a country of `TP`. Error 1. */
int vErre_C31(const char*, char* champ, const liste&) { return vaut(champ, "  ") || dansListe(champ, TP); }

/** Animal number (12), blank passes; country (columns 176-177) "FR": French or
 *  imported form. Error 67. */
int vErre_C32_1(const char*, char* champ, const liste&) {
    if (champVide(champ)) return 1;
    return !pays(COL_PAYS_ANIMAL).estFR() || verifNumBovinFrOuImporte(champ);
}

/** The same for a country outside the member states and "CH". Error 118. */
int vErre_C32_2(const char*, char* champ, const liste&) {
    if (champVide(champ)) return 1;
    const pays animal(COL_PAYS_ANIMAL);
    return animal.estFR() || animal.partenaire() || verifNumBovinFrOuImporte(champ);
}

/** "CH" or another member state: foreign form. Error 1. */
int vErre_C32_3(const char*, char* champ, const liste&) {
    if (champVide(champ)) return 1;
    const pays animal(COL_PAYS_ANIMAL);
    return animal.estFR() || !animal.partenaire() || fVerifNumEtranger(animal.code, champ, sansListe);
}

/** A complete date (8), required for ABAT. Error 122. */
int vErre_C36_1(const char*, char* champ, const liste&) {
    if (std::strlen(champ) != 8) return 0;
    return champVide(champ) ? !surABAT() : verifDateCompleteEtCorrecte(champ);
}

/** Blank, a departmental body of `TDC`, or a national code (8). Error 87. */
int vErre_C37_1(const char*, char* champ, const liste&) {
    if (champVide(champ)) return 1;
    if (std::strlen(champ) != 8) return 0;
    const int longueur = dernierNonBlanc(champ) + 1;
    if (longueur < 6 || contientBlanc(champ, 1, longueur)) return 0;
    if (memeDebut(aPartirDe(champ, 4), "IPG", 3)) return dansListeStricte(champ, TDC);
    return memeDebut(champ, "ONICAB", 6) || memeDebut(champ, "OFFICE", 6) || vaut(champ, "NORMABEV") ||
           vaut(champ, "POINTFOC");
}

/** Blank, or a body that goes with the file's emitter (dependency). Error 135. */
int vErre_C37_2(const char* dependance, char* champ, const liste&) {
    return champVide(champ) || egal(champ, dependance) || pairesTEDC(dependance, champ);
}

// clang-format off
constexpr sCorps tErre[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check          list        dependency      error
    {C1,       63,   66,   0,   1,   0,   1,   0, fVerifValAut,  &tE6,       aucune,           85},
    {C1,        0,    0,   0,   1,   0,   1,   0, vErre_C1,      &sansListe, aucune,          190},
    {C2,       67,   69,   0,   1,   0,   1,   0, fVerifValAut,  &tE5,       aucune,           84},
    {C3,       70,   71,   0,   1,   0,   1,   0, fVerifValAut,  &TP,        aucune,            1},
    {C4,       72,   83,   0,   1,   0,   1,   0, vErre_C4,      &sansListe, aucune,          185},
    {C5,       84,   85,   0,   1,   0,   1,   0, vErre_C5,      &sansListe, aucune,            1},
    {C6,       86,   97,   0,   1,   0,   1,   0, vErre_C6,      &sansListe, aucune,          186},
    {C7,       98,   99,   0,   1,   0,   1,   0, vErre_C7,      &sansListe, aucune,           21},
    {C8,      100,  111,   0,   1,   0,   1,   0, vErre_C8,      &sansListe, aucune,           21},
    {C8,        0,    0,   0,   1,   0,   1,   0, vErre_C8_conf, &sansListe, aucune,           68},
    {C9,      112,  115,   0,   1,   0,   1,   0, vErre_C9,      &sansListe, aucune,          187},
    {C10,     116,  116,   0,   1,   0,   1,   0, vErre_C10,     &sansListe, aucune,          188},
    {C29,     162,  163,   0,   1,   0,   1,   0, vErre_C29,     &sansListe, aucune,          189},
    {C30,     164,  175,   0,   1,   0,   1,   0, vErre_C30,     &sansListe, aucune,          189},
    {C31,     176,  177,   0,   1,   0,   1,   0, vErre_C31,     &sansListe, aucune,            1},
    {C32,     178,  189,   0,   1,   0,   1,   0, vErre_C32_1,   &sansListe, aucune,           67},
    {C32,       0,    0,   0,   1,   0,   1,   0, vErre_C32_2,   &sansListe, aucune,          118},
    {C32,       0,    0,   0,   1,   0,   1,   0, vErre_C32_3,   &sansListe, aucune,            1},
    {C33,     190,  197,   0,   1,   0,   1,   0, fDATEC_INC,    &sansListe, aucune,            5},
    {C33,       0,    0,   0,   1,   0,   1,   0, fCoherenDC,    &sansListe, fin(F1),          52},
    {C34,     198,  205,   0,   1,   0,   1,   0, fDATEC_INC,    &sansListe, aucune,           22},
    {C34,       0,    0,   0,   1,   0,   1,   0, fCoherenDC,    &sansListe, fin(F1),          52},
    {C35,     206,  213,   0,   1,   0,   1,   0, fDATEC_INC,    &sansListe, aucune,           22},
    {C35,       0,    0,   0,   1,   0,   1,   0, fCoherenDC,    &sansListe, fin(F1),          52},
    {C36,     214,  221,   0,   1,   0,   1,   0, vErre_C36_1,   &sansListe, aucune,          122},
    {C36,       0,    0,   0,   1,   0,   1,   0, fCoherenDC,    &sansListe, fin(F1),          52},
    {C37,     222,  229,   0,   1,   0,   1,   0, vErre_C37_1,   &sansListe, aucune,           87},
    {C37,       0,    0,   0,   1,   0,   1,   0, vErre_C37_2,   &sansListe, fichEntete(E3),  135},
};
constexpr int lErre = static_cast<int>(std::size(tErre));
const parcours pErre(tErre);
// clang-format on
static_assert(lignesJustes<examiner(tErre, CORPS)>());

}  // namespace quilvane
