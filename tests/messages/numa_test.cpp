#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string SANS_NUMERO(12, ' ');
const std::string SANS_MODELE(8, ' ');

/** A correct range of 50 numbers with two tag models. */
std::string modele(const std::string& genre) {
    return vse("NUMA", genre,
               {{63, "FR"},
                {65, "78123456    "},
                {79, "FR"},
                {81, "7812345678  "},
                {93, "000050"},
                {99, "01022024"},
                {107, "0"},
                {108, "ABE123  "},
                {116, "NBC456  "}});
}

}  // namespace

TEST(Numa, TouteLignePasseEtEchoue) {
    const char* const NUMERO_BLANC = "a blank number has no form and no department";
    prouverLignes({
        .type = "NUMA",
        .genres = "CRE MOD ECQ",
        .modele = modele,
        .dependances = "C2/50:E8 C5/50:E8 C6/179:C5 C7/52:F1 C9/153:C7 C10/153:C7",
        // clang-format off
        .cas = {
            // holding
            {LIGNE(C1, fVerifValAut, 27), "CRE MOD ECQ", {{63, "BE"}}, {27}},
            {LIGNE(C2, fVerifDiffNull, 27), "CRE MOD ECQ", {{65, SANS_NUMERO}}, {27, 68, 50}, NUMERO_BLANC},
            {LIGNE(C2, fConform8, 68), "CRE MOD ECQ", {{65, "7812345     "}}, {68}},
            {LIGNE(C2, fCoherenCC, 50), "CRE MOD ECQ", {{65, "35123456    "}}, {50}},
            // first number and count
            {LIGNE(C4, fVerifValAut, 26), "CRE MOD ECQ", {{79, "BE"}}, {26}},
            {LIGNE(C5, fVerifDiffNull, 26), "CRE MOD ECQ", {{81, SANS_NUMERO}}, {26, 67, 50}, NUMERO_BLANC},
            {LIGNE(C5, fConform10, 67), "CRE MOD ECQ", {{81, "781234567   "}}, {67}},
            {LIGNE(C5, fCoherenCC, 50), "CRE MOD ECQ", {{81, "3512345678  "}}, {50}},
            {LIGNE(C6, numa_fC6_1, 48), "CRE MOD ECQ", {{93, "  0050"}}, {48}},
            {LIGNE(C6, numa_fC6_1, 48), "CRE MOD ECQ", {{93, "000000"}}, {48, 177}, "a count of zero is below one"},
            {LIGNE(C6, numa_fC6_2, 177), "CRE MOD ECQ", {{93, "001001"}}, {177}},
            {LIGNE(C6, numa_fC6_3, 179), "CRE MOD ECQ", {{81, "7899999999  "}, {93, "000002"}}, {179}},
            {LIGNE(C7, fDATEC, 28), "CRE ECQ", {{99, "30022023"}}, {28}},
            {LIGNE(C7, fCoherenDC, 52), "CRE ECQ", {{99, "16032024"}}, {52}},
            {LIGNE(C8, fVerifValAut, 150), "MOD", {{107, "6"}}, {150}},
            // tag models
            {LIGNE(C9, fConform_BV_model1, 153), "CRE MOD ECQ", {{108, SANS_MODELE}}, {153}},
            {LIGNE(C9, fConform_BV_model1, 153), "CRE MOD ECQ", {{108, "ABE1234 "}}, {153}},
            {LIGNE(C9, fConform_BV_model2, 154), "CRE MOD ECQ", {{108, "OBE123  "}}, {154}},
            {LIGNE(C9, fConform_BV_model3, 155), "CRE MOD ECQ", {{108, "ACE123  "}}, {155}},
            {LIGNE(C9, fConform_BV_model4, 156), "CRE MOD ECQ", {{108, "ABZ123  "}}, {156}},
            {LIGNE(C9, fConform_BV_model5, 157), "CRE MOD ECQ", {{108, "ABE12X  "}}, {157}},
            {LIGNE(C10, fConform_BV_model1, 153), "CRE MOD ECQ", {{116, SANS_MODELE}}, {153}},
            {LIGNE(C10, fConform_BV_model1, 153), "CRE MOD ECQ", {{116, "ABE123 X"}}, {153}},
            {LIGNE(C10, fConform_BV_model2, 154), "CRE MOD ECQ", {{116, "OBE123  "}}, {154}},
            {LIGNE(C10, fConform_BV_model3, 155), "CRE MOD ECQ", {{116, "ACE123  "}}, {155}},
            {LIGNE(C10, fConform_BV_model4, 156), "CRE MOD ECQ", {{116, "ABZ123  "}}, {156}},
            {LIGNE(C10, fConform_BV_model5, 157), "CRE MOD ECQ", {{116, "ABEX23  "}}, {157}},
        },
        // clang-format on
    });
}

