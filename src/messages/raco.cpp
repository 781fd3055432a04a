/**
 * RACO - yearly census of a holding.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Six digits. Error 170. */
int raco_fC6(const char*, char* champ, const liste&) { return chiffres(champ, 1, 6); }

// clang-format off
constexpr sCorps tRaco[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check              list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,      &FR,          aucune,       27},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,    &DouzeBlancs, aucune,       27},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform8,         &TD,          aucune,       68},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCC,        &sansListe,   entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,           &sansListe,   aucune,        0},
    {C4,       79,   82,   0,   2,   0,   2,   0, fCoherenD_OC_an_1, &sansListe,   aucune,      167},
    {C4,        0,    0,   0,   2,   0,   2,   0, fCoherenD_OC_an_2, &sansListe,   fin(F1),     168},
    {C5,       83,   88,   0,   2,   0,   2,   0, fVerifValAut,      &CAT_RECEN,   aucune,      169},
    {C6,       89,   94,   0,   2,   1,   2,   0, raco_fC6,          &sansListe,   aucune,      170},
    {C7,       95,  102,   0,   2,   1,   2,   1, fDatRecCorr,       &sansListe,   aucune,      134},
    {C7,        0,    0,   0,   2,   1,   2,   1, fDatRecCohe,       &sansListe,   fin(F1),      52},
    {C7,        0,    0,   0,   2,   1,   2,   1, fDatRec_OC_Post,   &sansListe,   corps(C4),   137},
    {C8,      103,  230,   1,   1,   1,   1,   1, nullptr,           &sansListe,   aucune,        0},
};
constexpr int lRaco = static_cast<int>(std::size(tRaco));
const parcours pRaco(tRaco);
// clang-format on
static_assert(lignesJustes<examiner(tRaco, CORPS)>());

}  // namespace quilvane
