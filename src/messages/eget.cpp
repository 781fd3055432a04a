/**
 * EGET - production site. A creation must be followed by its RATA.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/identifiants.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** One of two fields of thirty columns (`champ`, dependency) is filled. Error 141. */
int eget_fC5C6(const char* dependance, char* champ, const liste&) {
    return !egal(dependance, trenteBlancs[0].valeur) || !egal(champ, trenteBlancs[0].valeur);
}

// clang-format off
constexpr sCorps tEget[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list           dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &FR,           aucune,      139},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs,  aucune,      139},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConformEget,   &NEV,          aucune,      140},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCCEget, &NEV,          entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,    aucune,        0},
    {C4,       79,   79,   0,   2,   0,   2,   0, fVerifValAut,   &PROD_E,       aucune,      131},
    {C5,       80,  109,   0,   2,   1,   2,   0, eget_fC5C6,     &sansListe,    corps(C6),   141},
    {C6,      110,  139,   0,   2,   1,   2,   0, eget_fC5C6,     &sansListe,    corps(C5),   141},
    {C7,      140,  144,   0,   2,   1,   2,   0, fVerifDiffNull, &cinqBlancs,   aucune,      142},
    {C8,      145,  174,   0,   2,   1,   2,   0, fVerifDiffNull, &trenteBlancs, aucune,      143},
    {C9,      175,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,    aucune,        0},
};
constexpr int lEget = static_cast<int>(std::size(tEget));
const parcours pEget(tEget);
// clang-format on
static_assert(lignesJustes<examiner(tEget, CORPS)>());

}  // namespace quilvane
