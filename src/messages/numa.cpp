/**
 * NUMA - range of animal numbers given to a holding.
 */
#include "checks/lecture.h"
#include "checks/utils.h"
#include "messages/messages.h"

namespace quilvane {

int numa_fC6_1(const char*, char* champ, const void*, int) {
    return chiffres(champ, 1, 6) && nombre(champ) != 0;
}

int numa_fC6_2(const char*, char* champ, const void*, int) {
    const long long compte = nombre(champ);
    return compte >= 1 && compte <= 1000;
}

int numa_fC6_3(const char* dependance, char* champ, const void*, int) {
    // Behind its department a number has eight digits.
    return nombreDepuis(dependance, 3) + nombre(champ) <= 100'000'000;
}

// clang-format off
constexpr int lNuma = 26;
constexpr sCorps tNuma[lNuma] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD  check               count            list         dependency  error
    {C1,       63,   64,   0,   2,   2,   2,   0, fVerifValAut,       &LenFR,          FR,          aucune,        27},
    {C2,       65,   76,   0,   2,   2,   2,   0, fVerifDiffNull,     &LenDouzeBlancs, DouzeBlancs, aucune,        27},
    {C2,        0,    0,   0,   2,   2,   2,   0, fConform8,          &LenTD,          TD,          aucune,        68},
    {C2,        0,    0,   0,   2,   2,   2,   0, fCoherenCC,         &Len0,           nullptr,     entete(E8),    50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,            &Len0,           nullptr,     aucune,         0},
    {C4,       79,   80,   0,   2,   2,   2,   0, fVerifValAut,       &LenFR,          FR,          aucune,        26},
    {C5,       81,   92,   0,   2,   2,   2,   0, fVerifDiffNull,     &LenDouzeBlancs, DouzeBlancs, aucune,        26},
    {C5,        0,    0,   0,   2,   2,   2,   0, fConform10,         &LenTD,          TD,          aucune,        67},
    {C5,        0,    0,   0,   2,   2,   2,   0, fCoherenCC,         &Len0,           nullptr,     entete(E8),    50},
    {C6,       93,   98,   0,   2,   2,   2,   0, numa_fC6_1,         &Len0,           nullptr,     aucune,        48},
    {C6,        0,    0,   0,   2,   2,   2,   0, numa_fC6_2,         &Len0,           nullptr,     aucune,       177},
    {C6,        0,    0,   0,   2,   2,   2,   0, numa_fC6_3,         &Len0,           nullptr,     corps(C5),    179},
    {C7,       99,  106,   0,   2,   2,   2,   1, fDATEC,             &Len0,           nullptr,     aucune,        28},
    {C7,        0,    0,   0,   2,   2,   2,   1, fCoherenDC,         &Len0,           nullptr,     fin(F1),       52},
    {C8,      107,  107,   1,   2,   2,   2,   0, fVerifValAut,       &LenUTIL_BOUC,   UTIL_BOUC,   aucune,       150},
    {C9,      108,  115,   0,   2,   2,   2,   0, fConform_BV_model1, &Len0,           nullptr,     corps(C7),    153},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model2, &LenFAB_REP,     FAB_REP,     aucune,       154},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model3, &LenC2_MODEL_BV, C2_MODEL_BV, aucune,       155},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model4, &LenC3_MODEL_BV, C3_MODEL_BV, aucune,       156},
    {C9,        0,    0,   0,   2,   2,   2,   0, fConform_BV_model5, &Len0,           nullptr,     aucune,       157},
    {C10,     116,  123,   0,   2,   2,   2,   0, fConform_BV_model1, &Len0,           nullptr,     corps(C7),    153},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model2, &LenFAB_REP,     FAB_REP,     aucune,       154},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model3, &LenC2_MODEL_BV, C2_MODEL_BV, aucune,       155},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model4, &LenC3_MODEL_BV, C3_MODEL_BV, aucune,       156},
    {C10,       0,    0,   0,   2,   2,   2,   0, fConform_BV_model5, &Len0,           nullptr,     aucune,       157},
    {C11,     124,  230,   1,   1,   1,   1,   1, nullptr,            &Len0,           nullptr,     aucune,         0},
};
// clang-format on

}  // namespace quilvane
