/**
 * lecture.h - small readers of fixed columns, the words in which the checks
 * are written.
 *
 * Columns are numbered from 1. No reader looks behind a text's terminator: a
 * character that is not there is no digit, no blank and no letter. Letters
 * and digits are those of ASCII; texts are compared as unsigned bytes.
 */
#ifndef QUILVANE_CHECKS_LECTURE_H
#define QUILVANE_CHECKS_LECTURE_H

#include <cstdint>
#include <cstring>

namespace quilvane {

constexpr bool estChiffre(char c) { return c >= '0' && c <= '9'; }
constexpr bool estMajuscule(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool estLettre(char c) { return estMajuscule(c) || (c >= 'a' && c <= 'z'); }
constexpr bool estLettreOuChiffre(char c) { return estLettre(c) || estChiffre(c); }

/** The text from column `col` on; empty when the text ends before it. */
inline const char* aPartirDe(const char* texte, int col) {
    if (col > 32) return texte + strnlen(texte, static_cast<std::size_t>(col - 1));
    while (--col > 0 && *texte != '\0')
        ++texte;
    return texte;
}

/** The character of column `col`, a zero when the text ends before it. */
inline char carac(const char* texte, int col) { return *aPartirDe(texte, col); }

/** Whether columns `de` to `a` are there and all satisfy `test`. */
template <typename Test>
bool tous(const char* texte, int de, int a, Test test) {
    const char* p = aPartirDe(texte, de);
    for (int col = de; col <= a; ++col, ++p)
        if (*p == '\0' || !test(*p)) return false;
    return true;
}

/** Whether columns `de` to `a` are all digits, all blanks. */
inline bool chiffres(const char* texte, int de, int a) { return tous(texte, de, a, estChiffre); }
inline bool blancs(const char* texte, int de, int a) {
    return tous(texte, de, a, [](char c) { return c == ' '; });
}

/** Whether a blank stands in columns `de` to `a`. */
inline bool contientBlanc(const char* texte, int de, int a) {
    const char* p = aPartirDe(texte, de);
    for (int col = de; col <= a && *p != '\0'; ++col, ++p)
        if (*p == ' ') return true;
    return false;
}

// The texts are a few characters long and mostly differ in the first one: a
// plain loop is faster here than the platform's comparison.

/** Whether the whole texts are equal. */
inline bool egal(const char* a, const char* b) {
    for (; *a == *b; ++a, ++b)
        if (*a == '\0') return true;
    return false;
}

/** The same for a literal: its length is known, so that the compiler spells
 *  the comparison out. `b` must fill its array. */
template <std::size_t N>
bool vaut(const char* a, const char (&b)[N]) {
    for (std::size_t i = 0; i < N; ++i)
        if (a[i] != b[i]) return false;
    return true;
}

/** Whether the text is exactly eight blanks: a date, model or number left blank. */
inline bool huitBlancs(const char* texte) { return vaut(texte, "        "); }

/** Whether the texts, each cut after `n` characters, are equal. */
inline bool memeDebut(const char* a, const char* b, int n) {
    for (; n > 0 && *a == *b; --n, ++a, ++b)
        if (*a == '\0') return true;
    return n == 0;
}

/** The number in two columns that hold digits. */
constexpr int deuxChiffres(const char* p) { return (p[0] - '0') * 10 + (p[1] - '0'); }

/** Whether the first `n` characters, compared as text, lie in `bas`..`haut`. */
inline bool entre(const char* texte, const char* bas, const char* haut, int n) {
    const auto largeur = static_cast<std::size_t>(n);
    return std::strncmp(texte, bas, largeur) >= 0 && std::strncmp(texte, haut, largeur) <= 0;
}

/** Whether the text is empty or made only of blanks. */
inline bool videOuBlanc(const char* texte) {
    while (*texte == ' ')
        ++texte;
    return *texte == '\0';
}

/** Index of the last character that is no blank, -1 when there is none. */
inline int dernierNonBlanc(const char* texte) {
    int i = static_cast<int>(std::strlen(texte)) - 1;
    while (i >= 0 && texte[i] == ' ')
        --i;
    return i;
}

/**
 * The number in `largeur` columns from `col` on (by default all that follow):
 * leading white space, one sign, digits up to the first non-digit. Far beyond
 * what a record's columns hold the value stops growing, so that sums of two
 * numbers never overflow.
 */
long long nombre(const char* texte, int col = 1, int largeur = 256);

/** The number in the digits from column `col` on, up to the first non-digit; 0
 *  when no digit stands there. White space and signs are no digits. */
inline long long nombreDepuis(const char* texte, int col) {
    return estChiffre(carac(texte, col)) ? nombre(texte, col) : 0;
}

/**
 * Rewrites a DDMMYYYY date as YYYYMMDD, for comparison as text. A date that
 * its record cut short ends at its first missing character.
 */
struct dateInversee {
    std::uint64_t ordre;  // the text as a number of eight bytes: both sort alike
    char texte[9];
    explicit dateInversee(const char* jjmmaaaa);
    /** An unknown day or month counts as zero. */
    void blancsEnZeros();
};

}  // namespace quilvane

#endif
