#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string SANS_NUMERO(12, ' ');
const std::string SANS_DATE(8, ' ');

/** A text filled with blanks to the twenty columns of C6. */
std::string n20(std::string texte) {
    texte.resize(20, ' ');
    return texte;
}

/** Kind of identifier, type of number and number (C4 to C6). */
pose identifiant(const std::string& genreEtType, const std::string& numero) {
    return {79, genreEtType + n20(numero)};
}

/** A correct SIRET of a holding, with start and end date. */
std::string modele(const std::string& genre) {
    return vse("ASSO", genre,
               {{63, "FR"},
                {65, "78123456    "},
                identifiant("ESIRET", "73282932000074"),
                {105, "01022024"},
                {113, "01032024"}});
}

void placer(const std::string& c4, const std::string& c5) {
    remplir(valCorpsVSE[C4], c4);
    remplir(valCorpsVSE[C5], c5);
}

/** Every type of number. */
const std::vector<std::string> TYPES = {"SIREN", "SIRET", "AGRIN", "AGRIT", "AGRSA", "CEM  "};

/** A shape check with its verdicts on numbers of its own type; it accepts any
 *  number of another type. */
void prouverForme(const char* nom, fVerif* verif, const std::string& type, const std::vector<verdict>& cas,
                  const liste& sverif = sansListe) {
    SCOPED_TRACE(nom);
    placer("?", type);
    prouverChamps(verif, "unread", cas, sverif);
    for (const std::string& autre : TYPES) {
        placer("?", autre);
        EXPECT_EQ(accepte(verif, "", "?", sverif), autre != type) << autre;
    }
    for (const std::string& autre :
         {std::string("     "), std::string(), type.substr(0, 2), std::string("siren"),
          type.substr(0, 2) + "???", type.substr(0, type == "CEM  " ? 2 : 4) + "?"}) {
        placer("?", autre);
        EXPECT_TRUE(accepte(verif, "", "?", sverif)) << "'" << autre << "'";
    }
}

/** Verdicts that do not depend on the key: `n` digits, then blanks to column 20. */
std::vector<verdict> chiffresPuisBlancs(std::string juste) {
    const std::size_t n = juste.size();
    std::vector<verdict> cas = {{n20(juste), true}, {n20(""), false}, {"", false}};
    for (std::size_t i = 0; i < n; ++i) {
        std::string faux = n20(juste);
        faux[i] = ' ';
        cas.push_back({faux, false});
        faux[i] = 'A';
        cas.push_back({faux, false});
    }
    for (std::size_t i = n; i < 20; ++i) {
        std::string faux = n20(juste);
        faux[i] = '0';
        cas.push_back({faux, false});
        cas.push_back({n20(juste).substr(0, i), false});  // cut by the end of the record
    }
    return cas;
}

}  // namespace

