#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS_2(2, ' ');
const std::string BLANCS_12(12, ' ');

/** A bovine and a second one; fields that no rule looks at hold '#'. */
std::string bovin(const std::string& genre) {
    return vse("ECBO", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {77, "##"},
                {79, "16"},
                {81, "0"},
                {82, "1"},
                {83, "FR"},
                {85, "7812345679  "},
                {97, std::string(14, '#')},
                {111, "16"},
                {113, "DE"},
                {115, "1234567890  "},
                {127, std::string(10, '#')},
                {137, "16"},
                {139, std::string(92, '#')}});
}

/** Fills the slots of the three fields that go together. */
void remplirSecond(const std::string& c12, const std::string& c13, const std::string& c15) {
    remplir(valCorpsVSE[C12], c12);
    remplir(valCorpsVSE[C13], c13);
    remplir(valCorpsVSE[C15], c15);
}

}  // namespace

TEST(Ecbo, TouteLignePasseEtEchoue) {
    const std::string tous = "CRE INV";
    prouverLignes({
        .type = "ECBO",
        .genres = tous,
        .modele = bovin,
        .dependances = "C2/67:C1 C2/118:C1 C2/1:C1 C8/17:C7 C13/14:C12",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 1), tous, {{63, "QQ"}}, {1}},
                {LIGNE(C2, fVerifDiffNull, 1),
                 tous,
                 {{65, BLANCS_12}},
                 {1, 67},
                 "a blank number is no French number"},
                {LIGNE(C2, fVerifDiffNull, 1),
                 tous,
                 {{63, "US"}, {65, BLANCS_12}},
                 {1, 118},
                 "nor one of French form"},
                {LIGNE(C2, fVerifDiffNull, 1),
                 tous,
                 {{63, "DE"}, {65, BLANCS_12}},
                 {1, 1},
                 "nor a foreign one"},
                {LIGNE(C2, fConform10FR, 67), tous, {{65, "9912345678  "}}, {67}},
                {LIGNE(C2, fConform10FRnonECHAnon, 118), tous, {{63, "US"}, {65, "9912345678  "}}, {118}},
                {LIGNE(C2, fConform10FRnonECHAoui, 1), tous, {{63, "DE"}, {65, "DE12345678  "}}, {1}},
                {LIGNE(C4, fVerifValAut, 11), "CRE", {{79, "00"}}, {11}},
                {LIGNE(C5, fVerifValAut, 12), "CRE", {{81, "2"}}, {12}},
                {LIGNE(C6, fVerifValAut, 13), "CRE", {{82, "2"}}, {13}},
                {LIGNE(C7, fVerifValAut, 17), "CRE", {{83, "QQ"}}, {17}},
                {LIGNE(C8, fVerifDiffNull, 17), "CRE", {{85, BLANCS_12}}, {17}},
                {LIGNE(C8, fConform10FRnon, 17), "CRE", {{83, "DE"}, {85, "DE12345678  "}}, {17}},
                {LIGNE(C11, fVerifValAut, 20), "CRE", {{111, "00"}}, {20}},
                {LIGNE(C12, ecbo_C12, 14), "CRE", {{113, "QQ"}}, {14}},
                {LIGNE(C13, ecbo_C13, 14), "CRE", {{115, "DE12345678  "}}, {14}},
                {LIGNE(C15, ecbo_C15, 16), "CRE", {{137, "00"}}, {16}},
            },
    });
}

