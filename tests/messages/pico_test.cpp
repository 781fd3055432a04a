#include "messages/cas.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse("PICO", genre,
               {{63, "FR"},
                {65, "78123456    "},
                {79, "FR"},
                {81, "53000000000 "},
                {93, "000120"},
                {99, "01022024"},
                {107, "AZE123  "},
                {115, "I0"},
                {117, "FR"},
                {119, "3"}});
}

}  // namespace

TEST(Pico, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "PICO",
        .genres = "CRE",
        .modele = modele,
        .dependances = "C2/50:E8 C5/151:C4 C5/50:E8 C6/180:C5 C7/52:F1 C11/158:C8",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 27), "CRE", {{63, "BE"}}, {27}},
                {LIGNE(C2, fVerifDiffNull, 27),
                 "CRE",
                 {{65, BLANCS12}},
                 {27, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C2, fConform8, 68), "CRE", {{65, "7812345     "}}, {68}},
                {LIGNE(C2, fCoherenCC, 50), "CRE", {{65, "77123456    "}}, {50}},
                {LIGNE(C4, fVerifValAut, 164), "CRE", {{79, "BE"}}, {164}},
                {LIGNE(C5, fVerifDiffNull, 165),
                 "CRE",
                 {{81, BLANCS12}},
                 {165, 151, 50},
                 "a blank number has neither form nor range"},
                {LIGNE(C5, fConform_OC_TP, 151), "CRE", {{81, "530000X0000 "}}, {151}},
                {LIGNE(C5, fCoheren_OC_IND_M, 50), "CRE", {{81, "52999900000 "}}, {50}},
                {LIGNE(C6, pico_fC6_1, 48), "CRE", {{93, "00012X"}}, {48}},
                {LIGNE(C6, pico_fC6_2, 178), "CRE", {{93, "010001"}}, {178}},
                {LIGNE(C6, pico_fC6_3, 180), "CRE", {{81, "53000099999 "}}, {180}},
                {LIGNE(C7, fDATEC, 28), "CRE", {{99, "31022024"}}, {28}},
                {LIGNE(C7, fCoherenDC, 52), "CRE", {{99, "16032024"}}, {52}},
                {LIGNE(C8, fConform_OC_model1, 153), "CRE", {{107, "AZE123X "}}, {153}},
                {LIGNE(C8, fConform_OC_model2, 154), "CRE", {{107, "OZE123  "}}, {154}},
                {LIGNE(C8, fConform_OC_model3, 155), "CRE", {{107, "ABE123  "}}, {155}},
                {LIGNE(C8, fConform_OC_model4, 156), "CRE", {{107, "AZX123  "}, {119, " "}}, {156}},
                {LIGNE(C8, fConform_OC_model5, 157), "CRE", {{107, "AZE12X  "}}, {157}},
                {LIGNE(C9, fVerifValAut, 166), "CRE", {{115, "I6"}}, {166}},
                {LIGNE(C10, fVerifValAut, 152), "CRE", {{117, "ZZ"}}, {152}},
                {LIGNE(C11, fConform_OC_compteur, 158), "CRE", {{119, "8"}}, {158}},
            },
    });
}

TEST(Pico, Enregistrements) {
    const pose PR = {115, "PR"};
    prouverVSE(modele,
               {
                   {"lettered series", "CRE", {PR, {81, "530000R     "}}, {}},
                   {"lettered series, other letter", "CRE", {PR, {81, "530000C     "}}, {151}},
                   {"letter for another order", "CRE", {{81, "530000R     "}}, {151}},
                   {"the other lettered series", "CRE", {{115, "PC"}, {81, "530000C0000 "}}, {}},
                   {"9999 and two more", "CRE", {PR, {81, "530000R9999 "}, {93, "000002"}}, {180}},
                   {"9998 and two more", "CRE", {PR, {81, "530000R9998 "}, {93, "000002"}}, {}},
                   {"9999 and two more, five digits", "CRE", {{81, "53000009999 "}, {93, "000002"}}, {}},
                   {"99999 and one more", "CRE", {{81, "53000099999 "}, {93, "000001"}}, {}},
                   {"99999 and two more", "CRE", {{81, "53000099999 "}, {93, "000002"}}, {180}},
                   {"10000 tags", "CRE", {{93, "010000"}}, {}},
                   {"10001 tags", "CRE", {{93, "010001"}}, {178}},
                   {"no tags", "CRE", {{93, "000000"}}, {48, 178}},
                   {"blank count", "CRE", {{93, "      "}}, {48, 178}},
                   {"all tags at once and more", "CRE", {{93, "999999"}}, {178, 180}},
                   {"model without counter", "CRE", {{107, "AZC123  "}, {119, " "}}, {}},
                   {"model without counter, counter given", "CRE", {{107, "AZC123  "}}, {158}},
                   {"model with counter, none given", "CRE", {{119, " "}}, {158}},
                   {"a model wrong throughout", "CRE", {{107, "xxxxxxxx"}}, {153, 154, 155, 156, 157, 158}},
                   {"foreign number, range of the body", "CRE", {{79, "BE"}, {81, "531000??????"}}, {164}},
                   {"ends of the body's range", "CRE", {{81, "53499900000 "}}, {}},
                   {"behind the body's range", "CRE", {{81, "53500000000 "}}, {50}},
                   {"behind every range", "CRE", {{81, "68350000000 "}}, {151, 50}},
               });
}

