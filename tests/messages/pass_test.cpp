#include "messages/cas.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse("PASS", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "FR"},
                {81, "78123456    "},
                {93, "01"},
                {95, "01022024"},
                {105, "01022024"},
                {113, "120000"},
                {119, "0"}});
}

}  // namespace

TEST(Pass, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "PASS",
        .genres = "DEM INV EDI",
        .modele = modele,
        .dependances = "C2/67:C1 C2/118:C1 C2/1:C1 C5/50:E8 C7/102:C11 C9/52:F1 C10/103:C11",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 1), "DEM INV EDI", {{63, "ZZ"}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 "DEM INV EDI",
                 {{65, BLANCS12}},
                 {1, 67},
                 "a blank number has no form"},
                {LIGNE(C2, fConform10FR, 67), "DEM INV EDI", {{65, "781234567   "}}, {67}},
                {LIGNE(C2, fConform10FRnonECHAnon, 118),
                 "DEM INV EDI",
                 {{63, "US"}, {65, "781234567   "}},
                 {118}},
                {LIGNE(C2, fConform10FRnonECHAoui, 1),
                 "DEM INV EDI",
                 {{63, "BE"}, {65, "BE12345     "}},
                 {1}},
                {LIGNE(C4, fVerifValAut, 25), "DEM INV EDI", {{79, "BE"}}, {25}},
                {LIGNE(C5, fVerifDiffNull, 25),
                 "DEM INV EDI",
                 {{81, BLANCS12}},
                 {25, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C5, fConform8, 68), "DEM INV EDI", {{81, "7812345     "}}, {68}},
                {LIGNE(C5, fCoherenCC, 50), "DEM INV EDI", {{81, "77123456    "}}, {50}},
                {LIGNE(C6, fVerifValAut, 44), "DEM INV EDI", {{93, "10"}}, {44}},
                {LIGNE(C7, pass_C7, 102), "EDI", {{95, "31022024"}}, {102}},
                {LIGNE(C7, fDATEC, 102), "INV", {{95, "31022024"}}, {102}},
                {LIGNE(C9, fDATEC, 77), "EDI", {{105, "31022024"}}, {77}},
                {LIGNE(C9, fCoherenDC, 52), "EDI", {{105, "16032024"}}, {52}},
                {LIGNE(C10, pass_C10, 103), "EDI", {{113, "240000"}}, {103}},
                {LIGNE(C10, fHEUREC, 103), "INV", {{113, "240000"}}, {103}},
                {LIGNE(C11, fVerifValAut, 104), "EDI", {{119, "2"}}, {104}},
            },
    });
}

TEST(Pass, Enregistrements) {
    prouverVSE(
        modele,
        {
            {"flag 1, impossible date", "EDI", {{95, "31022024"}, {119, "1"}}, {}},
            {"flag 0, impossible date", "EDI", {{95, "31022024"}, {119, "0"}}, {102}},
            {"flag 1, neither date nor time", "EDI", {{95, "        "}, {113, "      "}, {119, "1"}}, {}},
            {"flag 0, neither date nor time", "EDI", {{95, "        "}, {113, "      "}}, {102, 103}},
            {"flag 1, impossible time", "EDI", {{113, "126000"}, {119, "1"}}, {}},
            {"a flag that is none asks for nothing", "EDI", {{95, "31022024"}, {119, " "}}, {104}},
            {"inventory asks for both whatever the flag",
             "INV",
             {{95, "31022024"}, {113, "240000"}, {119, "1"}},
             {102, 103}},
            {"inventory does not read the flag", "INV", {{119, "?"}}, {}},
            {"inventory does not read the second date", "INV", {{105, "????????"}}, {}},
            {"request reads neither dates nor time", "DEM", {{95, std::string(136, '?')}}, {}},
            {"second date that is no time", "EDI", {{105, "29022024"}}, {}},
            {"date in the future", "EDI", {{95, "01012099"}}, {}},
            {"last cause", "DEM", {{93, "09"}}, {}},
            {"blank cause", "DEM", {{93, "  "}}, {44}},
        });
}

TEST(Pass, DateEtHeureSelonLeDrapeau) {
    struct cas {
        const char* drapeau;
        const char* champ;
        bool date;
        bool heure;
    };
    for (const cas& c : {
             cas{"0", "29022024", true, false},  // as a time: hour 29
             cas{"0", "15032024", true, true},   // as a time: 15:03:20
             cas{"0", "31022024", false, false},
             cas{"0", "235959", false, true},
             cas{"0", "240000", false, false},
             cas{"0", "  032024", false, false},
             cas{"0", "        ", false, false},
             cas{"0", "1503202", false, true},
             cas{"0", "12345", false, false},
             cas{"0", "", false, false},
             cas{"1", "31022024", true, true},
             cas{"1", "        ", true, true},
             cas{"1", "", true, true},
             cas{" ", "????????", true, true},
             cas{"", "????????", true, true},
             cas{"*", "240000", true, true},
             // The first character of the flag decides.
             cas{"01", "????????", false, false},
             cas{"10", "????????", true, true},
         }) {
        EXPECT_EQ(accepte(pass_C7, c.drapeau, c.champ), c.date)
            << "'" << c.drapeau << "' '" << c.champ << "'";
        EXPECT_EQ(accepte(pass_C10, c.drapeau, c.champ), c.heure)
            << "'" << c.drapeau << "' '" << c.champ << "'";
    }
}
