/**
 * ABAT - slaughter notice. Most of its checks live in the check
 * library (abattage) and read `cp`, which `presence_C2` fills for the rows
 * that follow it.
 */
#include <iterator>

#include "checks/abattage.h"
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

namespace {

/** The animal's country, columns 63-64 of the record. */
struct paysAnimal {
    char code[3];
    paysAnimal() : code{carac(xdebug, 63), carac(xdebug, 64), '\0'} {}
    bool estFR() const { return vaut(code, "FR"); }
    bool numeroEtranger() const { return !estFR() && (vaut(code, "CH") || appartient_UE(code)); }
};

}  // namespace

/** A bovine number (12) of country "FR" has the French or imported form. Error 67. */
int vAbat_C2_1(const char*, char* champ, const liste&) {
    return !paysAnimal().estFR() || verifNumBovinFrOuImporte(champ);
}

/** A bovine number of "CH" or another member state has a foreign form. Error 1. */
int vAbat_C2_2(const char*, char* champ, const liste&) {
    const paysAnimal pays;
    return !pays.numeroEtranger() || fVerifNumEtranger(pays.code, champ, sansListe);
}

// clang-format off
constexpr sCorps tAbat[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check                        list        dependency  error
    {C1,       63,   64,   0,   1,   0,   1,   0, fVerifValAut,                &TP,        aucune,        1},
    {C2,       65,   76,   0,   1,   0,   1,   0, presence_C2,                 &sansListe, aucune,        1},
    {C2,        0,    0,   0,   1,   0,   1,   0, vAbat_C2_1,                  &sansListe, aucune,       67},
    {C2,        0,    0,   0,   1,   0,   1,   0, vAbat_C2_2,                  &sansListe, aucune,        1},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,                     &sansListe, aucune,        0},
    {C4,       79,   80,   0,   1,   0,   1,   0, fVerif_ASDA,                 &sansListe, aucune,       31},
    {C5,       81,   92,   0,   1,   0,   1,   0, presence_C5,                 &FR,        aucune,       31},
    {C5,        0,    0,   0,   1,   0,   1,   0, fVerif_NUM_ASDA,             &FR,        aucune,       68},
    {C6,       93,  100,   0,   1,   0,   1,   0, fDATECxad,                   &sansListe, aucune,      120},
    {C6,        0,    0,   0,   1,   0,   1,   0, fCoherenDC,                  &sansListe, fin(F1),      52},
    {C6,        0,    0,   0,   1,   0,   1,   0, fVerifDateInputPost,         &sansListe, aucune,      121},
    {C7,      101,  108,   0,   1,   0,   1,   0, fDATEC,                      &sansListe, aucune,      122},
    {C7,        0,    0,   0,   1,   0,   1,   0, fCoherenDC,                  &sansListe, fin(F1),      52},
    {C7,        0,    0,   0,   1,   0,   1,   0, fVerifDateAbatPost,          &sansListe, aucune,      123},
    {C7,        0,    0,   0,   1,   0,   1,   0, fVerifDateAbatPostEntr,      &sansListe, aucune,      124},
    {C8,      109,  116,   0,   1,   0,   1,   0, presence_C8,                 &sansListe, aucune,       68},
    {C8,        0,    0,   0,   1,   0,   1,   0, fVerif_NUM_TUE,              &sansListe, aucune,      128},
    {C9,      117,  123,   0,   1,   0,   1,   0, fVerif_chaine_POIDS,         &sansListe, aucune,      125},
    {C9,        0,    0,   0,   1,   0,   1,   0, fVerif_POIDS,                &sansListe, aucune,      126},
    {C10,     124,  125,   0,   1,   0,   1,   0, fVerif_CODEPE_ABATNOT,       &FR,        aucune,      127},
    {C11,     126,  137,   0,   1,   0,   1,   0, presence_C11,                &sansListe, aucune,      127},
    {C11,       0,    0,   0,   1,   0,   1,   0, fVerif_NUMID_ABATNOT_CONF,   &sansListe, aucune,       68},
    {C11,       0,    0,   0,   1,   0,   1,   0, fVerif_NUMID_ABATNOT_COHER,  &sansListe, aucune,      129},
    {C11,       0,    0,   0,   1,   0,   1,   0, fVerif_NUMID_ABATNOT_TABREF, &sansListe, aucune,      127},
    {C12,     138,  138,   0,   1,   0,   1,   0, fVerif_INDIC_ABAT,           &FR,        aucune,      139},
};
constexpr int lAbat = static_cast<int>(std::size(tAbat));
const parcours pAbat(tAbat);
// clang-format on
static_assert(lignesJustes<examiner(tAbat, CORPS)>());

}  // namespace quilvane
