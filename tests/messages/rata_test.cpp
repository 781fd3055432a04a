#include "messages/cas.h"

using namespace essai;

namespace {

const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse("RATA", genre,
               {{63, "FR"},
                {65, "78A12       "},
                {79, "P"},
                {80, "FR"},
                {82, "78123456    "},
                {94, "FR"},
                {96, "77123456    "},
                {108, "01022024"},
                {116, "01032024"}});
}

}  // namespace

TEST(Rata, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "RATA",
        .genres = "CRE MOD",
        .modele = modele,
        .dependances = "C2/50:E8 C6/68:C1 C8/68:C1 C9/52:F1 C10/52:F1",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 139), "CRE MOD", {{63, "BE"}}, {139}},
                {LIGNE(C2, fVerifDiffNull, 139),
                 "CRE MOD",
                 {{65, BLANCS12}},
                 {139, 140, 50},
                 "a blank code has neither form nor department"},
                {LIGNE(C2, fConformEget, 140), "CRE MOD", {{65, "78A12 1     "}}, {140}},
                {LIGNE(C2, fCoherenCCEget, 50), "CRE MOD", {{65, "77A12       "}}, {50}},
                {LIGNE(C4, fVerifValAut, 131),
                 "CRE MOD",
                 {{79, "X"}},
                 {140, 50, 131},
                 "the code's form and its department go by the kind of production"},
                {LIGNE(C5, fVerifValAut, 31), "CRE MOD", {{80, "BE"}}, {31}},
                {LIGNE(C6, fVerifDiffNull, 31),
                 "CRE MOD",
                 {{82, BLANCS12}},
                 {31, 68},
                 "a blank number has no form"},
                {LIGNE(C6, fConform8, 68), "CRE MOD", {{82, "7812345     "}}, {68}},
                {LIGNE(C7, fVerifValAut, 31), "MOD", {{94, "BE"}}, {31}},
                {LIGNE(C8, fVerifDiffNull, 31),
                 "MOD",
                 {{96, BLANCS12}},
                 {31, 68},
                 "a blank number has no form"},
                {LIGNE(C8, fConform8, 68), "MOD", {{96, "7712345     "}}, {68}},
                {LIGNE(C9, fDATEC, 148), "CRE MOD", {{108, "31022024"}}, {148}},
                {LIGNE(C9, fCoherenDC, 52), "CRE MOD", {{108, "16032024"}}, {52}},
                {LIGNE(C10, fDATEC, 148), "MOD", {{116, "31022024"}}, {148}},
                {LIGNE(C10, fCoherenDC, 52), "MOD", {{116, "16032024"}}, {52}},
            },
    });
}

TEST(Rata, Enregistrements) {
    prouverVSE(modele,
               {
                   {"holding of any department", "CRE", {{82, "35123456    "}}, {}},
                   {"the second holding is not read", "CRE", {{94, std::string(14, '?')}}, {}},
                   {"the second date is not read", "CRE", {{116, "????????"}}, {}},
                   {"series of the body", "MOD", {{65, "LKB34       "}, {79, "V"}}, {}},
                   {"inventory: the header alone refuses it", "INV", {{63, std::string(168, '?')}}, {86}},
               });
}
