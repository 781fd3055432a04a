/**
 * EXP1 - export of a holding. A creation must be followed by its EXP2.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
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

/** Legal form (4): blank, "****" for one emptied, or in the list. Error 32. */
int fexp1_C4(const char*, char* champ, const liste& sverif) {
    return egal(champ, quatreBlancs[0].valeur) || egal(champ, ET4[0].valeur) || dansListe(champ, sverif);
}

// clang-format off
constexpr sCorps tExp1[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list           dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &FR,           aucune,       31},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs,  aucune,       31},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConform8,      &TD,           corps(C1),    68},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCC,     &sansListe,    entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,    aucune,        0},
    {C4,       79,   82,   0,   2,   1,   2,   1, fexp1_C4,       &TRSCRE,       aucune,       32},
    {C4,        0,    0,   1,   2,   1,   2,   0, fexp1_C4,       &TRSMOD,       aucune,       32},
    {C5,       83,  112,   1,   1,   1,   1,   1, nullptr,        &sansListe,    aucune,        0},
    {C6,      113,  142,   0,   2,   1,   2,   0, fCDIFF,         &trenteBlancs, corps(C7),    75},
    {C7,      143,  172,   0,   2,   1,   2,   0, fCDIFF,         &trenteBlancs, corps(C6),    75},
    {C8,      173,  177,   0,   2,   1,   2,   0, fVerifDiffNull, &cinqBlancs,   aucune,       33},
    {C9,      178,  207,   0,   2,   1,   2,   0, fVerifDiffNull, &trenteBlancs, aucune,       82},
    {C10,     208,  221,   1,   1,   1,   1,   1, nullptr,        &sansListe,    aucune,        0},
    {C11,     222,  223,   0,   2,   1,   2,   0, fVerifValAut,   &TTE,          aucune,       35},
    {C12,     224,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,    aucune,        0},
};
constexpr int lExp1 = static_cast<int>(std::size(tExp1));
const parcours pExp1(tExp1);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_EXP1[] = {
    {fexp1_C4, ENTIER},
};
static_assert(lignesJustes<examiner(tExp1, CORPS, USAGES_EXP1)>());

}  // namespace quilvane
