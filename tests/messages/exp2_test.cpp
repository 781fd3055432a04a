#include <gtest/gtest.h>

#include "messages/cas.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS_12(12, ' ');

/** The keeper of a holding; fields that no rule looks at hold '#'. */
std::string detenteur(const std::string& genre) {
    return vse("EXP2", genre,
               {{63, "FR"},
                {65, "78123456    "},
                {77, "##"},
                {79, "FR"},
                {81, "078123456   "},
                {93, "####"},
                {97, "FR"},
                {99, "089123456   "},
                {111, std::string(30, '#')},
                {141, "01022024"},
                {149, "01032024"},
                {157, std::string(74, '#')}});
}

}  // namespace

TEST(Exp2, TouteLignePasseEtEchoue) {
    const std::string tous = "CRE INV MOD";
    const std::string arrivee = "CRE MOD";
    const std::string depart = "INV MOD";
    prouverLignes({
        .type = "EXP2",
        .genres = tous,
        .modele = detenteur,
        .dependances = "C2/68:C1 C2/50:E8 C15/52:F1 C16/52:F1",
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
                {LIGNE(C4, fVerifValAut, 30), arrivee, {{79, "BE"}}, {30}},
                {LIGNE(C5, fVerifDiffNull, 30),
                 arrivee,
                 {{81, BLANCS_12}},
                 {30, 30},
                 "a blank number has no department"},
                {LIGNE(C5, fConform3, 30), arrivee, {{81, "020123456   "}}, {30}},
                {LIGNE(C10, fVerifValAut, 76), depart, {{97, "BE"}}, {76}},
                {LIGNE(C11, fVerifDiffNull, 76),
                 depart,
                 {{99, BLANCS_12}},
                 {76, 76},
                 "a blank number has no department"},
                {LIGNE(C11, fConform3, 76), depart, {{99, "020123456   "}}, {76}},
                {LIGNE(C15, fDATEC, 22), arrivee, {{141, "31022024"}}, {22}},
                {LIGNE(C15, fCoherenDC, 52), arrivee, {{141, "16032024"}}, {52}},
                {LIGNE(C16, fDATEC, 22), depart, {{149, "31022024"}}, {22}},
                {LIGNE(C16, fCoherenDC, 52), depart, {{149, "16032024"}}, {52}},
            },
    });
}

TEST(Exp2, CasDEnregistrements) {
    prouverVSE(
        detenteur,
        {
            {"Corsican and overseas keepers", "MOD", {{81, "02A         "}, {99, "976         "}}, {}},
            {"department of the supplement", "CRE", {{81, "098         "}}, {}},
            {"Saint-Pierre has none", "CRE", {{81, "975         "}}, {30}},
            {"only three characters count", "CRE", {{81, "078 #-x    z"}}, {}},
            {"two digits are no department", "CRE", {{81, "78123456    "}}, {30}},
            {"both dates on the record date", "MOD", {{141, "15032024"}, {149, "15032024"}}, {}},
            {"arrival after departure", "MOD", {{141, "01032024"}, {149, "01022024"}}, {}},
            {"dates must be complete", "MOD", {{141, "  022024"}, {149, "    2024"}}, {22, 22}},
            {"a creation gives no departure", "CRE", {{97, std::string(14, '#')}, {149, "########"}}, {}},
            {"an invalidation gives no arrival", "INV", {{79, std::string(14, '#')}, {141, "########"}}, {}},
        });
}

TEST(Exp2, GenresRefuses) {
    prouverPresence("EXP2", &sCorps::typeDEM, 2);
    prouverPresence("EXP2", &sCorps::typeEDI, 2);
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(detenteur(genre)), TOUT_REFUSE) << genre;
}
