#include "messages/cas.h"

using namespace essai;

namespace {

const std::string BLANCS12(12, ' ');
const std::string BLANCS60(60, ' ');

std::string modele(const std::string& genre) {
    return vse("JALO", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "FR"},
                {81, "78123456    "},
                {93, "01022024"},
                {101, "PERTE DES DEUX MARQUES"},
                {161, "PRE DU BAS"},
                {221, "0"},
                {222, "A"}});
}

}  // namespace

TEST(Jalo, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "JALO",
        .genres = "CRE",
        .modele = modele,
        .cas =
            {
                {0, "CRE", {{63, "ZZ"}}, {1}},
                {1, "CRE", {{65, BLANCS12}}, {1, 67}, "a blank number has no form"},
                {2, "CRE", {{65, "781234567   "}}, {67}},
                {3, "CRE", {{63, "US"}, {65, "781234567   "}}, {118}},
                {4, "CRE", {{63, "BE"}, {65, "BE12345     "}}, {1}},
                {6, "CRE", {{79, "BE"}}, {21}},
                {7, "CRE", {{81, BLANCS12}}, {21, 68, 50}, "a blank number has neither form nor department"},
                {8, "CRE", {{81, "7812345     "}}, {68}},
                {9, "CRE", {{81, "77123456    "}}, {50}},
                {10, "CRE", {{93, "31022024"}}, {22}},
                {11, "CRE", {{93, "16032024"}}, {52}},
                {12, "CRE", {{101, BLANCS60}}, {24}},
                {13, "CRE", {{161, BLANCS60}}, {24}},
                {14, "CRE", {{221, "2"}}, {117}},
                {15, "CRE", {{222, "B"}}, {119}},
            },
    });
}

TEST(Jalo, Enregistrements) {
    prouverVSE(modele,
               {
                   {"foreign animal on a national holding", "CRE", {{63, "BE"}, {65, "12345A      "}}, {}},
                   {"neither text", "CRE", {{101, BLANCS60}, {161, BLANCS60}}, {24, 24}},
                   {"a text in its last column",
                    "CRE",
                    {{101, BLANCS60}, {160, "X"}, {161, BLANCS60}, {220, "X"}},
                    {}},
                   {"blank date", "CRE", {{93, "        "}}, {22}},
                   {"blank flag", "CRE", {{221, " "}}, {117}},
                   {"last course", "CRE", {{222, "S"}}, {}},
                   {"columns that no rule reads", "CRE", {{77, "??"}, {223, "????????"}}, {}},
                   {"inventory", "INV", {}, TOUT_REFUSE},
                   {"request", "DEM", {}, TOUT_REFUSE},
               });
}
