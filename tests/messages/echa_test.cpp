#include <gtest/gtest.h>

#include "messages/cas.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS_2(2, ' ');
const std::string BLANCS_12(12, ' ');
const std::string BLANCS_14(14, ' ');
const std::string ETOILES_14(14, '*');

/** An exchanged animal; fields that no rule looks at hold '#'. */
std::string echange(const std::string& genre) {
    return vse("ECHA", genre,
               {{63, "DE"},
                {65, "1234567890  "},
                {77, "##"},
                {79, "1"},
                {80, "10"},
                {82, "01012020"},
                {90, "ABCD"},
                {94, std::string(11, '#')},
                {105, "FR"},
                {107, "7812345678  "},
                {119, "10"},
                {121, "DE"},
                {123, "1234567891  "},
                {135, "10"},
                {137, "BE"},
                {139, "123456      "},
                {151, "FR"},
                {153, "78123456    "},
                {165, std::string(10, '#')},
                {175, "1"},
                {176, "0"},
                {177, "01032024"},
                {185, std::string(46, '#')}});
}

}  // namespace

TEST(Echa, TouteLignePasseEtEchoue) {
    const std::string tous = "CRE INV MOD";
    const std::string sauvINV = "CRE MOD";
    prouverLignes({
        .type = "ECHA",
        .genres = tous,
        .modele = echange,
        .dependances = "C2/1:C1 C6/52:F1 C11/6:C10 C11/67:C10 C11/113:C10 C14/14:C13 C14/114:C13 C16/55:C6 "
                       "C16/2:C6 C17/55:C6 C17/68:C16 C17/2:C16 C17/115:C16 C19/50:E8 C23/52:F1 C23/137:C6",
        .cas =
            {
                {LIGNE(C1, fVTABDIFFFR, 1), tous, {{63, "FR"}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 tous,
                 {{65, BLANCS_12}},
                 {1, 1},
                 "a blank number has no foreign form"},
                {LIGNE(C2, fVerifNumEtranger, 1), tous, {{65, "DE12345678  "}}, {1}},
                {LIGNE(C4, fVerifValAut, 3), sauvINV, {{79, "3"}}, {3}},
                {LIGNE(C5, fVerifValAut, 4), sauvINV, {{80, "16"}}, {4}},
                {LIGNE(C6, fDATEP6P7, 5), sauvINV, {{82, "  012020"}}, {5}},
                {LIGNE(C6, fCoherenDC, 52),
                 "CRE",
                 {{82, "16032024"}},
                 {52, 137},
                 "a date after the record's is after any correct receipt date"},
                {LIGNE(C6, fCoherenDC, 52), "MOD", {{82, "16032024"}}, {52}},
                {LIGNE(C7, fVerifDiffNull, 10), sauvINV, {{90, "    "}}, {10}},
                {LIGNE(C10, fVDIFFNULLVTAB, 6), sauvINV, {{105, "QQ"}}, {6}},
                {LIGNE(C11, fVerifNumEtrangerN, 6), sauvINV, {{105, "DE"}, {107, "DE12345678  "}}, {6}},
                {LIGNE(C11, fCONFORM10FRNULL, 67), sauvINV, {{107, "9912345678  "}}, {67}},
                {LIGNE(C11, fSimult, 113), sauvINV, {{107, BLANCS_12}}, {113}},
                {LIGNE(C12, fVDIFFNULLVTAB, 8), sauvINV, {{119, "16"}}, {8}},
                {LIGNE(C13, fVDIFFNULLVTAB, 14), sauvINV, {{121, "QQ"}}, {14}},
                {LIGNE(C14, fVerifNumEtrangerN, 14), sauvINV, {{123, "DE12345678  "}}, {14}},
                {LIGNE(C14, fSimult, 114), sauvINV, {{123, BLANCS_12}}, {114}},
                {LIGNE(C15, fVDIFFNULLVTAB, 9), sauvINV, {{135, "16"}}, {9}},
                {LIGNE(C16, fVDIFFNULLP6, 55),
                 sauvINV,
                 {{137, BLANCS_2}},
                 {55, 115},
                 "a number without a country breaks their bond"},
                {LIGNE(C16, fVDIFFNULLVTAB, 2), sauvINV, {{137, "QQ"}}, {2}},
                {LIGNE(C17, fVDIFFNULLP6, 55),
                 sauvINV,
                 {{137, BLANCS_14}},
                 {55, 55},
                 "without both there is no bond, but both are required"},
                {LIGNE(C17, fVDIFFNULLP6, 55),
                 sauvINV,
                 {{139, BLANCS_12}},
                 {55, 2, 115},
                 "a country without a number, blank as a number"},
                {LIGNE(C17, fVDIFFNULLP6, 55),
                 sauvINV,
                 {{137, "FR"}, {139, BLANCS_12}},
                 {55, 68, 115},
                 "the same for a French number"},
                {LIGNE(C17, fConform8FR, 68), sauvINV, {{137, "FR"}, {139, "99123456    "}}, {68}},
                {LIGNE(C17, fConform8FRnon, 2), sauvINV, {{139, "12 456      "}}, {2}},
                {LIGNE(C17, fSimult, 115), sauvINV, {{82, "30061999"}, {137, BLANCS_2}}, {115}},
                {LIGNE(C18, fVerifValAut, 21), "CRE", {{151, "BE"}}, {21}},
                {LIGNE(C19, fConform8, 68), "CRE", {{153, "7812345     "}}, {68}},
                {LIGNE(C19, fCoherenCC, 50), "CRE", {{153, "77123456    "}}, {50}},
                {LIGNE(C21, fVerifValAut, 54), sauvINV, {{175, "2"}}, {54}},
                {LIGNE(C22, fVerifValAut, 132), "MOD", {{176, "2"}}, {132}},
                {LIGNE(C23, fDatRecCorr_O, 134), "CRE", {{177, "        "}}, {134}},
                {LIGNE(C23, fDatRecCohe, 52), "CRE", {{177, "16032024"}}, {52}},
                {LIGNE(C23, fDatRecPost, 137), "CRE", {{177, "31122019"}}, {137}},
            },
    });
}

TEST(Echa, CasDEnregistrements) {
    prouverVSE(
        echange,
        {
            {"Switzerland exchanges", "CRE", {{63, "CH"}}, {}},
            {"the newest members exchange", "CRE", {{63, "XI"}}, {}},
            {"a third country does not", "CRE", {{63, "US"}}, {1}},
            {"no country", "CRE", {{63, BLANCS_2}}, {1}},
            {"small letters in the number", "CRE", {{65, "1234567890ab"}}, {1}},
            {"blank inside the number", "CRE", {{65, "12 34       "}}, {1}},
            {"born before the reference date, day unknown", "CRE", {{82, "  061999"}}, {}},
            {"born on it, day unknown", "CRE", {{82, "  081999"}}, {5}},
            {"born before it, year only", "CRE", {{82, "    1999"}}, {}},
            {"no birth date", "CRE", {{82, "        "}}, {5}},
            {"born before it: birth holding is free", "CRE", {{82, "30061999"}, {137, BLANCS_14}}, {}},
            {"born on it: birth holding is required", "CRE", {{82, "01071999"}, {137, BLANCS_14}}, {55, 55}},
            {"breed of the second list only", "CRE", {{80, "00"}, {119, "00"}, {135, "00"}}, {}},
            {"no mother, no father",
             "CRE",
             {{105, BLANCS_14}, {119, "  "}, {121, BLANCS_14}, {135, "  "}},
             {}},
            {"both emptied", "CRE", {{105, ETOILES_14}, {119, "**"}, {121, ETOILES_14}, {135, "**"}}, {}},
            {"mother's number repeats FR and has no French form", "CRE", {{107, "FR12345678  "}}, {6, 67}},
            {"foreign mother, any foreign number", "CRE", {{105, "DE"}, {107, "9912345678AB"}}, {}},
            {"numbers without countries", "CRE", {{105, BLANCS_2}, {121, BLANCS_2}}, {113, 114}},
            {"the stars are no French number of a birth holding", "CRE", {{137, "FR************"}}, {68}},
            {"blank holding", "CRE", {{153, BLANCS_12}}, {68, 50}},
            {"receipt on the birth date", "CRE", {{177, "01012020"}}, {}},
            {"receipt on the record date", "CRE", {{177, "15032024"}}, {}},
            {"no tag count of zero", "CRE", {{175, "0"}}, {54}},
            {"C22 is free on creation", "CRE", {{176, "#"}}, {}},
            {"C22 blank on modification", "MOD", {{176, " "}}, {132}},
            {"holding and receipt are free on modification",
             "MOD",
             {{151, std::string(14, '#')}, {177, "********"}},
             {}},
            {"an invalidation gives the number only", "INV", {{79, std::string(152, '#')}}, {}},
        });
}

TEST(Echa, GenresRefuses) {
    prouverPresence("ECHA", &sCorps::typeDEM, 2);
    prouverPresence("ECHA", &sCorps::typeEDI, 2);
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(echange(genre)), TOUT_REFUSE) << genre;
}
