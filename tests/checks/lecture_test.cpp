/**
 * lecture - the readers of fixed columns: what they see, where they stop, and
 * that nothing behind a text's terminator is ever read.
 */
#include "checks/lecture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace quilvane;

/** A text in a buffer of its exact length, so that a sanitizer sees any look behind it. */
class texte {
public:
    explicit texte(const std::string& t) : octets_(t.c_str(), t.c_str() + t.size() + 1) {}
    const char* get() const { return octets_.data(); }

private:
    std::vector<char> octets_;
};

TEST(Lecture, ClassesDeCaracteresAscii) {
    const std::string minuscules = "abcdefghijklmnopqrstuvwxyz";
    const std::string majuscules = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const std::string chiffresAscii = "0123456789";
    const auto dans = [](const std::string& ensemble, char c) {
        return ensemble.find(c) != std::string::npos;
    };
    for (int octet = 0; octet < 256; ++octet) {
        SCOPED_TRACE(octet);
        const char c = static_cast<char>(static_cast<unsigned char>(octet));
        EXPECT_EQ(estChiffre(c), dans(chiffresAscii, c));
        EXPECT_EQ(estMajuscule(c), dans(majuscules, c));
        EXPECT_EQ(estLettre(c), dans(majuscules + minuscules, c));
        EXPECT_EQ(estLettreOuChiffre(c), dans(majuscules + minuscules + chiffresAscii, c));
    }
}

TEST(Lecture, PartirDUneColonne) {
    struct {
        const char* texte;
        int col;
        const char* attendu;
    } const cas[] = {
        {"ABCD", 1, "ABCD"}, {"ABCD", 2, "BCD"}, {"ABCD", 4, "D"}, {"ABCD", 5, ""},
        {"ABCD", 6, ""},     {"ABCD", 200, ""},  {"", 1, ""},      {"", 2, ""},
    };
    for (const auto& c : cas) {
        const texte t(c.texte);
        EXPECT_STREQ(aPartirDe(t.get(), c.col), c.attendu) << c.texte << " col " << c.col;
        EXPECT_EQ(carac(t.get(), c.col), c.attendu[0]) << c.texte << " col " << c.col;
    }
}

TEST(Lecture, ChaqueColonneDeChaqueLongueur) {
    for (std::size_t longueur = 0; longueur <= 70; ++longueur) {
        std::string s;
        for (std::size_t i = 0; i < longueur; ++i)
            s += static_cast<char>('!' + i);
        const texte t(s);
        for (std::size_t col = 1; col <= 75; ++col) {
            const std::string reste = col > longueur ? "" : s.substr(col - 1);
            ASSERT_EQ(aPartirDe(t.get(), static_cast<int>(col)), reste) << longueur << " col " << col;
        }
    }
}

TEST(Lecture, DeuxChiffres) {
    for (int n = 0; n < 100; ++n) {
        const char t[] = {static_cast<char>('0' + n / 10), static_cast<char>('0' + n % 10)};
        EXPECT_EQ(deuxChiffres(t), n);
    }
}

TEST(Lecture, ChiffresEtBlancsParColonnes) {
    struct {
        const char* texte;
        int de, a;
        bool chiffres, blancs, contientBlanc;
    } const cas[] = {
        {"12345678", 1, 8, true, false, false},  //
        {"1234567A", 1, 8, false, false, false},
        {"1234567A", 1, 7, true, false, false},
        {"A2345678", 2, 8, true, false, false},
        {"A2345678", 1, 8, false, false, false},
        {"1234", 1, 5, false, false, false},  // a column that is not there is no digit
        {"1234", 4, 4, true, false, false},
        {"1234", 5, 5, false, false, false},
        {"1234", 9, 12, false, false, false},
        {"", 1, 1, false, false, false},
        {"    ", 1, 4, false, true, true},
        {"    ", 1, 5, false, false, true},  // nor a blank
        {"    ", 5, 5, false, false, false},
        {"12  ", 3, 4, false, true, true},
        {"12  ", 2, 4, false, false, true},
        {"12  ", 1, 2, true, false, false},
        {"1 34", 1, 1, true, false, false},
        {"1 34", 3, 4, true, false, false},
        {"1 34", 1, 2, false, false, true},
        {"1\t34", 1, 4, false, false, false},  // a tab is no blank
        {"1\xE9\xA0", 1, 3, false, false, false},
        {"\xB2\xB3", 1, 2, false, false, false},  // superscript digits are no digits
        {"1234", 3, 2, true, true, false},        // no column at all
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(testing::Message() << '"' << c.texte << "\" " << c.de << '-' << c.a);
        const texte t(c.texte);
        EXPECT_EQ(chiffres(t.get(), c.de, c.a), c.chiffres);
        EXPECT_EQ(blancs(t.get(), c.de, c.a), c.blancs);
        EXPECT_EQ(contientBlanc(t.get(), c.de, c.a), c.contientBlanc);
    }
}

