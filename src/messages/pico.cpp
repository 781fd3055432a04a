/**
 * PICO - range of tag numbers for ovines and caprines.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Count: six digits, not zero. Error 48. */
int pico_fC6_1(const char*, char* champ, const liste&) { return chiffres(champ, 1, 6) && nombre(champ) != 0; }

/** Count: 1 to 10000. Error 178. */
int pico_fC6_2(const char*, char* champ, const liste&) {
    const long long compte = nombre(champ);
    return compte >= 1 && compte <= 10'000;
}

/** First number of the range (dependency) plus count within the series. Error 180. */
int pico_fC6_3(const char* dependance, char* champ, const liste&) {
    const bool lettree = vaut(corps(C9), "PR") || vaut(corps(C9), "PC");
    // A letter in column 7 leaves four digits behind it, else there are five.
    const long long premier = nombreDepuis(dependance, lettree ? 8 : 7);
    return premier + nombreDepuis(champ, 1) <= (lettree ? 10'000 : 100'000);
}

// clang-format off
constexpr sCorps tPico[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                 list          dependency  error
    {C1,       63,   64,   0,   2,   2,   2,   2, fVerifValAut,         &FR,          aucune,       27},
    {C2,       65,   76,   0,   2,   2,   2,   2, fVerifDiffNull,       &DouzeBlancs, aucune,       27},
    {C2,        0,    0,   0,   2,   2,   2,   2, fConform8,            &TD,          aucune,       68},
    {C2,        0,    0,   0,   2,   2,   2,   2, fCoherenCC,           &sansListe,   entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,              &sansListe,   aucune,        0},
    {C4,       79,   80,   0,   2,   2,   2,   2, fVerifValAut,         &FR,          aucune,      164},
    {C5,       81,   92,   0,   2,   2,   2,   2, fVerifDiffNull,       &DouzeBlancs, aucune,      165},
    {C5,        0,    0,   0,   2,   2,   2,   2, fConform_OC_TP,       &IND_M,       corps(C4),   151},
    {C5,        0,    0,   0,   2,   2,   2,   2, fCoheren_OC_IND_M,    &IND_M,       entete(E8),   50},
    {C6,       93,   98,   0,   2,   2,   2,   2, pico_fC6_1,           &sansListe,   aucune,       48},
    {C6,        0,    0,   0,   2,   2,   2,   2, pico_fC6_2,           &sansListe,   aucune,      178},
    {C6,        0,    0,   0,   2,   2,   2,   2, pico_fC6_3,           &sansListe,   corps(C5),   180},
    {C7,       99,  106,   0,   2,   2,   2,   2, fDATEC,               &sansListe,   aucune,       28},
    {C7,        0,    0,   0,   2,   2,   2,   2, fCoherenDC,           &sansListe,   fin(F1),      52},
    {C8,      107,  114,   0,   2,   2,   2,   2, fConform_OC_model1,   &sansListe,   aucune,      153},
    {C8,        0,    0,   0,   2,   2,   2,   2, fConform_OC_model2,   &FAB_REP,     aucune,      154},
    {C8,        0,    0,   0,   2,   2,   2,   2, fConform_OC_model3,   &C2_MODEL,    aucune,      155},
    {C8,        0,    0,   0,   2,   2,   2,   2, fConform_OC_model4,   &C3_MODEL,    aucune,      156},
    {C8,        0,    0,   0,   2,   2,   2,   2, fConform_OC_model5,   &sansListe,   aucune,      157},
    {C9,      115,  116,   0,   2,   2,   2,   2, fVerifValAut,         &TYP_COM,     aucune,      166},
    {C10,     117,  118,   0,   2,   2,   2,   2, fVerifValAut,         &TP,          aucune,      152},
    {C11,     119,  119,   0,   2,   2,   2,   2, fConform_OC_compteur, &sansListe,   corps(C8),   158},
    {C12,     120,  230,   1,   1,   1,   1,   1, nullptr,              &sansListe,   aucune,        0},
};
constexpr int lPico = static_cast<int>(std::size(tPico));
const parcours pPico(tPico);
// clang-format on
static_assert(lignesJustes<examiner(tPico, CORPS)>());

}  // namespace quilvane
