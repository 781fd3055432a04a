#include "messages/cas.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS12(12, ' ');
const std::string BLANCS30(30, ' ');

std::string modele(const std::string& genre) {
    return vse("EGET", genre,
               {{63, "FR"},
                {65, "78A12       "},
                {79, "P"},
                {80, "SITE DU BOIS"},
                {110, "12 CHEMIN BAS"},
                {140, "78000"},
                {145, "VERSAILLES"}});
}

}  // namespace

TEST(Eget, TouteLignePasseEtEchoue) {
    const std::string SANS_CODE = "the code's form and its department go by the kind of production";
    const std::string UN_TEXTE = "one of two lines is asked for, and both rows ask for it";
    prouverLignes({
        .type = "EGET",
        .genres = "CRE INV MOD",
        .modele = modele,
        .dependances = "C2/50:E8 C5/141:C6 C6/141:C5",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 139), "CRE INV MOD", {{63, "BE"}}, {139}},
                {LIGNE(C2, fVerifDiffNull, 139),
                 "CRE INV MOD",
                 {{65, BLANCS12}},
                 {139, 140, 50},
                 "a blank code has neither form nor department"},
                {LIGNE(C2, fConformEget, 140), "CRE INV MOD", {{65, "78a12       "}}, {140}},
                {LIGNE(C2, fCoherenCCEget, 50), "CRE INV MOD", {{65, "77A12       "}}, {50}},
                {LIGNE(C4, fVerifValAut, 131), "CRE INV MOD", {{79, "X"}}, {140, 50, 131}, SANS_CODE},
                {LIGNE(C5, eget_fC5C6, 141),
                 "CRE MOD",
                 {{80, BLANCS30}, {110, BLANCS30}},
                 {141, 141},
                 UN_TEXTE},
                {LIGNE(C6, eget_fC5C6, 141),
                 "CRE MOD",
                 {{80, BLANCS30}, {110, BLANCS30}},
                 {141, 141},
                 UN_TEXTE},
                {LIGNE(C7, fVerifDiffNull, 142), "CRE MOD", {{140, "     "}}, {142}},
                {LIGNE(C8, fVerifDiffNull, 143), "CRE MOD", {{145, BLANCS30}}, {143}},
            },
    });
}

TEST(Eget, Enregistrements) {
    prouverVSE(modele, {
                           {"first line alone", "CRE", {{110, BLANCS30}}, {}},
                           {"second line alone", "CRE", {{80, BLANCS30}}, {}},
                           {"series of the body", "CRE", {{65, "IGA12       "}, {79, "V"}}, {}},
                           {"last series of the body", "CRE", {{65, "GOZ00       "}, {79, "V"}}, {}},
                           {"series of another body", "CRE", {{65, "AAA12       "}, {79, "V"}}, {50}},
                           {"series of no body", "CRE", {{65, "77A12       "}, {79, "V"}}, {140, 50}},
                           {"series with a digit behind it", "CRE", {{65, "IG112       "}, {79, "V"}}, {140}},
                           {"department with a series' kind", "MOD", {{79, "V"}}, {140, 50}},
                           {"series with a department's kind", "MOD", {{65, "IGA12       "}}, {140, 50}},
                           {"digits behind the department", "INV", {{65, "78123       "}}, {}},
                           {"six characters", "INV", {{65, "78A123      "}}, {140}},
                           {"inventory reads no address", "INV", {{80, std::string(151, ' ')}}, {}},
                       });
}

TEST(Eget, UnDesDeuxTextes) {
    const std::string BLANCS29(29, ' ');
    const std::string BLANCS31(31, ' ');
    const std::string TEXTE = "SITE" + std::string(26, ' ');
    for (const auto& [autre, champ, attendu] : std::vector<std::tuple<std::string, std::string, bool>>{
             {BLANCS30, BLANCS30, false},
             {TEXTE, BLANCS30, true},
             {BLANCS30, TEXTE, true},
             {TEXTE, TEXTE, true},
             // Only exactly thirty blanks are blank.
             {BLANCS30, BLANCS29, true},
             {BLANCS30, BLANCS31, true},
             {BLANCS30, "", true},
             {BLANCS29, BLANCS30, true},
             {"", BLANCS30, true},
             {"", "", true},
         })
        EXPECT_EQ(accepte(eget_fC5C6, autre, champ), attendu) << "[" << autre << "] [" << champ << "]";
}
