#include <gtest/gtest.h>

#include "messages/cas.h"
#include "support/mouvement.h"
#include "vocabulaire/regle.h"

using namespace essai;
using namespace quilvane;

namespace {

/** A correct exit of kind `genre` (cause B) to a French holding. */
std::string modele(const std::string& genre) {
    return vse("SORT", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "01022024"},
                {87, "B"},
                {88, "FR"},
                {90, "78123456    "},
                {102, "FR"},
                {104, NUMERO},
                {176, "05022024"},
                {184, "10022024"}});
}

const std::string SANS_DATE(8, ' ');

}  // namespace

TEST(Sort, TouteLignePasseEtEchoue) {
    const char* const NUMERO_BLANC = "a blank number has no form either";
    prouverLignes({
        .type = "SORT",
        .genres = "CRE INV MOD ECQ",
        .modele = modele,
        .dependances =
            "C2/67:C1 C2/118:C1 C2/1:C1 C4/52:F1 C5/23:C4 C5/23:E5 C7/50:E8 C11/52:F1 C12/52:F1 C12/137:C4",
        // clang-format off
        .cas = {
            // animal
            {LIGNE(C1, fVerifValAut, 1), "CRE INV MOD ECQ", {{63, "ZZ"}}, {1}},
            {LIGNE(C2, fVerifDiffNull, 1), "CRE INV MOD ECQ", {{65, SANS_NUMERO}}, {1, 67}, NUMERO_BLANC},
            {LIGNE(C2, fVerifDiffNull, 1), "CRE INV MOD ECQ", {{63, "BE"}, {65, SANS_NUMERO}}, {1, 1}, NUMERO_BLANC},
            {LIGNE(C2, fVerifDiffNull, 1), "CRE INV MOD ECQ", {{63, "US"}, {65, SANS_NUMERO}}, {1, 118}, NUMERO_BLANC},
            {LIGNE(C2, fConform10FR, 67), "CRE INV MOD ECQ", {{65, "781234567   "}}, {67}},
            {LIGNE(C2, fConform10FRnonECHAnon, 118), "CRE INV MOD ECQ", {{63, "US"}, {65, "781234567   "}}, {118}},
            {LIGNE(C2, fConform10FRnonECHAoui, 1), "CRE INV MOD ECQ", {{63, "BE"}, {65, "BE1234567   "}}, {1}},
            // date and cause
            {LIGNE(C4, fDATEC, 22), "CRE ECQ", {{79, "30022023"}}, {22}},
            {LIGNE(C4, fDATEC, 22), "CRE ECQ", {{79, "  061998"}}, {22}},
            {LIGNE(C4, fDATEP6, 22), "MOD", {{79, "30022023"}}, {22}},
            {LIGNE(C4, fDATEP6, 22), "MOD", {{79, "  022024"}}, {22}},
            {LIGNE(C4, fCoherenDC_tr, 52), "CRE ECQ", {{79, "16032024"}, {184, SANS_DATE}}, {52}},
            {LIGNE(C4, fCoherenDC_tr, 52), "MOD", {{79, "16032024"}}, {52}},
            {LIGNE(C5, fVerifValAutDate, 23), "CRE MOD ECQ", {{87, "X"}}, {23}},
            {LIGNE(C5, fVerifValAutDate, 23), "CRE", {{87, "T"}}, {23}},
            {LIGNE(C5, fVerifValAutDate, 23), "ECQ", {{87, "T"}}, {23, 23}, "expired, and a cause of creations"},
            {LIGNE(C5, sort_fC5, 23), "MOD ECQ", {{87, "S"}}, {23}},
            // holding
            {LIGNE(C6, fVerifValAut, 21), "CRE INV MOD ECQ", {{88, "BE"}}, {21}},
            {LIGNE(C7, fVerifDiffNull, 21), "CRE MOD ECQ", {{90, SANS_NUMERO}}, {21, 68, 50}, NUMERO_BLANC},
            {LIGNE(C7, fVerifDiffNull, 21), "INV", {{90, SANS_NUMERO}}, {21, 68}, NUMERO_BLANC},
            {LIGNE(C7, fConform8, 68), "CRE INV MOD ECQ", {{90, "7812345     "}}, {68}},
            {LIGNE(C7, fCoherenCC_tr, 50), "CRE MOD ECQ", {{90, NUMERO}}, {50}},
            // other holding
            {LIGNE(C8, sort_fC8_cre, 24), "CRE ECQ", {{102, "ZZ"}}, {24}},
            {LIGNE(C8, sort_fC8_cre, 24), "CRE", {{87, "S"}, {102, SANS_PAYS}, {104, SANS_NUMERO}, {116, "MARCHAND"}}, {24}},
            {LIGNE(C8, sort_fC8_mod, 24), "MOD", {{102, "ZZ"}}, {24}},
            {LIGNE(C9, sort_fC9_1_cre, 24), "CRE ECQ", {{104, SANS_NUMERO}, {116, "MARCHAND"}}, {24}},
            {LIGNE(C9, sort_fC9_1_cre, 24), "CRE ECQ", {{102, SANS_PAYS}}, {24}},
            {LIGNE(C9, sort_fC9_2_cre, 68), "CRE ECQ", {{104, "3512345     "}}, {68}},
            {LIGNE(C9, sort_fC9_1_mod, 24), "MOD", {{104, SANS_NUMERO}, {116, "MARCHAND"}}, {24}},
            {LIGNE(C9, sort_fC9_1_mod, 24), "MOD", {{102, SANS_PAYS}}, {24}},
            {LIGNE(C9, sort_fC9_2_mod, 68), "MOD", {{104, "3512345     "}}, {68}},
            {LIGNE(C10, sort_fC10_cre, 24), "CRE ECQ", {{102, SANS_PAYS}, {104, SANS_NUMERO}}, {24}},
            {LIGNE(C10, sort_fC10_mod, 24), "MOD", {{102, SANS_PAYS}, {104, SANS_NUMERO}}, {24}},
            // second date
            {LIGNE(C11, fDATEP6, 58), "INV MOD", {{176, "31022024"}}, {58}},
            {LIGNE(C11, fDATEP6, 58), "INV MOD", {{176, SANS_DATE}}, {58}},
            {LIGNE(C11, fCoherenDC_tr2, 52), "INV MOD", {{176, "16032025"}}, {52}},
            // receipt
            {LIGNE(C12, fDatRecCorr, 134), "CRE ECQ", {{184, "31022024"}}, {134}},
            {LIGNE(C12, fDatRecCohe, 52), "CRE ECQ", {{184, "16032024"}}, {52}},
            {LIGNE(C12, fDatRecPost_tr, 137), "CRE ECQ", {{184, "31012024"}}, {137}},
        },
        // clang-format on
        .sansEchec = {{LIGNE(C5, sort_fC5, 23), "CRE", "the four letters are causes of creations"}},
    });
}

