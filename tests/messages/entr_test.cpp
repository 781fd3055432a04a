#include <gtest/gtest.h>

#include "messages/cas.h"
#include "support/mouvement.h"
#include "vocabulaire/regle.h"

using namespace essai;
using namespace quilvane;

namespace {

/** A correct entry of kind `genre`, bought (A) from a French holding. */
std::string modele(const std::string& genre) {
    return vse("ENTR", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "01022024"},
                {87, "A"},
                {88, "FR"},
                {90, "78123456    "},
                {102, "FR"},
                {104, NUMERO},
                {176, "05022024"},
                {185, "10022024"}});
}

const std::string SANS_DATE(8, ' ');

}  // namespace

TEST(Entr, TouteLignePasseEtEchoue) {
    const char* const NUMERO_BLANC = "a blank number has no form either";
    prouverLignes({
        .type = "ENTR",
        .genres = "CRE INV MOD ECQ",
        .modele = modele,
        .dependances =
            "C2/67:C1 C2/118:C1 C2/1:C1 C4/52:F1 C5/23:C4 C5/23:E5 C7/50:E8 C11/52:F1 C13/52:F1 C13/137:C4",
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
            {LIGNE(C4, fCoherenDC_tr, 52), "CRE ECQ", {{79, "16032024"}, {185, SANS_DATE}}, {52}},
            {LIGNE(C4, fCoherenDC_tr, 52), "MOD", {{79, "16032024"}}, {52}},
            {LIGNE(C5, fVerifValAutDate, 23), "CRE MOD ECQ", {{87, "X"}}, {23}},
            {LIGNE(C5, fVerifValAutDate, 23), "CRE", {{87, "G"}}, {23}},
            {LIGNE(C5, fVerifValAutDate, 23), "ECQ", {{87, "G"}}, {23, 23}, "expired, and a cause of creations"},
            {LIGNE(C5, entr_fC5, 23), "MOD ECQ", {{87, "F"}}, {23}},
            // holding
            {LIGNE(C6, fVerifValAut, 21), "CRE INV MOD ECQ", {{88, "BE"}}, {21}},
            {LIGNE(C7, fVerifDiffNull, 21), "CRE MOD ECQ", {{90, SANS_NUMERO}}, {21, 68, 50}, NUMERO_BLANC},
            {LIGNE(C7, fVerifDiffNull, 21), "INV", {{90, SANS_NUMERO}}, {21, 68}, NUMERO_BLANC},
            {LIGNE(C7, fConform8, 68), "CRE INV MOD ECQ", {{90, "7812345     "}}, {68}},
            {LIGNE(C7, fCoherenCC_tr, 50), "CRE MOD ECQ", {{90, NUMERO}}, {50}},
            // other holding
            {LIGNE(C8, entr_fC8_cre, 24), "CRE ECQ", {{102, "ZZ"}}, {24}},
            {LIGNE(C8, entr_fC8_cre, 24), "CRE", {{87, "F"}, {102, SANS_PAYS}, {104, SANS_NUMERO}, {116, "MARCHAND"}}, {24}},
            {LIGNE(C8, entr_fC8_mod, 24), "MOD", {{102, "ZZ"}}, {24}},
            {LIGNE(C9, entr_fC9_1_cre, 24), "CRE ECQ", {{104, SANS_NUMERO}, {116, "MARCHAND"}}, {24}},
            {LIGNE(C9, entr_fC9_1_cre, 24), "CRE ECQ", {{102, SANS_PAYS}}, {24}},
            {LIGNE(C9, entr_fC9_2_cre, 68), "CRE ECQ", {{104, "3512345     "}}, {68}},
            {LIGNE(C9, entr_fC9_1_mod, 24), "MOD", {{104, SANS_NUMERO}, {116, "MARCHAND"}}, {24}},
            {LIGNE(C9, entr_fC9_1_mod, 24), "MOD", {{102, SANS_PAYS}}, {24}},
            {LIGNE(C9, entr_fC9_2_mod, 68), "MOD", {{104, "3512345     "}}, {68}},
            {LIGNE(C10, entr_fC10_cre, 24), "CRE ECQ", {{102, SANS_PAYS}, {104, SANS_NUMERO}}, {24}},
            {LIGNE(C10, entr_fC10_mod, 24), "MOD", {{102, SANS_PAYS}, {104, SANS_NUMERO}}, {24}},
            // second date
            {LIGNE(C11, fDATEP6, 58), "INV MOD", {{176, "31022024"}}, {58}},
            {LIGNE(C11, fDATEP6, 58), "INV MOD", {{176, SANS_DATE}}, {58}},
            {LIGNE(C11, fCoherenDC_tr2, 52), "INV MOD", {{176, "16032025"}}, {52}},
            // receipt
            {LIGNE(C13, fDatRecCorr, 134), "CRE ECQ", {{185, "31022024"}}, {134}},
            {LIGNE(C13, fDatRecCohe, 52), "CRE ECQ", {{185, "16032024"}}, {52}},
            {LIGNE(C13, fDatRecPost_tr, 137), "CRE ECQ", {{185, "31012024"}}, {137}},
        },
        // clang-format on
        .sansEchec = {{LIGNE(C5, entr_fC5, 23), "CRE", "the four letters are causes of creations"}},
    });
}

