#include "rules/entete.h"

#include <iterator>

#include "checks/dates.h"
#include "checks/lecture.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "rules/parcours.h"
#include "rules/preuve.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

namespace {

bool estFICH(const char* typeVSE) { return vaut(typeVSE, "FICH"); }

/** Whether the text begins with one of the prefixes. */
template <int N>
bool commencePar(const char* texte, const char* const (&prefixes)[N]) {
    for (const char* prefixe : prefixes)
        if (memeDebut(texte, prefixe, static_cast<int>(std::strlen(prefixe)))) return true;
    return false;
}

/** Rules of the FICH record only. */
int listeSurFICH(const char* typeVSE, const char* champ, const liste& sverif) {
    return !estFICH(typeVSE) || dansListe(champ, sverif);
}

}  // namespace

int enteteE3(const char* dependance, char* champ, const liste& sverif) {
    constexpr const char* NATIONAUX[] = {"OVINFOS ", "OFFICE", "ONICAB", "NORM01", "NORM02", "PFOC01"};
    if (!estFICH(dependance)) return 1;
    return dansListe(champ, sverif) || commencePar(champ, NATIONAUX);
}

int enteteE4(const char* dependance, char* champ, const liste& sverif) {
    return listeSurFICH(dependance, champ, sverif);
}

int enteteE8(const char* dependance, char* champ, const liste& sverif) {
    constexpr const char* NATIONAUX[] = {"POINTFOC", "NORMABEV", "OVINFOS ", "OFFICE", "ONICAB"};
    if (estFICH(dependance)) return 1;
    return dansListe(champ, sverif) || commencePar(champ, NATIONAUX);
}

int enteteE9(const char* dependance, char* champ, const liste& sverif) {
    constexpr const char* SANS_CODE[] = {"NORMABEV", "OFFICE", "ONICAB"};
    if (estFICH(dependance)) return 1;
    if (huitBlancs(champ) && commencePar(entete(E8), SANS_CODE)) return 1;
    return fVerifAucunBlanc(dependance, champ, sverif);
}

int enteteE10(const char* dependance, char* champ, const liste& sverif) {
    return estFICH(dependance) || dansListe(champ, sverif);
}

int enteteE12(const char* dependance, char* champ, const liste& sverif) {
    return listeSurFICH(dependance, champ, sverif);
}

int enteteE13(const char* dependance, char* champ, const liste& sverif) {
    return listeSurFICH(dependance, champ, sverif);
}

int finF3(const char* dependance, char* champ, const liste& sverif) {
    return listeSurFICH(dependance, champ, sverif);
}

int fVerifDepE6(const char* dependance, char* champ, const liste&) {
    if (vaut(dependance, "CRE")) return dansListe(champ, tE6CRE);
    if (vaut(dependance, "DEM")) return dansListe(champ, tE6DEM);
    if (vaut(dependance, "ECQ")) return 1;
    if (vaut(dependance, "EDI")) return dansListe(champ, tE6EDI);
    if (vaut(dependance, "INV")) return dansListe(champ, tE6INV);
    if (vaut(dependance, "MOD")) return dansListe(champ, tE6MOD);
    if (vaut(dependance, "INF")) return dansListe(champ, tE6INF);
    return 0;
}

// The presence codes of these tables are never consulted: the engine applies
// them without a transaction kind, so that every row with a check runs.
// clang-format off
constexpr sCorps tEntete[] = {
    //field first last CRE DEM INV EDI MOD check         list         dependency  error
    {E1,      1,    1,  1,  1,  1,  1,  1, nullptr,      &sansListe,  aucune,        0},
    {E2,      2,    2,  1,  1,  1,  1,  1, nullptr,      &sansListe,  aucune,        0},
    {E3,      3,   10,  1,  1,  1,  1,  1, enteteE3,     &TEC,        entete(E6),   95},
    {E4,     11,   18,  1,  1,  1,  1,  1, enteteE4,     &BDN031,     entete(E6),   96},
    {E5,     19,   21,  1,  1,  1,  1,  1, fVerifValAut, &tE5,        aucune,       84},
    {E6,     22,   25,  1,  1,  1,  1,  1, fVerifValAut, &tE6,        aucune,       85},
    {E6,      0,    0,  1,  1,  1,  1,  1, fVerifDepE6,  &sansListe,  entete(E5),   86},
    {E7,     26,   26,  1,  1,  1,  1,  1, nullptr,      &sansListe,  aucune,        0},
    {E8,     27,   34,  1,  1,  1,  1,  1, enteteE8,     &TDC,        entete(E6),   87},
    {E9,     35,   42,  1,  1,  1,  1,  1, enteteE9,     &HuitBlancs, entete(E6),   89},
    {E10,    43,   50,  1,  1,  1,  1,  1, enteteE10,    &BDN8,       entete(E6),   88},
    {E11,    51,   60,  1,  1,  1,  1,  1, nullptr,      &sansListe,  aucune,        0},
    {E12,    61,   61,  1,  1,  1,  1,  1, enteteE12,    &TOUQ,       entete(E6),   97},
    {E13,    62,   62,  1,  1,  1,  1,  1, enteteE13,    &NOUU,       entete(E6),   98},
};
constexpr int lEntete = static_cast<int>(std::size(tEntete));
const parcours pEntete(tEntete);

constexpr sCorps tFin[] = {
    //field first last CRE DEM INV EDI MOD check         list         dependency  error
    {F1,    231,  238,  1,  1,  1,  1,  1, fDATEC,       &sansListe,  aucune,       90},
    {F2,    239,  244,  1,  1,  1,  1,  1, fHEUREC,      &sansListe,  aucune,       91},
    {F2,      0,    0,  1,  1,  1,  1,  1, nullptr,      &sansListe,  aucune,        0},
    {F3,    245,  247,  1,  1,  1,  1,  1, finF3,        &versionVSE, entete(E6),   93},
    {F4,    248,  255,  1,  1,  1,  1,  1, nullptr,      &sansListe,  aucune,        0},
    {F5,    256,  256,  1,  1,  1,  1,  1, fVerifValAut, &ET1,        aucune,       94},
};
constexpr int lFin = static_cast<int>(std::size(tFin));
const parcours pFin(tFin);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_ENTETE[] = {
    {enteteE3, ENTIER},  {enteteE4, ENTIER},  {enteteE8, ENTIER},  {enteteE9, NON_LUE},
    {enteteE10, ENTIER}, {enteteE12, ENTIER}, {enteteE13, ENTIER}, {finF3, ENTIER},
};
static_assert(lignesJustes<examiner(tEntete, ENTETE, USAGES_ENTETE)>());
static_assert(lignesJustes<examiner(tFin, FIN, USAGES_ENTETE)>());

}  // namespace quilvane
