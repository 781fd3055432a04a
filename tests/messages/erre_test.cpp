#include <gtest/gtest.h>

#include "messages/cas.h"
#include "support/banc.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

/** An error on a slaughter notice; columns 117 to 161 and 230 belong to no field. */
std::string retour(const std::string& genre) {
    return vse("ERRE", genre,
               {{63, "ABAT"},
                {67, "CRE"},
                {70, "FR"},
                {72, "7812345678  "},
                {84, "FR"},
                {86, "7812345678  "},
                {98, "FR"},
                {100, "78123456    "},
                {112, "AB12"},
                {116, "1"},
                {117, std::string(45, '#')},
                {162, "FR"},
                {164, "78123456    "},
                {176, "FR"},
                {178, "7812345678  "},
                {190, "01012020"},
                {198, "10032024"},
                {206, "11032024"},
                {214, "12032024"},
                {222, "078IPG  "},
                {230, "#"}});
}

/** The record that the checks look at: type in error, country of C6, country of the animal. */
void presenterRetour(const std::string& type, const std::string& paysC6, const std::string& paysAnimal) {
    presenter(vse("ERRE", "ECQ", {{63, type}, {84, paysC6}, {176, paysAnimal}}));
}
void presenterType(const std::string& type) { presenterRetour(type, "DE", "DE"); }

}  // namespace

TEST(Erre, TouteLignePasseEtEchoue) {
    prouverLignes({
        .type = "ERRE",
        .genres = "ECQ",
        .modele = retour,
        .dependances = "C33/52:F1 C34/52:F1 C35/52:F1 C36/52:F1 C37/135:FICH E3",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 85),
                 "ECQ",
                 {{63, "XXXX"}},
                 {85, 190},
                 "an unknown type is not ABAT either"},
                {LIGNE(C1, vErre_C1, 190), "ECQ", {{63, "NAIS"}}, {190}},
                {LIGNE(C2, fVerifValAut, 84), "ECQ", {{67, "XXX"}}, {84}},
                {LIGNE(C3, fVerifValAut, 1), "ECQ", {{70, "ZZ"}}, {1}},
                {LIGNE(C4, vErre_C4, 185), "ECQ", {{72, "            "}}, {185}},
                {LIGNE(C5, vErre_C5, 1), "ECQ", {{84, "ZZ"}}, {1}},
                {LIGNE(C6, vErre_C6, 186), "ECQ", {{86, "FR12345678  "}}, {186}},
                {LIGNE(C7, vErre_C7, 21), "ECQ", {{98, "BE"}}, {21}},
                {LIGNE(C8, vErre_C8, 21), "ECQ", {{100, "            "}}, {21}},
                {LIGNE(C8, vErre_C8_conf, 68), "ECQ", {{100, "99123456    "}}, {68}},
                {LIGNE(C9, vErre_C9, 187), "ECQ", {{112, "AB-2"}}, {187}},
                {LIGNE(C10, vErre_C10, 188), "ECQ", {{116, " "}}, {188}},
                {LIGNE(C29, vErre_C29, 189), "ECQ", {{162, "BE"}}, {189}},
                {LIGNE(C30, vErre_C30, 189), "ECQ", {{164, "99123456    "}}, {189}},
                {LIGNE(C31, vErre_C31, 1), "ECQ", {{176, "ZZ"}}, {1}},
                {LIGNE(C32, vErre_C32_1, 67), "ECQ", {{178, "9912345678  "}}, {67}},
                {LIGNE(C32, vErre_C32_2, 118), "ECQ", {{176, "US"}, {178, "9912345678  "}}, {118}},
                {LIGNE(C32, vErre_C32_3, 1), "ECQ", {{176, "DE"}, {178, "DE12345678  "}}, {1}},
                {LIGNE(C33, fDATEC_INC, 5), "ECQ", {{190, "31042020"}}, {5}},
                {LIGNE(C33, fCoherenDC, 52), "ECQ", {{190, "16032024"}}, {52}},
                {LIGNE(C34, fDATEC_INC, 22), "ECQ", {{198, "31022024"}}, {22}},
                {LIGNE(C34, fCoherenDC, 52), "ECQ", {{198, "16032024"}}, {52}},
                {LIGNE(C35, fDATEC_INC, 22), "ECQ", {{206, "31022024"}}, {22}},
                {LIGNE(C35, fCoherenDC, 52), "ECQ", {{206, "16032024"}}, {52}},
                {LIGNE(C36, vErre_C36_1, 122), "ECQ", {{214, "31022024"}}, {122}},
                {LIGNE(C36, fCoherenDC, 52), "ECQ", {{214, "16032024"}}, {52}},
                {LIGNE(C37, vErre_C37_1, 87), "ECQ", {{222, "089ARS  "}}, {87}},
                {LIGNE(C37, vErre_C37_2, 135), "ECQ", {{222, "004IPG  "}}, {135}},
            },
    });
}

