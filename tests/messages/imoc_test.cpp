#include "messages/cas.h"

using namespace essai;

namespace {

const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse(
        "IMOC", genre,
        {{63, "FR"}, {65, "530000      "}, {79, "FR"}, {81, "78123456    "}, {93, "Z"}, {94, "01022024"}});
}

}  // namespace

TEST(Imoc, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "IMOC",
        .genres = "CRE INV",
        .modele = modele,
        .dependances = "C2/50:E8 C5/68:C1 C5/50:E8 C7/52:F1",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 159), "CRE INV", {{63, "BE"}}, {159}},
                {LIGNE(C2, fVerifDiffNull, 160),
                 "CRE INV",
                 {{65, BLANCS12}},
                 {160, 161, 50},
                 "a blank mark has neither form nor range"},
                {LIGNE(C2, fConform_OC_IND_M, 161), "CRE INV", {{65, "5300001     "}}, {161}},
                {LIGNE(C2, fCoheren_OC_IND_M, 50), "CRE INV", {{65, "535000      "}}, {50}},
                {LIGNE(C4, fVerifValAut, 27), "CRE", {{79, "BE"}}, {27}},
                {LIGNE(C5, fVerifDiffNull, 27),
                 "CRE",
                 {{81, BLANCS12}},
                 {27, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C5, fConform8, 68), "CRE", {{81, "7812345     "}}, {68}},
                {LIGNE(C5, fCoherenCC, 50), "CRE", {{81, "77123456    "}}, {50}},
                {LIGNE(C6, fVerifValAut, 162), "CRE", {{93, "B"}}, {162}},
                {LIGNE(C7, fDATEC, 163), "CRE", {{94, "31022024"}}, {163}},
                {LIGNE(C7, fCoherenDC, 52), "CRE", {{94, "16032024"}}, {52}},
            },
    });
}

TEST(Imoc, Enregistrements) {
    prouverVSE(modele,
               {
                   {"ends of the body's range", "CRE", {{65, "534999      "}}, {}},
                   {"before the body's range", "CRE", {{65, "529999      "}}, {50}},
                   {"a letter in the mark", "CRE", {{65, "53X000      "}}, {161, 50}},
                   {"inventory reads neither holding nor date", "INV", {{79, std::string(152, '?')}}, {}},
                   {"modification", "MOD", {}, TOUT_REFUSE},
               });
}

TEST(Imoc, PlagesDUnOrganisme) {
    struct cas {
        const char* organisme;
        const char* emetteur;
        const char* repere;
        std::vector<int> codes;
    };
    for (const cas& c : {
             cas{"001IPG  ", "NORM01  ", "100000", {}},
             cas{"001IPG  ", "NORM01  ", "104999", {}},
             cas{"001IPG  ", "NORM01  ", "105000", {50}},
             cas{"076IPG  ", "350ARS  ", "655100", {}},
             cas{"076IPG  ", "350ARS  ", "681000", {}},
             cas{"076IPG  ", "350ARS  ", "661000", {50}},
             cas{"976IPG  ", "976IPG  ", "655000", {}},
             cas{"976IPG  ", "976IPG  ", "655001", {50}},
         }) {
        std::string r = modele("INV");
        poser(r, 27, c.organisme);
        poser(r, 65, c.repere);
        EXPECT_EQ(codesDe(r, c.emetteur), c.codes) << c.organisme << " " << c.repere;
    }
}
