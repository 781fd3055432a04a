/**
 * DETE - keeper of animals.
 */
#include "checks/lecture.h"
#include "checks/utils.h"
#include "messages/messages.h"

namespace quilvane {

int fCoherenCC_dete_dem(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    if (vaut(corps(C12), "D")) return fConform3(entete(E8), champ, TDD, LenTDD);
    return fConform8(dependance, champ, sverif, lenSverif);
}

// clang-format off
constexpr int lDete = 17;
constexpr sCorps tDete[lDete] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD  check                count             list          dependency  error
    {C1,       63,   64,   0,   0,   0,   2,   0, fVerifValAut,        &LenFR,           FR,           aucune,        30},
    {C2,       65,   76,   0,   0,   0,   2,   0, fVerifDiffNull,      &LenDouzeBlancs,  DouzeBlancs,  aucune,        30},
    {C2,        0,    0,   0,   1,   0,   2,   1, fCoherenCCD,         &Len0,            nullptr,      entete(E8),    50},
    {C2,        0,    0,   1,   1,   1,   2,   0, fConform3,           &LenTDD,          TDD,          entete(E8),    50},
    {C2,        0,    0,   1,   0,   1,   2,   1, fCoherenCC_dete_dem, &LenTD,           TD,           entete(E8),    50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,             &Len0,            nullptr,      aucune,         0},
    {C4,       79,   82,   0,   1,   1,   2,   1, fVerifValAut,        &LenTRSCRE,       TRSCRE,       aucune,        39},
    {C4,        0,    0,   1,   1,   1,   2,   0, fVerifValAut,        &LenTRSMOD,       TRSMOD,       aucune,        39},
    {C5,       83,  112,   0,   1,   1,   2,   0, fVerifDiffNull,      &LentrenteBlancs, trenteBlancs, aucune,        39},
    {C6,      113,  142,   0,   1,   1,   2,   0, fVDIFFVD,            &LenNB,           NB,           corps(C7),     74},
    {C7,      143,  172,   0,   1,   1,   2,   0, fVDIFFVD,            &LenNB,           NB,           corps(C6),     74},
    {C8,      173,  177,   0,   1,   1,   2,   0, fVerifDiffNull,      &LencinqBlancs,   cinqBlancs,   aucune,        40},
    {C9,      178,  207,   0,   1,   1,   2,   0, fVerifDiffNull,      &LentrenteBlancs, trenteBlancs, aucune,        79},
    {C10,     208,  221,   1,   1,   1,   1,   1, nullptr,             &Len0,            nullptr,      aucune,         0},
    {C11,     222,  223,   0,   1,   1,   2,   0, fVerifValAut,        &LenTP,           TP,           aucune,        80},
    {C12,     224,  224,   1,   0,   1,   2,   1, fVerifValAut,        &LenTEMOIN,       TEMOIN,       aucune,       130},
    {C13,     225,  230,   1,   1,   1,   1,   1, nullptr,             &Len0,            nullptr,      aucune,         0},
};
// clang-format on

}  // namespace quilvane
