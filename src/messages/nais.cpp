/**
 * NAIS - birth. Columns 151 to 158 are not cut (C18 to C23 have no
 * row), so from C24 on a field's slot is its position, not its number.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

bool avant(const char* naissance, const liste& reference) { return !fVTABP(naissance, reference[0].valeur); }

}  // namespace

/** Number (12): French form, columns 7 to 10 not "0000". Error 67. */
int nais_C2(const char* dependance, char* champ, const liste& sverif) {
    return fConform10NonNul(dependance, champ, sverif);
}

/** Four columns not blank. Error 10. */
int nais_C7(const char*, char* champ, const liste&) { return !blancs(champ, 1, 4); }

// For a birth before P5 only the second of the three accepts a blank number:
// the other two compare it with two blanks, which twelve columns never equal.
/** Number of the second animal, birth date in the dependency: `fConform10FR`,
 *  `fConform10FRnonECHAnon`, `fConform10FRnonECHAoui` by country. Only the
 *  second accepts a blank number before `P5`. Errors 67, 118 and 6. */
int nais_C11(const char* dependance, char* champ, const liste& sverif) {
    if (avant(dependance, P5) && egal(champ, deuxBlancs[0].valeur)) return 1;
    return fConform10FR(corps(C10), champ, sverif);
}

int nais_C11FRnonUEnon(const char* dependance, char* champ, const liste& sverif) {
    if (avant(dependance, P5) && egal(champ, DouzeBlancs[0].valeur)) return 1;
    return fConform10FRnonECHAnon(corps(C10), champ, sverif);
}

int nais_C11FRnonUEoui(const char* dependance, char* champ, const liste& sverif) {
    if (avant(dependance, P5) && egal(champ, deuxBlancs[0].valeur)) return 1;
    return fConform10FRnonECHAoui(corps(C10), champ, sverif);
}

/** Holding (12), birth date in the dependency: blank before `P6`, or French
 *  form. Error 68. */
int nais_C17(const char* dependance, char* champ, const liste& sverif) {
    if (avant(dependance, P6) && egal(champ, DouzeBlancs[0].valeur)) return 1;
    return fConform8(dependance, champ, sverif);
}

