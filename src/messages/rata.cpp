/**
 * RATA - ties a site to its holdings; the companion of EGET.
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
constexpr sCorps tRata[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list          dependency  error
    {C1,       63,   64,   0,   2,   1,   2,   0, fVerifValAut,   &FR,          aucune,      139},
    {C2,       65,   76,   0,   2,   1,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,      139},
    {C2,        0,    0,   0,   2,   1,   2,   0, fConformEget,   &NEV,         aucune,      140},
    {C2,        0,    0,   0,   2,   1,   2,   0, fCoherenCCEget, &NEV,         entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C4,       79,   79,   0,   2,   1,   2,   0, fVerifValAut,   &PROD_E,      aucune,      131},
    {C5,       80,   81,   0,   2,   1,   2,   0, fVerifValAut,   &FR,          aucune,       31},
    {C6,       82,   93,   0,   2,   1,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       31},
    {C6,        0,    0,   0,   2,   1,   2,   0, fConform8,      &TD,          corps(C1),    68},
    {C7,       94,   95,   1,   2,   1,   2,   0, fVerifValAut,   &FR,          aucune,       31},
    {C8,       96,  107,   1,   2,   1,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       31},
    {C8,        0,    0,   1,   2,   1,   2,   0, fConform8,      &TD,          corps(C1),    68},
    {C9,      108,  115,   0,   2,   1,   2,   0, fDATEC,         &sansListe,   aucune,      148},
    {C9,        0,    0,   0,   2,   1,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C10,     116,  123,   1,   2,   1,   2,   0, fDATEC,         &sansListe,   aucune,      148},
    {C10,       0,    0,   1,   2,   1,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C11,     124,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
};
constexpr int lRata = static_cast<int>(std::size(tRata));
const parcours pRata(tRata);
// clang-format on
static_assert(lignesJustes<examiner(tRata, CORPS)>());

}  // namespace quilvane
