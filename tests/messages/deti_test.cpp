#include "messages/cas.h"

using namespace essai;

namespace {

const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse("DETI", genre,
               {{63, "FR"}, {65, "078123456789"}, {79, "1"}, {80, "01022024"}, {88, "01032024"}});
}

}  // namespace

TEST(Deti, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "DETI",
        .genres = "CRE INV MOD",
        .modele = modele,
        .dependances = "C2/50:E8 C5/52:F1 C6/52:F1",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 30), "CRE INV MOD", {{63, "BE"}}, {30}},
                {LIGNE(C2, fVerifDiffNull, 30),
                 "CRE INV MOD",
                 {{65, BLANCS12}},
                 {30, 50},
                 "a blank number has no department"},
                {LIGNE(C2, fConform3, 50), "CRE INV MOD", {{65, "975123456789"}}, {50}},
                {LIGNE(C4, fVerifValAut, 81), "CRE INV MOD", {{79, "2"}}, {81}},
                {LIGNE(C5, fDATEC, 42), "CRE MOD", {{80, "00022024"}}, {42}},
                {LIGNE(C5, fCoherenDC, 52), "CRE MOD", {{80, "16032024"}}, {52}},
                {LIGNE(C6, fDATEI, 29), "INV MOD", {{88, "00022024"}}, {29}},
                {LIGNE(C6, fCoherenDC, 52), "INV MOD", {{88, "16032024"}}, {52}},
            },
    });
}

TEST(Deti, Enregistrements) {
    prouverVSE(modele,
               {
                   {"any listed department", "CRE", {{65, "02A         "}}, {}},
                   {"opening date not read", "INV", {{80, "????????"}}, {}},
                   {"closing date not read", "CRE", {{88, "????????"}}, {}},
                   {"closing day unknown", "INV", {{88, "  032024"}}, {}},
                   {"opening day unknown", "CRE", {{80, "  032024"}}, {42}},
                   {"end of activity", "MOD", {{79, "0"}}, {}},
                   {"fields that no rule reads", "MOD", {{77, "??"}, {96, std::string(135, '?')}}, {}},
               });
}
