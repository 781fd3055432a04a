#include "messages/cas.h"

using namespace essai;

namespace {

const std::string BLANCS12(12, ' ');
const char* const EMETTEUR = "NORM02  ";

std::string modele(const std::string& genre) {
    std::string r = vse("INFO", genre, {{63, "FR"}, {65, "7812345678  "}});
    poser(r, 3, EMETTEUR);
    return r;
}

}  // namespace

TEST(Info, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "INFO",
        .genres = "DEM",
        .modele = modele,
        .dependances = "C2/67:C1 C2/118:C1 C2/1:C1",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 1), "DEM", {{63, "ZZ"}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 "DEM",
                 {{65, BLANCS12}},
                 {1, 67},
                 "a blank number has no form"},
                {LIGNE(C2, fConform10FR, 67), "DEM", {{65, "781234567   "}}, {67}},
                {LIGNE(C2, fConform10FRnonECHAnon, 118), "DEM", {{63, "US"}, {65, "781234567   "}}, {118}},
                {LIGNE(C2, fConform10FRnonECHAoui, 1), "DEM", {{63, "BE"}, {65, "BE12345     "}}, {1}},
            },
        .emetteur = EMETTEUR,
    });
}

TEST(Info, Enregistrements) {
    prouverVSE(modele,
               {
                   {"foreign number", "DEM", {{63, "BE"}, {65, "12345A      "}}, {}},
                   {"blank foreign number", "DEM", {{63, "BE"}, {65, BLANCS12}}, {1, 1}},
                   {"columns without a rule", "DEM", {{77, std::string(154, '?')}}, {}},
                   {"creation", "CRE", {}, {86, 86, 86, 86, 86, 86}},
               },
               EMETTEUR);
}

TEST(Info, SeulsDeuxEmetteursDemandent) {
    EXPECT_EQ(codesDe(modele("DEM"), "PFOC01  "), std::vector<int>{});
    EXPECT_EQ(codesDe(modele("DEM"), "NORM01  "), std::vector<int>{110});
    EXPECT_EQ(codesDe(modele("DEM"), "089ARS  "), std::vector<int>{110});
}