TEST(Pico, ModificationRefusee) {
    EXPECT_EQ(codesDe(modele("MOD")), TOUT_REFUSE);
    EXPECT_EQ(codesDe(modele("INV")), TOUT_REFUSE);
}

TEST(Pico, CompteDeSixChiffresNonNul) {
    prouverChamps(pico_fC6_1, "",
                  {
                      {"000001", true},
                      {"100000", true},
                      {"999999", true},
                      {"000000", false},
                      {"00001 ", false},
                      {" 00001", false},
                      {"00012X", false},
                      {"X00012", false},
                      {"-00001", false},
                      {"      ", false},
                      {"00001", false},
                      {"1", false},
                      {"", false},
                  });
    for (std::size_t i = 0; i < 6; ++i) {
        std::string champ = "111111";
        champ[i] = ' ';
        EXPECT_FALSE(accepte(pico_fC6_1, "", champ)) << champ;
    }
}

TEST(Pico, CompteDeUnADixMille) {
    prouverChamps(pico_fC6_2, "",
                  {
                      {"000000", false},
                      {"000001", true},
                      {"010000", true},
                      {"010001", false},
                      {"999999", false},
                      {"-00001", false},
                      // A number ends at the first character that is no digit.
                      {"00012X", true},
                      {"     5", true},
                      {"X00001", false},
                      {"      ", false},
                      {"1", true},
                      {"", false},
                  });
}

TEST(Pico, FinDeLaSerie) {
    struct cas {
        const char* commande;
        const char* premier;  // first number of the range
        const char* compte;
        bool attendu;
    };
    for (const cas& c : {
             cas{"I0", "53000000000 ", "000001", true},
             cas{"I0", "53000090000 ", "010000", true},
             cas{"I0", "53000090001 ", "010000", false},
             cas{"I0", "53000009999 ", "000002", true},
             cas{"I0", "53000099999 ", "000001", true},
             cas{"I0", "53000099999 ", "000002", false},
             cas{"I5", "53000099999 ", "000002", false},
             cas{"PR", "530000R9999 ", "000001", true},
             cas{"PR", "530000R9999 ", "000002", false},
             cas{"PC", "530000C9999 ", "000001", true},
             cas{"PC", "530000C9999 ", "000002", false},
             cas{"PR", "530000R     ", "010000", true},
             cas{"PR", "530000R     ", "010001", false},
             cas{"PR", "530000R0001 ", "010000", false},
             // Only the whole codes are lettered series.
             cas{"pr", "53000009999 ", "000002", true},
             cas{"P", "53000009999 ", "000002", true},
             cas{"PR ", "53000009999 ", "000002", true},
             cas{"", "53000009999 ", "000002", true},
             cas{"PX", "53000099999 ", "000002", false},
             // With a letter in column 7 the five-digit reading finds no number.
             cas{"I0", "530000R9999 ", "100000", true},
             cas{"I0", "530000R9999 ", "100001", false},
             cas{"I0", "530000", "100000", true},
             cas{"PR", "530000R", "010000", true},
             cas{"PR", "", "010000", true},
             cas{"PR", "530000R9999", "", true},
             cas{"I0", "", "", true},
             // A count is a number up to its first non-digit.
             cas{"I0", "53000099999 ", "00001X", true},
             cas{"I0", "53000099999 ", "00002X", false},
             // A blank or a sign is no digit: nothing stands before it.
             cas{"I0", "530000 9999 ", "100000", true},
             cas{"I0", "530000+9999 ", "100000", true},
             cas{"I0", "530000-9999 ", "100001", false},
             cas{"PR", "530000R 999 ", "010000", true},
             cas{"I0", "53000099999 ", " 00002", true},
             cas{"I0", "53000099999 ", "+00002", true},
             cas{"I0", "53000099999 ", "-00002", true},
             cas{"I0", "530000999999", "-99999", false},
             // Numbers too long for a field do not wrap.
             cas{"I0", "5300009999999999999999999999", "000001", false},
             cas{"I0", "53000000000 ", "99999999999999999999", false},
         }) {
        remplir(valCorpsVSE[C9], c.commande);
        EXPECT_EQ(accepte(pico_fC6_3, c.premier, c.compte), c.attendu)
            << c.commande << " '" << c.premier << "' '" << c.compte << "'";
    }
}