TEST(Sort, GenreNonPrevuDonneErreurParLigne) {
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(modele(genre)), TOUT_REFUSE) << genre;
    prouverPresence("SORT", &sCorps::typeDEM, 2);
    prouverPresence("SORT", &sCorps::typeEDI, 2);
}

TEST(Sort, EnregistrementsParticuliers) {
    const pose sansPays{102, SANS_PAYS}, sansNumero{104, SANS_NUMERO}, marchand{116, "MARCHAND"};
    // clang-format off
    prouverVSE(modele, {
        // M may leave out the number, and unlike S and T the country as well.
        {"M without number", "CRE", {{87, "M"}, {102, "BE"}, sansNumero, marchand}, {}},
        {"B without number", "CRE", {{87, "B"}, {102, "BE"}, sansNumero, marchand}, {24}},
        {"M without country", "CRE", {{87, "M"}, sansPays, sansNumero, marchand}, {}},
        {"S without country", "CRE", {{87, "S"}, sansPays, sansNumero, marchand}, {24}},
        {"S without number", "CRE", {{87, "S"}, sansNumero, marchand}, {}},
        {"last day of T", "CRE", {{79, "31122004"}, {87, "T"}, sansNumero, marchand}, {}},
        {"T has ended", "CRE", {{79, "01012005"}, {87, "T"}}, {23}},
        {"M without number", "MOD", {{87, "M"}, sansNumero, marchand}, {}},
        {"M without number and text", "MOD", {{87, "M"}, sansNumero}, {24}},
        // M is no cause that modification refuses.
        {"M is no cause of creations only", "MOD", {{87, "M"}}, {}},
        {"S is one", "MOD", {{87, "S"}}, {23}},
        {"T is one", "MOD", {{79, "31122004"}, {87, "T"}}, {23}},
        {"S in an inventory", "INV", {{87, "S"}}, {}},
        // No cause dispenses with the text; the letters of entries are no causes.
        {"N is no exit, and no text either", "CRE", {{87, "N"}, sansPays, sansNumero}, {23, 24}},
        {"F is an entry", "CRE", {{87, "F"}}, {23}},
        {"G is an entry, and a cause of creations", "MOD", {{87, "G"}}, {23, 23}},
        {"B without other party", "CRE", {sansPays, sansNumero}, {24}},
        {"B with text only", "CRE", {sansPays, sansNumero, marchand}, {}},
        // Modification before 1999.
        {"before P8, S without country", "MOD", {{79, "31121998"}, {87, "S"}, sansPays, sansNumero}, {23}},
        {"from P8, S without country", "MOD", {{79, "01011999"}, {87, "S"}, sansPays, sansNumero, marchand}, {23, 24}},
        {"before P8, country only", "MOD", {{79, "31121998"}, sansNumero}, {}},
        {"from P8, country and text", "MOD", {{79, "01011999"}, sansNumero, marchand}, {24}},
        // A number needs its country and has the form of it.
        {"number without country", "CRE", {sansPays}, {24}},
        {"number without country", "MOD", {sansPays}, {24}},
        {"number of no department", "CRE", {{104, "97512345    "}}, {68}},
        {"number of no department", "MOD", {{104, "97512345    "}}, {68}},
        // J: one year more, any holding, any receipt.
        {"J: one year more, any holding, any receipt", "CRE", {{79, "15032025"}, {87, "J"}, {90, NUMERO}, {184, "10022024"}}, {}},
        {"J: more than a year", "CRE", {{79, "16032025"}, {87, "J"}}, {52}},
        // The limit of L, D, P and U is the first day of 1999.
        {"last day of D", "CRE", {{79, "01011999"}, {87, "D"}}, {}},
        {"D has ended", "CRE", {{79, "02011999"}, {87, "D"}}, {23}},
        {"L has ended", "CRE", {{79, "02011999"}, {87, "L"}}, {23}},
        {"P has ended", "CRE", {{79, "02011999"}, {87, "P"}}, {23}},
        {"U has ended", "CRE", {{79, "02011999"}, {87, "U"}}, {23}},
        {"second date of a creation", "CRE", {{176, "XXXXXXXX"}}, {}},
        {"second date without its day, before P6", "MOD", {{176, "  061999"}}, {}},
        {"second date read as 1999-07-00", "INV", {{176, "  071999"}}, {}},
        {"second date without its day", "INV", {{176, "  081999"}}, {58}},
        // The receipt date stands one column before that of an entry.
        {"blank receipt", "CRE", {{184, SANS_DATE}}, {}},
        {"receipt one column late", "CRE", {{184, " 10022024"}}, {134, 52}},
        {"column 192", "CRE", {{192, "X"}}, {}},
        {"receipt of a modification", "MOD", {{184, "XXXXXXXX"}}, {}},
    });
    // clang-format on
}
