#include "checks/lecture.h"

namespace quilvane {

long long nombre(const char* texte, int col, int largeur) {
    constexpr long long PLAFOND = 100'000'000'000'000'000;  // 18 digits; one more and a sum of two still fit
    const char* p = aPartirDe(texte, col);
    const char* const bout = p + strnlen(p, static_cast<std::size_t>(largeur));
    while (p < bout && (*p == ' ' || (*p >= '\t' && *p <= '\r')))
        ++p;
    bool negatif = false;
    if (p < bout && (*p == '+' || *p == '-')) negatif = *p++ == '-';
    long long valeur = 0;
    for (; p < bout && estChiffre(*p); ++p) {
        valeur = valeur * 10 + (*p - '0');
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
