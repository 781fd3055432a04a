/**
 * NVMN - birth in its short form: the layout of NAIS up to column 150,
 * then the receipt date.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Number (12): French form, columns 7 to 10 not "0000". Error 67. */
int nvmn_C2(const char* dependance, char* champ, const liste& sverif) {
    return fConform10NonNul(dependance, champ, sverif);
}

// clang-format off
constexpr sCorps tNvmn[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,           &FR,          aucune,        1},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   0,   2,   1,   2,   0, nvmn_C2,                &TD,          aucune,       67},
    {C2,        0,    0,   1,   2,   0,   2,   1, fConform10,             &TD,          aucune,       67},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCC,             &sansListe,   entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C4,       79,   79,   0,   2,   1,   2,   0, fVerifValAut,           &SEX,         aucune,        3},
    {C5,       80,   81,   0,   2,   1,   2,   0, fVerifValAut,           &TR,          aucune,        4},
    {C6,       82,   89,   0,   2,   1,   2,   0, fDATEC,                 &sansListe,   aucune,        5},
    {C6,        0,    0,   0,   2,   1,   2,   0, fCoherenDC,             &sansListe,   fin(F1),      52},
    {C7,       90,   93,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C8,       94,  103,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C9,      104,  104,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C10,     105,  106,   0,   2,   1,   2,   0, fVerifValAut,           &TP,          aucune,        7},
    {C11,     107,  118,   0,   2,   1,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,        7},
    {C11,       0,    0,   0,   2,   1,   2,   0, fConform10FR,           &TD,          corps(C10),   67},
    {C11,       0,    0,   0,   2,   1,   2,   0, fConform10FRnonECHAnon, &TD,          corps(C10),  118},
    {C11,       0,    0,   0,   2,   1,   2,   0, fConform10FRnonECHAoui, &sansListe,   corps(C10),    6},
    {C12,     119,  120,   0,   2,   1,   2,   0, fVerifValAut,           &TR,          aucune,        8},
    {C13,     121,  122,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,         &TP,          aucune,       14},
    {C14,     123,  134,   0,   2,   1,   2,   0, fSimult,                &sansListe,   corps(C13),  114},
    {C14,       0,    0,   0,   2,   1,   2,   0, fVerifNumEtrangerN,     &sansListe,   corps(C13),   14},
    {C15,     135,  136,   0,   2,   1,   2,   0, fVerifValAut,           &TR,          aucune,        9},
    {C16,     137,  138,   0,   2,   1,   2,   0, fVerifValAut,           &FR,          aucune,        2},
    {C17,     139,  150,   0,   2,   1,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,        2},
    {C17,       0,    0,   0,   2,   1,   2,   0, fConform8,              &TD,          aucune,       68},
    {C17,       0,    0,   0,   2,   1,   2,   0, fCoherenCC,             &sansListe,   entete(E8),   50},
    {C18,     151,  158,   0,   2,   1,   2,   1, fDatRecCorr_O,          &sansListe,   aucune,      134},
    {C18,       0,    0,   0,   2,   1,   2,   1, fDatRecCohe,            &sansListe,   fin(F1),      52},
    {C18,       0,    0,   0,   2,   1,   2,   1, fDatRecPost,            &sansListe,   corps(C6),   137},
    {C19,     159,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
};
constexpr int lNvmn = static_cast<int>(std::size(tNvmn));
const parcours pNvmn(tNvmn);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_NVMN[] = {
    {nvmn_C2, DEUX_COLONNES},
};
static_assert(lignesJustes<examiner(tNvmn, CORPS, USAGES_NVMN)>());

}  // namespace quilvane
