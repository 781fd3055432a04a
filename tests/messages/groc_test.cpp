#include "messages/aiguillage.h"
#include "messages/cas.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS6(6, ' ');
const std::string BLANCS8(8, ' ');
const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse("GROC", genre,
               {{63, "FR"},
                {65, "53000012345 "},
                {79, "FR"},
                {81, "78123456    "},
                {93, "01022024"},
                {101, "AZE123  "},
                {109, "FR"},
                {111, "3"},
                {112, "02022024"},
                {122, "120000"}});
}

}  // namespace

TEST(Groc, TouteLignePasseEtEchoue) {
    // Rows 20, 21 and 24, which repeat the rules of C10 and C12 for kinds other
    // than creation, run in no kind.
    prouverLignes({
        .type = "GROC",
        .genres = "CRE DEM",
        .modele = modele,
        .dependances = "C2/151:C1 C2/1:C1 C5/68:C1 C5/50:E8 C6/52:F1 C8/152:C1 C9/158:C7 C10/102:C6 "
                       "C10/52:F1 C10/52:F1 C12/103:C10",
        .cas =
            {
                // The country of origin is left blank for a foreign number.
                {LIGNE(C1, fVerifValAut, 1), "CRE DEM", {{63, "US"}, {109, "  "}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 "CRE DEM",
                 {{65, BLANCS12}},
                 {1, 151},
                 "a blank number has no form"},
                {LIGNE(C2, fConform_OC_FR, 151), "CRE DEM", {{65, "5300001234  "}}, {151}},
                {LIGNE(C2, fConform_OC_UE, 1),
                 "CRE DEM",
                 {{63, "BE"}, {65, "BE1234      "}, {109, "  "}},
                 {1}},
                {LIGNE(C4, fVerifValAut, 27), "CRE", {{79, "BE"}}, {27}},
                {LIGNE(C5, fVerifDiffNull, 27),
                 "CRE",
                 {{81, BLANCS12}},
                 {27, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C5, fConform8, 68), "CRE", {{81, "7812345     "}}, {68}},
                {LIGNE(C5, fCoherenCC, 50), "CRE", {{81, "77123456    "}}, {50}},
                {LIGNE(C6, fDATEC, 28), "CRE", {{93, "31022024"}}, {28}},
                {LIGNE(C6, fCoherenDC, 52), "CRE", {{93, "16032024"}}, {52}},
                {LIGNE(C7, fConform_OC_model1, 153), "CRE DEM", {{101, "AZE123X "}}, {153}},
                {LIGNE(C7, fConform_OC_model2, 154), "CRE DEM", {{101, "OZE123  "}}, {154}},
                {LIGNE(C7, fConform_OC_model3, 155), "CRE DEM", {{101, "ABE123  "}}, {155}},
                {LIGNE(C7, fConform_OC_model4, 156), "CRE DEM", {{101, "AZX123  "}, {111, " "}}, {156}},
                {LIGNE(C7, fConform_OC_model5, 157), "CRE DEM", {{101, "AZE12X  "}}, {157}},
                {LIGNE(C8, fConform_OC_pays_orig, 152), "CRE", {{109, "ZZ"}}, {152}},
                {LIGNE(C9, fConform_OC_compteur, 158), "CRE", {{111, "8"}}, {158}},
                {LIGNE(C10, groc_cre_C10_1, 102), "CRE", {{112, "31022024"}}, {102}},
                {LIGNE(C10, groc_cre_C10_2, 52), "CRE", {{112, "16032024"}}, {52}},
                {LIGNE(C12, groc_cre_C12, 103), "CRE", {{122, "240000"}}, {103}},
            },
    });
    for (const int ligne : {20, 21, 24}) {
        EXPECT_EQ(tGroc[ligne].typeCRE, 1) << ligne;
        EXPECT_EQ(tGroc[ligne].typeDEM, 1) << ligne;
    }
}

TEST(Groc, Enregistrements) {
    const pose BE = {63, "BE"};
    const pose SANS_ORIGINE = {109, "  "};
    prouverVSE(
        modele,
        {
            {"time without a date", "CRE", {{112, BLANCS8}}, {103}},
            {"neither date nor time", "CRE", {{112, BLANCS8}, {122, BLANCS6}}, {}},
            {"date without a time", "CRE", {{122, BLANCS6}}, {103}},
            {"date before the first", "CRE", {{112, "31012024"}}, {}},
            {"date with a blank day", "CRE", {{112, "  022024"}}, {102}},
            {"request reads no dates", "DEM", {{93, "????????"}, {112, "????????"}, {122, "??????"}}, {}},
            {"request reads no holding", "DEM", {{79, std::string(14, '?')}}, {}},
            {"request reads neither origin nor counter", "DEM", {{109, "???"}}, {}},
            {"foreign number", "CRE", {BE, SANS_ORIGINE, {65, "12345A      "}}, {}},
            {"foreign number with an origin", "CRE", {BE, {65, "12345A      "}}, {152}},
            {"blank foreign number", "CRE", {BE, SANS_ORIGINE, {65, BLANCS12}}, {1, 1}},
            {"number without an origin", "CRE", {SANS_ORIGINE}, {152}},
            {"lowest number", "CRE", {{65, "10000000000 "}}, {}},
            {"highest number", "CRE", {{65, "68349999999 "}}, {}},
            {"below the lowest", "CRE", {{65, "09999999999 "}}, {151}},
            {"above the highest", "CRE", {{65, "68350000000 "}}, {151}},
            {"partner outside the union", "CRE", {{63, "CH"}, SANS_ORIGINE, {65, "12345A      "}}, {}},
            {"model without counter", "CRE", {{101, "AZC123  "}, {111, " "}}, {}},
            {"model without counter, counter given", "CRE", {{101, "AZC123  "}}, {158}},
        });
}

TEST(Groc, DateFacultative) {
    struct cas {
        const char* date;
        bool complete;        // C10, first check
        bool pasPosterieure;  // C10, second check, against 15 March 2024
    };
    for (const cas& c : {
             cas{"        ", true, true},
             cas{"15032024", true, true},
             cas{"14032024", true, true},
             cas{"16032024", true, false},
             cas{"29022024", true, true},
             cas{"29022023", false, true},
             cas{"31042024", false, false},
             cas{"01011899", false, true},
             cas{"01011900", true, true},
             cas{"  032024", false, true},
             cas{"    2024", false, true},
             cas{"00032024", false, true},
             cas{"15032O24", false, false},
             // Only exactly eight blanks are no date.
             cas{"       ", false, true},
             cas{"         ", false, true},
             cas{"1503202", false, true},
             cas{"", false, true},
         }) {
        EXPECT_EQ(accepte(groc_cre_C10_1, "", c.date), c.complete) << "'" << c.date << "'";
        EXPECT_EQ(accepte(groc_cre_C10_2, "15032024", c.date), c.pasPosterieure) << "'" << c.date << "'";
    }
    // The first check depends on no other date.
    EXPECT_TRUE(accepte(groc_cre_C10_1, "15032024", "16032024"));
    EXPECT_TRUE(accepte(groc_cre_C10_1, "????????", "16032024"));
    // The second reads its own field in place of none.
    EXPECT_FALSE(accepte(groc_cre_C10_2, "        ", "15032024"));
    EXPECT_TRUE(accepte(groc_cre_C10_2, "        ", "        "));
}

TEST(Groc, HeureAvecSaDate) {
    struct cas {
        const char* date;
        const char* heure;
        bool attendu;
    };
    for (const cas& c : {
             cas{"        ", "      ", true},
             cas{"        ", "120000", false},
             cas{"        ", "     ", false},
             cas{"        ", "       ", false},
             cas{"        ", "", false},
             cas{"02022024", "120000", true},
             cas{"02022024", "000000", true},
             cas{"02022024", "235959", true},
             cas{"02022024", "240000", false},
             cas{"02022024", "126000", false},
             cas{"02022024", "120060", false},
             cas{"02022024", "12000", false},
             cas{"02022024", "12000X", false},
             cas{"02022024", "      ", false},
             cas{"02022024", "", false},
             // Anything but exactly eight blanks is a date.
             cas{"?", "120000", true},
             cas{"?", "      ", false},
             cas{"       ", "120000", true},
             cas{"", "120000", true},
             cas{"", "      ", false},
         })
        EXPECT_EQ(accepte(groc_cre_C12, c.date, c.heure), c.attendu)
            << "'" << c.date << "' '" << c.heure << "'";
}