TEST(Ecbo, SecondAnimalAbsent) {
    remplirSecond(BLANCS_2, BLANCS_12, BLANCS_2);
    EXPECT_TRUE(accepte(ecbo_C12, "", BLANCS_2, TP));
    EXPECT_TRUE(accepte(ecbo_C13, BLANCS_2, BLANCS_12, DouzeBlancs));
    EXPECT_TRUE(accepte(ecbo_C15, "", BLANCS_2, TRG));

    const struct {
        const char* nom;
        std::string c12, c13, c15;
        bool v12, v13, v15;
    } cas[] = {
        {"country only", "DE", BLANCS_12, BLANCS_2, true, false, false},
        {"number only", BLANCS_2, "1234567890  ", BLANCS_2, false, true, false},
        {"breed only", BLANCS_2, BLANCS_12, "16", false, false, true},
        {"no country", BLANCS_2, "1234567890  ", "16", false, true, true},
        {"no number", "DE", BLANCS_12, "16", true, false, true},
        {"no breed", "DE", "1234567890  ", BLANCS_2, true, true, false},
        {"all", "DE", "1234567890  ", "16", true, true, true},
        {"first character of the country only", "D ", BLANCS_12, BLANCS_2, false, false, false},
        {"second character of the country only", " D", BLANCS_12, BLANCS_2, false, false, false},
        {"first character of the number only", BLANCS_2, "1           ", BLANCS_2, false, true, false},
        {"first character of the breed only", BLANCS_2, BLANCS_12, "1 ", false, false, false},
        {"second character of the breed only", BLANCS_2, BLANCS_12, " 1", false, false, false},
        {"one character each", " D", "           1", " 1", false, false, false},
        {"a number in the last column only", BLANCS_2, "           1", BLANCS_2, false, false, false},
        {"cut behind the number", BLANCS_2, BLANCS_12, "", false, false, false},
        {"cut within the number", BLANCS_2, BLANCS_12.substr(1), "", false, false, false},
        {"cut within the breed", BLANCS_2, BLANCS_12, " ", false, false, false},
        {"cut before the country", "", "", "", false, false, false},
    };
    for (const auto& c : cas) {
        remplirSecond(c.c12, c.c13, c.c15);
        EXPECT_EQ(accepte(ecbo_C12, "", c.c12, TP), c.v12) << c.nom;
        EXPECT_EQ(accepte(ecbo_C13, c.c12, c.c13, DouzeBlancs), c.v13) << c.nom;
        EXPECT_EQ(accepte(ecbo_C15, "", c.c15, TRG), c.v15) << c.nom;
    }
}

TEST(Ecbo, SecondAnimalParPays) {
    remplirSecond("DE", "1234567890  ", "16");
    prouverChamps(ecbo_C12, "",
                  {{"FR", true}, {"US", true}, {"EL", true}, {"GR", false}, {"  ", false}, {"", false}}, TP);
    prouverChamps(ecbo_C15, "",
                  {{"10", true}, {"16", true}, {"99", true}, {"00", false}, {"  ", false}, {"", false}}, TRG);
    // A French number is not looked at, but it must be there.
    prouverChamps(ecbo_C13, "FR",
                  {{"FR-1        ", true}, {"9912345678  ", true}, {"", true}, {BLANCS_12, false}});
    prouverChamps(ecbo_C13, "DE",
                  {{"1234567890  ", true},
                   {"FR1234567890", true},
                   {"DE12345678  ", false},
                   {"12 456      ", false},
                   {"12a456      ", false},
                   {"", false},
                   {BLANCS_12, false}});
    prouverChamps(ecbo_C13, "US", {{"9912345678  ", true}, {"US12345678  ", false}});
}

TEST(Ecbo, CasDEnregistrements) {
    prouverVSE(bovin, {
                          {"no second animal", "CRE", {{113, BLANCS_2 + BLANCS_12}, {137, BLANCS_2}}, {}},
                          {"its breed only", "CRE", {{113, BLANCS_2 + BLANCS_12}}, {14, 14}},
                          {"its country only", "CRE", {{115, BLANCS_12}, {137, BLANCS_2}}, {14, 16}},
                          {"its number only", "CRE", {{113, BLANCS_2}, {137, BLANCS_2}}, {14, 16}},
                          {"its number missing", "CRE", {{115, BLANCS_12}}, {14}},
                          {"French second animal", "CRE", {{113, "FR"}, {115, "FR-1        "}}, {}},
                          {"second animal of a third country", "CRE", {{113, "US"}}, {}},
                          {"flags unknown", "CRE", {{81, "  "}}, {}},
                          {"flags emptied", "CRE", {{81, "**"}}, {}},
                          {"German animal", "CRE", {{63, "DE"}, {65, "1234567890AB"}}, {}},
                          {"Swiss animal", "CRE", {{63, "CH"}, {65, "CH1         "}}, {1}},
                          {"animal of a third country", "CRE", {{63, "US"}}, {}},
                          {"imported number", "CRE", {{65, "9761234567  "}}, {}},
                          {"French mother, any number", "CRE", {{85, "FR-1        "}}, {}},
                          {"foreign mother without a number", "CRE", {{83, "DE"}, {85, BLANCS_12}}, {17, 17}},
                          {"an invalidation gives the number only", "INV", {{79, std::string(152, '#')}}, {}},
                      });
}

TEST(Ecbo, GenresRefuses) {
    prouverPresence("ECBO", &sCorps::typeDEM, 2);
    prouverPresence("ECBO", &sCorps::typeEDI, 2);
    prouverPresence("ECBO", &sCorps::typeMOD, 2);
    for (const char* genre : {"DEM", "EDI", "MOD"})
        EXPECT_EQ(codesDe(bovin(genre)), TOUT_REFUSE) << genre;
}
