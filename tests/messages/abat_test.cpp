#include <gtest/gtest.h>

#include "messages/aiguillage.h"
#include "messages/cas.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string OFFICE = "OFFICE01";

/** Column 77-78 is not looked at; the entry is well before the slaughter. */
std::string notice(const std::string& genre) {
    return vse("ABAT", genre,
               {{27, OFFICE},
                {63, "FR"},
                {65, "7812345678  "},
                {77, "ZZ"},
                {79, "FR"},
                {81, "78123456    "},
                {93, "10012024"},
                {101, "11032024"},
                {109, "A2345678"},
                {117, "0450,50"},
                {124, "FR"},
                {126, "78123456    "},
                {138, "C"}});
}

/** The same from a national body: slaughterhouse number "FRFR". */
std::string noticeNationale(const std::string& genre) {
    std::string r = notice(genre);
    poser(r, 109, "FRFR    ");
    poser(r, 126, "OFFICEFR    ");
    return r;
}

}  // namespace

TEST(Abat, TouteLignePasseEtEchoue) {
    const std::string tous = "CRE INV MOD";
    prouverLignes({
        .type = "ABAT",
        .genres = tous,
        .modele = notice,
        .dependances = "C6/52:F1 C7/52:F1",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 1), tous, {{63, "XX"}}, {1}},
                {LIGNE(C2, presence_C2, 1), tous, {{63, "US"}, {65, "            "}}, {1}},
                {LIGNE(C2, presence_C2, 1),
                 tous,
                 {{65, "            "}},
                 {1, 67},
                 "a blank number is no French number either"},
                {LIGNE(C2, vAbat_C2_1, 67), tous, {{65, "9912345678  "}}, {67}},
                {LIGNE(C2, vAbat_C2_2, 1), tous, {{63, "DE"}, {65, "DE12345678  "}}, {1}},
                {LIGNE(C4, fVerif_ASDA, 31), tous, {{79, "XX"}}, {31}},
                {LIGNE(C5, presence_C5, 31), tous, {{79, "DE"}, {81, "            "}}, {31}},
                {LIGNE(C5, presence_C5, 31),
                 tous,
                 {{81, "            "}},
                 {31, 68},
                 "a blank number is no French holding either"},
                {LIGNE(C5, fVerif_NUM_ASDA, 68), tous, {{81, "99123456    "}}, {68}},
                {LIGNE(C6, fDATECxad, 120), tous, {{93, "31042023"}}, {120}},
                {LIGNE(C6, fCoherenDC, 52),
                 tous,
                 {{93, "16032024"}},
                 {52, 124},
                 "an entry after the record date is after a slaughter that is not"},
                {LIGNE(C6, fCoherenDC, 52),
                 tous,
                 {{93, "16032024"}, {101, "16032024"}},
                 {52, 52},
                 "both dates are after the record date"},
                {LIGNE(C6, fVerifDateInputPost, 121), tous, {{93, "10031997"}}, {121}},
                {LIGNE(C7, fDATEC, 122), tous, {{101, "31022024"}}, {122}},
                {LIGNE(C7, fCoherenDC, 52), tous, {{101, "16032024"}}, {52}},
                {LIGNE(C7, fVerifDateAbatPost, 123), tous, {{93, "        "}, {101, "10031997"}}, {123}},
                {LIGNE(C7, fVerifDateAbatPostEntr, 124), tous, {{101, "09012024"}}, {124}},
                {LIGNE(C8, presence_C8, 68), tous, {{109, "12-45678"}}, {68}},
                {LIGNE(C8, presence_C8, 68),
                 tous,
                 {{109, " 2345678"}},
                 {68, 128},
                 "a number that begins with a blank has no first letter or digit"},
                {LIGNE(C8, fVerif_NUM_TUE, 128), tous, {{109, "FR      "}, {126, "OFFICEFR    "}}, {128}},
                {LIGNE(C9, fVerif_chaine_POIDS, 125), tous, {{117, "0450.50"}}, {125}},
                {LIGNE(C9, fVerif_POIDS, 126), tous, {{117, "1000,01"}}, {126}},
                {LIGNE(C10, fVerif_CODEPE_ABATNOT, 127), tous, {{124, "DE"}}, {127}},
                {LIGNE(C11, presence_C11, 127),
                 tous,
                 {{126, "            "}},
                 {127, 68},
                 "a blank identification has no form"},
                {LIGNE(C11, fVerif_NUMID_ABATNOT_CONF, 68), tous, {{126, "99123456    "}}, {68}},
            },
        .sansEchec =
            {
                {LIGNE(C11, fVerif_NUMID_ABATNOT_COHER, 129), tous,
                 "the coherence of the notifier is not enforced"},
                {LIGNE(C11, fVerif_NUMID_ABATNOT_TABREF, 127), tous,
                 "the reference table of notifiers is not enforced"},
                {LIGNE(C12, fVerif_INDIC_ABAT, 139), tous, "the indicator is not enforced"},
            },
        .emetteur = OFFICE,
    });
}

