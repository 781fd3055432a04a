/**
 * IMOC - ovine or caprine mark of a holding.
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
constexpr sCorps tImoc[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check              list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   2, fVerifValAut,      &FR,          aucune,      159},
    {C2,       65,   76,   0,   2,   0,   2,   2, fVerifDiffNull,    &DouzeBlancs, aucune,      160},
    {C2,        0,    0,   0,   2,   0,   2,   2, fConform_OC_IND_M, &sansListe,   aucune,      161},
    {C2,        0,    0,   0,   2,   0,   2,   2, fCoheren_OC_IND_M, &IND_M,       entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,           &sansListe,   aucune,        0},
    {C4,       79,   80,   0,   2,   1,   2,   2, fVerifValAut,      &FR,          aucune,       27},
    {C5,       81,   92,   0,   2,   1,   2,   2, fVerifDiffNull,    &DouzeBlancs, aucune,       27},
    {C5,        0,    0,   0,   2,   1,   2,   2, fConform8,         &TD,          corps(C1),    68},
    {C5,        0,    0,   0,   2,   1,   2,   2, fCoherenCC,        &sansListe,   entete(E8),   50},
    {C6,       93,   93,   0,   2,   1,   2,   2, fVerifValAut,      &C2_MODEL,    aucune,      162},
    {C7,       94,  101,   0,   2,   1,   2,   2, fDATEC,            &sansListe,   aucune,      163},
    {C7,        0,    0,   0,   2,   1,   2,   2, fCoherenDC,        &sansListe,   fin(F1),      52},
    {C8,      102,  230,   1,   1,   1,   1,   1, nullptr,           &sansListe,   aucune,        0},
};
constexpr int lImoc = static_cast<int>(std::size(tImoc));
const parcours pImoc(tImoc);
// clang-format on
static_assert(lignesJustes<examiner(tImoc, CORPS)>());

}  // namespace quilvane
