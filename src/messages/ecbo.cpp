/**
 * ECBO - data of a bovine animal.
 */
#include <iterator>

#include "checks/conformite.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

/** The second animal is not given at all. */
bool secondAnimalAbsent() {
    return blancs(corps(C12), 1, 2) && blancs(corps(C13), 1, 12) && blancs(corps(C15), 1, 2);
}

int absentOuEnListe(const char* champ, const liste& sverif) {
    return secondAnimalAbsent() || dansListe(champ, sverif);
}

}  // namespace

/** A country (2) of the list, or all three blank. Error 14. */
int ecbo_C12(const char*, char* champ, const liste& sverif) { return absentOuEnListe(champ, sverif); }

/** A number (12): "FR" (dependency) is free, else foreign form. Error 14. */
int ecbo_C13(const char* dependance, char* champ, const liste&) {
    if (secondAnimalAbsent()) return 1;
    if (egal(champ, DouzeBlancs[0].valeur)) return 0;
    return vaut(dependance, "FR") || fVerifNumEtranger(dependance, champ, sansListe);
}

/** A breed (2) of the list, or all three blank. Error 16. */
int ecbo_C15(const char*, char* champ, const liste& sverif) { return absentOuEnListe(champ, sverif); }

// clang-format off
constexpr sCorps tEcbo[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   2, fVerifValAut,           &TP,          aucune,        1},
    {C2,       65,   76,   0,   2,   0,   2,   2, fVerifDiffNull,         &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   0,   2,   0,   2,   2, fConform10FR,           &TD,          corps(C1),    67},
    {C2,        0,    0,   0,   2,   0,   2,   2, fConform10FRnonECHAnon, &TD,          corps(C1),   118},
    {C2,        0,    0,   0,   2,   0,   2,   2, fConform10FRnonECHAoui, &sansListe,   corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C4,       79,   80,   0,   2,   1,   2,   2, fVerifValAut,           &TRG,         aucune,       11},
    {C5,       81,   81,   0,   2,   1,   2,   2, fVerifValAut,           &BOOLFal,     aucune,       12},
    {C6,       82,   82,   0,   2,   1,   2,   2, fVerifValAut,           &BOOLFal,     aucune,       13},
    {C7,       83,   84,   0,   2,   1,   2,   2, fVerifValAut,           &TP,          aucune,       17},
    {C8,       85,   96,   0,   2,   1,   2,   2, fVerifDiffNull,         &DouzeBlancs, aucune,       17},
    {C8,        0,    0,   0,   2,   1,   2,   2, fConform10FRnon,        &sansListe,   corps(C7),    17},
    {C9,       97,  106,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C10,     107,  110,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C11,     111,  112,   0,   2,   1,   2,   2, fVerifValAut,           &TRG,         aucune,       20},
    {C12,     113,  114,   0,   2,   1,   2,   2, ecbo_C12,               &TP,          aucune,       14},
    {C13,     115,  126,   0,   2,   1,   2,   2, ecbo_C13,               &DouzeBlancs, corps(C12),   14},
    {C14,     127,  136,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C15,     137,  138,   0,   2,   1,   2,   2, ecbo_C15,               &TRG,         aucune,       16},
    {C16,     139,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
};
constexpr int lEcbo = static_cast<int>(std::size(tEcbo));
const parcours pEcbo(tEcbo);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_ECBO[] = {
    {ecbo_C12, ENTIER},
    {ecbo_C13, NON_LUE},
    {ecbo_C15, ENTIER},
};
static_assert(lignesJustes<examiner(tEcbo, CORPS, USAGES_ECBO)>());

}  // namespace quilvane