TEST(Abat, NumeroFrancais) {
    presenter(vse("ABAT", "CRE", {{63, "FR"}}));
    prouverChamps(vAbat_C2_1, "",
                  {{"7812345678  ", true},
                   {"9741234567  ", true},
                   {"9761234567  ", false},
                   {"9912345678  ", false},
                   {"78123456    ", false},
                   {"7812345678 1", false},
                   {"            ", false},
                   {"7812345678", false},
                   {"", false}});
    // The country is read from the record, not from the dependency.
    EXPECT_FALSE(accepte(vAbat_C2_1, "DE", "9912345678  "));
    for (const char* pays : {"DE", "CH", "US", "fr", "  "}) {
        presenter(vse("ABAT", "CRE", {{63, pays}}));
        EXPECT_TRUE(accepte(vAbat_C2_1, "FR", "9912345678  ")) << pays;
    }
}

TEST(Abat, NumeroEtranger) {
    const struct {
        const char* pays;
        const char* champ;
        bool attendu;
    } cas[] = {
        {"FR", "FR12345678  ", true},   // left to the French form
        {"US", "US12345678  ", true},   // no partner country
        {"PL", "PL12345678  ", true},   // a member, but not one that these rules know
        {"CH", "CH12345678  ", false},  // repeats the country
        {"CH", "1234567890  ", true},  {"DE", "DE12345678  ", false},
        {"DE", "1234567890AB", true},  {"DE", "12 456      ", false},
        {"DE", "12a456      ", false}, {"EL", "EL12345678  ", false},
        {"UK", "            ", false}, {"UK", "", false},
    };
    for (const auto& c : cas) {
        presenter(vse("ABAT", "CRE", {{63, c.pays}}));
        EXPECT_EQ(accepte(vAbat_C2_2, "", c.champ), c.attendu) << c.pays << " [" << c.champ << "]";
    }
}

TEST(Abat, PaysHorsDUnEnregistrementCourt) {
    // No country at all is neither "FR" nor a partner.
    for (const std::string& record : {std::string(), std::string(62, ' '), std::string(62, ' ') + "F"}) {
        presenter(record);
        EXPECT_TRUE(accepte(vAbat_C2_1, "", "X")) << record.size();
        EXPECT_TRUE(accepte(vAbat_C2_2, "", "")) << record.size();
    }
}

