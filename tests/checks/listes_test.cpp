/**
 * listes - membership of value lists, absence of blanks, emptiness and the
 * form of foreign numbers. That every stored list behaves so is tested beside
 * the lists' contents.
 */
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "checks/listes.h"
#include "checks/valautorise.h"
#include "support/champ.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace {

using namespace quilvane;
using essai::accepte;

const std::vector<std::string> CODES_SPECIAUX = {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "};

/** Texts near the special codes that are none of them. */
const std::vector<std::string> PRESQUE_SPECIAUX = {
    "NORMABE",
    "NORMABEV ",
    "NORMABEW",
    "normabev",
    "NORM01",
    "NORM01 ",
    "NORM01   ",
    "NORM02",
    "NORM03  ",
    "NORM00  ",
    "PFOC01",
    "PFOC02  ",
    "PFOC01   ",
    "PFOC01 x",
    " NORM01 ",
    "POINTFOC",
    "NORM\xE9"
    "1  ",
    "OVINFOS ",
};

/** A verdict expected of one text. */
struct cas {
    const char* champ;
    bool attendu;
};

const std::string douze(12, ' ');
const std::string etoiles(12, '*');

TEST(ListesVerifValAut, EgaliteEntiere) {
    // What is behind a terminator is no part of the entry.
    const liste onze = {{"FR", "A", "ABCDEFGH", "ABCDEFGHI", "ABCDEFGHIJ  ", "\xE9t\xE9", "  ",
                         "abcdef\xE9\0Y",
                         // and a list long enough to be searched by keys
                         "zz1", "zz2", "zz3"}};
    const liste huit = {
        {"FR", "A", "ABCDEFGH", "ABCDEFGHI", "ABCDEFGHIJ  ", "\xE9t\xE9", "  ", "abcdef\xE9\0Y"}};
    const cas rows[] = {
        {"FR", true},
        {"FR ", false},
        {"F", false},
        {"fr", false},
        {" FR", false},
        {"FRA", false},
        {"A", true},
        {"A ", false},
        {"", false},
        {"  ", true},
        {" ", false},
        {"   ", false},
        {"ABCDEFGH", true},
        {"ABCDEFG", false},
        {"ABCDEFGX", false},  // the first eight
        {"ABCDEFGHI", true},
        {"ABCDEFGHJ", false},
        {"ABCDEFGHIJ", false},  // and those behind
        {"ABCDEFGHIJ  ", true},
        {"ABCDEFGHIJ   ", false},
        {"ABCDEFGHIJ ", false},
        {"\xE9t\xE9", true},
        {"\xE9t", false},
        {"\xE9tE", false},
        {"\xC9t\xE9", false},
        {"ete", false},
        {"abcdef\xE9", true},
        {"abcdef\xE9\0X", true},
        {"abcdefi", false},
    };
    for (const cas& c : rows)
        for (const liste* l : {&huit, &onze}) {
            EXPECT_EQ(accepte(fVerifValAut, "", c.champ, *l), c.attendu) << '"' << c.champ << '"';
            EXPECT_EQ(dansListe(c.champ, *l) != 0, c.attendu) << '"' << c.champ << '"';
        }
}

TEST(ListesVerifValAut, CodesSpeciauxPassentToutesLesListes) {
    for (const liste* l : {&FR, &TD, &sansListe}) {
        for (const std::string& code : CODES_SPECIAUX) {
            EXPECT_TRUE(accepte(fVerifValAut, "", code, *l)) << l->nombre() << ' ' << code;
            EXPECT_TRUE(dansListe(code.c_str(), *l)) << l->nombre() << ' ' << code;
            EXPECT_FALSE(dansListeStricte(code.c_str(), *l)) << l->nombre() << ' ' << code;
        }
        for (const std::string& texte : PRESQUE_SPECIAUX)
            EXPECT_FALSE(accepte(fVerifValAut, "", texte, *l)) << l->nombre() << ' ' << texte;
    }
}

TEST(ListesVerifValAut, ListeVideRefuseTout) {
    for (const char* texte : {"FR", "", " "})
        EXPECT_FALSE(accepte(fVerifValAut, "", texte, sansListe)) << texte;
}

TEST(ListesVerifValAut, DependanceSansEffet) {
    EXPECT_TRUE(accepte(fVerifValAut, "FR", "FR", FR));
    EXPECT_FALSE(accepte(fVerifValAut, "DE", "DE", FR));
    EXPECT_FALSE(accepte(fVerifValAut, "NORM01  ", "DE", FR));
}

TEST(ListesVerifDiffNull, RefuseLesEntrees) {
    const std::string onze(11, ' ');
    EXPECT_FALSE(accepte(fVerifDiffNull, "", douze, DouzeBlancs));
    for (const std::string& champ :
         {onze, onze + "A", onze + "*", "A" + onze, douze + " ", etoiles, std::string()})
        EXPECT_TRUE(accepte(fVerifDiffNull, "", champ, DouzeBlancs)) << '"' << champ << '"';

    const cas rows[] = {{"T", false}, {"N", false}, {"U", true},   {"TN", true},
                        {"T ", true}, {"", true},   {"\xD4", true}};
    for (const cas& c : rows)
        EXPECT_EQ(accepte(fVerifDiffNull, "", c.champ, TOUN), c.attendu) << '"' << c.champ << '"';
}

TEST(ListesVerifDiffNull, ListeVideAccepteTout) {
    for (const std::string& champ : {std::string(), douze, std::string("FR")})
        EXPECT_TRUE(accepte(fVerifDiffNull, "", champ, sansListe)) << champ;
}

TEST(ListesVerifDiffNull, CodesSpeciauxSansFaveur) {
    const liste speciaux = {{"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "}};
    for (const std::string& code : CODES_SPECIAUX) {
        EXPECT_FALSE(accepte(fVerifDiffNull, "", code, speciaux)) << code;
        EXPECT_TRUE(accepte(fVerifDiffNull, "", code, HuitBlancs)) << code;
    }
}

// The blank lists that say "must be filled": the blanks of their width alone are refused.
TEST(ListesVerifDiffNull, ListesDeBlancs) {
    const struct {
        const liste* blanche;
        std::size_t largeur;
    } listes[] = {{&DouzeBlancs, 12}, {&cinqBlancs, 5},    {&quatreBlancs, 4},   {&quatorzeBlancs, 14},
                  {&vingtBlancs, 20}, {&trenteBlancs, 30}, {&soixanteBlancs, 60}};
    for (const auto& l : listes)
        for (std::size_t n = 0; n <= 61; ++n)
            EXPECT_EQ(accepte(fVerifDiffNull, "", std::string(n, ' '), *l.blanche), n != l.largeur)
                << l.largeur << ": " << n;
}

TEST(ListesDebut, PremiersCaracteresSeuls) {
    const liste trois = {{"02Axyz", "ABCDEFGHIJ", "Z"}};
    const struct {
        const char* texte;
        int n;
        bool attendu;
    } rows[] = {
        {"02Abcd", 3, true},    {"02A", 3, true},      {"02", 3, false}, {"02", 2, true},
        {"02Bxyz", 3, false},   {"02a", 3, false},     {"", 3, false},   {"ABCDEFGHzz", 8, true},
        {"ABCDEFGz", 8, false}, {"ABCDEFGz", 7, true}, {"Z", 3, true},   {"Z1", 3, false},
        {"Z1", 1, true},        {"\xE9", 1, false},
    };
    for (const auto& r : rows)
        EXPECT_EQ(debutDansListe(r.texte, trois, r.n) != 0, r.attendu) << r.texte << ' ' << r.n;
    EXPECT_FALSE(debutDansListe("02A", sansListe, 3));
    EXPECT_FALSE(debutDansListe("ABC", liste{{"02Axyz"}}, 3));
    for (const std::string& code : CODES_SPECIAUX)
        EXPECT_FALSE(debutDansListe(code.c_str(), trois, 3)) << code;
}

// The three checks of blanks side by side: _SD, _SDN and the strict one.
TEST(ListesAucunBlanc, TroisFormes) {
    struct {
        std::string champ;
        bool strict, sd, sdn;
    } const rows[] = {
        {"", true, true, true},
        {" ", false, false, false},
        {std::string(11, ' '), false, false, false},
        {douze, false, false, true},
        {std::string(13, ' '), false, false, false},
        {etoiles, true, true, true},
        {"AB12", true, true, true},
        {"AB12    ", false, true, true},
        {"AB12        ", false, true, true},
        {"A           ", false, true, true},
        {"AB 12   ", false, false, false},
        {"AB 12", false, false, false},
        {"A B", false, false, false},
        {" AB12", false, false, false},
        {" AB12   ", false, false, false},
        {"           A", false, false, false},
        {"****** *****", false, false, false},
        {"ab\tc", true, true, true},  // only character 32 is a blank
        {"\t", true, true, true},
        {"\xA0", true, true, true},
        {"\xE9t\xE9   ", false, true, true},
        {"\xE9 \xE9", false, false, false},
        {"NORMABEV", true, true, true},
        {"NORM01  ", false, true, true},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message() << '"' << r.champ << '"');
        EXPECT_EQ(accepte(fVerifAucunBlanc, "", r.champ), r.strict);
        EXPECT_EQ(accepte(fVerifAucunBlanc_SD, "", r.champ), r.sd);
        EXPECT_EQ(accepte(fVerifAucunBlanc_SDN, "", r.champ), r.sdn);
    }
}

