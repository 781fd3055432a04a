/**
 * DETE - keeper of animals.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/identifiants.h"
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

/** On a request: a keeper (body C12 "D") by department, a holding by its
 *  French number (12). Error 50. */
int fCoherenCC_dete_dem(const char* dependance, char* champ, const liste& sverif) {
    if (vaut(corps(C12), "D")) return fConform3(entete(E8), champ, TDD);
    return fConform8(dependance, champ, sverif);
}

// clang-format off
constexpr sCorps tDete[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                list           dependency  error
    {C1,       63,   64,   0,   0,   0,   2,   0, fVerifValAut,        &FR,           aucune,       30},
    {C2,       65,   76,   0,   0,   0,   2,   0, fVerifDiffNull,      &DouzeBlancs,  aucune,       30},
    {C2,        0,    0,   0,   1,   0,   2,   1, fCoherenCCD,         &sansListe,    entete(E8),   50},
    {C2,        0,    0,   1,   1,   1,   2,   0, fConform3,           &TDD,          entete(E8),   50},
    {C2,        0,    0,   1,   0,   1,   2,   1, fCoherenCC_dete_dem, &TD,           entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,             &sansListe,    aucune,        0},
    {C4,       79,   82,   0,   1,   1,   2,   1, fVerifValAut,        &TRSCRE,       aucune,       39},
    {C4,        0,    0,   1,   1,   1,   2,   0, fVerifValAut,        &TRSMOD,       aucune,       39},
    {C5,       83,  112,   0,   1,   1,   2,   0, fVerifDiffNull,      &trenteBlancs, aucune,       39},
    {C6,      113,  142,   0,   1,   1,   2,   0, fVDIFFVD,            &NB,           corps(C7),    74},
    {C7,      143,  172,   0,   1,   1,   2,   0, fVDIFFVD,            &NB,           corps(C6),    74},
    {C8,      173,  177,   0,   1,   1,   2,   0, fVerifDiffNull,      &cinqBlancs,   aucune,       40},
    {C9,      178,  207,   0,   1,   1,   2,   0, fVerifDiffNull,      &trenteBlancs, aucune,       79},
    {C10,     208,  221,   1,   1,   1,   1,   1, nullptr,             &sansListe,    aucune,        0},
    {C11,     222,  223,   0,   1,   1,   2,   0, fVerifValAut,        &TP,           aucune,       80},
    {C12,     224,  224,   1,   0,   1,   2,   1, fVerifValAut,        &TEMOIN,       aucune,      130},
    {C13,     225,  230,   1,   1,   1,   1,   1, nullptr,             &sansListe,    aucune,        0},
};
constexpr int lDete = static_cast<int>(std::size(tDete));
const parcours pDete(tDete);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_DETE[] = {
    {fCoherenCC_dete_dem, DEUX_COLONNES},
};
static_assert(lignesJustes<examiner(tDete, CORPS, USAGES_DETE)>());

}  // namespace quilvane
