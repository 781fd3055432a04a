/**
 * ACTI - activity of a holding.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

// clang-format off
constexpr sCorps tActi[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &FR,          aucune,       31},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       31},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform8,      &TD,          corps(C1),    68},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCC,     &sansListe,   entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C4,       79,   79,   0,   2,   0,   2,   0, fVerifValAut,   &BOOL,        aucune,       81},
    {C5,       80,   87,   0,   2,   1,   2,   0, fDATEC,         &sansListe,   aucune,       36},
    {C5,        0,    0,   0,   2,   1,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C6,       88,   95,   1,   2,   0,   2,   0, fDATEI,         &sansListe,   aucune,       29},
    {C6,        0,    0,   1,   2,   0,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C7,       96,   96,   0,   2,   0,   2,   0, fVerifValAut,   &PROD,        aucune,      131},
    {C8,       97,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
};
constexpr int lActi = static_cast<int>(std::size(tActi));
const parcours pActi(tActi);
// clang-format on
static_assert(lignesJustes<examiner(tActi, CORPS)>());

}  // namespace quilvane
