/**
 * DETI - activity of a keeper.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/dates.h"
#include "checks/identifiants.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

// clang-format off
constexpr sCorps tDeti[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &FR,          aucune,       30},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       30},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform3,      &TDD,         entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C4,       79,   79,   0,   2,   0,   2,   0, fVerifValAut,   &BOOL,        aucune,       81},
    {C5,       80,   87,   0,   2,   1,   2,   0, fDATEC,         &sansListe,   aucune,       42},
    {C5,        0,    0,   0,   2,   1,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C6,       88,   95,   1,   2,   0,   2,   0, fDATEI,         &sansListe,   aucune,       29},
    {C6,        0,    0,   1,   2,   0,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C7,       96,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
};
constexpr int lDeti = static_cast<int>(std::size(tDeti));
const parcours pDeti(tDeti);
// clang-format on
static_assert(lignesJustes<examiner(tDeti, CORPS)>());

}  // namespace quilvane
