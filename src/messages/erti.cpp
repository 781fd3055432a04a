/**
 * ERTI - production of a site.
 */
#include "checks/lecture.h"
#include "checks/utils.h"
#include "messages/messages.h"

namespace quilvane {

int erti_fC5(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return vaut(dependance, "V") ? dansListe(champ, listeDe(sverif), lenSverif) : vaut(champ, " ");
}

int erti_fC9C10(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return vaut(dependance, "M") ? dansListe(champ, listeDe(sverif), lenSverif) : vaut(champ, "    ");
}

// clang-format off
constexpr int lErti = 18;
constexpr sCorps tErti[lErti] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD  check           count            list         dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &LenFR,          FR,          aucune,       139},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &LenDouzeBlancs, DouzeBlancs, aucune,       139},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConformEget,   &LenNEV,         NEV,         aucune,       140},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCCEget, &LenNEV,         NEV,         entete(E8),    50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &Len0,           nullptr,     aucune,         0},
    {C4,       79,   79,   0,   2,   0,   2,   0, fVerifValAut,   &LenPROD_E,      PROD_E,      aucune,       131},
    {C5,       80,   80,   0,   2,   0,   2,   0, erti_fC5,       &LenPROD_EV,     PROD_EV,     corps(C4),    131},
    {C6,       81,   88,   0,   2,   1,   2,   1, fDATEC,         &Len0,           nullptr,     aucune,       144},
    {C6,        0,    0,   0,   2,   1,   2,   1, fCoherenDC,     &Len0,           nullptr,     fin(F1),       52},
    {C6,        0,    0,   1,   2,   1,   2,   0, fVerifValAut,   &LenHuitBlancs,  HuitBlancs,  aucune,       192},
    {C7,       89,   96,   0,   2,   1,   2,   0, fDatRecCorr,    &Len0,           nullptr,     aucune,       145},
    {C7,        0,    0,   0,   2,   1,   2,   0, fDatRecPost,    &Len0,           nullptr,     corps(C6),    149},
    {C7,        0,    0,   0,   2,   1,   2,   0, fDatRecCohe,    &Len0,           nullptr,     fin(F1),       52},
    {C8,       97,  104,   1,   2,   0,   2,   0, fDATEC,         &Len0,           nullptr,     aucune,       144},
    {C8,        0,    0,   1,   2,   0,   2,   0, fCoherenDC,     &Len0,           nullptr,     fin(F1),       52},
    {C9,      105,  108,   0,   2,   1,   2,   0, erti_fC9C10,    &LenFIL_V,       FIL_V,       corps(C5),    146},
    {C10,     109,  112,   0,   2,   1,   2,   0, erti_fC9C10,    &LenELV_V,       ELV_V,       corps(C5),    147},
    {C11,     113,  230,   1,   1,   1,   1,   1, nullptr,        &Len0,           nullptr,     aucune,         0},
};
// clang-format on

}  // namespace quilvane