// A column that is not there satisfies no test, be it one that all characters pass.
TEST(Lecture, TousSArreteAuTerminateur) {
    const texte t("1234");
    const auto toujours = [](char) { return true; };
    EXPECT_TRUE(tous(t.get(), 1, 4, toujours));
    EXPECT_FALSE(tous(t.get(), 1, 5, toujours));
    EXPECT_FALSE(tous(t.get(), 5, 5, toujours));
    EXPECT_FALSE(tous(t.get(), 2, 3, [](char c) { return c != '3'; }));
}

TEST(Lecture, ComparaisonsDeTextes) {
    struct {
        const char* a;
        const char* b;
        int n;
        bool egal, memeDebut;
    } const cas[] = {
        {"FR", "FR", 2, true, true},       {"FR", "FR ", 2, false, true},    {"FR", "FR ", 3, false, false},
        {"FRA", "FRB", 2, false, true},    {"FRA", "FRB", 3, false, false},  {"", "", 2, true, true},
        {"", "F", 1, false, false},        {"", "F", 0, false, true},        {"F", "FR", 2, false, false},
        {"F", "F", 5, true, true},         {"fr", "FR", 2, false, false},    {"\xE9", "\xE9", 1, true, true},
        {"\xE9", "\xC9", 1, false, false}, {"FR ", "FR  ", 8, false, false},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(testing::Message() << '"' << c.a << "\" \"" << c.b << "\" " << c.n);
        const texte a(c.a);
        const texte b(c.b);
        EXPECT_EQ(egal(a.get(), b.get()), c.egal);
        EXPECT_EQ(egal(b.get(), a.get()), c.egal);
        EXPECT_EQ(memeDebut(a.get(), b.get(), c.n), c.memeDebut);
        EXPECT_EQ(memeDebut(b.get(), a.get(), c.n), c.memeDebut);
    }
}

TEST(Lecture, ComparaisonAvecUnLitteral) {
    for (const char* autre :
         {"", "E", "ER", "ERR", "ERRE ", "ERREX", "ERRF", "FRRE", "erre", "\xC5RRE", " ERRE"})
        EXPECT_FALSE(vaut(texte(autre).get(), "ERRE")) << '"' << autre << '"';
    EXPECT_TRUE(vaut(texte("ERRE").get(), "ERRE"));
    EXPECT_TRUE(vaut(texte("\xE9  ").get(), "\xE9  "));
    EXPECT_FALSE(vaut(texte("\xE9 ").get(), "\xE9  "));
    EXPECT_TRUE(vaut(texte("").get(), ""));
    EXPECT_FALSE(vaut(texte(" ").get(), ""));
}

/** A literal of each length against texts that differ from it at one place. */
template <std::size_t N>
void comparerALongueur(const char (&litteral)[N]) {
    const std::string t = litteral;
    EXPECT_TRUE(vaut(texte(t).get(), litteral)) << t;
    EXPECT_FALSE(vaut(texte(t + " ").get(), litteral)) << t;
    for (std::size_t i = 0; i < t.size(); ++i) {
        std::string autre = t;
        autre[i] = '\xE9';
        EXPECT_FALSE(vaut(texte(autre).get(), litteral)) << autre;
        EXPECT_FALSE(vaut(texte(t.substr(0, i)).get(), litteral)) << t.substr(0, i);
    }
}

TEST(Lecture, ComparaisonAvecUnLitteralDeChaqueLongueur) {
    comparerALongueur("");
    comparerALongueur("S");
    comparerALongueur("2A");
    comparerALongueur("CRE");
    comparerALongueur("FICH");
    comparerALongueur("PFO01");
    comparerALongueur("OFFICE");
    comparerALongueur("       ");
    comparerALongueur("NORMABEV");
    comparerALongueur("NORMABEV ");
    comparerALongueur("QUILVANE  ");
    comparerALongueur("ABCDEFGHIJK");
    comparerALongueur("            ");
}

