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
        .dependances = "C2/67:C1 C2/118:C1 C2/1:C1 C4/52:F1 C6/50:E8 C23/52:F1 C24/153:C4 C25/150:C4",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 1), "CRE INV MOD", {{63, "ZZ"}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 "CRE INV MOD",
                 {{65, BLANCS12}},
                 {1, 67},
                 "a blank number has no form"},
                {LIGNE(C2, fConform10FR, 67), "CRE INV MOD", {{65, "781234567   "}}, {67}},
                {LIGNE(C2, fConform10FRnonECHAnon, 118),
                 "CRE INV MOD",
                 {{63, "US"}, {65, "781234567   "}},
                 {118}},
                {LIGNE(C2, fConform10FRnonECHAoui, 1),
                 "CRE INV MOD",
                 {{63, "BE"}, {65, "BE12345     "}},
                 {1}},
                {LIGNE(C4, fDATEC, 28), "CRE MOD", {{79, "31022024"}}, {28}},
                {LIGNE(C4, fCoherenDC, 52), "CRE MOD", {{79, "16032024"}}, {52}},
                {LIGNE(C5, fVerifValAut, 27), "CRE INV MOD", {{87, "BE"}}, {27}},
                {LIGNE(C6, fVerifDiffNull, 27),
                 "CRE INV MOD",
                 {{89, BLANCS12}},
                 {27, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C6, fConform8, 68), "CRE INV MOD", {{89, "7812345     "}}, {68}},
                {LIGNE(C6, fCoherenCC, 50), "CRE INV MOD", {{89, "77123456    "}}, {50}},
                {LIGNE(C23, fDATEC, 28), "INV MOD", {{212, "31022024"}}, {28}},
                {LIGNE(C23, fCoherenDC, 52), "INV MOD", {{212, "16032024"}}, {52}},
                {LIGNE(C24, fConform_BV_model1, 153), "CRE", {{220, "ABE123X "}}, {153}},
                {LIGNE(C24, fConform_BV_model2, 154), "CRE", {{220, "ZBE123  "}}, {154}},
                {LIGNE(C24, fConform_BV_model3, 155), "CRE", {{220, "AZE123  "}}, {155}},
                {LIGNE(C24, fConform_BV_model4, 156), "CRE", {{220, "ABX123  "}}, {156}},
                {LIGNE(C24, fConform_BV_model5, 157), "CRE", {{220, "ABE12X  "}}, {157}},
                {LIGNE(C25, fConform_temoin_bouc1, 150), "MOD", {{228, " "}}, {150}},
                {LIGNE(C25, fConform_temoin_bouc2, 191), "MOD", {{228, "0"}}, {191}},
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
