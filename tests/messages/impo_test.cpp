#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS_2(2, ' ');
const std::string BLANCS_8(8, ' ');
const std::string BLANCS_12(12, ' ');
const std::string ETOILES_8(8, '*');
const std::string ETOILES_12(12, '*');

/** An imported animal; fields that no rule looks at hold '#'. */
std::string importation(const std::string& genre) {
    return vse("IMPO", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {77, "##"},
                {79, "1"},
                {80, "10"},
                {82, "01012020"},
                {90, "ABCD"},
                {94, std::string(11, '#')},
                {105, "DE"},
                {107, "1234567890  "},
                {119, "10"},
                {121, "DE"},
                {123, "1234567891  "},
                {135, "10"},
                {137, "BE"},
                {139, "123456      "},
                {151, "FR"},
                {153, "78123456    "},
                {165, "BE"},
                {167, "REF 1         "},
                {181, "0"},
                {182, "1"},
                {183, "01032024"},
                {191, std::string(40, '#')}});
}

}  // namespace

TEST(Impo, TouteLignePasseEtEchoue) {
    const std::string tous = "CRE INV MOD";
    const std::string sauvINV = "CRE MOD";
    prouverLignes({
        .type = "IMPO",
        .genres = tous,
        .modele = importation,
        .dependances = "C2/50:E8 C6/52:F1 C11/6:C10 C11/113:C10 C14/14:C13 C14/114:C13 C17/68:C16 C17/2:C16 "
                       "C17/115:C16 C19/50:E8 C24/52:F1 C24/137:C6",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 1), tous, {{63, "BE"}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 "CRE INV",
                 {{65, BLANCS_12}},
                 {1, 118, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C2, fVerifDiffNull, 1),
                 "MOD",
                 {{65, BLANCS_12}},
                 {1, 118},
                 "a blank number has no form"},
                {LIGNE(C2, impo_C2, 118), tous, {{65, "7812340000  "}}, {118}},
                {LIGNE(C2, fCoherenCC, 50), "CRE INV", {{65, "7712345678  "}}, {50}},
                {LIGNE(C4, fVerifValAut, 3), sauvINV, {{79, "3"}}, {3}},
                {LIGNE(C5, fVerifValAut, 4), sauvINV, {{80, "16"}}, {4}},
                {LIGNE(C6, impo_C6_1, 5), sauvINV, {{82, "31042020"}}, {5}},
                {LIGNE(C6, impo_C6_2, 52),
                 "CRE",
                 {{82, "16032024"}},
                 {52, 137},
                 "a date after the record's is after any correct receipt date"},
                {LIGNE(C6, impo_C6_2, 52), "MOD", {{82, "16032024"}}, {52}},
                {LIGNE(C7, impo_C7, 10), sauvINV, {{90, "    "}}, {10}},
                {LIGNE(C10, fVDIFFNULLVTAB, 6), sauvINV, {{105, "QQ"}}, {6}},
                {LIGNE(C11, fVerifNumEtrangerN, 6), sauvINV, {{107, "DE12345678  "}}, {6}},
                {LIGNE(C11, fSimult, 113), sauvINV, {{107, BLANCS_12}}, {113}},
                {LIGNE(C12, fVDIFFNULLVTAB, 8), sauvINV, {{119, "16"}}, {8}},
                {LIGNE(C13, fVDIFFNULLVTAB, 14), sauvINV, {{121, "QQ"}}, {14}},
                {LIGNE(C14, fVerifNumEtrangerN, 14), sauvINV, {{123, "DE12345678  "}}, {14}},
                {LIGNE(C14, fSimult, 114), sauvINV, {{123, BLANCS_12}}, {114}},
                {LIGNE(C15, fVDIFFNULLVTAB, 9), sauvINV, {{135, "16"}}, {9}},
                {LIGNE(C16, fVDIFFNULLVTAB, 2), sauvINV, {{137, "QQ"}}, {2}},
                {LIGNE(C17, fCONFORM8FRNULL, 68), sauvINV, {{137, "FR"}, {139, "99123456    "}}, {68}},
                {LIGNE(C17, fConform8FRnon, 2), sauvINV, {{139, "12 456      "}}, {2}},
                {LIGNE(C17, fSimult, 115), sauvINV, {{137, "FR"}, {139, BLANCS_12}}, {115}},
                {LIGNE(C18, fVerifValAut, 21), "CRE", {{151, "BE"}}, {21}},
                {LIGNE(C19, fVerifDiffNull, 21),
                 "CRE",
                 {{153, BLANCS_12}},
                 {21, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C19, fConform8, 68), "CRE", {{153, "7812345     "}}, {68}},
                {LIGNE(C19, fCoherenCC, 50), "CRE", {{153, "77123456    "}}, {50}},
                {LIGNE(C20, impo_C20, 49), sauvINV, {{165, "FR"}}, {49}},
                {LIGNE(C21, fVerifDiffNull, 49), sauvINV, {{167, std::string(14, ' ')}}, {49}},
                {LIGNE(C22, fVerifValAut, 54), sauvINV, {{181, "1"}}, {54}},
                {LIGNE(C23, fVerifValAut, 132), "MOD", {{182, "2"}}, {132}},
                {LIGNE(C24, fDatRecCorr_O, 134), "CRE", {{183, BLANCS_8}}, {134}},
                {LIGNE(C24, fDatRecCohe, 52), "CRE", {{183, "16032024"}}, {52}},
                {LIGNE(C24, fDatRecPost, 137), "CRE", {{183, "31122019"}}, {137}},
            },
    });
}

