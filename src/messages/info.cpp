/**
 * INFO - request for an animal's data. Columns 77 on are unused up to
 * 119, which no row cuts.
 */
#include <iterator>

#include "checks/conformite.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

// clang-format off
constexpr sCorps tInfo[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list          dependency  error
    {C1,       63,   64,   2,   0,   2,   2,   2, fVerifValAut,           &TP,          aucune,        1},
    {C2,       65,   76,   2,   0,   2,   2,   2, fVerifDiffNull,         &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   2,   0,   2,   2,   2, fConform10FR,           &TD,          corps(C1),    67},
    {C2,        0,    0,   2,   0,   2,   2,   2, fConform10FRnonECHAnon, &TD,          corps(C1),   118},
    {C2,        0,    0,   2,   0,   2,   2,   2, fConform10FRnonECHAoui, &sansListe,   corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C4,      120,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
};
constexpr int lInfo = static_cast<int>(std::size(tInfo));
const parcours pInfo(tInfo);
// clang-format on
static_assert(lignesJustes<examiner(tInfo, CORPS)>());

}  // namespace quilvane