TEST(Abat, CasDEnregistrements) {
    prouverVSE(notice,
               {
                   {"imported number", "CRE", {{65, "9741234567  "}}, {}},
                   {"Mayotte has no bovine numbers", "CRE", {{65, "9761234567  "}}, {67}},
                   {"third country, any number", "MOD", {{63, "US"}, {65, "US-1        "}}, {}},
                   {"provenance outside the list of members", "CRE", {{79, "XS"}}, {}},
                   {"foreign provenance, any number", "CRE", {{79, "DE"}, {81, "X           "}}, {}},
                   {"no entry date", "CRE", {{93, "        "}}, {}},
                   {"slaughter on the day of entry", "CRE", {{93, "11032024"}}, {}},
                   {"slaughter on the record date", "CRE", {{101, "15032024"}}, {}},
                   {"no slaughter date", "CRE", {{101, "        "}}, {122, 123}},
                   {"no slaughterhouse", "CRE", {{109, "        "}}, {}},
                   {"no weight", "CRE", {{117, "       "}}, {}},
                   {"a ton", "INV", {{117, "1000,00"}}, {}},
                   {"no indicator", "CRE", {{138, " "}}, {}},
                   {"Corsican notifier", "CRE", {{126, "2A123456    "}}, {}},
                   {"notifier of seven characters", "CRE", {{126, "0112345     "}}, {}},
                   {"notifier of six characters", "CRE", {{126, "011234      "}}, {68}},
               },
               OFFICE);
    prouverVSE(
        noticeNationale,
        {
            {"national notifier", "CRE", {}, {}},
            {"its provenance number is free", "CRE", {{81, "X           "}}, {}},
            {"its country is behind its name", "CRE", {{109, "FRDE    "}, {124, "DE"}, {132, "DE"}}, {}},
            {"another country", "CRE", {{109, "FRDE    "}, {124, "DE"}}, {127}},
            {"country of a blank slaughterhouse", "CRE", {{109, "        "}}, {}},
        },
        OFFICE);
}

TEST(Abat, LExtraitEstCeluiDeLEnregistrement) {
    // A national notice in between leaves nothing behind.
    EXPECT_EQ(codesDe(noticeNationale("CRE"), OFFICE), std::vector<int>{});
    std::string apres = notice("CRE");
    poser(apres, 81, "X           ");
    EXPECT_EQ(codesDe(apres, OFFICE), std::vector<int>{68});
}

TEST(Abat, EnregistrementCoupe) {
    // Without its footer a record has no date that others could be on or before.
    const std::string plein = notice("CRE");
    EXPECT_EQ(codesDe(plein.substr(0, 138), OFFICE), (std::vector<int>{52, 52, 90, 91, 94}));
    // Without the indicator a French provenance number is refused.
    EXPECT_EQ(codesDe(plein.substr(0, 137), OFFICE), (std::vector<int>{68, 52, 52, 90, 91, 94}));
    // An animal number that is not there is absent; a date that is not there
    // is not after another one.
    EXPECT_EQ(codesDe(plein.substr(0, 62) + "US", OFFICE),
              (std::vector<int>{1, 31, 31, 120, 122, 123, 68, 128, 125, 127}));
    // Cut inside the number it is there.
    EXPECT_EQ(codesDe(plein.substr(0, 62) + "US7", OFFICE),
              (std::vector<int>{31, 31, 120, 122, 123, 68, 128, 125, 127, 127}));
}

TEST(Abat, Emetteurs) {
    const auto codes = [](const std::string& emetteur, const std::string& corps) {
        std::string r = notice("CRE");
        poser(r, 27, corps);
        return codesDe(r, emetteur);
    };
    EXPECT_EQ(codes("ONICAB  ", "ONICAB  "), std::vector<int>{});
    EXPECT_EQ(codes("NORM01  ", "NORMABEV"), std::vector<int>{});
    EXPECT_EQ(codes("NORM01  ", "078IPG  "), std::vector<int>{129});
    EXPECT_EQ(codes("OFFICE01", "OFFICE02"), std::vector<int>{135});
    EXPECT_EQ(codes("089ARS  ", "078IPG  "), std::vector<int>{110});
}

// Some checks pass everything: their rows are there to be read.
TEST(Abat, ToutesLesLignesServentAuxTroisGenres) {
    for (int i = 0; i < lAbat; ++i) {
        const sCorps& l = tAbat[i];
        if (l.pfVerif == nullptr) continue;
        const std::vector<int> presences = {l.typeCRE, l.typeDEM, l.typeINV, l.typeEDI, l.typeMOD};
        EXPECT_EQ(presences, (std::vector<int>{0, 1, 0, 1, 0})) << "row " << i;
    }
}

TEST(Abat, GenresSansVerification) {
    prouverPresence("ABAT", &sCorps::typeDEM, 1);
    prouverPresence("ABAT", &sCorps::typeEDI, 1);
    for (const char* genre : {"DEM", "EDI"}) {
        std::string r = notice(genre);
        poser(r, 63, std::string(76, '#'));
        EXPECT_EQ(codesDe(r, OFFICE), std::vector<int>{86}) << genre;
    }
}