TEST(Erre, TypeEnErreur) {
    prouverChamps(
        vErre_C1, "",
        {{"ABAT", true}, {"NAIS", false}, {"abat", false}, {"ABA", false}, {"ABAT ", false}, {"", false}});
}

TEST(Erre, ChampsAServir) {
    for (fVerif* verif : {vErre_C4, vErre_C8, vErre_C10})
        prouverChamps(verif, "",
                      {{"1", true},
                       {"           1", true},
                       {"1           ", true},
                       {"            ", false},
                       {" ", false},
                       {"", false}});
}

TEST(Erre, PaysFrance) {
    prouverChamps(vErre_C7, "",
                  {{"FR", true},
                   {"BE", false},
                   {"  ", false},
                   {"fr", false},
                   {"F", false},
                   {"FR ", false},
                   {"", false}});
    prouverChamps(
        vErre_C29, "",
        {{"FR", true}, {"  ", true}, {"", true}, {" ", true}, {"BE", false}, {"F ", false}, {" F", false}});
}

TEST(Erre, QuatreLettresOuChiffres) {
    prouverChamps(vErre_C9, "",
                  {{"AB12", true},
                   {"abcd", true},
                   {"0000", true},
                   {"AZaz", true},
                   {"AB 2", false},
                   {"AB-2", false},
                   {" B12", false},
                   {"AB1", false},
                   {"AB123", false},
                   {"", false},
                   {"[B12", false},
                   {"A@12", false},
                   {"AB`2", false},
                   {"AB1{", false},
                   {"/B12", false},
                   {"A:12", false}});
}

TEST(Erre, PaysDeC6) {
    presenterType("ABAT");
    prouverChamps(vErre_C5, "",
                  {{"FR", true},
                   {"US", true},
                   {"EL", true},
                   {"GR", false},
                   {"  ", false},
                   {" F", false},
                   {"F ", false},
                   {"F", false},
                   {"", false}});
    presenterType("NAIS");
    prouverChamps(vErre_C5, "",
                  {{"FR", true},
                   {"US", true},
                   {"  ", true},
                   {"GR", false},
                   {" F", false},
                   {"F ", false},
                   {" ", false},
                   {"", false}});
}

TEST(Erre, NumeroDeC6) {
    for (const char* type : {"ABAT", "NAIS"}) {
        presenterRetour(type, "DE", "FR");
        prouverChamps(vErre_C6, "",
                      {{"1234567890  ", true},
                       {"FR1234567890", true},
                       {"DE12345678  ", false},
                       {"12 456      ", false},
                       {"12a456      ", false},
                       {"ED", true}});
        presenterRetour(type, "FR", "DE");
        // The country stands in the record; the dependency plays no part.
        prouverChamps(vErre_C6, "DE",
                      {{"7812345678  ", true}, {"DE12345678  ", true}, {"FR12345678  ", false}});
    }
    presenterType("ABAT");
    prouverChamps(vErre_C6, "", {{"            ", false}, {"", false}});
    presenterType("NAIS");
    prouverChamps(vErre_C6, "", {{"            ", true}, {"", true}});
}