// clang-format off
constexpr sCorps tNais[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list          dependency  error
    {C1,       63,   64,   0,   1,   0,   2,   0, fVerifValAut,           &FR,          aucune,        1},
    {C1,        0,    0,   1,   0,   1,   2,   1, fVerifValAut,           &TP,          aucune,        1},
    {C2,       65,   76,   0,   0,   0,   2,   0, fVerifDiffNull,         &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   0,   1,   1,   2,   1, nais_C2,                &TD,          aucune,       67},
    {C2,        0,    0,   1,   1,   0,   2,   0, fConform10,             &TD,          aucune,       67},
    {C2,        0,    0,   1,   0,   1,   2,   1, fConform10FR,           &TD,          corps(C1),    67},
    {C2,        0,    0,   1,   0,   1,   2,   1, fConform10FRnonECHAnon, &TD,          corps(C1),   118},
    {C2,        0,    0,   1,   0,   1,   2,   1, fConform10FRnonECHAoui, &sansListe,   corps(C1),     1},
    {C2,        0,    0,   0,   1,   0,   2,   1, fCoherenCC,             &sansListe,   entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C4,       79,   79,   0,   1,   1,   2,   0, fVerifValAut,           &SEX,         aucune,        3},
    {C5,       80,   81,   0,   1,   1,   2,   0, fVerifValAut,           &TR,          aucune,        4},
    {C6,       82,   89,   0,   1,   1,   2,   1, fDATEC,                 &sansListe,   aucune,        5},
    {C6,        0,    0,   1,   1,   1,   2,   0, fDATEP6P7,              &sansListe,   aucune,        5},
    {C6,        0,    0,   0,   1,   1,   2,   0, fCoherenDC,             &sansListe,   fin(F1),      52},
    {C7,       90,   93,   0,   1,   1,   2,   0, nais_C7,                &sansListe,   aucune,       10},
    {C8,       94,  103,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C9,      104,  104,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C10,     105,  106,   0,   1,   1,   2,   1, fVerifValAut,           &TP,          aucune,        6},
    {C10,       0,    0,   1,   1,   1,   2,   0, fVTABP5,                &TP,          corps(C6),     7},
    {C11,     107,  118,   0,   1,   1,   2,   1, fVerifDiffNull,         &DouzeBlancs, aucune,        6},
    {C11,       0,    0,   0,   1,   1,   2,   1, fConform10FR,           &TD,          corps(C10),   67},
    {C11,       0,    0,   0,   1,   1,   2,   1, fConform10FRnonECHAnon, &TD,          corps(C10),  118},
    {C11,       0,    0,   0,   1,   1,   2,   1, fConform10FRnonECHAoui, &sansListe,   corps(C10),    6},
    {C11,       0,    0,   1,   1,   1,   2,   0, fVDIFFNULLP5,           &sansListe,   corps(C6),     7},
    {C11,       0,    0,   1,   1,   1,   2,   0, nais_C11,               &TD,          corps(C6),    67},
    {C11,       0,    0,   1,   1,   1,   2,   0, nais_C11FRnonUEnon,     &TD,          corps(C6),   118},
    {C11,       0,    0,   1,   1,   1,   2,   0, nais_C11FRnonUEoui,     &sansListe,   corps(C6),     6},
    {C11,       0,    0,   1,   1,   1,   2,   0, fSimult,                &sansListe,   corps(C10),  113},
    {C12,     119,  120,   0,   1,   1,   2,   1, fVerifValAut,           &TR,          aucune,        8},
    {C12,       0,    0,   1,   1,   1,   2,   0, fVTABP8,                &TR,          corps(C6),     8},
    {C13,     121,  122,   0,   1,   1,   2,   0, fVDIFFNULLVTAB,         &TP,          aucune,       14},
    {C14,     123,  134,   0,   1,   1,   2,   0, fSimult,                &sansListe,   corps(C13),  114},
    {C14,       0,    0,   0,   1,   1,   2,   0, fVerifNumEtrangerN,     &sansListe,   corps(C13),   14},
    {C15,     135,  136,   0,   1,   1,   2,   1, fVerifValAut,           &TR,          aucune,        9},
    {C15,       0,    0,   1,   1,   1,   2,   0, fVTABP8,                &TR,          corps(C6),     9},
    {C16,     137,  138,   0,   1,   1,   2,   1, fVerifValAut,           &FR,          aucune,        2},
    {C16,       0,    0,   1,   1,   1,   2,   0, fVTABP6,                &FR,          corps(C6),     2},
    {C17,     139,  150,   0,   1,   1,   2,   1, fVerifDiffNull,         &DouzeBlancs, aucune,        2},
    {C17,       0,    0,   0,   1,   1,   2,   1, fConform8,              &TD,          aucune,       68},
    {C17,       0,    0,   0,   1,   1,   2,   1, fCoherenCC,             &sansListe,   entete(E8),   50},
    {C17,       0,    0,   1,   1,   1,   2,   0, fVDIFFNULLP6,           &sansListe,   corps(C6),     2},
    {C17,       0,    0,   1,   1,   1,   2,   0, nais_C17,               &TD,          corps(C6),    68},
    {C17,       0,    0,   1,   1,   1,   2,   0, fSimult,                &sansListe,   corps(C16),  115},
    {C24,     159,  159,   0,   1,   1,   2,   1, fVerifValAut,           &BOOL,        aucune,       83},
    {C25,     160,  160,   1,   1,   1,   2,   0, fVerifValAut,           &BOOL,        aucune,      132},
    {C26,     161,  168,   0,   1,   1,   2,   1, fDatRecCorr_O,          &sansListe,   aucune,      134},
    {C26,       0,    0,   0,   1,   1,   2,   1, fDatRecCohe,            &sansListe,   fin(F1),      52},
    {C26,       0,    0,   0,   1,   1,   2,   1, fDatRecPost,            &sansListe,   corps(C6),   137},
    {C27,     169,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
};
constexpr int lNais = static_cast<int>(std::size(tNais));
const parcours pNais(tNais);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_NAIS[] = {
    {nais_C2, DEUX_COLONNES},
    {nais_C11, DEUX_COLONNES},
    {nais_C11FRnonUEnon, DEUX_COLONNES},
    {nais_C17, DEUX_COLONNES},
};
static_assert(lignesJustes<examiner(tNais, CORPS, USAGES_NAIS)>());

}  // namespace quilvane