TEST(Asso, TouteLignePasseEtEchoue) {
    const char* const AUCUNE_FORME = "no type of number accepts a blank number";
    prouverLignes({
        .type = "ASSO",
        .genres = "CRE INV MOD ECQ",
        .modele = modele,
        .dependances = "C7/52:F1 C8/149:C7 C8/52:F1",
        // clang-format off
        .cas = {
            // holding: only kind E looks at the form of its number
            {LIGNE(C1, fVerifValAut, 30), "CRE INV MOD ECQ", {{63, "BE"}}, {30}},
            {LIGNE(C2, fVerifDiffNull, 30), "CRE INV MOD ECQ", {{65, SANS_NUMERO}, identifiant("DSIREN", "732829320")}, {30}},
            {LIGNE(C2, asso_fC2_1, 50), "CRE INV MOD ECQ", {{65, "35123456    "}}, {50}},
            {LIGNE(C2, asso_fC2_2, 68), "CRE INV MOD ECQ", {{65, "7812345     "}}, {68}},
            // kind and type
            {LIGNE(C4, fVerifValAut, 171), "CRE MOD ECQ", {{79, "X"}}, {171, 183}, "no type of number goes with another kind"},
            {LIGNE(C4, fVerifValAut, 171), "INV", {{79, "X"}}, {171}},
            {LIGNE(C5, fVerifValAut, 172), "CRE INV MOD ECQ", {{80, "CEM12"}, {85, n20("ABC1234")}}, {172}},
            {LIGNE(C5, fVerifValAut, 172), "INV", {{80, "XXXXX"}}, {172}},
            {LIGNE(C5, asso_fC5, 183), "CRE MOD ECQ", {{79, "D"}}, {183}},
            // number
            {LIGNE(C6, fVerifDiffNull, 173), "CRE INV MOD ECQ", {{85, n20("")}}, {173, 41}, AUCUNE_FORME},
            {LIGNE(C6, fVerifDiffNull, 173), "CRE INV MOD ECQ", {identifiant("DSIREN", "")}, {173, 136}, AUCUNE_FORME},
            {LIGNE(C6, fVerifDiffNull, 173), "CRE INV MOD ECQ", {identifiant("DAGRIN", "")}, {173, 181}, AUCUNE_FORME},
            {LIGNE(C6, fVerifDiffNull, 173), "CRE INV MOD ECQ", {identifiant("EAGRIT", "")}, {173, 181}, AUCUNE_FORME},
            {LIGNE(C6, fVerifDiffNull, 173), "CRE INV MOD ECQ", {identifiant("EAGRSA", "")}, {173, 184}, AUCUNE_FORME},
            {LIGNE(C6, fVerifDiffNull, 173), "CRE INV MOD ECQ", {identifiant("ECEM  ", "")}, {173, 181}, AUCUNE_FORME},
            {LIGNE(C6, fVerifDiffNull, 173), "CRE MOD ECQ", {{80, "XXXXX"}, {85, n20("")}}, {172, 183, 173}, "no type, no form"},
            {LIGNE(C6, fVerifDiffNull, 173), "INV", {{80, "XXXXX"}, {85, n20("")}}, {172, 173}, "no type, no form"},
            {LIGNE(C6, asso_fC6_1, 136), "CRE MOD ECQ", {identifiant("DSIREN", "732829321")}, {136}},
            {LIGNE(C6, asso_fC6_1_INV, 136), "INV", {identifiant("DSIREN", "73282932")}, {136}},
            {LIGNE(C6, asso_fC6_2, 41), "CRE MOD ECQ", {{85, n20("73282932000075")}}, {41}},
            {LIGNE(C6, asso_fC6_2_INV, 41), "INV", {{85, n20("7328293200007")}}, {41}},
            {LIGNE(C6, asso_fC6_3, 181), "CRE INV MOD ECQ", {identifiant("DAGRIN", "112345678")}, {181}},
            {LIGNE(C6, asso_fC6_4, 181), "CRE INV MOD ECQ", {identifiant("EAGRIT", "A1234567890")}, {181}},
            {LIGNE(C6, asso_fC6_5, 184), "CRE INV MOD ECQ", {identifiant("EAGRSA", "2012345")}, {184}},
            {LIGNE(C6, asso_fC6_6, 181), "CRE INV MOD ECQ", {identifiant("ECEM  ", "ABC123")}, {181}},
            // dates
            {LIGNE(C7, fDATEC, 174), "CRE MOD ECQ", {{105, "30022023"}}, {174}},
            {LIGNE(C7, fCoherenDC, 52), "CRE MOD ECQ", {{105, "16032024"}, {113, SANS_DATE}}, {52}},
            {LIGNE(C8, asso_fC8_1, 175), "CRE MOD ECQ", {{113, "31022024"}}, {175}},
            {LIGNE(C8, asso_fC8_2, 149), "CRE MOD ECQ", {{113, "31012024"}}, {149}},
            {LIGNE(C8, asso_fC8_3, 52), "CRE MOD ECQ", {{113, "16032024"}}, {52}},
        },
        // clang-format on
    });
}

TEST(Asso, GenreNonPrevuDonneErreurParLigne) {
    for (const char* genre : {"DEM", "EDI"})
        EXPECT_EQ(codesDe(modele(genre)), TOUT_REFUSE) << genre;
    prouverPresence("ASSO", &sCorps::typeDEM, 2);
    prouverPresence("ASSO", &sCorps::typeEDI, 2);
}