TEST(Erre, AgrementOuExploitation) {
    for (fVerif* verif : {vErre_C8_conf, vErre_C30}) {
        presenterType("ABAT");
        prouverChamps(verif, "",
                      {{"            ", true},
                       {"", true},
                       {"78123456    ", true},
                       {"7812345     ", true},
                       {"2A123456    ", true},
                       {"20123456    ", false},
                       {"98123456    ", false},
                       {"97612345    ", true},
                       {"97512345    ", false},
                       {"781234567   ", false},
                       {"781234      ", false},
                       {"78123456", false}});
        presenterType("NAIS");
        prouverChamps(verif, "",
                      {{"            ", true},
                       {"", true},
                       {"78123456    ", true},
                       {"7812345     ", false},
                       {"2A123456    ", false},
                       {"20123456    ", true},
                       {"98123456    ", true},
                       {"97512345    ", true},
                       {"99123456    ", false},
                       {"78123456", false}});
    }
}

TEST(Erre, TypeLuDansLesColonnes63A66) {
    // Neither the body slot nor a longer or displaced word counts.
    remplir(valCorpsVSE[C1], "ABAT");
    presenterType("NAIS");
    EXPECT_TRUE(accepte(vErre_C5, "", "  "));
    presenter(vse("ERRE", "ECQ", {{63, "abat"}}));
    EXPECT_TRUE(accepte(vErre_C5, "", "  "));
    presenter(vse("ERRE", "ECQ", {{62, "ABAT"}}));
    EXPECT_TRUE(accepte(vErre_C5, "", "  "));
    presenter(vse("ERRE", "ECQ", {{63, "ABATX"}}));
    EXPECT_FALSE(accepte(vErre_C5, "", "  "));
    // A record that ends before or within the type is about no slaughter notice.
    for (const std::string& record : {std::string(), std::string(62, ' '), std::string(62, ' ') + "ABA"}) {
        presenter(record);
        EXPECT_TRUE(accepte(vErre_C5, "", "  ")) << record.size();
        EXPECT_TRUE(accepte(vErre_C6, "", "            ")) << record.size();
        EXPECT_TRUE(accepte(vErre_C36_1, "", "        ")) << record.size();
    }
}

TEST(Erre, PaysDeLAnimal) {
    prouverChamps(vErre_C31, "",
                  {{"  ", true},
                   {"FR", true},
                   {"US", true},
                   {"ZZ", false},
                   {"GR", false},
                   {" ", false},
                   {"F ", false},
                   {"   ", false},
                   {"", false}});
}

TEST(Erre, NumeroDeLAnimalParPays) {
    const struct {
        const char* pays;
        const char* champ;
        bool francais, tiers, partenaire;  // rows 67, 118 and 1
    } cas[] = {
        {"FR", "7812345678  ", true, true, true},
        {"FR", "9912345678  ", false, true, true},
        {"FR", "FR12345678  ", false, true, true},
        {"US", "7812345678  ", true, true, true},
        {"US", "9912345678  ", true, false, true},
        {"US", "US12345678  ", true, false, true},
        {"PL", "PL12345678  ", true, false, true},  // these rules know fifteen members
        {"  ", "9912345678  ", true, false, true},
        {"CH", "9912345678  ", true, true, true},
        {"CH", "CH12345678  ", true, true, false},
        {"DE", "9912345678AB", true, true, true},
        {"DE", "DE12345678  ", true, true, false},
        {"DE", "12 456      ", true, true, false},
        {"EL", "EL1         ", true, true, false},
        {"UK", "UK1         ", true, true, false},
        {"FR", "            ", true, true, true},
        {"US", "            ", true, true, true},
        {"DE", "            ", true, true, true},
        {"FR", "", true, true, true},
        {"US", "", true, true, true},
        {"DE", "", true, true, true},
        {"FR", "7812345678", false, true, true},
    };
    for (const auto& c : cas) {
        presenterRetour("ABAT", "IT", c.pays);
        EXPECT_EQ(accepte(vErre_C32_1, "", c.champ), c.francais) << c.pays << " [" << c.champ << "]";
        EXPECT_EQ(accepte(vErre_C32_2, "", c.champ), c.tiers) << c.pays << " [" << c.champ << "]";
        EXPECT_EQ(accepte(vErre_C32_3, "", c.champ), c.partenaire) << c.pays << " [" << c.champ << "]";
    }
    // A record that ends before the country, or within it, names none.
    for (const std::size_t longueur : {0U, 175U, 176U}) {
        presenter(retour("ECQ").substr(0, longueur));
        EXPECT_TRUE(accepte(vErre_C32_1, "", "9912345678  ")) << longueur;
        EXPECT_FALSE(accepte(vErre_C32_2, "", "9912345678  ")) << longueur;
        EXPECT_TRUE(accepte(vErre_C32_3, "", "FR12345678  ")) << longueur;
    }
}