TEST(Impo, NumeroDeLAnimal) {
    prouverChamps(impo_C2, "",
                  {{"7812345678  ", true},
                   {"7812340000  ", false},
                   {"7800001234  ", true},
                   {"7812340001  ", true},
                   {"7812341000  ", true},
                   {"7812300001  ", true},
                   {"9761234567  ", true},
                   {"9751234567  ", false},
                   {"9912345678  ", false},
                   {"78123456    ", false},
                   {"7812345678 1", false},
                   {"7812345678", false},
                   {"            ", false},
                   {"", false}},
                  TD);
    // The departments are those of the row's list.
    EXPECT_FALSE(accepte(impo_C2, "", "7812345678  ", sansListe));
    EXPECT_FALSE(accepte(impo_C2, "", "7812345678  ", liste{{"01"}}));
    EXPECT_TRUE(accepte(impo_C2, "", "0112345678  ", liste{{"01"}}));
}

TEST(Impo, DateDeNaissance) {
    prouverChamps(impo_C6_1, "",
                  {{BLANCS_8, true},
                   {ETOILES_8, true},
                   {"01012020", true},
                   {"  012020", true},
                   {"    2020", true},
                   {"31042020", false},
                   {"00012020", false},
                   {"*******", false},
                   {"*********", false},
                   {"       ", false},
                   {"NORMABEV", false},
                   {"", false}},
                  HuitBlancsFal);
    std::string apres;
    EXPECT_TRUE(accepte(impo_C6_1, "", "  012020", HuitBlancsFal, &apres));
    EXPECT_EQ(apres, "00012020");
    EXPECT_TRUE(accepte(impo_C6_1, "", BLANCS_8, HuitBlancsFal, &apres));
    EXPECT_EQ(apres, BLANCS_8);
}

TEST(Impo, DateDeNaissanceEtDateDEnregistrement) {
    prouverChamps(impo_C6_2, "15032024",
                  {{BLANCS_8, true},
                   {ETOILES_8, true},
                   {"15032024", true},
                   {"16032024", false},
                   {"14032024", true},
                   {"  032024", true},
                   {"  042024", false}},
                  HuitBlancsFal);
    // An open date passes before any record date, even none.
    EXPECT_TRUE(accepte(impo_C6_2, "", ETOILES_8, HuitBlancsFal));
    EXPECT_TRUE(accepte(impo_C6_2, "", BLANCS_8, HuitBlancsFal));
    EXPECT_TRUE(accepte(impo_C6_2, "  \x1f     ", BLANCS_8, HuitBlancsFal));
    EXPECT_FALSE(accepte(impo_C6_2, "", "01012020", HuitBlancsFal));
}