// A blank at any one column, with and without trailing blanks behind.
TEST(ListesAucunBlanc, BlancAChaqueColonne) {
    for (std::size_t fin = 1; fin <= 12; ++fin)
        for (std::size_t col = 0; col < fin; ++col) {
            std::string champ(fin, 'A');
            champ[col] = ' ';
            const bool enQueue = col + 1 == fin && fin > 1;
            EXPECT_FALSE(accepte(fVerifAucunBlanc, "", champ)) << '"' << champ << '"';
            champ.resize(12, ' ');
            const bool toutBlanc = fin == 1;
            EXPECT_EQ(accepte(fVerifAucunBlanc_SD, "", champ), enQueue) << '"' << champ << '"';
            EXPECT_EQ(accepte(fVerifAucunBlanc_SDN, "", champ), enQueue || toutBlanc) << '"' << champ << '"';
        }
}

TEST(ListesNumEtranger, FormeEtPays) {
    struct {
        const char* dependance;
        const char* champ;
        bool attendu;
    } const rows[] = {
        {"DE", "DE1234567890", false},  //
        {"DE", "BE1234567890", true},
        {"DE", "ABCXYZ012789", true},
        {"DE", "1234567890DE", true},  // the country further behind
        {"DE", "DF1234567890", true},
        {"DE", "EE1234567890", true},
        {"DE", "ED1234567890", true},
        {"DE", "A           ", true},
        {"DE", "D           ", true},
        {"DE", "DE          ", false},
        {"DE", "AB12        ", true},
        {"DE", "0", true},
        {"DE", "D", true},
        {"DE", "", false},
        {"DE", " ", false},
        {"DE", "            ", false},
        {"DE", "************", false},
        {"DE", "AB 12       ", false},
        {"DE", " AB12       ", false},
        {"DE", "ab1234567890", false},
        {"DE", "AB123456789z", false},
        {"DE", "AB12345678-0", false},
        {"DE", "A@B", false},  // the neighbours of '0'..'9' and 'A'..'Z'
        {"DE", "A[B", false},
        {"DE", "A/B", false},
        {"DE", "A:B", false},
        {"DE", "A`B", false},
        {"DE", "A9Z0", true},
        {"DE", "AB12\xE9", false},
        {"DE",
         "\xC9"
         "B12",
         false},
        {"DE", "NORMABEV", true},  // as any capitals
        {"DE", "NORM01  ", true},
        {"NO", "NORM01  ", false},  // no favour for the special codes
        {"NO", "NORMABEV", false},
        {"PF", "PFOC01  ", false},
        {"de", "DE12", true},
        {"", "DE12", true},
        {"", "", false},
        {"D", "DE12", true},
        {"D", "D", false},
        {"DEX", "DE12", false},  // two characters of the country count
        {"  ", "AB12", true},
        {"\xC9"
         "A",
         "AB12", true},
    };
    for (const auto& r : rows)
        EXPECT_EQ(accepte(fVerifNumEtranger, r.dependance, r.champ), r.attendu)
            << '"' << r.dependance << "\" \"" << r.champ << '"';
}

