/**
 * textes.h - what holds for every text that people read.
 */
#ifndef QUILVANE_TESTS_CATALOGUE_TEXTES_H
#define QUILVANE_TESTS_CATALOGUE_TEXTES_H

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "catalogue/texte.h"

namespace essai {

/** The characters of a UTF-8 text, -1 when it is none. */
inline int caracteresUTF8(std::string_view texte) {
    int n = 0;
    for (std::size_t i = 0; i < texte.size(); ++n) {
        const auto c = static_cast<unsigned char>(texte[i]);
        const int suite = c < 0x80 ? 0 : c >= 0xC2 && c < 0xE0 ? 1 : c >= 0xE0 && c < 0xF0 ? 2 : -1;
        if (suite < 0 || c < 0x20 || c == 0x7F) return -1;
        ++i;
        for (int k = 0; k < suite; ++k, ++i)
            if (i == texte.size() || (static_cast<unsigned char>(texte[i]) & 0xC0) != 0x80) return -1;
    }
    return n;
}

/** Both languages are there, differ, are UTF-8 without stray blanks. */
inline void attendreTexte(const quilvane::texte& t, const std::string& de) {
    for (const char* langue : {t.fr, t.en}) {
        ASSERT_NE(langue, nullptr) << de;
        const std::string_view s = langue;
        ASSERT_FALSE(s.empty()) << de;
        EXPECT_GT(caracteresUTF8(s), 0) << de << ": " << s;
        EXPECT_EQ(s.find("  "), std::string_view::npos) << de << ": " << s;
        EXPECT_NE(s.front(), ' ') << de;
        EXPECT_NE(s.back(), ' ') << de;
    }
    EXPECT_STRNE(t.fr, t.en) << de;
}

/** The same, and both are sentences: a capital first, a stop last. */
inline void attendrePhrase(const quilvane::texte& t, const std::string& de) {
    attendreTexte(t, de);
    for (const std::string_view s : {std::string_view(t.fr), std::string_view(t.en)}) {
        EXPECT_TRUE(s.front() >= 'A' && s.front() <= 'Z') << de << ": " << s;
        EXPECT_EQ(s.back(), '.') << de << ": " << s;
    }
}

}  // namespace essai

#endif
