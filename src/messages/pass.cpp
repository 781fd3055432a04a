/**
 * PASS - passport.
 */
#include "checks/lecture.h"
#include "checks/utils.h"
#include "messages/messages.h"

namespace quilvane {

namespace {

bool exige(const char* drapeau) { return drapeau[0] == '0'; }

}  // namespace

int pass_C7(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return !exige(dependance) || fDATEC(dependance, champ, sverif, lenSverif);
}

int pass_C10(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return !exige(dependance) || fHEUREC(dependance, champ, sverif, lenSverif);
}

// clang-format off
constexpr int lPass = 20;
constexpr sCorps tPass[lPass] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD  check                   count            list         dependency  error
    {C1,       63,   64,   2,   0,   0,   0,   2, fVerifValAut,           &LenTP,          TP,          aucune,         1},
    {C2,       65,   76,   2,   0,   0,   0,   2, fVerifDiffNull,         &LenDouzeBlancs, DouzeBlancs, aucune,         1},
    {C2,        0,    0,   2,   0,   0,   0,   2, fConform10FR,           &LenTD,          TD,          corps(C1),     67},
    {C2,        0,    0,   2,   0,   0,   0,   2, fConform10FRnonECHAnon, &LenTD,          TD,          corps(C1),    118},
    {C2,        0,    0,   2,   0,   0,   0,   2, fConform10FRnonECHAoui, &Len0,           nullptr,     corps(C1),      1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &Len0,           nullptr,     aucune,         0},
    {C4,       79,   80,   2,   0,   0,   0,   2, fVerifValAut,           &LenFR,          FR,          aucune,        25},
    {C5,       81,   92,   2,   0,   0,   0,   2, fVerifDiffNull,         &LenDouzeBlancs, DouzeBlancs, aucune,        25},
    {C5,        0,    0,   2,   0,   0,   0,   2, fConform8,              &LenTD,          TD,          aucune,        68},
    {C5,        0,    0,   2,   0,   0,   0,   2, fCoherenCC,             &Len0,           nullptr,     entete(E8),    50},
    {C6,       93,   94,   2,   0,   0,   0,   2, fVerifValAut,           &LenTCEP,        TCEP,        aucune,        44},
    {C7,       95,  102,   2,   1,   1,   0,   2, pass_C7,                &Len0,           nullptr,     corps(C11),   102},
    {C7,        0,    0,   2,   1,   0,   1,   2, fDATEC,                 &Len0,           nullptr,     aucune,       102},
    {C8,      103,  104,   1,   1,   1,   1,   1, nullptr,                &Len0,           nullptr,     aucune,         0},
    {C9,      105,  112,   2,   1,   1,   0,   2, fDATEC,                 &Len0,           nullptr,     aucune,        77},
    {C9,        0,    0,   2,   1,   1,   0,   2, fCoherenDC,             &Len0,           nullptr,     fin(F1),       52},
    {C10,     113,  118,   2,   1,   1,   0,   2, pass_C10,               &Len0,           nullptr,     corps(C11),   103},
    {C10,       0,    0,   2,   1,   0,   1,   2, fHEUREC,                &Len0,           nullptr,     aucune,       103},
    {C11,     119,  119,   2,   1,   1,   0,   2, fVerifValAut,           &LenBOOL,        BOOL,        aucune,       104},
    {C12,     120,  230,   1,   1,   1,   1,   1, nullptr,                &Len0,           nullptr,     aucune,         0},
};
// clang-format on

}  // namespace quilvane
