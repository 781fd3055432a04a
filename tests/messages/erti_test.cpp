#include "checks/valautorise.h"
#include "messages/cas.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS8(8, ' ');
const std::string BLANCS12(12, ' ');

/** The opening date may not be modified, and a modification must leave it blank. */
std::string modele(const std::string& genre) {
    std::string r =
        vse("ERTI", genre, {{63, "FR"}, {65, "78A12       "}, {79, "P"}, {81, "01022024"}, {97, "01032024"}});
    if (genre == "MOD") poser(r, 81, BLANCS8);
    return r;
}

}  // namespace

TEST(Erti, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "ERTI",
        .genres = "CRE INV MOD",
        .modele = modele,
        .dependances = "C2/50:E8 C5/131:C4 C6/52:F1 C7/149:C6 C7/52:F1 C8/52:F1 C9/146:C5 C10/147:C5",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 139), "CRE INV MOD", {{63, "BE"}}, {139}},
                {LIGNE(C2, fVerifDiffNull, 139),
                 "CRE INV MOD",
                 {{65, BLANCS12}},
                 {139, 140, 50},
                 "a blank code has neither form nor department"},
                {LIGNE(C2, fConformEget, 140), "CRE INV MOD", {{65, "78A1        "}}, {140}},
                {LIGNE(C2, fCoherenCCEget, 50), "CRE INV MOD", {{65, "77A12       "}}, {50}},
                {LIGNE(C4, fVerifValAut, 131),
                 "CRE INV MOD",
                 {{79, "X"}},
                 {140, 50, 131},
                 "the code's form and its department go by the kind of production"},
                {LIGNE(C5, erti_fC5, 131), "CRE INV MOD", {{80, "D"}}, {131}},
                {LIGNE(C6, fDATEC, 144), "CRE", {{81, "31022024"}}, {144}},
                {LIGNE(C6, fCoherenDC, 52), "CRE", {{81, "16032024"}}, {52}},
                {LIGNE(C6, fVerifValAut, 192), "MOD", {{81, "01022024"}}, {192}},
                {LIGNE(C7, fDatRecCorr, 145), "CRE MOD", {{89, "31022024"}}, {145}},
                {LIGNE(C7, fDatRecPost, 149), "CRE", {{89, "31012024"}}, {149}},
                {LIGNE(C7, fDatRecPost, 149),
                 "MOD",
                 {{81, "01022024"}, {89, "31012024"}},
                 {192, 149},
                 "nothing comes before a blank opening date, which alone may stand on modification"},
                {LIGNE(C7, fDatRecCohe, 52), "CRE MOD", {{89, "16032024"}}, {52}},
                {LIGNE(C8, fDATEC, 144), "INV MOD", {{97, "31022024"}}, {144}},
                {LIGNE(C8, fCoherenDC, 52), "INV MOD", {{97, "16032024"}}, {52}},
                {LIGNE(C9, erti_fC9C10, 146), "CRE MOD", {{105, "OEUF"}}, {146}},
                {LIGNE(C10, erti_fC9C10, 147), "CRE MOD", {{109, "1   "}}, {147}},
            },
    });
}