TEST(Numa, GenreNonPrevuDonneErreurParLigne) {
    for (const char* genre : {"DEM", "INV", "EDI"})
        EXPECT_EQ(codesDe(modele(genre)), TOUT_REFUSE) << genre;
    prouverPresence("NUMA", &sCorps::typeDEM, 2);
    prouverPresence("NUMA", &sCorps::typeINV, 2);
    prouverPresence("NUMA", &sCorps::typeEDI, 2);
}

TEST(Numa, EnregistrementsParticuliers) {
    // clang-format off
    prouverVSE(modele, {
        {"count of one", "CRE", {{93, "000001"}}, {}},
        {"count of one thousand", "CRE", {{93, "001000"}}, {}},
        {"last range", "CRE", {{81, "7899999999  "}, {93, "000001"}}, {}},
        {"count far too high", "MOD", {{81, "7899000001  "}, {93, "999999"}}, {177}},
        {"count and end too high", "MOD", {{81, "7899000002  "}, {93, "999999"}}, {177, 179}},
        {"blank count", "CRE", {{93, "      "}}, {48, 177}},
        // From 2011 on both models are required; the date of a modification is
        // not checked, but decides all the same.
        {"no models before 2011", "CRE", {{99, "31122010"}, {108, SANS_MODELE}, {116, SANS_MODELE}}, {}},
        {"no models from 2011", "CRE", {{99, "01012011"}, {108, SANS_MODELE}, {116, SANS_MODELE}}, {153, 153}},
        {"no models, no date", "MOD", {{99, "        "}, {108, SANS_MODELE}, {116, SANS_MODELE}}, {}},
        {"no models, a date that is none", "MOD", {{99, "??????9?"}, {108, SANS_MODELE}, {116, SANS_MODELE}}, {153, 153}},
        {"wrong model before 2011", "CRE", {{99, "31122010"}, {108, "ABE12   "}}, {153, 157}},
        {"worst models", "CRE", {{108, "  ?   ? "}, {116, "       X"}},
         {153, 154, 155, 156, 157, 153, 154, 155, 156, 157}},
        {"usage of a creation", "CRE", {{107, "?"}}, {}},
        {"usage of a modification", "MOD", {{107, "5"}}, {}},
        {"columns 124 to 230", "CRE", {{124, std::string(107, '?')}}, {}},
    });
    // clang-format on
}

TEST(Numa, ComptageEnChiffres) {
    prouverChamps(numa_fC6_1, "unread",
                  {
                      {"000001", true},
                      {"001001", true},
                      {"999999", true},
                      {"100000", true},
                      {"000000", false},
                      {" 00001", false},
                      {"00001 ", false},
                      {"+00001", false},
                      {"-00001", false},
                      {"0000A1", false},
                      {"A00001", false},
                      {"00000A", false},
                      {"      ", false},
                      {"00001", false},  // cut by the end of the record
                      {"", false},
                  });
}

TEST(Numa, ComptageDeUnAMille) {
    prouverChamps(numa_fC6_2, "unread",
                  {
                      {"000001", true},
                      {"000999", true},
                      {"001000", true},
                      {"000000", false},
                      {"001001", false},
                      {"999999", false},
                      // Read as far as there are digits, behind blanks and one sign.
                      {"   050", true},
                      {"050XXX", true},
                      {"+00050", true},
                      {"-00050", false},
                      {"--0050", false},
                      {"X00050", false},
                      {"      ", false},
                      {"1", true},
                      {"", false},
                  });
}

TEST(Numa, FinDeSerie) {
    const struct {
        const char* premier;
        const char* compte;
        bool passe;
    } cas[] = {
        // clang-format off
        {"7899999999  ", "000000", true},
        {"7899999999  ", "000001", true},
        {"7899999999  ", "000002", false},
        {"7899999000  ", "001000", true},
        {"7899999001  ", "001000", false},
        {"7800000000  ", "999999", true},
        {"9999999999  ", "000001", true},     // the department does not count
        {"9999999999  ", "000002", false},
        {"789999999   ", "999999", true},     // seven digits
        {"7899999999X ", "000002", false},
        {"78X9999999  ", "000002", true},     // read up to the first non-digit
        {"789999999X  ", "000002", true},
        {"78 9999999  ", "000999", true},     // a blank or a sign is no digit
        {"78 9999999  ", "9999999", true},
        {"78-9999999  ", "99999999", true},
        {"78+9999999  ", "100000000", true},
        {"78 9999999  ", "100000001", false},
        {"78999999999 ", "000001", false},    // nine digits
        {"789999999999", "000000", false},
        {"7899999999  ", "-00001", true},
        {"7899999999  ", "     2", false},
        {"7899999999  ", "2     ", false},
        {"7899999999  ", "X", true},
        {"7899999999  ", "", true},
        {"            ", "000050", true},
        {"78",           "000050", true},     // cut by the end of the record
        {"7",            "000050", true},
        {"",             "000050", true},
        // clang-format on
    };
    for (const auto& c : cas)
        EXPECT_EQ(accepte(numa_fC6_3, c.premier, c.compte), c.passe)
            << c.premier << " + '" << c.compte << "'";
}
