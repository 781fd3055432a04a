#include "messages/cas.h"

using namespace essai;

namespace {

const std::string BLANCS8(8, ' ');
const std::string BLANCS12(12, ' ');

std::string modele(const std::string& genre) {
    return vse("REBO", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "01022024"},
                {87, "FR"},
                {89, "78123456    "},
                {212, "01032024"},
                {220, "ABE123  "},
                {228, "1"}});
}

}  // namespace

TEST(Rebo, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "REBO",
        .genres = "CRE INV MOD",
        .modele = modele,
        .cas =
            {
                {0, "CRE INV MOD", {{63, "ZZ"}}, {1}},
                {1, "CRE INV MOD", {{65, BLANCS12}}, {1, 67}, "a blank number has no form"},
                {2, "CRE INV MOD", {{65, "781234567   "}}, {67}},
                {3, "CRE INV MOD", {{63, "US"}, {65, "781234567   "}}, {118}},
                {4, "CRE INV MOD", {{63, "BE"}, {65, "BE12345     "}}, {1}},
                {6, "CRE MOD", {{79, "31022024"}}, {28}},
                {7, "CRE MOD", {{79, "16032024"}}, {52}},
                {8, "CRE INV MOD", {{87, "BE"}}, {27}},
                {9,
                 "CRE INV MOD",
                 {{89, BLANCS12}},
                 {27, 68, 50},
                 "a blank number has neither form nor department"},
                {10, "CRE INV MOD", {{89, "7812345     "}}, {68}},
                {11, "CRE INV MOD", {{89, "77123456    "}}, {50}},
                {12, "INV MOD", {{212, "31022024"}}, {28}},
                {13, "INV MOD", {{212, "16032024"}}, {52}},
                {14, "CRE", {{220, "ABE123X "}}, {153}},
                {15, "CRE", {{220, "ZBE123  "}}, {154}},
                {16, "CRE", {{220, "AZE123  "}}, {155}},
                {17, "CRE", {{220, "ABX123  "}}, {156}},
                {18, "CRE", {{220, "ABE12X  "}}, {157}},
                {19, "MOD", {{228, " "}}, {150}},
                {20, "MOD", {{228, "0"}}, {191}},
            },
    });
}

TEST(Rebo, Enregistrements) {
    prouverVSE(modele,
               {
                   {"foreign number", "CRE", {{63, "BE"}, {65, "12345A      "}}, {}},
                   {"foreign number, blank", "CRE", {{63, "BE"}, {65, BLANCS12}}, {1, 1}},
                   {"number of French form from elsewhere", "CRE", {{63, "US"}}, {}},
                   {"blank number from elsewhere", "CRE", {{63, "US"}, {65, BLANCS12}}, {1, 118}},
                   {"blank model before 2011", "CRE", {{79, "31122010"}, {220, BLANCS8}}, {}},
                   {"blank model from 2011 on", "CRE", {{79, "01012011"}, {220, BLANCS8}}, {153}},
                   {"short model before 2011", "CRE", {{79, "31122010"}, {220, "ABE12   "}}, {153, 157}},
                   {"a model wrong throughout", "CRE", {{220, "xxxxxxxx"}}, {153, 154, 155, 156, 157}},
                   {"second letter of a model", "CRE", {{220, "NBC999  "}}, {}},
                   {"modification does not read the model", "MOD", {{220, "????????"}}, {}},
                   {"creation does not read the flag", "CRE", {{228, "0"}}, {}},
                   {"blank flag before 2011", "MOD", {{79, "31122010"}, {228, " "}}, {}},
                   {"flag 0 before 2011", "MOD", {{79, "31122010"}, {228, "0"}}, {191}},
                   {"flag that no list holds", "MOD", {{228, "Z"}}, {}},
                   {"columns that no row cuts", "CRE", {{101, std::string(111, '?')}}, {}},
                   {"creation does not read the end date", "CRE", {{212, "????????"}}, {}},
                   {"inventory does not read the date", "INV", {{79, "????????"}}, {}},
               });
}
