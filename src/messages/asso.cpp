/**
 * ASSO - ties a company, agricultural or approval number to a
 * holding. The shape of the number (C6) follows from its type (C5); exactly
 * one of the shape checks applies to a record.
 */
#include <iterator>

#include "checks/coherence.h"
#include "checks/conformite.h"
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

/** Kind of identifier. */
bool genreEst(char lettre) { return *corps(C4) == lettre; }

/** Type of number; "CEM" is three characters, the others five. */
bool typeEst(const char* type) { return memeDebut(corps(C5), type, static_cast<int>(std::strlen(type))); }

enum eCle { SANS_CLE, LUHN };

/** `n` digits, their Luhn key if asked for, then blanks to column 20. */
int numeroEntreprise(const char* champ, int n, eCle cle) {
    if (!chiffres(champ, 1, n)) return 0;
    if (cle == LUHN) {
        char numero[15];
        std::memcpy(numero, champ, static_cast<std::size_t>(n));
        numero[n] = '\0';
        if (!fVerifLuhn(numero)) return 0;
    }
    return blancs(champ, n + 1, 20);
}

/** A capital, digits up to column `n`, then blanks to column 20. */
int numeroAgricole(const char* champ, int n) {
    return estMajuscule(champ[0]) && chiffres(champ, 2, n) && blancs(champ, n + 1, 20);
}

}  // namespace

/** Kind "E": the holding number (12) belongs to header E8's body. Error 50. */
int asso_fC2_1(const char*, char* champ, const liste& sverif) {
    return !genreEst('E') || fCoherenCC(entete(E8), champ, sverif);
}

/** Kind "E": the holding number has the French form. Error 68. */
int asso_fC2_2(const char*, char* champ, const liste&) { return !genreEst('E') || fConform8("", champ, TD); }

/** The type of number goes with the kind of identifier. Error 183. */
int asso_fC5(const char*, char*, const liste&) {
    if (genreEst('D')) return typeEst("SIREN") || typeEst("AGRIN");
    if (genreEst('E')) return typeEst("SIRET") || typeEst("AGRIT") || typeEst("AGRSA") || typeEst("CEM");
    return 0;
}

/** SIREN (20): nine digits with a Luhn key (ISO/IEC 7812-1), blanks. Error 136. */
int asso_fC6_1(const char*, char* champ, const liste&) {
    return !typeEst("SIREN") || numeroEntreprise(champ, 9, LUHN);
}

/** SIREN without its key, for inventories. Error 136. */
int asso_fC6_1_INV(const char*, char* champ, const liste&) {
    return !typeEst("SIREN") || numeroEntreprise(champ, 9, SANS_CLE);
}

/** SIRET (20): fourteen digits with a Luhn key, blanks. Error 41. */
int asso_fC6_2(const char*, char* champ, const liste&) {
    return !typeEst("SIRET") || numeroEntreprise(champ, 14, LUHN);
}

/** SIRET without its key, for inventories. Error 41. */
int asso_fC6_2_INV(const char*, char* champ, const liste&) {
    return !typeEst("SIRET") || numeroEntreprise(champ, 14, SANS_CLE);
}

/** AGRIN (20): a capital, eight digits, blanks. Error 181. */
int asso_fC6_3(const char*, char* champ, const liste&) {
    return !typeEst("AGRIN") || numeroAgricole(champ, 9);
}

/** AGRIT (20): a capital, eleven digits, blanks. Error 181. */
int asso_fC6_4(const char*, char* champ, const liste&) {
    return !typeEst("AGRIT") || numeroAgricole(champ, 12);
}

/** AGRSA (20): sanitary approval number, column 8 free, blanks. Error 184. */
int asso_fC6_5(const char*, char* champ, const liste& sverif) {
    if (!typeEst("AGRSA")) return 1;
    if (contientBlanc(champ, 1, 7)) return 0;
    if (!memeDebut(champ, "2A", 2) && !memeDebut(champ, "2B", 2)) {
        // "20" and "98" are in the list but give no approval numbers.
        if (memeDebut(champ, "20", 2) || memeDebut(champ, "98", 2)) return 0;
        if (memeDebut(champ, "97", 2) && (!entre(champ, "971", "976", 3) || memeDebut(champ, "975", 3)))
            return 0;
        if (!debutDansListe(champ, sverif, 2)) return 0;
    }
    return blancs(champ, 9, 20);
}