TEST(Asso, EnregistrementsParticuliers) {
    // clang-format off
    prouverVSE(modele, {
        // Every type of number with its kind.
        {"SIREN", "CRE", {identifiant("DSIREN", "732829320")}, {}},
        {"AGRIN", "CRE", {identifiant("DAGRIN", "A12345678")}, {}},
        {"AGRIT", "CRE", {identifiant("EAGRIT", "A12345678901")}, {}},
        {"AGRSA", "CRE", {identifiant("EAGRSA", "7812345")}, {}},
        {"CEM", "CRE", {identifiant("ECEM  ", "ABC1234")}, {}},
        {"SIRET of a D", "CRE", {identifiant("DSIRET", "73282932000074")}, {183}},
        {"SIREN of an E", "CRE", {identifiant("ESIREN", "732829320")}, {183}},
        {"CEM of a D", "MOD", {identifiant("DCEM  ", "ABC1234")}, {183}},
        {"SIRET of a D", "INV", {identifiant("DSIRET", "73282932000074")}, {}},
        // Kind D does not look at the holding beyond its presence.
        {"D, another department", "CRE", {{65, "35123456    "}, identifiant("DSIREN", "732829320")}, {}},
        {"D, no form", "INV", {{65, "X           "}, identifiant("DSIREN", "732829320")}, {}},
        {"E, no holding", "CRE", {{65, SANS_NUMERO}}, {30, 50, 68}},
        // An inventory is spared the keys.
        {"SIREN, wrong key", "CRE", {identifiant("DSIREN", "732829321")}, {136}},
        {"SIREN, wrong key", "MOD", {identifiant("DSIREN", "732829321")}, {136}},
        {"SIREN, wrong key", "INV", {identifiant("DSIREN", "732829321")}, {}},
        {"SIRET, wrong key", "INV", {{85, n20("73282932000075")}}, {}},
        {"SIRET of thirteen digits", "CRE", {{85, n20("7328293200007")}}, {41}},
        {"SIRET of thirteen digits", "MOD", {{85, n20("7328293200007")}}, {41}},
        {"AGRSA with a free column 8", "CRE", {identifiant("EAGRSA", "9761234X")}, {}},
        {"AGRSA of 975", "CRE", {identifiant("EAGRSA", "9751234X")}, {184}},
        {"AGRSA of Corsica", "CRE", {identifiant("EAGRSA", "2A12345")}, {}},
        // The end date.
        {"no end", "CRE", {{113, SANS_DATE}}, {}},
        {"ends as it starts", "CRE", {{113, "01022024"}}, {}},
        {"ends on the record's day", "MOD", {{113, "15032024"}}, {}},
        {"ends before 2024", "CRE", {{113, "31122023"}}, {149}},
        {"end without its day", "CRE", {{113, "  032024"}}, {175}},
        {"end without day and month", "CRE", {{113, "    2024"}}, {175, 149}},
        {"start without its day", "CRE", {{105, "  022024"}}, {174}},
        {"dates of an inventory", "INV", {{105, "????????????????"}}, {}},
        {"columns 121 to 230", "CRE", {{121, std::string(110, '?')}}, {}},
    });
    // clang-format on
}

TEST(Asso, ExploitationSelonGenre) {
    remplir(valEnteteVSE[E8], "078IPG  ");
    // Of "E" only the first character counts.
    for (const char* c4 : {"E", "EX"}) {
        SCOPED_TRACE(c4);
        placer(c4, "SIRET");
        prouverChamps(asso_fC2_1, "035IPG  ",
                      {{"78123456    ", true},
                       {"78", true},
                       {"35123456    ", false},
                       {SANS_NUMERO, false},
                       {"", false}});
        prouverChamps(asso_fC2_2, "unread",
                      {{"78123456    ", true},
                       {"35123456    ", true},
                       {"97612345    ", true},
                       {"97512345    ", false},
                       {"7812345     ", false},
                       {"781234567   ", false},
                       {"78123456   ", false},
                       {SANS_NUMERO, false},
                       {"", false}});
    }
    for (const char* c4 : {"D", "e", " ", "DE", ""}) {
        SCOPED_TRACE(c4);
        placer(c4, "SIRET");
        prouverChamps(asso_fC2_1, "078IPG  ", {{"35123456    ", true}, {SANS_NUMERO, true}, {"", true}});
        prouverChamps(asso_fC2_2, "unread", {{"7812345     ", true}, {SANS_NUMERO, true}, {"", true}});
    }
    placer("E", "SIRET");
    remplir(valEnteteVSE[E8], "POINTFOC");
    EXPECT_TRUE(accepte(asso_fC2_1, "", "35123456    "));
    remplir(valEnteteVSE[E8], "02AIPG  ");
    EXPECT_TRUE(accepte(asso_fC2_1, "", "20123456    "));
    EXPECT_FALSE(accepte(asso_fC2_1, "", "2A123456    "));
}

