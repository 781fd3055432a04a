/**
 * ENTR - entry of an animal on a holding. Column 184 is cut but never
 * checked; the receipt date stands behind it, one column later than in SORT.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "messages/mouvement.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

// F and G come from another holding whose number may be missing; N has none.
constexpr mouvement::causes LETTRES = {"FG", "FG", "N"};

}  // namespace

VERIFS_DE_MOUVEMENT(entr, LETTRES);

// clang-format off
constexpr sCorps tEntr[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,           &TP,          aucune,        1},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FR,           &TD,          corps(C1),    67},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FRnonECHAnon, &TD,          corps(C1),   118},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FRnonECHAoui, &sansListe,   corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C4,       79,   86,   0,   2,   1,   2,   1, fDATEC,                 &sansListe,   aucune,       22},
    {C4,        0,    0,   1,   2,   1,   2,   0, fDATEP6,                &sansListe,   aucune,       22},
    {C4,        0,    0,   0,   2,   1,   2,   0, fCoherenDC_tr,          &sansListe,   fin(F1),      52},
    {C5,       87,   87,   0,   2,   1,   2,   0, fVerifValAutDate,       &TCME,        corps(C4),    23},
    {C5,        0,    0,   0,   2,   1,   2,   0, entr_fC5,               &TCME,        entete(E5),   23},
    {C6,       88,   89,   0,   2,   0,   2,   0, fVerifValAut,           &FR,          aucune,       21},
    {C7,       90,  101,   0,   2,   0,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,       21},
    {C7,        0,    0,   0,   2,   0,   2,   0, fConform8,              &TD,          aucune,       68},
    {C7,        0,    0,   0,   2,   1,   2,   0, fCoherenCC_tr,          &sansListe,   entete(E8),   50},
    {C8,      102,  103,   0,   2,   1,   2,   1, entr_fC8_cre,           &sansListe,   aucune,       24},
    {C8,        0,    0,   1,   2,   1,   2,   0, entr_fC8_mod,           &sansListe,   aucune,       24},
    {C9,      104,  115,   0,   2,   1,   2,   1, entr_fC9_1_cre,         &sansListe,   aucune,       24},
    {C9,        0,    0,   0,   2,   1,   2,   1, entr_fC9_2_cre,         &sansListe,   aucune,       68},
    {C9,        0,    0,   1,   2,   1,   2,   0, entr_fC9_1_mod,         &sansListe,   aucune,       24},
    {C9,        0,    0,   1,   2,   1,   2,   0, entr_fC9_2_mod,         &sansListe,   aucune,       68},
    {C10,     116,  175,   0,   2,   1,   2,   1, entr_fC10_cre,          &sansListe,   aucune,       24},
    {C10,       0,    0,   1,   2,   1,   2,   0, entr_fC10_mod,          &sansListe,   aucune,       24},
    {C11,     176,  183,   1,   2,   0,   2,   0, fDATEP6,                &sansListe,   aucune,       58},
    {C11,       0,    0,   1,   2,   0,   2,   0, fCoherenDC_tr2,         &sansListe,   fin(F1),      52},
    {C12,     184,  184,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C13,     185,  192,   0,   2,   1,   2,   1, fDatRecCorr,            &sansListe,   aucune,      134},
    {C13,       0,    0,   0,   2,   1,   2,   1, fDatRecCohe,            &sansListe,   fin(F1),      52},
    {C13,       0,    0,   0,   2,   1,   2,   1, fDatRecPost_tr,         &sansListe,   corps(C4),   137},
    {C14,     193,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
};
constexpr int lEntr = static_cast<int>(std::size(tEntr));
const parcours pEntr(tEntr);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_ENTR[] = {
    {entr_fC5, NON_LUE},
};
static_assert(lignesJustes<examiner(tEntr, CORPS, USAGES_ENTR)>());

}  // namespace quilvane
