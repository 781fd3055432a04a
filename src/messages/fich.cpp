/**
 * FICH - the file record, first of every file. Its rows only cut the body into
 * fields, which record processing keeps for the whole run.
 */
#include <iterator>

#include "messages/aiguillage.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"

namespace quilvane {

// clang-format off
constexpr sCorps tFich[] = {
    //field first last CRE DEM INV EDI MOD check    list        dependency  error
    {C1,     63,   78,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C2,     79,   94,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C3,     95,  100,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C4,    101,  106,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C5,    107,  112,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C6,    113,  118,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C7,    119,  124,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C8,    125,  125,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
    {C9,    126,  230,  1,  1,  1,  1,  1, nullptr, &sansListe, aucune,        0},
};
constexpr int lFich = static_cast<int>(std::size(tFich));
// clang-format on
static_assert(lignesJustes<examiner(tFich, CORPS)>());

}  // namespace quilvane
