/**
 * PASS - passport.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
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

bool exige(const char* drapeau) { return drapeau[0] == '0'; }

}  // namespace

/** Date, error 102. */
int pass_C7(const char* dependance, char* champ, const liste& sverif) {
    return !exige(dependance) || fDATEC(dependance, champ, sverif);
}

/** Time, error 103. */
int pass_C10(const char* dependance, char* champ, const liste& sverif) {
    return !exige(dependance) || fHEUREC(dependance, champ, sverif);
}

// clang-format off
constexpr sCorps tPass[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                   list          dependency  error
    {C1,       63,   64,   2,   0,   0,   0,   2, fVerifValAut,           &TP,          aucune,        1},
    {C2,       65,   76,   2,   0,   0,   0,   2, fVerifDiffNull,         &DouzeBlancs, aucune,        1},
    {C2,        0,    0,   2,   0,   0,   0,   2, fConform10FR,           &TD,          corps(C1),    67},
    {C2,        0,    0,   2,   0,   0,   0,   2, fConform10FRnonECHAnon, &TD,          corps(C1),   118},
    {C2,        0,    0,   2,   0,   0,   0,   2, fConform10FRnonECHAoui, &sansListe,   corps(C1),     1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C4,       79,   80,   2,   0,   0,   0,   2, fVerifValAut,           &FR,          aucune,       25},
    {C5,       81,   92,   2,   0,   0,   0,   2, fVerifDiffNull,         &DouzeBlancs, aucune,       25},
    {C5,        0,    0,   2,   0,   0,   0,   2, fConform8,              &TD,          aucune,       68},
    {C5,        0,    0,   2,   0,   0,   0,   2, fCoherenCC,             &sansListe,   entete(E8),   50},
    {C6,       93,   94,   2,   0,   0,   0,   2, fVerifValAut,           &TCEP,        aucune,       44},
    {C7,       95,  102,   2,   1,   1,   0,   2, pass_C7,                &sansListe,   corps(C11),  102},
    {C7,        0,    0,   2,   1,   0,   1,   2, fDATEC,                 &sansListe,   aucune,      102},
    {C8,      103,  104,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
    {C9,      105,  112,   2,   1,   1,   0,   2, fDATEC,                 &sansListe,   aucune,       77},
    {C9,        0,    0,   2,   1,   1,   0,   2, fCoherenDC,             &sansListe,   fin(F1),      52},
    {C10,     113,  118,   2,   1,   1,   0,   2, pass_C10,               &sansListe,   corps(C11),  103},
    {C10,       0,    0,   2,   1,   0,   1,   2, fHEUREC,                &sansListe,   aucune,      103},
    {C11,     119,  119,   2,   1,   1,   0,   2, fVerifValAut,           &BOOL,        aucune,      104},
    {C12,     120,  230,   1,   1,   1,   1,   1, nullptr,                &sansListe,   aucune,        0},
};
constexpr int lPass = static_cast<int>(std::size(tPass));
const parcours pPass(tPass);
// clang-format on
static_assert(lignesJustes<examiner(tPass, CORPS)>());

}  // namespace quilvane
