#include "messages/cas.h"

using namespace essai;

namespace {

const std::string BLANCS8(8, ' ');
const std::string BLANCS12(12, ' ');

/** A closing date is asked for on inventory and modification only. */
std::string modele(const std::string& genre) {
    std::string r = acti();
    poser(r, 19, genre);
    if (genre != "CRE") poser(r, 88, "01032024");
    return r;
}

}  // namespace

TEST(Acti, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "ACTI",
        .genres = "CRE INV MOD",
        .modele = modele,
        .dependances = "C2/68:C1 C2/50:E8 C5/52:F1 C6/52:F1",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 31), "CRE INV MOD", {{63, "BE"}}, {31}},
                {LIGNE(C2, fVerifDiffNull, 31),
                 "CRE INV MOD",
                 {{65, BLANCS12}},
                 {31, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C2, fConform8, 68), "CRE INV MOD", {{65, "7812345     "}}, {68}},
                {LIGNE(C2, fCoherenCC, 50), "CRE INV MOD", {{65, "77123456    "}}, {50}},
                {LIGNE(C4, fVerifValAut, 81), "CRE INV MOD", {{79, "2"}}, {81}},
                {LIGNE(C5, fDATEC, 36), "CRE MOD", {{80, "31022024"}}, {36}},
                {LIGNE(C5, fCoherenDC, 52), "CRE MOD", {{80, "16032024"}}, {52}},
                {LIGNE(C6, fDATEI, 29), "INV MOD", {{88, "31022024"}}, {29}},
                {LIGNE(C6, fCoherenDC, 52), "INV MOD", {{88, "16032024"}}, {52}},
                {LIGNE(C7, fVerifValAut, 131), "CRE INV MOD", {{96, "X"}}, {131}},
            },
    });
}

TEST(Acti, Enregistrements) {
    prouverVSE(modele,
               {
                   {"opening on the record's day", "CRE", {{80, "15032024"}}, {}},
                   {"opening date not read", "INV", {{80, "????????"}}, {}},
                   {"closing date not read", "CRE", {{88, "????????"}}, {}},
                   {"closing day unknown", "MOD", {{88, "  032024"}}, {}},
                   {"closing day and month unknown", "INV", {{88, "    2024"}}, {}},
                   {"closing month in the future, day unknown", "INV", {{88, "  042024"}}, {52}},
                   {"closing day written as zeros", "INV", {{88, "00032024"}}, {29}},
                   {"opening day unknown", "CRE", {{80, "  022024"}}, {36}},
                   {"opening date blank", "MOD", {{80, BLANCS8}}, {36}},
                   {"closing date blank", "MOD", {{88, BLANCS8}}, {29}},
                   {"fields that no rule reads", "CRE", {{77, "??"}, {97, std::string(134, '?')}}, {}},
               });
}

TEST(Acti, Productions) {
    for (const char c : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ 0b")) {
        std::string r = modele("CRE");
        poser(r, 96, std::string(1, c));
        const bool connue = std::string("BCNOPV").find(c) != std::string::npos;
        EXPECT_EQ(codesDe(r), connue ? std::vector<int>{} : std::vector<int>{131}) << c;
    }
}
