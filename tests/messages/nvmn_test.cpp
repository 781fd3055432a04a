#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"

using namespace essai;
using namespace quilvane;

// The table of verdicts of nvmn_C2 stands beside that of nais_C2.

namespace {

const std::string SANS_CODE(2, ' ');
const std::string SANS_NUMERO(12, ' ');
const std::string SANS_DATE(8, ' ');

/** A correct birth in its short form. */
std::string modele(const std::string& genre) {
    return vse("NVMN", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "2"},
                {80, "38"},
                {82, "01022024"},
                {105, "FR"},
                {107, "7811111111  "},
                {119, "38"},
                {121, "BE"},
                {123, "TAUREAU12345"},
                {135, "38"},
                {137, "FR"},
                {139, "78123456    "},
                {151, "10022024"}});
}

}  // namespace

TEST(Nvmn, TouteLignePasseEtEchoue) {
    const char* const NUMERO_BLANC = "a blank number has no form either";
    prouverLignes({
        .type = "NVMN",
        .genres = "CRE INV MOD ECQ",
        .modele = modele,
        .dependances = "C2/50:E8 C6/52:F1 C11/67:C10 C11/118:C10 C11/6:C10 C14/114:C13 C14/14:C13 C17/50:E8 "
                       "C18/52:F1 C18/137:C6",
        // clang-format off
        .cas = {
            // animal
            {LIGNE(C1, fVerifValAut, 1), "CRE INV MOD ECQ", {{63, "BE"}}, {1}},
            {LIGNE(C2, fVerifDiffNull, 1), "CRE INV MOD ECQ", {{65, SANS_NUMERO}}, {1, 67, 50}, NUMERO_BLANC},
            {LIGNE(C2, nvmn_C2, 67), "CRE MOD ECQ", {{65, "781234567   "}}, {67}},
            {LIGNE(C2, nvmn_C2, 67), "CRE MOD ECQ", {{65, "7812340000  "}}, {67}},
            {LIGNE(C2, fConform10, 67), "INV", {{65, "781234567   "}}, {67}},
            {LIGNE(C2, fCoherenCC, 50), "CRE INV MOD ECQ", {{65, "3512345678  "}}, {50}},
            {LIGNE(C4, fVerifValAut, 3), "CRE MOD ECQ", {{79, "3"}}, {3}},
            {LIGNE(C5, fVerifValAut, 4), "CRE MOD ECQ", {{80, "99"}}, {4}},
            {LIGNE(C6, fDATEC, 5), "CRE MOD ECQ", {{82, "30022023"}}, {5}},
            {LIGNE(C6, fDATEC, 5), "CRE MOD ECQ", {{82, "  061998"}}, {5}},
            {LIGNE(C6, fCoherenDC, 52), "CRE ECQ", {{82, "16032024"}, {151, "16032024"}}, {52, 52},
             "a receipt after the birth is after the record, too"},
            {LIGNE(C6, fCoherenDC, 52), "CRE ECQ", {{82, "16032024"}}, {52, 137}, "a receipt before the record is before the birth"},
            {LIGNE(C6, fCoherenDC, 52), "MOD", {{82, "16032024"}}, {52}},
            // dam
            {LIGNE(C10, fVerifValAut, 7), "CRE MOD ECQ", {{105, "ZZ"}}, {7}},
            {LIGNE(C11, fVerifDiffNull, 7), "CRE MOD ECQ", {{107, SANS_NUMERO}}, {7, 67}, NUMERO_BLANC},
            {LIGNE(C11, fVerifDiffNull, 7), "CRE MOD ECQ", {{105, "US"}, {107, SANS_NUMERO}}, {7, 118}, NUMERO_BLANC},
            {LIGNE(C11, fVerifDiffNull, 7), "CRE MOD ECQ", {{105, "BE"}, {107, SANS_NUMERO}}, {7, 6}, NUMERO_BLANC},
            {LIGNE(C11, fConform10FR, 67), "CRE MOD ECQ", {{107, "781234567   "}}, {67}},
            {LIGNE(C11, fConform10FRnonECHAnon, 118), "CRE MOD ECQ", {{105, "US"}, {107, "781234567   "}}, {118}},
            {LIGNE(C11, fConform10FRnonECHAoui, 6), "CRE MOD ECQ", {{105, "BE"}, {107, "BE1234567   "}}, {6}},
            {LIGNE(C12, fVerifValAut, 8), "CRE MOD ECQ", {{119, "99"}}, {8}},
            // sire
            {LIGNE(C13, fVDIFFNULLVTAB, 14), "CRE MOD ECQ", {{121, "ZZ"}}, {14}},
            {LIGNE(C14, fSimult, 114), "CRE MOD ECQ", {{121, SANS_CODE}}, {114}},
            {LIGNE(C14, fSimult, 114), "CRE MOD ECQ", {{123, SANS_NUMERO}}, {114}},
            {LIGNE(C14, fVerifNumEtrangerN, 14), "CRE MOD ECQ", {{123, "BE-1        "}}, {14}},
            {LIGNE(C15, fVerifValAut, 9), "CRE MOD ECQ", {{135, "99"}}, {9}},
            // holding and receipt
            {LIGNE(C16, fVerifValAut, 2), "CRE MOD ECQ", {{137, "BE"}}, {2}},
            {LIGNE(C17, fVerifDiffNull, 2), "CRE MOD ECQ", {{139, SANS_NUMERO}}, {2, 68, 50}, NUMERO_BLANC},
            {LIGNE(C17, fConform8, 68), "CRE MOD ECQ", {{139, "7812345     "}}, {68}},
            {LIGNE(C17, fCoherenCC, 50), "CRE MOD ECQ", {{139, "35123456    "}}, {50}},
            {LIGNE(C18, fDatRecCorr_O, 134), "CRE ECQ", {{151, SANS_DATE}}, {134}},
            {LIGNE(C18, fDatRecCorr_O, 134), "CRE ECQ", {{151, "31022024"}}, {134}},
            {LIGNE(C18, fDatRecCohe, 52), "CRE ECQ", {{151, "16032024"}}, {52}},
            {LIGNE(C18, fDatRecPost, 137), "CRE ECQ", {{151, "31012024"}}, {137}},
        },
        // clang-format on
    });
}