TEST(Asso, TypeSelonGenre) {
    const struct {
        const char* type;
        bool d, e;
    } cas[] = {
        // clang-format off
        {"SIREN", true,  false}, {"AGRIN", true,  false},
        {"SIRET", false, true},  {"AGRIT", false, true}, {"AGRSA", false, true},
        {"CEM  ", false, true},  {"CEM12", false, true}, {"CEM",   false, true},
        {"SIRENX", true, false}, {"SIRETX", false, true},  // five characters count
        {"SIRE ", false, false}, {"SIRE",  false, false}, {"siren", false, false}, {"cem  ", false, false},
        {"SIREX", false, false}, {"SIRE?", false, false}, {"AGRI?", false, false}, {"AGRSX", false, false},
        {"CE   ", false, false}, {"CE",    false, false}, {" CEM ", false, false}, {"     ", false, false},
        {"",      false, false},
        // clang-format on
    };
    for (const auto& c : cas) {
        // The type is read from the field store, not from the field handed over.
        placer("D", c.type);
        EXPECT_EQ(accepte(asso_fC5, "", "?????"), c.d) << "D " << c.type;
        placer("DE", c.type);
        EXPECT_EQ(accepte(asso_fC5, "", "?????"), c.d) << "DE " << c.type;
        placer("E", c.type);
        EXPECT_EQ(accepte(asso_fC5, "", "?????"), c.e) << "E " << c.type;
        for (const char* autre : {"X", "d", "e", " ", ""}) {
            placer(autre, c.type);
            EXPECT_FALSE(accepte(asso_fC5, "", c.type)) << "'" << autre << "' " << c.type;
        }
    }
}

TEST(Asso, Siren) {
    const std::vector<verdict> forme = chiffresPuisBlancs("732829320");
    prouverForme("key", asso_fC6_1, "SIREN", forme);
    prouverForme("no key", asso_fC6_1_INV, "SIREN", forme);
    // The key: any other last digit, and two digits exchanged.
    placer("D", "SIREN");
    for (const char* faux : {"732829321", "732829329", "372829320", "732829230"}) {
        EXPECT_FALSE(accepte(asso_fC6_1, "", n20(faux))) << faux;
        EXPECT_TRUE(accepte(asso_fC6_1_INV, "", n20(faux))) << faux;
    }
    EXPECT_TRUE(accepte(asso_fC6_1, "", n20("000000000")));
    // A correct key over more columns is none over nine.
    EXPECT_FALSE(accepte(asso_fC6_1, "", n20("73282932000074")));
    EXPECT_FALSE(accepte(asso_fC6_1_INV, "", n20("73282932000074")));
}

TEST(Asso, Siret) {
    const std::vector<verdict> forme = chiffresPuisBlancs("73282932000074");
    prouverForme("key", asso_fC6_2, "SIRET", forme);
    prouverForme("no key", asso_fC6_2_INV, "SIRET", forme);
    placer("E", "SIRET");
    for (const char* faux : {"73282932000075", "37282932000074", "73282932100074", "73282932000047"}) {
        EXPECT_FALSE(accepte(asso_fC6_2, "", n20(faux))) << faux;
        EXPECT_TRUE(accepte(asso_fC6_2_INV, "", n20(faux))) << faux;
    }
    EXPECT_FALSE(accepte(asso_fC6_2, "", n20("732829320")));
    EXPECT_FALSE(accepte(asso_fC6_2_INV, "", n20("732829320")));
}

TEST(Asso, NumerosAgricoles) {
    prouverForme("AGRIN", asso_fC6_3, "AGRIN",
                 {
                     {n20("A12345678"), true},
                     {n20("Z00000000"), true},
                     {n20("a12345678"), false},
                     {n20("@12345678"), false},  // the neighbours of A and Z
                     {n20("[12345678"), false},
                     {n20("112345678"), false},
                     {n20(" 12345678"), false},
                     {n20("AB2345678"), false},
                     {n20("A1234567"), false},
                     {n20("A1234567X"), false},
                     {n20("A123456789"), false},
                     {n20("A12345678          0"), false},
                     {n20("A12345678901"), false},
                     {"A12345678          ", false},  // cut by the end of the record
                     {"A12345678", false},
                     {"A", false},
                     {"", false},
                 });
    prouverForme("AGRIT", asso_fC6_4, "AGRIT",
                 {
                     {n20("A12345678901"), true},
                     {n20("Z00000000000"), true},
                     {n20("a12345678901"), false},
                     {n20("@12345678901"), false},
                     {n20("[12345678901"), false},
                     {n20("112345678901"), false},
                     {n20("AB2345678901"), false},
                     {n20("A1234567890"), false},
                     {n20("A1234567890X"), false},
                     {n20("A123456789012"), false},
                     {n20("A12345678901       0"), false},
                     {n20("A12345678"), false},
                     {"A12345678901       ", false},
                     {"A12345678901", false},
                     {"A", false},
                     {"", false},
                 });
}