TEST(Erti, Enregistrements) {
    // Productions belong to sites of kind "V", whose codes begin with a series.
    const pose SERIE = {65, "IGA12       "};
    const pose V = {79, "V"};
    prouverVSE(modele,
               {
                   {"kind P, no production", "CRE", {{80, " "}}, {}},
                   {"kind P with a production", "CRE", {{80, "D"}}, {131}},
                   {"kind V with a production", "CRE", {SERIE, V, {80, "D"}}, {}},
                   {"kind V, no production", "CRE", {SERIE, V, {80, " "}}, {131}},
                   {"kind V, production not listed", "CRE", {SERIE, V, {80, "I"}}, {131}},
                   {"eggs", "CRE", {SERIE, V, {80, "M"}, {105, "OEUF"}, {109, "0   "}}, {}},
                   {"eggs without a branch", "CRE", {SERIE, V, {80, "M"}, {109, "0   "}}, {146}},
                   {"eggs without a breeding", "CRE", {SERIE, V, {80, "M"}, {105, "OEUF"}}, {147}},
                   {"another branch", "CRE", {SERIE, V, {80, "M"}, {105, "LAIT"}, {109, "0   "}}, {146}},
                   {"breeding not listed", "CRE", {SERIE, V, {80, "M"}, {105, "OEUF"}, {109, "4   "}}, {147}},
                   {"branch of another production", "CRE", {SERIE, V, {80, "D"}, {105, "OEUF"}}, {146}},
                   {"breeding of another production", "CRE", {SERIE, V, {80, "D"}, {109, "0   "}}, {147}},
                   {"inventory reads neither", "INV", {{105, "????????"}}, {}},
                   {"inventory reads no dates but the last", "INV", {{81, "????????????????"}}, {}},
                   {"second date of the first's day", "CRE", {{89, "01022024"}}, {}},
                   {"second date of the record's day", "CRE", {{89, "15032024"}}, {}},
                   {"second date of the record's day", "MOD", {{89, "15032024"}}, {}},
                   {"creation does not read the last date", "CRE", {{97, "????????"}}, {}},
               });
}

TEST(Erti, ProductionSelonLeGenre) {
    for (const char c : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ 1d")) {
        const std::string champ(1, c);
        const bool listee = std::string("DEFGHJKLM").find(c) != std::string::npos;
        EXPECT_EQ(accepte(erti_fC5, "V", champ, PROD_EV), listee) << champ;
        for (const char* genre : {"P", "v", " ", "", "V "})
            EXPECT_EQ(accepte(erti_fC5, genre, champ, PROD_EV), c == ' ') << genre << " " << champ;
    }
    // Exactly one blank.
    EXPECT_FALSE(accepte(erti_fC5, "P", "", PROD_EV));
    EXPECT_FALSE(accepte(erti_fC5, "P", "  ", PROD_EV));
    EXPECT_FALSE(accepte(erti_fC5, "V", "", PROD_EV));
    EXPECT_FALSE(accepte(erti_fC5, "V", "DE", PROD_EV));
    EXPECT_FALSE(accepte(erti_fC5, "V", "M", liste{{"D", "E"}}));
    // A list test: the codes of the national bodies belong to every list.
    EXPECT_TRUE(accepte(erti_fC5, "V", "NORMABEV", PROD_EV));
    EXPECT_FALSE(accepte(erti_fC5, "P", "NORMABEV", PROD_EV));
}

TEST(Erti, FiliereEtElevage) {
    struct cas {
        const char* production;
        const char* champ;
        bool filiere;
        bool elevage;
    };
    for (const cas& c : {
             cas{"M", "OEUF", true, false},    cas{"M", "0   ", false, true},
             cas{"M", "3   ", false, true},    cas{"M", "4   ", false, false},
             cas{"M", "0", false, false},      cas{"M", "OEU", false, false},
             cas{"M", "    ", false, false},   cas{"M", "", false, false},
             cas{"D", "    ", true, true},     cas{"D", "OEUF", false, false},
             cas{"D", "0   ", false, false},   cas{"D", "   ", false, false},
             cas{"D", "     ", false, false},  cas{"D", "", false, false},
             cas{" ", "    ", true, true},     cas{"", "    ", true, true},
             cas{"m", "OEUF", false, false},   cas{"M ", "    ", true, true},
             cas{"M", "NORMABEV", true, true}, cas{"D", "NORMABEV", false, false},
         }) {
        EXPECT_EQ(accepte(erti_fC9C10, c.production, c.champ, FIL_V), c.filiere)
            << "'" << c.production << "' '" << c.champ << "'";
        EXPECT_EQ(accepte(erti_fC9C10, c.production, c.champ, ELV_V), c.elevage)
            << "'" << c.production << "' '" << c.champ << "'";
    }
}
