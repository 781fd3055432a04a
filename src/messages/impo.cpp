/**
 * IMPO - import.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

/** Unknown, or explicitly emptied. */
bool dateOuverte(const char* date) { return dansListeStricte(date, HuitBlancsFal); }

}  // namespace

/** Number (12): French form, columns 7 to 10 not "0000". Error 118. */
int impo_C2(const char* dependance, char* champ, const liste& sverif) {
    return fConform10NonNul(dependance, champ, sverif);
}

/** Birth date: eight blanks or asterisks, or possibly incomplete. Error 5. */
int impo_C6_1(const char* dependance, char* champ, const liste& sverif) {
    return dateOuverte(champ) || fDATEI(dependance, champ, sverif);
}

/** Birth date: eight blanks or asterisks, or not after the dependency. Error 52. */
int impo_C6_2(const char* dependance, char* champ, const liste& sverif) {
    return dateOuverte(champ) || fCoherenDC(dependance, champ, sverif);
}

/** Four columns not blank. Error 10. */
int impo_C7(const char*, char* champ, const liste&) { return !blancs(champ, 1, 4); }

/** A foreign country (2) of `TP`. Error 49. */
int impo_C20(const char*, char* champ, const liste&) { return !vaut(champ, "FR") && dansListe(champ, TP); }

// clang-format off
constexpr sCorps tImpo[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check               list             dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,       &FR,             aucune,        1},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,     &DouzeBlancs,    aucune,        1},
    {C2,        0,    0,   0,   2,   0,   2,   0, impo_C2,            &TD,             aucune,      118},
    {C2,        0,    0,   0,   2,   0,   2,   1, fCoherenCC,         &sansListe,      entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,            &sansListe,      aucune,        0},
    {C4,       79,   79,   0,   2,   1,   2,   0, fVerifValAut,       &SEX,            aucune,        3},
    {C5,       80,   81,   0,   2,   1,   2,   0, fVerifValAut,       &TR,             aucune,        4},
    {C6,       82,   89,   0,   2,   1,   2,   0, impo_C6_1,          &HuitBlancsFal,  aucune,        5},
    {C6,        0,    0,   0,   2,   1,   2,   0, impo_C6_2,          &HuitBlancsFal,  fin(F1),      52},
    {C7,       90,   93,   0,   2,   1,   2,   0, impo_C7,            &sansListe,      aucune,       10},
    {C8,       94,  103,   1,   1,   1,   1,   1, nullptr,            &sansListe,      aucune,        0},
    {C9,      104,  104,   1,   1,   1,   1,   1, nullptr,            &sansListe,      aucune,        0},
    {C10,     105,  106,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TP,             aucune,        6},
    {C11,     107,  118,   0,   2,   1,   2,   0, fVerifNumEtrangerN, &sansListe,      corps(C10),    6},
    {C11,       0,    0,   0,   2,   1,   2,   0, fSimult,            &sansListe,      corps(C10),  113},
    {C12,     119,  120,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TR,             aucune,        8},
    {C13,     121,  122,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TP,             aucune,       14},
    {C14,     123,  134,   0,   2,   1,   2,   0, fVerifNumEtrangerN, &sansListe,      corps(C13),   14},
    {C14,       0,    0,   0,   2,   1,   2,   0, fSimult,            &sansListe,      corps(C13),  114},
    {C15,     135,  136,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TR,             aucune,        9},
    {C16,     137,  138,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TP,             aucune,        2},
    {C17,     139,  150,   0,   2,   1,   2,   0, fCONFORM8FRNULL,    &TD,             corps(C16),   68},
    {C17,       0,    0,   0,   2,   1,   2,   0, fConform8FRnon,     &sansListe,      corps(C16),    2},
    {C17,       0,    0,   0,   2,   1,   2,   0, fSimult,            &sansListe,      corps(C16),  115},
    {C18,     151,  152,   0,   2,   1,   2,   1, fVerifValAut,       &FR,             aucune,       21},
    {C19,     153,  164,   0,   2,   1,   2,   1, fVerifDiffNull,     &DouzeBlancs,    aucune,       21},
    {C19,       0,    0,   0,   2,   1,   2,   1, fConform8,          &TD,             aucune,       68},
    {C19,       0,    0,   0,   2,   1,   2,   1, fCoherenCC,         &sansListe,      entete(E8),   50},
    {C20,     165,  166,   0,   2,   1,   2,   0, impo_C20,           &TP,             aucune,       49},
    {C21,     167,  180,   0,   2,   1,   2,   0, fVerifDiffNull,     &quatorzeBlancs, aucune,       49},
    {C22,     181,  181,   0,   2,   1,   2,   0, fVerifValAut,       &ZERO,           aucune,       54},
    {C23,     182,  182,   1,   2,   1,   2,   0, fVerifValAut,       &BOOL,           aucune,      132},
    {C24,     183,  190,   0,   2,   1,   2,   1, fDatRecCorr_O,      &sansListe,      aucune,      134},
    {C24,       0,    0,   0,   2,   1,   2,   1, fDatRecCohe,        &sansListe,      fin(F1),      52},
    {C24,       0,    0,   0,   2,   1,   2,   1, fDatRecPost,        &sansListe,      corps(C6),   137},
    {C25,     191,  230,   1,   1,   1,   1,   1, nullptr,            &sansListe,      aucune,        0},
};
constexpr int lImpo = static_cast<int>(std::size(tImpo));
const parcours pImpo(tImpo);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_IMPO[] = {
    {impo_C2, DEUX_COLONNES},
    {impo_C6_1, ENTIER},
    {impo_C6_2, ENTIER},
    {impo_C20, ENTIER},
};
static_assert(lignesJustes<examiner(tImpo, CORPS, USAGES_IMPO)>());

}  // namespace quilvane
