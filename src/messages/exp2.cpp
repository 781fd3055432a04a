/**
 * EXP2 - export, keeper; the companion of EXP1.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
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
constexpr sCorps tExp2[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &FR,          aucune,       31},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       31},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform8,      &TD,          corps(C1),    68},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCC,     &sansListe,   entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C4,       79,   80,   0,   2,   1,   2,   0, fVerifValAut,   &FR,          aucune,       30},
    {C5,       81,   92,   0,   2,   1,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       30},
    {C5,        0,    0,   0,   2,   1,   2,   0, fConform3,      &TDD,         aucune,       30},
    {C6,       93,   93,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C7,       94,   94,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C8,       95,   95,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C9,       96,   96,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C10,      97,   98,   1,   2,   0,   2,   0, fVerifValAut,   &FR,          aucune,       76},
    {C11,      99,  110,   1,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       76},
    {C11,       0,    0,   1,   2,   0,   2,   0, fConform3,      &TDD,         aucune,       76},
    {C12,     111,  120,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C13,     121,  130,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C14,     131,  140,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C15,     141,  148,   0,   2,   1,   2,   0, fDATEC,         &sansListe,   aucune,       22},
    {C15,       0,    0,   0,   2,   1,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C16,     149,  156,   1,   2,   0,   2,   0, fDATEC,         &sansListe,   aucune,       22},
    {C16,       0,    0,   1,   2,   0,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C17,     157,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
};
constexpr int lExp2 = static_cast<int>(std::size(tExp2));
const parcours pExp2(tExp2);
// clang-format on
static_assert(lignesJustes<examiner(tExp2, CORPS)>());

}  // namespace quilvane