TEST(ListesNumEtranger, ChaqueOctetAChaqueColonne) {
    for (std::size_t col = 0; col < 12; ++col)
        for (int octet = 1; octet < 256; ++octet) {
            std::string champ = "AB12345678CD";
            champ[col] = static_cast<char>(static_cast<unsigned char>(octet));
            const bool bon = (octet >= 48 && octet <= 57) || (octet >= 65 && octet <= 90);
            const bool queue = octet == 32 && col == 11;
            EXPECT_EQ(accepte(fVerifNumEtranger, "DE", champ), bon || queue) << col + 1 << ' ' << octet;
        }
}

// The optional forms let twelve blanks, twelve asterisks and the special codes
// through, and are otherwise the check that they wrap.
TEST(ListesOptionnels, OuvertsSinonCommeLEnveloppe) {
    for (const std::string& ouvert :
         {douze, etoiles, CODES_SPECIAUX[0], CODES_SPECIAUX[1], CODES_SPECIAUX[2], CODES_SPECIAUX[3]}) {
        EXPECT_TRUE(champOuvert(ouvert.c_str())) << '"' << ouvert << '"';
        EXPECT_TRUE(accepte(fVerifAucunBlanc_SDN, "", ouvert)) << '"' << ouvert << '"';
        for (const char* pays : {"DE", "", "  ", "**", "NO", "PF"})
            EXPECT_TRUE(accepte(fVerifNumEtrangerN, pays, ouvert)) << '"' << ouvert << "\" " << pays;
    }
    const std::vector<std::string> autres = {
        "",
        " ",
        std::string(11, ' '),
        std::string(13, ' '),
        std::string(11, '*'),
        std::string(13, '*'),
        "DE12        ",
        "FR12        ",
        "AB 12       ",
        " AB12       ",
        "ab12        ",
        "AB12\xE9       ",
        "*********** ",
        " ***********",
        "NORM01",
        "NORM03  ",
        "normabev",
    };
    for (const std::string& champ : autres) {
        EXPECT_FALSE(champOuvert(champ.c_str())) << '"' << champ << '"';
        EXPECT_EQ(accepte(fVerifAucunBlanc_SDN, "", champ), accepte(fVerifAucunBlanc_SD, "", champ))
            << '"' << champ << '"';
        EXPECT_EQ(accepte(fVerifNumEtrangerN, "DE", champ), accepte(fVerifNumEtranger, "DE", champ))
            << '"' << champ << '"';
    }
    EXPECT_FALSE(accepte(fVerifNumEtrangerN, "DE", "DE12        "));
    EXPECT_TRUE(accepte(fVerifNumEtrangerN, "DE", "BE12        "));
    EXPECT_FALSE(accepte(fVerifNumEtrangerN, "DE", std::string(11, ' ')));
    EXPECT_FALSE(accepte(fVerifNumEtrangerN, "DE", ""));
    EXPECT_FALSE(accepte(fVerifAucunBlanc_SDN, "", "AB 12       "));
}

TEST(ListesChampVide, VideOuBlanc) {
    const cas rows[] = {
        {"", true},     {" ", true},     {"            ", true}, {"A", false},   {"A  ", false},
        {"  A", false}, {" A ", false},  {"\t", false},          {" \t", false}, {"*", false},
        {"0", false},   {"\xA0", false}, {"  \xE9", false},
    };
    for (const cas& c : rows) {
        const std::vector<char> exact(c.champ, c.champ + std::strlen(c.champ) + 1);
        EXPECT_EQ(champVide(exact.data()), c.attendu ? 1 : 0) << '"' << c.champ << '"';
    }
}

// No check of this family writes into its field.
TEST(Listes, ChampInchange) {
    fVerif* const verifs[] = {fVerifValAut,         fVerifDiffNull,    fVerifAucunBlanc,  fVerifAucunBlanc_SD,
                              fVerifAucunBlanc_SDN, fVerifNumEtranger, fVerifNumEtrangerN};
    for (fVerif* verif : verifs)
        for (const std::string& champ : {std::string("AB12    "), std::string(" A B  "), douze, etoiles}) {
            std::string apres;
            accepte(verif, "DE", champ, FR, &apres);
            EXPECT_EQ(apres, champ);
        }
}

}  // namespace