TEST(Erre, DateDAbattage) {
    for (const char* type : {"ABAT", "NAIS"}) {
        presenterType(type);
        prouverChamps(vErre_C36_1, "",
                      {{"29022024", true},
                       {"29022023", false},
                       {"31121899", false},
                       {"01011900", true},
                       {"  032024", false},
                       {"1203202", false},
                       {"120320244", false},
                       {"       ", false},
                       {"         ", false},
                       {"", false}});
    }
    presenterType("ABAT");
    EXPECT_FALSE(accepte(vErre_C36_1, "", "        "));
    presenterType("NAIS");
    EXPECT_TRUE(accepte(vErre_C36_1, "", "        "));
}

TEST(Erre, CodeDOrganisme) {
    prouverChamps(vErre_C37_1, "",
                  {{"        ", true},  {"", true},          {"   ", true},       {"013IPG  ", true},
                   {"02AIPG  ", true},  {"976IPG  ", true},  {"020IPG  ", false}, {"096IPG  ", false},
                   {"013IPGX ", false}, {"013IPG X", false}, {"013IPG", false},   {"013IPG   ", false},
                   {"013IP   ", false}, {"01 IPG  ", false}, {" 13IPG  ", false}, {"ONICAB  ", true},
                   {"ONICABX ", true},  {"ONICAB X", false}, {"ONICABXY", true},  {"OFFICE  ", true},
                   {"OFFICE01", true},  {"ONICA   ", false}, {"OFFIC X ", false}, {"onicab  ", false},
                   {"NORMABEV", true},  {"NORMABEX", false}, {"POINTFOC", true},  {"POINTFOX", false},
                   {"POINTF  ", false}, {"NORM01  ", false}, {"NORM02  ", false}, {"PFOC01  ", false},
                   {"089ARS  ", false}, {"OVINFOS ", false}, {"ONICAB", false},   {"ONICAB   ", false},
                   {"013ipg  ", false}, {"ONICAXXY", false}, {"OFFICX01", false}});
}

TEST(Erre, OrganismeDeLEmetteur) {
    const struct {
        const char* emetteur;
        const char* champ;
        bool attendu;
    } cas[] = {
        {"013ARS  ", "004IPG  ", true},  {"025ARS  ", "004IPG  ", false}, {"013ARS  ", "084IPG  ", true},
        {"350ARS  ", "086IPG  ", true},  {"OVINFOS ", "OVINFOS ", true},  {"PFOC01  ", "POINTFOC", true},
        {"NORM01  ", "NORMABEV", true},  {"NORM02  ", "NORMABEV", true},  {"NORM01  ", "004IPG  ", false},
        {"PFOC01  ", "004IPG  ", false}, {"ZZZZZZZZ", "ZZZZZZZZ", true},  {"ZZZZZZZZ", "ZZZZZZZY", false},
        {"004IPG  ", "013ARS  ", false}, {"013ARS  ", "004IPG", false},   {"013ARS", "004IPG  ", false},
        {"025ARS  ", "        ", true},  {"025ARS  ", "", true},          {"", "004IPG  ", false},
    };
    for (const auto& c : cas)
        EXPECT_EQ(accepte(vErre_C37_2, c.emetteur, c.champ), c.attendu)
            << c.emetteur << " [" << c.champ << "]";
}

