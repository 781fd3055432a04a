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
        .dependances = "C2/67:C1 C2/118:C1 C2/1:C1 C5/68:C1 C5/50:E8 C6/52:F1",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 1), "CRE", {{63, "ZZ"}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 "CRE",
                 {{65, BLANCS12}},
                 {1, 67},
                 "a blank number has no form"},
                {LIGNE(C2, fConform10FR, 67), "CRE", {{65, "781234567   "}}, {67}},
                {LIGNE(C2, fConform10FRnonECHAnon, 118), "CRE", {{63, "US"}, {65, "781234567   "}}, {118}},
                {LIGNE(C2, fConform10FRnonECHAoui, 1), "CRE", {{63, "BE"}, {65, "BE12345     "}}, {1}},
                {LIGNE(C4, fVerifValAut, 21), "CRE", {{79, "BE"}}, {21}},
                {LIGNE(C5, fVerifDiffNull, 21),
                 "CRE",
                 {{81, BLANCS12}},
                 {21, 68, 50},
                 "a blank number has neither form nor department"},
                {LIGNE(C5, fConform8, 68), "CRE", {{81, "7812345     "}}, {68}},
                {LIGNE(C5, fCoherenCC, 50), "CRE", {{81, "77123456    "}}, {50}},
                {LIGNE(C6, fDATEC, 22), "CRE", {{93, "31022024"}}, {22}},
                {LIGNE(C6, fCoherenDC, 52), "CRE", {{93, "16032024"}}, {52}},
                {LIGNE(C7, fVerifDiffNull, 24), "CRE", {{101, BLANCS60}}, {24}},
                {LIGNE(C8, fVerifDiffNull, 24), "CRE", {{161, BLANCS60}}, {24}},
                {LIGNE(C9, fVerifValAut, 117), "CRE", {{221, "2"}}, {117}},
                {LIGNE(C10, fVerifValAut, 119), "CRE", {{222, "B"}}, {119}},
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