TEST(Lecture, EntreDeuxBornesCommeTextes) {
    struct {
        const char* texte;
        const char* bas;
        const char* haut;
        int n;
        bool attendu;
    } const cas[] = {
        {"099999", "100000", "683499", 6, false},
        {"100000", "100000", "683499", 6, true},
        {"400000", "100000", "683499", 6, true},
        {"683499", "100000", "683499", 6, true},
        {"683500", "100000", "683499", 6, false},
        {"683499999999", "100000", "683499", 6, true},  // only the first six count
        {"683500000000", "100000", "683499", 6, false},
        {"10000", "100000", "683499", 6, false},  // a prefix of the lower bound stands before it
        {"2", "100000", "683499", 6, true},       // texts, not numbers
        {"", "100000", "683499", 6, false},
        {"5 0000", "100000", "683499", 6, true},
        {"A00000", "100000", "683499", 6, false},
        {"\xE9", "100000", "683499", 6, false},  // unsigned bytes: behind every ASCII character
        {"\xE9", "A", "\xFF", 1, true},
    };
    for (const auto& c : cas) {
        const texte t(c.texte);
        EXPECT_EQ(entre(t.get(), c.bas, c.haut, c.n), c.attendu) << '"' << c.texte << '"';
    }
}

TEST(Lecture, DernierNonBlanc) {
    struct {
        const char* texte;
        int dernier;
        bool vide;
    } const cas[] = {
        {"", -1, true},    {" ", -1, true},    {"      ", -1, true}, {"A", 0, false},
        {"A  ", 0, false}, {"  A", 2, false},  {" A B  ", 3, false}, {"*", 0, false},
        {"\t", 0, false},  {" \t ", 1, false}, {"\xA0", 0, false},   {"0   ", 0, false},
    };
    for (const auto& c : cas) {
        const texte t(c.texte);
        EXPECT_EQ(dernierNonBlanc(t.get()), c.dernier) << '"' << c.texte << '"';
        EXPECT_EQ(videOuBlanc(t.get()), c.vide) << '"' << c.texte << '"';
    }
}

TEST(Lecture, NombreLuJusquAuPremierNonChiffre) {
    struct {
        const char* texte;
        long long attendu;
    } const cas[] = {
        {"0", 0},
        {"000", 0},
        {"7", 7},
        {"007", 7},
        {"123456", 123456},
        {"12A4", 12},
        {"A12", 0},
        {"", 0},
        {"   ", 0},
        {"   42", 42},
        {"42   ", 42},
        {"4 2", 4},
        {" \t\n\v\f\r9", 9},
        {"+5", 5},
        {"-5", -5},
        {"  -12x", -12},
        {"- 5", 0},
        {"+-5", 0},
        {"--5", 0},
        {"-", 0},
        {"+", 0},
        {"-0", 0},
        {"1,5", 1},
        {"0x10", 0},
        {"1e3", 1},
        {"\xA0"
         "5",
         0},  // a no-break space is no white space
        {"\xB2", 0},
        {"5\xE9", 5},
        {"4294967297", 4294967297},                // not cut to 32 bits
        {"99999999999999999", 99999999999999999},  // seventeen digits are exact
        {"-99999999999999999", -99999999999999999},
    };
    for (const auto& c : cas) {
        const texte t(c.texte);
        EXPECT_EQ(nombre(t.get()), c.attendu) << '"' << c.texte << '"';
    }
}

TEST(Lecture, NombreSansBlancNiSigne) {
    struct {
        const char* texte;
        int col;
        long long attendu;
    } const cas[] = {
        {"7800000042", 3, 42}, {"78 0000042", 3, 0}, {"78+0000042", 3, 0}, {"78-0000042", 3, 0},
        {"78\t0000042", 3, 0}, {"7812X4", 3, 12},    {"78X", 3, 0},        {"78", 3, 0},
        {"7", 3, 0},           {"", 3, 0},           {"12 ", 1, 12},       {" 12", 1, 0},
    };
    for (const auto& c : cas) {
        const texte t(c.texte);
        EXPECT_EQ(nombreDepuis(t.get(), c.col), c.attendu) << '"' << c.texte << "\" col " << c.col;
    }
}

