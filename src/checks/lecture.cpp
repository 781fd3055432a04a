#include "checks/lecture.h"

namespace quilvane {

long long nombre(const char* texte, int col, int largeur) {
    constexpr long long PLAFOND = 100'000'000'000'000'000;  // 18 digits; one more and a sum of two still fit
    const char* const p = aPartirDe(texte, col);
    int n = 0;  // the terminator ends every loop before the width does
    while (n < largeur && (p[n] == ' ' || (p[n] >= '\t' && p[n] <= '\r')))
        ++n;
    bool negatif = false;
    if (n < largeur && (p[n] == '+' || p[n] == '-')) negatif = p[n++] == '-';
    long long valeur = 0;
    for (; n < largeur && estChiffre(p[n]); ++n) {
        valeur = valeur * 10 + (p[n] - '0');
        if (valeur >= PLAFOND) {
            valeur = PLAFOND;
            break;
        }
    }
    return negatif ? -valeur : valeur;
}

namespace {

/** Spells the number of a date out. */
void ecrire(std::uint64_t ordre, char* texte) {
    for (int i = 0; i < 8; ++i)
        texte[i] = static_cast<char>(ordre >> (56 - 8 * i));
    texte[8] = '\0';
}

}  // namespace

dateInversee::dateInversee(const char* jjmmaaaa) {
    std::uint64_t date = 0;
    int n = 0;
    for (; n < 8 && jjmmaaaa[n] != '\0'; ++n)
        date |= std::uint64_t{static_cast<unsigned char>(jjmmaaaa[n])} << (56 - 8 * n);
    ordre = date << 32;  // the year; nothing follows one that is cut
    if (n == 8) ordre |= (date >> 16 & 0xFFFF0000) | date >> 48;
    ecrire(ordre, texte);
}

void dateInversee::blancsEnZeros() {
    // All bytes at once. A byte that differs from a blank in one of its lower
    // seven bits carries into its highest bit; `ecart` itself shows those that
    // differ there (0xA0). A blank becomes a '0' by its bit 4.
    constexpr std::uint64_t HAUT = 0x8080808080808080;
    const std::uint64_t ecart = ordre ^ 0x2020202020202020;
    const std::uint64_t blancs = ~((ecart & ~HAUT) + ~HAUT) & ~ecart & HAUT;
    ordre |= blancs >> 3;
    ecrire(ordre, texte);
}

}  // namespace quilvane