/** CEM (20): seven letters or digits, blanks. Error 181. */
int asso_fC6_6(const char*, char* champ, const liste&) {
    return !typeEst("CEM") || (tous(champ, 1, 7, estLettreOuChiffre) && blancs(champ, 8, 20));
}

/** End date (DDMMYYYY): blank or complete. Error 175. */
int asso_fC8_1(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fDATEC(dependance, champ, sverif);
}

/** End date: blank or not before the start date (dependency). Error 149. */
int asso_fC8_2(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fCoherenDateSup(dependance, champ, sverif);
}

/** End date: blank or not after the record date (dependency). Error 52. */
int asso_fC8_3(const char* dependance, char* champ, const liste& sverif) {
    return huitBlancs(champ) || fCoherenDC(dependance, champ, sverif);
}

// clang-format off
constexpr sCorps tAsso[] = {
    //field  first  last  CRE  DEM  INV  EDI  MOD check           list          dependency  error
    {C1,       63,   64,   0,   2,   0,   2,   0, fVerifValAut,   &FR,          aucune,       30},
    {C2,       65,   76,   0,   2,   0,   2,   0, fVerifDiffNull, &DouzeBlancs, aucune,       30},
    {C2,        0,    0,   0,   2,   0,   2,   0, asso_fC2_1,     &sansListe,   aucune,       50},
    {C2,        0,    0,   0,   2,   0,   2,   0, asso_fC2_2,     &sansListe,   aucune,       68},
    {C3,       77,   78,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
    {C4,       79,   79,   0,   2,   0,   2,   0, fVerifValAut,   &TYP_IDENT,   aucune,      171},
    {C5,       80,   84,   0,   2,   0,   2,   0, fVerifValAut,   &TYP_NUMERO,  aucune,      172},
    {C5,        0,    0,   0,   2,   1,   2,   0, asso_fC5,       &sansListe,   aucune,      183},
    {C6,       85,  104,   0,   2,   0,   2,   0, fVerifDiffNull, &vingtBlancs, aucune,      173},
    {C6,        0,    0,   0,   2,   1,   2,   0, asso_fC6_1,     &sansListe,   aucune,      136},
    {C6,        0,    0,   1,   2,   0,   2,   1, asso_fC6_1_INV, &sansListe,   aucune,      136},
    {C6,        0,    0,   0,   2,   1,   2,   0, asso_fC6_2,     &sansListe,   aucune,       41},
    {C6,        0,    0,   1,   2,   0,   2,   1, asso_fC6_2_INV, &sansListe,   aucune,       41},
    {C6,        0,    0,   0,   2,   0,   2,   0, asso_fC6_3,     &sansListe,   aucune,      181},
    {C6,        0,    0,   0,   2,   0,   2,   0, asso_fC6_4,     &sansListe,   aucune,      181},
    {C6,        0,    0,   0,   2,   0,   2,   0, asso_fC6_5,     &TD,          aucune,      184},
    {C6,        0,    0,   0,   2,   0,   2,   0, asso_fC6_6,     &sansListe,   aucune,      181},
    {C7,      105,  112,   0,   2,   1,   2,   0, fDATEC,         &sansListe,   aucune,      174},
    {C7,        0,    0,   0,   2,   1,   2,   0, fCoherenDC,     &sansListe,   fin(F1),      52},
    {C8,      113,  120,   0,   2,   1,   2,   0, asso_fC8_1,     &sansListe,   aucune,      175},
    {C8,        0,    0,   0,   2,   1,   2,   0, asso_fC8_2,     &sansListe,   corps(C7),   149},
    {C8,        0,    0,   0,   2,   1,   2,   0, asso_fC8_3,     &sansListe,   fin(F1),      52},
    {C9,      121,  230,   1,   1,   1,   1,   1, nullptr,        &sansListe,   aucune,        0},
};
constexpr int lAsso = static_cast<int>(std::size(tAsso));
const parcours pAsso(tAsso);
// clang-format on

/** What its own checks do with the list of their row. */
constexpr usageDeListe USAGES_ASSO[] = {
    {asso_fC6_5, DEUX_COLONNES},
};
static_assert(lignesJustes<examiner(tAsso, CORPS, USAGES_ASSO)>());

}  // namespace quilvane
