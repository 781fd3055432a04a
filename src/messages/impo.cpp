/**
 * IMPO - import.
 */
#include "checks/lecture.h"
#include "checks/utils.h"
#include "messages/messages.h"

namespace quilvane {

namespace {

/** Unknown, or explicitly emptied. */
bool dateOuverte(const char* date) { return dansListeStricte(date, HuitBlancsFal, LenHuitBlancsFal); }

}  // namespace

int impo_C2(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return fConform10(dependance, champ, sverif, lenSverif) && fVerifDiffZero(champ, 7, 10);
}

int impo_C6_1(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return dateOuverte(champ) || fDATEI(dependance, champ, sverif, lenSverif);
}

int impo_C6_2(const char* dependance, char* champ, const void* sverif, int lenSverif) {
    return dateOuverte(champ) || fCoherenDC(dependance, champ, sverif, lenSverif);
}

int impo_C7(const char*, char* champ, const void*, int) { return !blancs(champ, 1, 4); }

int impo_C20(const char*, char* champ, const void*, int) {
    return !vaut(champ, "FR") && dansListe(champ, TP, LenTP);
}

// clang-format off
constexpr int lImpo = 36;
constexpr sCorps tImpo[lImpo] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD  check               count               list            dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,       &LenFR,             FR,             aucune,         1},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,     &LenDouzeBlancs,    DouzeBlancs,    aucune,         1},
    {C2,        0,    0,   0,   2,   0,   2,   0, impo_C2,            &LenTD,             TD,             aucune,       118},
    {C2,        0,    0,   0,   2,   0,   2,   1, fCoherenCC,         &Len0,              nullptr,        entete(E8),    50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,            &Len0,              nullptr,        aucune,         0},
    {C4,       79,   79,   0,   2,   1,   2,   0, fVerifValAut,       &LenSEX,            SEX,            aucune,         3},
    {C5,       80,   81,   0,   2,   1,   2,   0, fVerifValAut,       &LenTR,             TR,             aucune,         4},
    {C6,       82,   89,   0,   2,   1,   2,   0, impo_C6_1,          &LenHuitBlancsFal,  HuitBlancsFal,  aucune,         5},
    {C6,        0,    0,   0,   2,   1,   2,   0, impo_C6_2,          &LenHuitBlancsFal,  HuitBlancsFal,  fin(F1),       52},
    {C7,       90,   93,   0,   2,   1,   2,   0, impo_C7,            &Len0,              nullptr,        aucune,        10},
    {C8,       94,  103,   1,   1,   1,   1,   1, nullptr,            &Len0,              nullptr,        aucune,         0},
    {C9,      104,  104,   1,   1,   1,   1,   1, nullptr,            &Len0,              nullptr,        aucune,         0},
    {C10,     105,  106,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &LenTP,             TP,             aucune,         6},
    {C11,     107,  118,   0,   2,   1,   2,   0, fVerifNumEtrangerN, &Len0,              nullptr,        corps(C10),     6},
    {C11,       0,    0,   0,   2,   1,   2,   0, fSimult,            &Len0,              nullptr,        corps(C10),   113},
    {C12,     119,  120,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &LenTR,             TR,             aucune,         8},
    {C13,     121,  122,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &LenTP,             TP,             aucune,        14},
    {C14,     123,  134,   0,   2,   1,   2,   0, fVerifNumEtrangerN, &Len0,              nullptr,        corps(C13),    14},
    {C14,       0,    0,   0,   2,   1,   2,   0, fSimult,            &Len0,              nullptr,        corps(C13),   114},
    {C15,     135,  136,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &LenTR,             TR,             aucune,         9},
    {C16,     137,  138,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &LenTP,             TP,             aucune,         2},
    {C17,     139,  150,   0,   2,   1,   2,   0, fCONFORM8FRNULL,    &LenTD,             TD,             corps(C16),    68},
    {C17,       0,    0,   0,   2,   1,   2,   0, fConform8FRnon,     &Len0,              nullptr,        corps(C16),     2},
    {C17,       0,    0,   0,   2,   1,   2,   0, fSimult,            &Len0,              nullptr,        corps(C16),   115},
    {C18,     151,  152,   0,   2,   1,   2,   1, fVerifValAut,       &LenFR,             FR,             aucune,        21},
    {C19,     153,  164,   0,   2,   1,   2,   1, fVerifDiffNull,     &LenDouzeBlancs,    DouzeBlancs,    aucune,        21},
    {C19,       0,    0,   0,   2,   1,   2,   1, fConform8,          &LenTD,             TD,             aucune,        68},
    {C19,       0,    0,   0,   2,   1,   2,   1, fCoherenCC,         &Len0,              nullptr,        entete(E8),    50},
    {C20,     165,  166,   0,   2,   1,   2,   0, impo_C20,           &LenTP,             TP,             aucune,        49},
    {C21,     167,  180,   0,   2,   1,   2,   0, fVerifDiffNull,     &LenquatorzeBlancs, quatorzeBlancs, aucune,        49},
    {C22,     181,  181,   0,   2,   1,   2,   0, fVerifValAut,       &LenZERO,           ZERO,           aucune,        54},
    {C23,     182,  182,   1,   2,   1,   2,   0, fVerifValAut,       &LenBOOL,           BOOL,           aucune,       132},
    {C24,     183,  190,   0,   2,   1,   2,   1, fDatRecCorr_O,      &Len0,              nullptr,        aucune,       134},
    {C24,       0,    0,   0,   2,   1,   2,   1, fDatRecCohe,        &Len0,              nullptr,        fin(F1),       52},
    {C24,       0,    0,   0,   2,   1,   2,   1, fDatRecPost,        &Len0,              nullptr,        corps(C6),    137},
    {C25,     191,  230,   1,   1,   1,   1,   1, nullptr,            &Len0,              nullptr,        aucune,         0},
};
// clang-format on

}  // namespace quilvane