TEST(Erre, CasDEnregistrements) {
    prouverVSE(retour, {
                           {"about a birth", "ECQ", {{63, "NAIS"}}, {190}},
                           {"country of C6 blank", "ECQ", {{84, "  "}}, {1}},
                           {"the same about a birth", "ECQ", {{63, "NAIS"}, {84, "  "}}, {190}},
                           {"C6 blank", "ECQ", {{86, "            "}}, {186}},
                           {"the same about a birth", "ECQ", {{63, "NAIS"}, {86, "            "}}, {190}},
                           {"German animal", "ECQ", {{176, "DE"}}, {}},
                           {"American animal", "ECQ", {{176, "US"}}, {}},
                           {"American number", "ECQ", {{176, "US"}, {178, "US12345678  "}}, {118}},
                           {"no animal", "ECQ", {{176, std::string(14, ' ')}}, {}},
                           {"no other holding", "ECQ", {{162, std::string(14, ' ')}}, {}},
                           {"no dates but the slaughter's", "ECQ", {{190, std::string(24, ' ')}}, {}},
                           {"dates must be complete", "ECQ", {{190, "  012020"}, {198, "    2024"}}, {5, 22}},
                           {"no slaughter date", "ECQ", {{214, "        "}}, {122}},
                           {"the same about a birth", "ECQ", {{63, "NAIS"}, {214, "        "}}, {190}},
                           {"no body", "ECQ", {{222, "        "}}, {}},
                           {"another body of the emitter", "ECQ", {{222, "089IPG  "}}, {}},
                           {"national body of another emitter", "ECQ", {{222, "ONICAB01"}}, {135}},
                           {"five characters", "ECQ", {{222, "078IP   "}}, {87, 135}},
                           {"C3 belongs to the table alone", "ECQ", {{70, "xx"}}, {1}},
                       });
    const auto organisme = [](const std::string& emetteur, const std::string& corps, const std::string& c37) {
        std::string r = retour("ECQ");
        poser(r, 27, corps);
        poser(r, 222, c37);
        return codesDe(r, emetteur);
    };
    EXPECT_EQ(organisme("013ARS  ", "013IPG  ", "004IPG  "), std::vector<int>{});
    EXPECT_EQ(organisme("025ARS  ", "025IPG  ", "004IPG  "), std::vector<int>{135});
    EXPECT_EQ(organisme("ONICAB01", "ONICAB01", "ONICAB01"), std::vector<int>{});
    EXPECT_EQ(organisme("OFFICEXY", "OFFICEXY", "OFFICEXY"), std::vector<int>{});
}

TEST(Erre, Genres) {
    // The body of a kind that the header refuses is checked all the same.
    for (const char* genre : {"CRE", "INV", "MOD"}) {
        std::string r = retour(genre);
        EXPECT_EQ(codesDe(r), std::vector<int>{86}) << genre;
        poser(r, 67, "XXX");
        EXPECT_EQ(codesDe(r), (std::vector<int>{86, 84})) << genre;
    }
    prouverPresence("ERRE", &sCorps::typeCRE, 0);
    prouverPresence("ERRE", &sCorps::typeINV, 0);
    prouverPresence("ERRE", &sCorps::typeMOD, 0);
    prouverPresence("ERRE", &sCorps::typeDEM, 1);
    prouverPresence("ERRE", &sCorps::typeEDI, 1);
    for (const char* genre : {"DEM", "EDI"}) {
        std::string r = retour(genre);
        poser(r, 63, std::string(168, '#'));
        EXPECT_EQ(codesDe(r), std::vector<int>{86}) << genre;
    }
}

TEST(Erre, ValeursParPosition) {
    // Behind the gap a field's value stands at its position in the table.
    std::string r = retour("ECQ");
    poser(r, 162,
          "FR"
          "78123457    ");
    ASSERT_EQ(codesDe(r), std::vector<int>{});
    EXPECT_STREQ(corps(C10), "1");
    EXPECT_STREQ(corps(C11), "FR");
    EXPECT_STREQ(corps(C12), "78123457    ");
    EXPECT_STREQ(corps(C19), "078IPG  ");
}

TEST(Erre, TracesParPositionEtParNumero) {
    const dossier d;
    options heureReelle;
    heureReelle.horloge.clear();
    std::string r = retour("ECQ");
    poser(r, 222, "089ARS  ");
    const auto tracer = [&](const char* mode) {
        d.ecrire("recu", fichier({fich(1), r}));
        return lancer(d, {mode, "recu", "emis", "log"}, heureReelle).sortie;
    };
    EXPECT_NE(tracer("-i").find("\nC19.87;\n"), std::string::npos);
    EXPECT_NE(tracer("-d").find("champ: 37  '089ARS  '\n! erreurChamp sur [089ARS  ]\n"), std::string::npos);
}