TEST(Impo, Nom) {
    prouverChamps(impo_C7, "",
                  {{"ABCD", true},
                   {"   D", true},
                   {"A   ", true},
                   {" B  ", true},
                   {"  C ", true},
                   {"    ", false},
                   {"    E", false},
                   {"****", true}});
}

TEST(Impo, PaysDeProvenance) {
    prouverChamps(impo_C20, "",
                  {{"BE", true},
                   {"US", true},
                   {"CH", true},
                   {"FR", false},
                   {"  ", false},
                   {"QQ", false},
                   {"fr", false},
                   {"F", false},
                   {"BE ", false},
                   {"", false}},
                  TP);
}

TEST(Impo, CasDEnregistrements) {
    prouverVSE(importation,
               {
                   {"country of provenance blank", "CRE", {{165, BLANCS_2}}, {49}},
                   {"country of provenance US", "CRE", {{165, "US"}}, {}},
                   {"birth date emptied", "CRE", {{82, ETOILES_8}}, {}},
                   {"birth date unknown", "CRE", {{82, BLANCS_8}}, {}},
                   {"birth day unknown", "CRE", {{82, "  012020"}}, {}},
                   {"birth day and month unknown", "CRE", {{82, "    2020"}}, {}},
                   {"birth day written as zeros", "CRE", {{82, "00012020"}}, {5}},
                   {"receipt within the month of birth", "CRE", {{82, "  032024"}}, {}},
                   {"receipt before the month of birth", "CRE", {{82, "  032024"}, {183, "29022024"}}, {137}},
                   {"born on the day of receipt", "CRE", {{82, "01032024"}}, {}},
                   {"receipt on the record date", "CRE", {{183, "15032024"}}, {}},
                   {"breed of the second list only", "CRE", {{80, "00"}, {119, "00"}, {135, "00"}}, {}},
                   {"no mother, no father, no birth holding",
                    "CRE",
                    {{105, std::string(14, ' ')},
                     {119, "  "},
                     {121, std::string(14, ' ')},
                     {135, "  "},
                     {137, std::string(14, ' ')}},
                    {}},
                   {"all three emptied",
                    "CRE",
                    {{105, "**" + ETOILES_12},
                     {119, "**"},
                     {121, "**" + ETOILES_12},
                     {135, "**"},
                     {137, "**" + ETOILES_12}},
                    {}},
                   {"countries without numbers",
                    "CRE",
                    {{107, BLANCS_12}, {123, BLANCS_12}, {139, BLANCS_12}},
                    {113, 114, 2, 115}},
                   {"numbers without countries",
                    "CRE",
                    {{105, BLANCS_2}, {121, BLANCS_2}, {137, BLANCS_2}},
                    {113, 114, 115}},
                   {"French birth holding", "CRE", {{137, "FR"}, {139, "78123456    "}}, {}},
                   {"overseas holding of another body", "CRE", {{153, "97612345    "}}, {50}},
                   {"C23 is free on creation", "CRE", {{182, "#"}}, {}},
                   {"C23 blank on modification", "MOD", {{182, " "}}, {132}},
                   {"the animal's department is free on modification", "MOD", {{65, "7712345678  "}}, {}},
                   {"holding and receipt are free on modification",
                    "MOD",
                    {{151, std::string(14, '#')}, {183, ETOILES_8}},
                    {}},
                   {"an invalidation gives the number only", "INV", {{79, std::string(152, '#')}}, {}},
               });
    // POINTFOC speaks for every department.
    std::string r = importation("CRE");
    poser(r, 27, "POINTFOC");
    poser(r, 65, "0112345678  ");
    poser(r, 153, "99999999    ");
    EXPECT_EQ(codesDe(r, "PFOC01  "), std::vector<int>{68});
}

TEST(Impo, GenresRefuses) {
    prouverPresence("IMPO", &sCorps::typeDEM, 2);
    prouverPresence("IMPO", &sCorps::typeEDI, 2);
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(importation(genre)), TOUT_REFUSE) << genre;
}
