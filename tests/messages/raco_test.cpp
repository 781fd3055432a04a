#include "messages/cas.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS8(8, ' ');
const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse(
        "RACO", genre,
        {{63, "FR"}, {65, "78123456    "}, {79, "2023"}, {83, "EFOLAN"}, {89, "000120"}, {95, "01022024"}});
}

}  // namespace

TEST(Raco, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "RACO",
        .genres = "CRE INV MOD",
        .modele = modele,
        .dependances = "C2/50:E8 C4/168:F1 C7/52:F1 C7/137:C4",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 27), "CRE INV MOD", {{63, "BE"}}, {27}},
                {LIGNE(C2, fVerifDiffNull, 27),
                 "CRE INV MOD",
                 {{65, BLANCS12}},
                 {27, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C2, fConform8, 68), "CRE INV MOD", {{65, "7812345     "}}, {68}},
                {LIGNE(C2, fCoherenCC, 50), "CRE INV MOD", {{65, "77123456    "}}, {50}},
                {LIGNE(C4, fCoherenD_OC_an_1, 167), "CRE INV MOD", {{79, "202 "}}, {167}},
                {LIGNE(C4, fCoherenD_OC_an_2, 168), "CRE INV MOD", {{79, "2024"}, {95, BLANCS8}}, {168}},
                {LIGNE(C5, fVerifValAut, 169), "CRE INV MOD", {{83, "EFOLAX"}}, {169}},
                {LIGNE(C6, raco_fC6, 170), "CRE MOD", {{89, "12 456"}}, {170}},
                {LIGNE(C7, fDatRecCorr, 134), "CRE", {{95, "31022024"}}, {134}},
                {LIGNE(C7, fDatRecCohe, 52), "CRE", {{95, "16032024"}}, {52}},
                {LIGNE(C7, fDatRec_OC_Post, 137), "CRE", {{95, "31122023"}}, {137}},
            },
    });
}

TEST(Raco, Enregistrements) {
    prouverVSE(
        modele,
        {
            {"no receipt date", "CRE", {{95, BLANCS8}}, {}},
            {"count with a blank in front", "CRE", {{89, " 00120"}}, {170}},
            {"blank count", "MOD", {{89, "      "}}, {170}},
            {"inventory does not read the count", "INV", {{89, "12 456"}}, {}},
            {"modification does not read the receipt date", "MOD", {{95, "????????"}}, {}},
            {"census of this year, receipt not after it", "CRE", {{79, "2024"}}, {168, 137}},
            {"a year that is no number and sorts behind every year", "CRE", {{79, "20X3"}}, {167, 168, 137}},
            {"blank year", "INV", {{79, "    "}}, {167}},
            {"fields that no rule reads", "CRE", {{77, "??"}, {103, std::string(128, '?')}}, {}},
        });
}

TEST(Raco, Categories) {
    for (const char* c : {"EFOLAN", "EFOVAN", "REOLAN", "REOVAN", "EFOEAP", "EFCAAN", "RECAAN", "EFCVAN",
                          "RECVAN", "EFCEAP"}) {
        std::string r = modele("CRE");
        poser(r, 83, c);
        EXPECT_EQ(codesDe(r), std::vector<int>{}) << c;
    }
    for (const char* c : {"EFOVAP", "      ", "efolan", "RECEAP"}) {
        std::string r = modele("CRE");
        poser(r, 83, c);
        EXPECT_EQ(codesDe(r), std::vector<int>{169}) << c;
    }
}

TEST(Raco, SixChiffres) {
    prouverChamps(raco_fC6, "",
                  {
                      {"000000", true},
                      {"000120", true},
                      {"999999", true},
                      {"12 456", false},
                      {" 23456", false},
                      {"12345 ", false},
                      {"      ", false},
                      {"12345A", false},
                      {"-12345", false},
                      {"+12345", false},
                      {"12345", false},
                      {"1", false},
                      {"", false},
                  });
    // Every place counts.
    for (std::size_t i = 0; i < 6; ++i) {
        for (const char c : {' ', '/', ':', 'O'}) {
            std::string champ = "123456";
            champ[i] = c;
            EXPECT_FALSE(accepte(raco_fC6, "", champ)) << champ;
        }
    }
}
