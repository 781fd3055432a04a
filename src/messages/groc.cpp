/**
 * GROC - tag order for ovines and caprines.
 */
#include "checks/lecture.h"
#include "checks/utils.h"
#include "messages/messages.h"

namespace quilvane {

namespace {

bool dateBlanche(const char* date) { return egal(date, HuitBlancs[0].valeur); }

}  // namespace

int groc_cre_C10_1(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return dateBlanche(champ) || fDATEC(dependance, champ, sverif, lenSverif);
}

int groc_cre_C10_2(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return dateBlanche(champ) || fCoherenDC(dependance, champ, sverif, lenSverif);
}

int groc_cre_C12(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return dateBlanche(dependance) ? vaut(champ, "      ") : fHEUREC(dependance, champ, sverif, lenSverif);
}

// clang-format off
constexpr int lGroc = 26;
constexpr sCorps tGroc[lGroc] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD  check                  count            list         dependency  error
    {C1,       63,   64,   0,   0,   2,   2,   2, fVerifValAut,          &LenTECH,        TECH,        aucune,         1},
    {C2,       65,   76,   0,   0,   2,   2,   2, fVerifDiffNull,        &LenDouzeBlancs, DouzeBlancs, aucune,         1},
    {C2,        0,    0,   0,   0,   2,   2,   2, fConform_OC_FR,        &LenIND_M,       IND_M,       corps(C1),    151},
    {C2,        0,    0,   0,   0,   2,   2,   2, fConform_OC_UE,        &Len0,           nullptr,     corps(C1),      1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,               &Len0,           nullptr,     aucune,         0},
    {C4,       79,   80,   0,   1,   2,   2,   2, fVerifValAut,          &LenFR,          FR,          aucune,        27},
    {C5,       81,   92,   0,   1,   2,   2,   2, fVerifDiffNull,        &LenDouzeBlancs, DouzeBlancs, aucune,        27},
    {C5,        0,    0,   0,   1,   2,   2,   2, fConform8,             &LenTD,          TD,          corps(C1),     68},
    {C5,        0,    0,   0,   1,   2,   2,   2, fCoherenCC,            &Len0,           nullptr,     entete(E8),    50},
    {C6,       93,  100,   0,   1,   2,   2,   2, fDATEC,                &Len0,           nullptr,     aucune,        28},
    {C6,        0,    0,   0,   1,   2,   2,   2, fCoherenDC,            &Len0,           nullptr,     fin(F1),       52},
    {C7,      101,  108,   0,   0,   2,   2,   2, fConform_OC_model1,    &Len0,           nullptr,     aucune,       153},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model2,    &LenFAB_REP,     FAB_REP,     aucune,       154},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model3,    &LenC2_MODEL,    C2_MODEL,    aucune,       155},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model4,    &LenC3_MODEL,    C3_MODEL,    aucune,       156},
    {C7,        0,    0,   0,   0,   2,   2,   2, fConform_OC_model5,    &Len0,           nullptr,     aucune,       157},
    {C8,      109,  110,   0,   1,   2,   2,   2, fConform_OC_pays_orig, &Len0,           nullptr,     corps(C1),    152},
    {C9,      111,  111,   0,   1,   2,   2,   2, fConform_OC_compteur,  &Len0,           nullptr,     corps(C7),    158},
    {C10,     112,  119,   0,   1,   2,   2,   2, groc_cre_C10_1,        &Len0,           nullptr,     corps(C6),    102},
    {C10,       0,    0,   0,   1,   2,   2,   2, groc_cre_C10_2,        &Len0,           nullptr,     fin(F1),       52},
    {C10,       0,    0,   1,   1,   2,   2,   2, fDATEC,                &Len0,           nullptr,     aucune,       102},
    {C10,       0,    0,   1,   1,   2,   2,   2, fCoherenDC,            &Len0,           nullptr,     fin(F1),       52},
    {C11,     120,  121,   1,   1,   2,   2,   2, nullptr,               &Len0,           nullptr,     aucune,         0},
    {C12,     122,  127,   0,   1,   2,   2,   2, groc_cre_C12,          &Len0,           nullptr,     corps(C10),   103},
    {C12,       0,    0,   1,   1,   2,   2,   2, fHEUREC,               &Len0,           nullptr,     aucune,       103},
    {C13,     128,  230,   1,   1,   1,   1,   1, nullptr,               &Len0,           nullptr,     aucune,         0},
};
// clang-format on

}  // namespace quilvane
