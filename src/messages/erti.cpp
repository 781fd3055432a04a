/**
 * ERTI - production of a site.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/dates.h"
#include "checks/identifiants.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Production of kind "V" (dependency) in the list; otherwise a blank. Error 131. */
int erti_fC5(const char* dependance, char* champ, const liste& sverif) {
    return vaut(dependance, "V") ? dansListe(champ, sverif) : vaut(champ, " ");
}

/** Production "M" (dependency): in the list; otherwise four blanks. Errors 146
 *  and 147. */
int erti_fC9C10(const char* dependance, char* champ, const liste& sverif) {
    return vaut(dependance, "M") ? dansListe(champ, sverif) : vaut(champ, "    ");
}

// clang-format off
constexpr sCorps tErti[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &FR,          aucune,      139},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,      139},
    {C2,        0,    0,   0,   2,   0,   2,   0, fConformEget,   &NEV,         aucune,      140},
    {C2,        0,    0,   0,   2,   0,   2,   0, fCoherenCCEget, &NEV,         entete(E8),   50},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C4,       79,   79,   0,   2,   0,   2,   0, fVerifValAut,   &PROD_E,      aucune,      131},
    {C5,       80,   80,   0,   2,   0,   2,   0, erti_fC5,       &PROD_EV,     corps(C4),   131},
    {C6,       81,   88,   0,   2,   1,   2,   1, fDATEC,         &sansListe,   aucune,      144},
    {C6,        0,    0,   0,   2,   1,   2,   1, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C6,        0,    0,   1,   2,   1,   2,   0, fVerifValAut,   &HuitBlancs,  aucune,      192},
    {C7,       89,   96,   0,   2,   1,   2,   0, fDatRecCorr,    &sansListe,   aucune,      145},
    {C7,        0,    0,   0,   2,   1,   2,   0, fDatRecPost,    &sansListe,   corps(C6),   149},
    {C7,        0,    0,   0,   2,   1,   2,   0, fDatRecCohe,    &sansListe,   fin(F1),      52},
    {C8,       97,  104,   1,   2,   0,   2,   0, fDATEC,         &sansListe,   aucune,      144},
    {C8,        0,    0,   1,   2,   0,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C9,      105,  108,   0,   2,   1,   2,   0, erti_fC9C10,    &FIL_V,       corps(C5),   146},
    {C10,     109,  112,   0,   2,   1,   2,   0, erti_fC9C10,    &ELV_V,       corps(C5),   147},
    {C11,     113,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
};
constexpr int lErti = static_cast<int>(std::size(tErti));
const parcours pErti(tErti);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_ERTI[] = {
    {erti_fC5, ENTIER},
    {erti_fC9C10, ENTIER},
};
static_assert(lignesJustes<examiner(tErti, CORPS, USAGES_ERTI)>());

}  // namespace quilvane