TEST(Nvmn, GenreNonPrevuDonneErreurParLigne) {
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(modele(genre)), TOUT_REFUSE) << genre;
    prouverPresence("NVMN", &sCorps::typeDEM, 2);
    prouverPresence("NVMN", &sCorps::typeEDI, 2);
}

TEST(Nvmn, EnregistrementsParticuliers) {
    // clang-format off
    prouverVSE(modele, {
        {"zero series", "INV", {{65, "7812340000  "}}, {}},
        {"body of an inventory", "INV", {{79, std::string(150, '?')}}, {}},
        {"columns 90 to 104", "CRE", {{90, "???????????????"}}, {}},
        {"columns 159 to 230", "CRE", {{159, std::string(72, '?')}}, {}},
        {"receipt of a modification", "MOD", {{151, "????????"}}, {}},
        // Unlike NAIS it knows no birth of before P5.
        {"before P5, no dam", "MOD", {{82, "30061999"}, {105, SANS_CODE}, {107, SANS_NUMERO}}, {7, 7, 118}},
        {"before P6, no holding", "MOD", {{82, "30061999"}, {137, SANS_CODE}, {139, SANS_NUMERO}}, {2, 2, 68, 50}},
        {"before P6, blank day", "MOD", {{82, "  061999"}}, {5}},
        {"before P8, unknown breeds", "MOD", {{82, "31121998"}, {119, SANS_CODE}, {135, SANS_CODE}}, {8, 9}},
        {"sire number repeats its country", "CRE", {{123, "BE123456    "}}, {14}},
        {"no sire", "CRE", {{121, SANS_CODE}, {123, SANS_NUMERO}}, {}},
    });
    // clang-format on
}
