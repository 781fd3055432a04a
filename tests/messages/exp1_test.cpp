#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS_12(12, ' ');
const std::string BLANCS_30(30, ' ');

/** A holding; fields that no rule looks at hold '#'. */
std::string exploitation(const std::string& genre) {
    return vse("EXP1", genre,
               {{63, "FR"},
                {65, "78123456    "},
                {77, "##"},
                {79, "GAEC"},
                {83, std::string(30, '#')},
                {113, "LES ORMES"},
                {143, "ROUTE DE LA MARE"},
                {173, "78000"},
                {178, "VERSAILLES"},
                {208, std::string(14, '#')},
                {222, "10"},
                {224, std::string(7, '#')}});
}

}  // namespace

TEST(Exp1, TouteLignePasseEtEchoue) {
    const std::string tous = "CRE INV MOD";
    const std::string sauvINV = "CRE MOD";
    prouverLignes({
        .type = "EXP1",
        .genres = tous,
        .modele = exploitation,
        .dependances = "C2/68:C1 C2/50:E8 C6/75:C7 C7/75:C6",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 31), tous, {{63, "BE"}}, {31}},
                {LIGNE(C2, fVerifDiffNull, 31),
                 tous,
                 {{65, BLANCS_12}},
                 {31, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C2, fConform8, 68), tous, {{65, "7812345     "}}, {68}},
                {LIGNE(C2, fCoherenCC, 50), tous, {{65, "77123456    "}}, {50}},
                {LIGNE(C4, fexp1_C4, 32), "CRE", {{79, "ETS "}}, {32}},
                {LIGNE(C4, fexp1_C4, 32), "MOD", {{79, "ABCD"}}, {32}},
                {LIGNE(C6, fCDIFF, 75),
                 sauvINV,
                 {{113, BLANCS_30 + BLANCS_30}},
                 {75, 75},
                 "each line fails only when both are blank"},
                {LIGNE(C7, fCDIFF, 75),
                 sauvINV,
                 {{113, BLANCS_30 + BLANCS_30}},
                 {75, 75},
                 "each line fails only when both are blank"},
                {LIGNE(C8, fVerifDiffNull, 33), sauvINV, {{173, "     "}}, {33}},
                {LIGNE(C9, fVerifDiffNull, 82), sauvINV, {{178, BLANCS_30}}, {82}},
                {LIGNE(C11, fVerifValAut, 35), sauvINV, {{222, "30"}}, {35}},
            },
    });
}

TEST(Exp1, FormeJuridique) {
    const std::vector<verdict> communs = {
        {"GAEC", true},  {"M   ", true},  {"SCIC", true}, {"    ", true}, {"****", true},   {"ABCD", false},
        {"gaec", false}, {"GAE ", false}, {"***", false}, {"   ", false}, {"*****", false}, {"", false},
    };
    prouverChamps(fexp1_C4, "", communs, TRSCRE);
    prouverChamps(fexp1_C4, "", communs, TRSMOD);
    for (const char* ancienne : {"ETS ", "MLE ", "MR  ", "MRS ", "STE "}) {
        EXPECT_FALSE(accepte(fexp1_C4, "", ancienne, TRSCRE)) << ancienne;
        EXPECT_TRUE(accepte(fexp1_C4, "", ancienne, TRSMOD)) << ancienne;
    }
    EXPECT_TRUE(accepte(fexp1_C4, "", "****", sansListe));
    EXPECT_TRUE(accepte(fexp1_C4, "", "    ", sansListe));
    EXPECT_FALSE(accepte(fexp1_C4, "", "GAEC", sansListe));
}

TEST(Exp1, CasDEnregistrements) {
    prouverVSE(exploitation,
               {
                   {"legal form emptied", "CRE", {{79, "****"}}, {}},
                   {"no legal form", "CRE", {{79, "    "}}, {}},
                   {"no legal form", "MOD", {{79, "    "}}, {}},
                   {"four letters that are no legal form", "CRE", {{79, "ABCD"}}, {32}},
                   {"older form on modification", "MOD", {{79, "ETS "}}, {}},
                   {"first line only", "CRE", {{143, BLANCS_30}}, {}},
                   {"second line only", "CRE", {{113, BLANCS_30}}, {}},
                   {"last kind of the list", "CRE", {{222, "90"}}, {}},
                   {"overseas holding", "CRE", {{65, "97612345    "}}, {50}},
                   {"four digits and a blank", "CRE", {{173, "7800 "}}, {}},
                   {"an invalidation gives the number only", "INV", {{79, std::string(152, '#')}}, {}},
                   {"the same with blanks", "INV", {{79, std::string(152, ' ')}}, {}},
               });
    std::string r = exploitation("CRE");
    poser(r, 27, "078IPG  ");
    poser(r, 65, "78123456   1");
    EXPECT_EQ(codesDe(r), std::vector<int>{68});
}

TEST(Exp1, GenresRefuses) {
    prouverPresence("EXP1", &sCorps::typeDEM, 2);
    prouverPresence("EXP1", &sCorps::typeEDI, 2);
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(exploitation(genre)), TOUT_REFUSE) << genre;
}
