/**
 * REBO - replacement of a tag. The fields between C6 and C23 have no row
 * and are not cut, so from C23 on a field's slot is its position, not its
 * number.
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

// clang-format off
constexpr sCorps tRebo[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,           &TP,          aucune,        1},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FR,           &TD,          corps(C1),    67},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FRnonECHAnon, &TD,          corps(C1),   118},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FRnonECHAoui, &sansListe,   corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C4,       79,   86,   0,   2,   1,   2,   0, fDATEC,                 &sansListe,   aucune,       28},
    {C4,        0,    0,   0,   2,   1,   2,   0, fCoherenDC,             &sansListe,   fin(F1),      52},
    {C5,       87,   88,   0,   2,   0,   2,   0, fVerifValAut,           &FR,          aucune,       27},
    {C6,       89,  100,   0,   2,   0,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,       27},
    {C6,        0,    0,   0,   2,   0,   2,   0, fConform8,              &TD,          aucune,       68},
    {C6,        0,    0,   0,   2,   0,   2,   0, fCoherenCC,             &sansListe,   entete(E8),   50},
    {C23,     212,  219,   1,   2,   0,   2,   0, fDATEC,                 &sansListe,   aucune,       28},
    {C23,       0,    0,   1,   2,   0,   2,   0, fCoherenDC,             &sansListe,   fin(F1),      52},
    {C24,     220,  227,   0,   2,   1,   2,   1, fConform_BV_model1,     &sansListe,   corps(C4),   153},
    {C24,       0,    0,   0,   2,   1,   2,   1, fConform_BV_model2,     &FAB_REP,     aucune,      154},
    {C24,       0,    0,   0,   2,   1,   2,   1, fConform_BV_model3,     &C2_MODEL_BV, aucune,      155},
    {C24,       0,    0,   0,   2,   1,   2,   1, fConform_BV_model4,     &C3_MODEL_BV, aucune,      156},
    {C24,       0,    0,   0,   2,   1,   2,   1, fConform_BV_model5,     &sansListe,   aucune,      157},
    {C25,     228,  228,   1,   2,   1,   2,   0, fConform_temoin_bouc1,  &UTIL_BOUC,   corps(C4),   150},
    {C25,       0,    0,   1,   2,   1,   2,   0, fConform_temoin_bouc2,  &sansListe,   aucune,      191},
    {C26,     229,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
};
constexpr int lRebo = static_cast<int>(std::size(tRebo));
const parcours pRebo(tRebo);
// clang-format on
static_assert(lignesJustes<examiner(tRebo, CORPS)>());

}  // namespace quilvane