TEST(Asso, AgrementSanitaire) {
    prouverForme("AGRSA", asso_fC6_5, "AGRSA",
                 {
                     {n20("7812345"), true},
                     {n20("7812345X"), true},  // column 8 is free
                     {n20("78ABCDE"), true},   // columns 3 to 7 only hold no blank
                     {n20("01-----?"), true},
                     {n20("2112345"), true},
                     {n20("9512345"), true},
                     {n20("2A12345"), true},
                     {n20("2B12345X"), true},
                     {n20("2C12345"), false},
                     {n20("2a12345"), false},
                     {n20("2012345"), false},  // listed, but no approval numbers
                     {n20("9812345"), false},
                     {n20("9912345"), false},
                     {n20("0012345"), false},
                     {n20("9701234"), false},
                     {n20("9711234"), true},
                     {n20("9721234"), true},
                     {n20("9731234"), true},
                     {n20("9741234"), true},
                     {n20("9751234"), false},
                     {n20("9761234"), true},
                     {n20("9761234X"), true},
                     {n20("9771234"), false},
                     {n20("97A1234"), false},
                     {n20("78123 5"), false},
                     {n20("781234"), false},
                     {n20(" 812345"), false},
                     {n20("2A123 5"), false},
                     {n20("2A1234"), false},
                     {n20("781234567"), false},
                     {n20("2A1234567"), false},
                     {n20("97612345X"), false},
                     {n20("7812345            0"), false},
                     {n20(""), false},
                     {"7812345            ", false},  // cut by the end of the record
                     {"7812345 ", false},
                     {"7812345", false},
                     {"2A", false},
                     {"7", false},
                     {"", false},
                 },
                 TD);
    // Corsica needs no list; every other department does.
    placer("E", "AGRSA");
    EXPECT_TRUE(accepte(asso_fC6_5, "", n20("2A12345"), sansListe));
    EXPECT_TRUE(accepte(asso_fC6_5, "", n20("2B12345"), sansListe));
    EXPECT_FALSE(accepte(asso_fC6_5, "", n20("7812345"), sansListe));
    EXPECT_FALSE(accepte(asso_fC6_5, "", n20("9711234"), sansListe));
    const liste exclus = {{"20", "98"}};
    EXPECT_FALSE(accepte(asso_fC6_5, "", n20("2012345"), exclus));
    EXPECT_FALSE(accepte(asso_fC6_5, "", n20("9812345"), exclus));
}

TEST(Asso, Cem) {
    const std::vector<verdict> cas = {
        {n20("ABC1234"), true},
        {n20("abc1234"), true},
        {n20("1234567"), true},
        {n20("zZaA909"), true},
        {n20("ABC123"), false},
        {n20("ABC123-"), false},
        {n20(" BC1234"), false},
        {n20("AB 1234"), false},
        {n20("ABC123\xE9"), false},
        {n20("ABC12345"), false},
        {n20("ABC1234            0"), false},
        {n20(""), false},
        {"ABC1234            ", false},  // cut by the end of the record
        {"ABC1234", false},
        {"A", false},
        {"", false},
    };
    prouverForme("CEM", asso_fC6_6, "CEM  ", cas);
    // Three characters make the type.
    for (const char* type : {"CEM", "CEM12"}) {
        placer("E", type);
        prouverChamps(asso_fC6_6, "", cas);
    }
}

TEST(Asso, DateDeFin) {
    const char* const DEBUT = "15032024";
    prouverChamps(asso_fC8_1, "unread",
                  {{SANS_DATE, true},
                   {"29022024", true},
                   {"29022023", false},
                   {"01011900", true},
                   {"31121899", false},
                   {"  032024", false},
                   {"        X", false},  // more and less than eight blanks
                   {"       ", false},
                   {"NORMABEV", false},
                   {"NORM01  ", false},
                   {"1503202", false},
                   {"", false}});
    prouverChamps(asso_fC8_2, DEBUT,
                  {{SANS_DATE, true},
                   {"15032024", true},
                   {"16032024", true},
                   {"01012025", true},
                   {"14032024", false},
                   {"31122023", false},
                   {"  032024", false},  // blanks count as zeros
                   {"  042024", true},
                   {"NORMABEV", true},  // its year reads "ABEV"
                   {"       ", false},
                   {"", false}});
    prouverChamps(asso_fC8_3, DEBUT,
                  {{SANS_DATE, true},
                   {"15032024", true},
                   {"14032024", true},
                   {"31122023", true},
                   {"16032024", false},
                   {"01012025", false},
                   {"  032024", true},
                   {"  042024", false},
                   {"NORMABEV", false},
                   {"", true}});
}
