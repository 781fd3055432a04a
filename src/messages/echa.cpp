/**
 * ECHA - animal from an intra-community exchange.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

// clang-format off
constexpr sCorps tEcha[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check               list           dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVTABDIFFFR,        &TECH,         aucune,        1},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull,     &DouzeBlancs,  aucune,        1},
    {C2,        0,    0,   0,   2,   0,   2,   0, fVerifNumEtranger,  &sansListe,    corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,            &sansListe,    aucune,        0},
    {C4,       79,   79,   0,   2,   1,   2,   0, fVerifValAut,       &SEX,          aucune,        3},
    {C5,       80,   81,   0,   2,   1,   2,   0, fVerifValAut,       &TR,           aucune,        4},
    {C6,       82,   89,   0,   2,   1,   2,   0, fDATEP6P7,          &sansListe,    aucune,        5},
    {C6,        0,    0,   0,   2,   1,   2,   0, fCoherenDC,         &sansListe,    fin(F1),      52},
    {C7,       90,   93,   0,   2,   1,   2,   0, fVerifDiffNull,     &quatreBlancs, aucune,       10},
    {C8,       94,  103,   1,   1,   1,   1,   1, nullptr,            &sansListe,    aucune,        0},
    {C9,      104,  104,   1,   1,   1,   1,   1, nullptr,            &sansListe,    aucune,        0},
    {C10,     105,  106,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TP,           aucune,        6},
    {C11,     107,  118,   0,   2,   1,   2,   0, fVerifNumEtrangerN, &sansListe,    corps(C10),    6},
    {C11,       0,    0,   0,   2,   1,   2,   0, fCONFORM10FRNULL,   &TD,           corps(C10),   67},
    {C11,       0,    0,   0,   2,   1,   2,   0, fSimult,            &sansListe,    corps(C10),  113},
    {C12,     119,  120,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TR,           aucune,        8},
    {C13,     121,  122,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TP,           aucune,       14},
    {C14,     123,  134,   0,   2,   1,   2,   0, fVerifNumEtrangerN, &sansListe,    corps(C13),   14},
    {C14,       0,    0,   0,   2,   1,   2,   0, fSimult,            &sansListe,    corps(C13),  114},
    {C15,     135,  136,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TR,           aucune,        9},
    {C16,     137,  138,   0,   2,   1,   2,   0, fVDIFFNULLP6,       &sansListe,    corps(C6),    55},
    {C16,       0,    0,   0,   2,   1,   2,   0, fVDIFFNULLVTAB,     &TP,           corps(C6),     2},
    {C17,     139,  150,   0,   2,   1,   2,   0, fVDIFFNULLP6,       &sansListe,    corps(C6),    55},
    {C17,       0,    0,   0,   2,   1,   2,   0, fConform8FR,        &TD,           corps(C16),   68},
    {C17,       0,    0,   0,   2,   1,   2,   0, fConform8FRnon,     &sansListe,    corps(C16),    2},
    {C17,       0,    0,   0,   2,   1,   2,   0, fSimult,            &sansListe,    corps(C16),  115},
    {C18,     151,  152,   0,   2,   1,   2,   1, fVerifValAut,       &FR,           aucune,       21},
    {C19,     153,  164,   0,   2,   1,   2,   1, fConform8,          &TD,           aucune,       68},
    {C19,       0,    0,   0,   2,   1,   2,   1, fCoherenCC,         &sansListe,    entete(E8),   50},
    {C20,     165,  174,   1,   1,   1,   1,   1, nullptr,            &sansListe,    aucune,        0},
    {C21,     175,  175,   0,   2,   1,   2,   0, fVerifValAut,       &UN,           aucune,       54},
    {C22,     176,  176,   1,   2,   1,   2,   0, fVerifValAut,       &BOOL,         aucune,      132},
    {C23,     177,  184,   0,   2,   1,   2,   1, fDatRecCorr_O,      &sansListe,    aucune,      134},
    {C23,       0,    0,   0,   2,   1,   2,   1, fDatRecCohe,        &sansListe,    fin(F1),      52},
    {C23,       0,    0,   0,   2,   1,   2,   1, fDatRecPost,        &sansListe,    corps(C6),   137},
    {C24,     185,  230,   1,   1,   1,   1,   1, nullptr,            &sansListe,    aucune,        0},
};
constexpr int lEcha = static_cast<int>(std::size(tEcha));
const parcours pEcha(tEcha);
// clang-format on
static_assert(lignesJustes<examiner(tEcha, CORPS)>());

}  // namespace quilvane