TEST(Lecture, NombreDansSesColonnes) {
    struct {
        const char* texte;
        int col, largeur;
        long long attendu;
    } const cas[] = {
        {"15031998", 1, 2, 15},
        {"15031998", 3, 2, 3},
        {"15031998", 5, 4, 1998},
        {"15031998", 5, 256, 1998},
        {"15031998", 8, 2, 8},
        {"15031998", 9, 2, 0},
        {"1503", 5, 4, 0},
        {"15031998", 1, 0, 0},
        {" 5031998", 1, 2, 5},
        {"  031998", 1, 2, 0},
        {"+5031998", 1, 2, 5},
        {"-5031998", 1, 2, -5},
        {"1 031998", 1, 2, 1},
        {"15  1998", 3, 4, 19},
        {"", 1, 4, 0},
        {"\xE9"
         "5",
         2, 1, 5},
    };
    for (const auto& c : cas) {
        const texte t(c.texte);
        EXPECT_EQ(nombre(t.get(), c.col, c.largeur), c.attendu)
            << '"' << c.texte << "\" col " << c.col << " largeur " << c.largeur;
    }
}

// A number too long to be exact is still the greatest, and two of them add up.
TEST(Lecture, NombreTropLongNeDebordePas) {
    const long long grand = nombre(texte(std::string(256, '9')).get());
    EXPECT_LE(grand, std::numeric_limits<long long>::max() / 2);
    EXPECT_GT(grand, 99999999999999999);
    for (std::size_t n = 18; n < 256; ++n) {
        EXPECT_EQ(nombre(texte(std::string(n, '9')).get()), grand) << n << " chiffres";
        EXPECT_EQ(nombre(texte("-" + std::string(n, '9')).get()), -grand) << n << " chiffres";
        EXPECT_EQ(nombre(texte("1" + std::string(n - 1, '0')).get()), grand) << n << " chiffres";
    }
    // Leading zeros are no digits of the number.
    EXPECT_EQ(nombre(texte(std::string(200, '0') + "12").get()), 12);
}

TEST(Lecture, DateInversee) {
    struct {
        const char* jjmmaaaa;
        const char* attendu;
        const char* blancsEnZeros;
    } const cas[] = {
        {"15031998", "19980315", "19980315"},
        {"  031998", "199803  ", "19980300"},
        {"    1998", "1998    ", "19980000"},
        {"        ", "        ", "00000000"},
        {" 503 998", " 99803 5", "09980305"},
        {"15031998XYZ", "19980315", "19980315"},
        {"ab\xE9"
         "dEFGH",
         "EFGH\xE9"
         "dab",
         "EFGH\xE9"
         "dab"},
        // A date cut short ends at its first missing character.
        {"1503199", "199", "199"},
        {"15031 9", "1 9", "109"},
        {"150319", "19", "19"},
        {"15031", "1", "1"},
        {"1503", "", ""},
        {"15", "", ""},
        {"", "", ""},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(testing::Message() << '"' << c.jjmmaaaa << '"');
        const texte t(c.jjmmaaaa);
        dateInversee d(t.get());
        EXPECT_STREQ(d.texte, c.attendu);
        d.blancsEnZeros();
        EXPECT_STREQ(d.texte, c.blancsEnZeros);
    }
}

// The number of a date sorts as its text does, whatever bytes it holds.
TEST(Lecture, DateInverseeOrdonne) {
    const auto signe = [](auto a, auto b) { return a < b ? -1 : a > b ? 1 : 0; };
    std::vector<std::string> dates = {"", "1", "15", "1503", "15031", "150319", "1503199", "        "};
    const std::string octets = " !0129/A\x10\x30\x7F\x80\xA0\xE9\xFF";
    for (std::size_t col = 0; col < 8; ++col)
        for (const char c : octets) {
            std::string d = "15031998";
            d[col] = c;
            dates.push_back(d);
        }
    for (const std::string& ta : dates) {
        for (const std::string& tb : dates) {
            dateInversee a(texte(ta).get());
            dateInversee b(texte(tb).get());
            EXPECT_EQ(signe(a.ordre, b.ordre), signe(std::strcmp(a.texte, b.texte), 0)) << ta << " / " << tb;
            a.blancsEnZeros();
            EXPECT_EQ(signe(a.ordre, b.ordre), signe(std::strcmp(a.texte, b.texte), 0)) << ta << " / " << tb;
        }
        dateInversee d(texte(ta).get());
        std::string attendu = d.texte;
        std::replace(attendu.begin(), attendu.end(), ' ', '0');
        d.blancsEnZeros();
        EXPECT_EQ(d.texte, attendu) << ta;
    }
}

}  // namespace
