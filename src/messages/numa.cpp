/**
 * NUMA - range of animal numbers given to a holding.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Count: six digits, not zero. Error 48. */
int numa_fC6_1(const char*, char* champ, const liste&) { return chiffres(champ, 1, 6) && nombre(champ) != 0; }

/** Count: 1 to 1000. Error 177. */
int numa_fC6_2(const char*, char* champ, const liste&) {
    const long long compte = nombre(champ);
    return compte >= 1 && compte <= 1000;
}

/** First number of the range (dependency, from column 3) plus count: at most
 *  100000000. Error 179. */
int numa_fC6_3(const char* dependance, char* champ, const liste&) {
    // Behind its department a number has eight digits.
    return nombreDepuis(dependance, 3) + nombre(champ) <= 100'000'000;
}

// clang-format off
constexpr sCorps tNuma[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check               list          dependency  error
    {C1,       63,   64,   0,   2,   2,   2,   0, fVerifValAut,       &FR,          aucune,       27},
    {C2,       65,   76,   0,   2,   2,   2,   0, fVerifDiffNull,     &DouzeBlancs, aucune,       27},
    {C2,        0,    0,   0,   2,   2,   2,   0, fConform8,          &TD,          aucune,       68},
    {C2,        0,    0,   0,   2,   2,   2,   0, fCoherenCC,         &sansListe,   entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,            &sansListe,   aucune,        0},
    {C4,       79,   80,   0,   2,   2,   2,   0, fVerifValAut,       &FR,          aucune,       26},
    {C5,       81,   92,   0,   2,   2,   2,   0, fVerifDiffNull,     &DouzeBlancs, aucune,       26},
    {C5,        0,    0,   0,   2,   2,   2,   0, fConform10,         &TD,          aucune,       67},
    {C5,        0,    0,   0,   2,   2,   2,   0, fCoherenCC,         &sansListe,   entete(E8),   50},
    {C6,       93,   98,   0,   2,   2,   2,   0, numa_fC6_1,         &sansListe,   aucune,       48},
    {C6,        0,    0,   0,   2,   2,   2,   0, numa_fC6_2,         &sansListe,   aucune,      177},
    {C6,        0,    0,   0,   2,   2,   2,   0, numa_fC6_3,         &sansListe,   corps(C5),   179},
    {C7,       99,  106,   0,   2,   2,   2,   1, fDATEC,             &sansListe,   aucune,       28},
    {C7,        0,    0,   0,   2,   2,   2,   1, fCoherenDC,         &sansListe,   fin(F1),      52},
    {C8,      107,  107,   1,   2,   2,   2,   0, fVerifValAut,       &UTIL_BOUC,   aucune,      150},
    {C9,      108,  115,   0,   2,   2,   2,   0, fConform_BV_model1, &sansListe,   corps(C7),   153},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model2, &FAB_REP,     aucune,      154},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model3, &C2_MODEL_BV, aucune,      155},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model4, &C3_MODEL_BV, aucune,      156},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model5, &sansListe,   aucune,      157},
    {C10,     116,  123,   0,   2,   2,   2,   0, fConform_BV_model1, &sansListe,   corps(C7),   153},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model2, &FAB_REP,     aucune,      154},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model3, &C2_MODEL_BV, aucune,      155},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model4, &C3_MODEL_BV, aucune,      156},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model5, &sansListe,   aucune,      157},
    {C11,     124,  230,   1,   1,   1,   1,   1, nullptr,            &sansListe,   aucune,        0},
};
constexpr int lNuma = static_cast<int>(std::size(tNuma));
const parcours pNuma(tNuma);
// clang-format on
static_assert(lignesJustes<examiner(tNuma, CORPS)>());

}  // namespace quilvane
