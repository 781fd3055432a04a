/**
 * Names: which are taken, how they are numbered, how any bytes are shown.
 */
#include "lot/noms.h"

#include <gtest/gtest.h>

using namespace quilvane::lot;

TEST(NomsLot, Prenables) {
    for (const char* nom : {"a", "a.vse", "part", "a.part.vse", "-a", "a b", "\xff", "a\n", "tmp", "a.partx"})
        EXPECT_TRUE(estPrenable(nom)) << nom;
    for (const char* nom : {"", ".", ".a", "a.part", "a.PART", "a.tmp", "a.Tmp", "a.filepart", ".tmp"})
        EXPECT_FALSE(estPrenable(nom)) << nom;
}

TEST(NomsLot, Numeros) {
    EXPECT_EQ(nomNumerote("a.vse", 0), "a.vse");
    EXPECT_EQ(nomNumerote("a.vse", 2), "a.2.vse");
    EXPECT_EQ(nomNumerote("a.vse", 2, ".txt"), "a.2.vse.txt");
    EXPECT_EQ(nomNumerote("a", 1), "a.1");
    EXPECT_EQ(nomNumerote("a.b.c", 10), "a.b.10.c");
    EXPECT_EQ(nomNumerote("a.", 1), "a.1.");
    // Too long for an extension: it belongs to the stem.
    EXPECT_EQ(nomNumerote("a.bcdefghijklmnopqr", 1), "a.bcdefghijklmnopqr.1");
}

TEST(NomsLot, NomsLongs) {
    const std::string nom = std::string(251, 'x') + ".vse";
    EXPECT_EQ(nomNumerote(nom, 0), nom);
    const std::string coupe = nomNumerote(nom, 1);
    EXPECT_LE(coupe.size() + std::string(".raison.txt").size(), NOM_MAX);
    EXPECT_TRUE(coupe.ends_with("x.1.vse"));
    EXPECT_EQ(nomNumerote(nom, 1, ".raison.txt"), coupe + ".raison.txt");
    EXPECT_EQ(nomNumerote(nom, 0, ".raison.txt").size(), NOM_MAX);
    // No character is cut in two.
    for (int decalage = 0; decalage < 3; ++decalage) {
        std::string accents(static_cast<std::size_t>(decalage), 'x');
        while (accents.size() < 250)
            accents += "\xC3\xA9";
        EXPECT_TRUE(estUtf8(nomNumerote(accents, 12, ".txt")));
    }
}

TEST(NomsLot, Utf8) {
    for (const char* s :
         {"", "a", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x90\x84", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(estUtf8(s)) << s;
    for (const char* s : {"\xE9", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\x80", "\xC3(", "\xE2\x82"})
        EXPECT_FALSE(estUtf8(s)) << s;
}

TEST(NomsLot, Montrables) {
    EXPECT_EQ(montrable("a\xC3\xA9 b"), "a\xC3\xA9 b");
    EXPECT_EQ(montrable("a\n\x1b[31m\x7f\xE9"), "a\\x0a\\x1b[31m\\x7f\\xe9");
    EXPECT_EQ(montrable("\xC2\x9B"
                        "31m"),
              "\\xc2\\x9b31m");
    EXPECT_EQ(depuisLatin1("\xE9t\xE9"), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(hexadecimal("\x01\xff"), "01ff");
}
