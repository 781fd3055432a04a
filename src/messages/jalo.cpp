/**
 * JALO - request for marking.
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
constexpr sCorps tJalo[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list             dependency  error
    {C1,       63,   64,   0,   2,   2,   2,   2, fVerifValAut,           &TP,             aucune,        1},
    {C2,       65,   76,   0,   2,   2,   2,   2, fVerifDiffNull,         &DouzeBlancs,    aucune,        1},
    {C2,        0,    0,   0,   2,   2,   2,   2, fConform10FR,           &TD,             corps(C1),    67},
    {C2,        0,    0,   0,   2,   2,   2,   2, fConform10FRnonECHAnon, &TD,             corps(C1),   118},
    {C2,        0,    0,   0,   2,   2,   2,   2, fConform10FRnonECHAoui, &sansListe,      corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,      aucune,        0},
    {C4,       79,   80,   0,   2,   2,   2,   2, fVerifValAut,           &FR,             aucune,       21},
    {C5,       81,   92,   0,   2,   2,   2,   2, fVerifDiffNull,         &DouzeBlancs,    aucune,       21},
    {C5,        0,    0,   0,   2,   2,   2,   2, fConform8,              &TD,             corps(C1),    68},
    {C5,        0,    0,   0,   2,   2,   2,   2, fCoherenCC,             &sansListe,      entete(E8),   50},
    {C6,       93,  100,   0,   2,   2,   2,   2, fDATEC,                 &sansListe,      aucune,       22},
    {C6,        0,    0,   0,   2,   2,   2,   2, fCoherenDC,             &sansListe,      fin(F1),      52},
    {C7,      101,  160,   0,   2,   2,   2,   2, fVerifDiffNull,         &soixanteBlancs, aucune,       24},
    {C8,      161,  220,   0,   2,   2,   2,   2, fVerifDiffNull,         &soixanteBlancs, aucune,       24},
    {C9,      221,  221,   0,   2,   2,   2,   2, fVerifValAut,           &BOOL,           aucune,      117},
    {C10,     222,  222,   0,   2,   2,   2,   2, fVerifValAut,           &DEROUL_MARC,    aucune,      119},
    {C11,     223,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,      aucune,        0},
};
constexpr int lJalo = static_cast<int>(std::size(tJalo));
const parcours pJalo(tJalo);
// clang-format on
static_assert(lignesJustes<examiner(tJalo, CORPS)>());

}  // namespace quilvane
