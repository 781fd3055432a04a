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

dateInversee::dateInversee(const char* jjmmaaaa) {
    constexpr int ORDRE[8] = {4, 5, 6, 7, 2, 3, 0, 1};  // year, month, day
    const auto presents = static_cast<int>(strnlen(jjmmaaaa, 8));
    int n = 0;
    while (n < 8 && ORDRE[n] < presents) {
        texte[n] = jjmmaaaa[ORDRE[n]];
        ++n;
    }
    texte[n] = '\0';
}

void dateInversee::blancsEnZeros() {
    for (char* p = texte; *p != '\0'; ++p)
        if (*p == ' ') *p = '0';
}

}  // namespace quilvane