TEST(Entr, GenreNonPrevuDonneErreurParLigne) {
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(modele(genre)), TOUT_REFUSE) << genre;
    prouverPresence("ENTR", &sCorps::typeDEM, 2);
    prouverPresence("ENTR", &sCorps::typeEDI, 2);
}

TEST(Entr, EnregistrementsParticuliers) {
    const pose sansPays{102, SANS_PAYS}, sansNumero{104, SANS_NUMERO}, marchand{116, "MARCHAND"};
    // clang-format off
    prouverVSE(modele, {
        // F wants the country of the other holding; its number may be missing.
        {"F without country", "CRE", {{87, "F"}, sansPays, sansNumero, marchand}, {24}},
        {"F without country and text", "CRE", {{87, "F"}, sansPays, sansNumero}, {24, 24}},
        {"F without number", "CRE", {{87, "F"}, sansNumero, marchand}, {}},
        {"F without number and text", "CRE", {{87, "F"}, sansNumero}, {24}},
        {"last day of G", "CRE", {{79, "31122004"}, {87, "G"}, sansNumero, marchand}, {}},
        {"G has ended", "CRE", {{79, "01012005"}, {87, "G"}}, {23}},
        // A wants a number or a text, N nothing at all.
        {"A without other party", "CRE", {sansPays, sansNumero}, {24}},
        {"A with text only", "CRE", {sansPays, sansNumero, marchand}, {}},
        {"N without other party", "CRE", {{87, "N"}, sansPays, sansNumero}, {}},
        {"N without other party", "MOD", {{87, "N"}, sansPays, sansNumero}, {}},
        {"N with country only", "CRE", {{87, "N"}, sansNumero}, {24}},
        // The letters of exits are no causes of entries.
        {"S is an exit", "CRE", {{87, "S"}}, {23}},
        {"T is an exit, and a cause of creations", "MOD", {{87, "T"}}, {23, 23}},
        // Modification before 1999: a missing country is tolerated.
        {"before P8, F without country", "MOD", {{79, "31121998"}, {87, "F"}, sansPays, sansNumero}, {23}},
        {"from P8, F without country", "MOD", {{79, "01011999"}, {87, "F"}, sansPays, sansNumero, marchand}, {23, 24}},
        {"before P8, country only", "MOD", {{79, "31121998"}, sansNumero}, {}},
        {"before P8, blank day, nothing", "MOD", {{79, "  121998"}, sansPays, sansNumero}, {}},
        {"before P8, blank day and month, country only", "MOD", {{79, "    1998"}, sansNumero}, {}},
        {"from P8, nothing", "MOD", {{79, "01011999"}, sansPays, sansNumero}, {24}},
        {"from P8, country and text", "MOD", {{79, "01011999"}, sansNumero, marchand}, {24}},
        {"creation before P8, nothing", "CRE", {{79, "31121998"}, sansPays, sansNumero}, {24}},
        // G is refused on modification whatever the date, and free in an inventory.
        {"G on its last day", "MOD", {{79, "31122004"}, {87, "G"}}, {23}},
        {"G in 1998", "MOD", {{79, "31121998"}, {87, "G"}}, {23}},
        {"G after its end", "MOD", {{87, "G"}}, {23, 23}},
        {"G in an inventory", "INV", {{87, "G"}}, {}},
        {"F in an inventory", "INV", {{87, "F"}, sansPays}, {}},
        // A number needs its country and has the form of it.
        {"number without country", "CRE", {sansPays}, {24}},
        {"number without country", "MOD", {sansPays}, {24}},
        {"number of no department", "CRE", {{104, "97512345    "}}, {68}},
        {"number of no department", "MOD", {{104, "97512345    "}}, {68}},
        {"number of another country", "CRE", {{102, "BE"}, {104, "97512345    "}}, {}},
        // J: one year more, and any holding.
        {"J: one year more, any holding, any receipt", "CRE", {{79, "15032025"}, {87, "J"}, {90, NUMERO}, {185, "10022024"}}, {}},
        {"J: more than a year", "CRE", {{79, "16032025"}, {87, "J"}}, {52}},
        {"receipt before the entry", "CRE", {{79, "02022024"}, {185, "01022024"}}, {137}},
        {"J: receipt before the entry", "CRE", {{79, "02022024"}, {87, "J"}, {185, "01022024"}}, {}},
        // The limit of L is the first day of 1999.
        {"last day of L", "CRE", {{79, "01011999"}, {87, "L"}}, {}},
        {"L has ended", "CRE", {{79, "02011999"}, {87, "L"}}, {23}},
        // A creation does not look at the second date.
        {"second date of a creation", "CRE", {{176, "XXXXXXXX"}}, {}},
        {"second date without its day, before P6", "MOD", {{176, "  061999"}}, {}},
        {"second date read as 1999-07-00", "INV", {{176, "  071999"}}, {}},
        {"second date without its day", "INV", {{176, "  081999"}}, {58}},
        // Column 184 is free; the receipt date may be blank.
        {"column 184", "CRE", {{184, "X"}}, {}},
        {"blank receipt", "CRE", {{185, SANS_DATE}}, {}},
        {"receipt one column early", "CRE", {{184, "10022024 "}}, {134, 137}},
        {"receipt of a modification", "MOD", {{185, "XXXXXXXX"}}, {}},
    });
    // clang-format on
}
