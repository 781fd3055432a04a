/**
 * GROC - tag order for ovines and caprines.
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

/** Second date: blank, or complete; blank, or not after the dependency.
 *  Errors 102 and 52. */
int groc_cre_C10_1(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fDATEC(dependance, champ, sverif);
}

int groc_cre_C10_2(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fCoherenDC(dependance, champ, sverif);
}

/** A time (HHMMSS) with the date in the dependency, six blanks without it.
 *  Error 103. */
int groc_cre_C12(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(dependance) ? vaut(champ, "      ") : fHEUREC(dependance, champ, sverif);
}

// clang-format off
constexpr sCorps tGroc[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                  list          dependency  error
    {C1,       63,   64,   0,   0,   2,   2,   2, fVerifValAut,          &TECH,        aucune,        1},
    {C2,       65,   76,   0,   0,   2,   2,   2, fVerifDiffNull,        &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   0,   0,   2,   2,   2, fConform_OC_FR,        &IND_M,       corps(C1),   151},
    {C2,        0,    0,   0,   0,   2,   2,   2, fConform_OC_UE,        &sansListe,   corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,               &sansListe,   aucune,        0},
    {C4,       79,   80,   0,   1,   2,   2,   2, fVerifValAut,          &FR,          aucune,       27},
    {C5,       81,   92,   0,   1,   2,   2,   2, fVerifDiffNull,        &DouzeBlancs, aucune,       27},
    {C5,        0,    0,   0,   1,   2,   2,   2, fConform8,             &TD,          corps(C1),    68},
    {C5,        0,    0,   0,   1,   2,   2,   2, fCoherenCC,            &sansListe,   entete(E8),   50},
    {C6,       93,  100,   0,   1,   2,   2,   2, fDATEC,                &sansListe,   aucune,       28},
    {C6,        0,    0,   0,   1,   2,   2,   2, fCoherenDC,            &sansListe,   fin(F1),      52},
    {C7,      101,  108,   0,   0,   2,   2,   2, fConform_OC_model1,    &sansListe,   aucune,      153},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model2,    &FAB_REP,     aucune,      154},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model3,    &C2_MODEL,    aucune,      155},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model4,    &C3_MODEL,    aucune,      156},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model5,    &sansListe,   aucune,      157},
    {C8,      109,  110,   0,   1,   2,   2,   2, fConform_OC_pays_orig, &sansListe,   corps(C1),   152},
    {C9,      111,  111,   0,   1,   2,   2,   2, fConform_OC_compteur,  &sansListe,   corps(C7),   158},
    {C10,     112,  119,   0,   1,   2,   2,   2, groc_cre_C10_1,        &sansListe,   corps(C6),   102},
    {C10,       0,    0,   0,   1,   2,   2,   2, groc_cre_C10_2,        &sansListe,   fin(F1),      52},
    {C10,       0,    0,   1,   1,   2,   2,   2, fDATEC,                &sansListe,   aucune,      102},
    {C10,       0,    0,   1,   1,   2,   2,   2, fCoherenDC,            &sansListe,   fin(F1),      52},
    {C11,     120,  121,   1,   1,   2,   2,   2, nullptr,               &sansListe,   aucune,        0},
    {C12,     122,  127,   0,   1,   2,   2,   2, groc_cre_C12,          &sansListe,   corps(C10),  103},
    {C12,       0,    0,   1,   1,   2,   2,   2, fHEUREC,               &sansListe,   aucune,      103},
    {C13,     128,  230,   1,   1,   1,   1,   1, nullptr,               &sansListe,   aucune,        0},
};
constexpr int lGroc = static_cast<int>(std::size(tGroc));
const parcours pGroc(tGroc);
// clang-format on
static_assert(lignesJustes<examiner(tGroc, CORPS)>());

}  // namespace quilvane
