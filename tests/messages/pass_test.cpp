#include "messages/cas.h"

namespace quilvane {
fVerif pass_C10, pass_C7;
}  // namespace quilvane

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
        .cas =
            {
                {0, "DEM INV EDI", {{63, "ZZ"}}, {1}},
                {1, "DEM INV EDI", {{65, BLANCS12}}, {1, 67}, "a blank number has no form"},
                {2, "DEM INV EDI", {{65, "781234567   "}}, {67}},
                {3, "DEM INV EDI", {{63, "US"}, {65, "781234567   "}}, {118}},
                {4, "DEM INV EDI", {{63, "BE"}, {65, "BE12345     "}}, {1}},
                {6, "DEM INV EDI", {{79, "BE"}}, {25}},
                {7,
                 "DEM INV EDI",
                 {{81, BLANCS12}},
                 {25, 68, 50},
                 "a blank number has neither form nor department"},
                {8, "DEM INV EDI", {{81, "7812345     "}}, {68}},
                {9, "DEM INV EDI", {{81, "77123456    "}}, {50}},
                {10, "DEM INV EDI", {{93, "10"}}, {44}},
                {11, "EDI", {{95, "31022024"}}, {102}},
                {12, "INV", {{95, "31022024"}}, {102}},
                {14, "EDI", {{105, "31022024"}}, {77}},
                {15, "EDI", {{105, "16032024"}}, {52}},
                {16, "EDI", {{113, "240000"}}, {103}},
                {17, "INV", {{113, "240000"}}, {103}},
                {18, "EDI", {{119, "2"}}, {104}},
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
