/**
 * SORT - exit of an animal from a holding. The receipt date stands in
 * columns 184-191, one column earlier than in ENTR.
 */
#include "checks/utils.h"
#include "messages/messages.h"
#include "messages/mouvement.h"

namespace quilvane {

namespace {

// S and T go to another holding whose number may be missing; so may that of M,
// but M does not require its country. No cause dispenses with the text.
constexpr mouvement::causes LETTRES = {"ST", "STM", ""};

}  // namespace

int sort_fC5(const char* dependance, char*, const void*, int) {
    return mouvement::causeSelonGenre(dependance);
}

int sort_fC8_cre(const char*, char* champ, const void*, int) {
    return mouvement::pays(LETTRES, champ, mouvement::STRICT);
}

int sort_fC8_mod(const char*, char* champ, const void*, int) {
    return mouvement::pays(LETTRES, champ, mouvement::TOLERE_AVANT_P8);
}

int sort_fC9_1_cre(const char*, char* champ, const void*, int) {
    return mouvement::numeroPresent(LETTRES, champ, mouvement::STRICT);
}

int sort_fC9_1_mod(const char*, char* champ, const void*, int) {
    return mouvement::numeroPresent(LETTRES, champ, mouvement::TOLERE_AVANT_P8);
}

int sort_fC9_2_cre(const char*, char* champ, const void*, int) { return mouvement::numeroConforme(champ); }

int sort_fC9_2_mod(const char*, char* champ, const void*, int) { return mouvement::numeroConforme(champ); }

int sort_fC10_cre(const char*, char* champ, const void*, int) {
    return mouvement::texte(LETTRES, champ, mouvement::STRICT);
}

int sort_fC10_mod(const char*, char* champ, const void*, int) {
    return mouvement::texte(LETTRES, champ, mouvement::TOLERE_AVANT_P8);
}

// clang-format off
constexpr int lSort = 29;
constexpr sCorps tSort[lSort] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD  check                   count            list         dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,           &LenTP,          TP,          aucune,         1},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,         &LenDouzeBlancs, DouzeBlancs, aucune,         1},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FR,           &LenTD,          TD,          corps(C1),     67},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FRnonECHAnon, &LenTD,          TD,          corps(C1),    118},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform10FRnonECHAoui, &Len0,           nullptr,     corps(C1),      1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &Len0,           nullptr,     aucune,         0},
    {C4,       79,   86,   0,   2,   1,   2,   1, fDATEC,                 &Len0,           nullptr,     aucune,        22},
    {C4,        0,    0,   1,   2,   1,   2,   0, fDATEP6,                &Len0,           nullptr,     aucune,        22},
    {C4,        0,    0,   0,   2,   1,   2,   0, fCoherenDC_tr,          &Len0,           nullptr,     fin(F1),       52},
    {C5,       87,   87,   0,   2,   1,   2,   0, fVerifValAutDate,       &LenTCMS,        TCMS,        corps(C4),     23},
    {C5,        0,    0,   0,   2,   1,   2,   0, sort_fC5,               &LenTCMS,        TCMS,        entete(E5),    23},
    {C6,       88,   89,   0,   2,   0,   2,   0, fVerifValAut,           &LenFR,          FR,          aucune,        21},
    {C7,       90,  101,   0,   2,   0,   2,   0, fVerifDiffNull,         &LenDouzeBlancs, DouzeBlancs, aucune,        21},
    {C7,        0,    0,   0,   2,   0,   2,   0, fConform8,              &LenTD,          TD,          aucune,        68},
    {C7,        0,    0,   0,   2,   1,   2,   0, fCoherenCC_tr,          &Len0,           nullptr,     entete(E8),    50},
    {C8,      102,  103,   0,   2,   1,   2,   1, sort_fC8_cre,           &Len0,           nullptr,     aucune,        24},
    {C8,        0,    0,   1,   2,   1,   2,   0, sort_fC8_mod,           &Len0,           nullptr,     aucune,        24},
    {C9,      104,  115,   0,   2,   1,   2,   1, sort_fC9_1_cre,         &Len0,           nullptr,     aucune,        24},
    {C9,        0,    0,   0,   2,   1,   2,   1, sort_fC9_2_cre,         &Len0,           nullptr,     aucune,        68},
    {C9,        0,    0,   1,   2,   1,   2,   0, sort_fC9_1_mod,         &Len0,           nullptr,     aucune,        24},
    {C9,        0,    0,   1,   2,   1,   2,   0, sort_fC9_2_mod,         &Len0,           nullptr,     aucune,        68},
    {C10,     116,  175,   0,   2,   1,   2,   1, sort_fC10_cre,          &Len0,           nullptr,     aucune,        24},
    {C10,       0,    0,   1,   2,   1,   2,   0, sort_fC10_mod,          &Len0,           nullptr,     aucune,        24},
    {C11,     176,  183,   1,   2,   0,   2,   0, fDATEP6,                &Len0,           nullptr,     aucune,        58},
    {C11,       0,    0,   1,   2,   0,   2,   0, fCoherenDC_tr2,         &Len0,           nullptr,     fin(F1),       52},
    {C12,     184,  191,   0,   2,   1,   2,   1, fDatRecCorr,            &Len0,           nullptr,     aucune,       134},
    {C12,       0,    0,   0,   2,   1,   2,   1, fDatRecCohe,            &Len0,           nullptr,     fin(F1),       52},
    {C12,       0,    0,   0,   2,   1,   2,   1, fDatRecPost_tr,         &Len0,           nullptr,     corps(C4),    137},
    {C13,     192,  230,   1,   1,   1,   1,   1, nullptr,                &Len0,           nullptr,     aucune,         0},
};
// clang-format on

}  // namespace quilvane
