#include "rapport/mots.h"

#include <algorithm>

namespace quilvane {

std::string remplir(const texte& modele, eLangue langue, std::initializer_list<std::string_view> arguments) {
    const std::string_view m = modele.en_langue(langue);
    std::string r;
    for (std::size_t i = 0; i < m.size(); ++i) {
        const std::size_t suivant = std::min(m.find('{', i), m.size());
        r += m.substr(i, suivant - i);
        i = suivant;
        if (i == m.size()) break;
        const std::size_t rang = i + 2 < m.size() && m[i] == '{' && m[i + 2] == '}'
                                     ? static_cast<std::size_t>(m[i + 1] - '0')
                                     : arguments.size();
        if (rang < arguments.size()) {
            r += arguments.begin()[rang];
            i += 2;
        } else {
            r += m[i];
        }
    }
    return r;
}

std::string accorder(const accord& mots, long long n, eLangue langue) {
    const bool singulier = n == 1 || (n == 0 && langue == FRANCAIS);
    return remplir(singulier ? mots.un : mots.plusieurs, langue, {std::to_string(n)});
}

std::string visible(std::string_view octets) {
    constexpr char CHIFFRES[] = "0123456789ABCDEF";
    std::string r;
    r.reserve(octets.size());
    for (const char c : octets) {
        if (c >= 0x20 && c <= 0x7E) {
            r += c;
            continue;
        }
        const auto o = static_cast<unsigned char>(c);
        r += "\\x";
        r += CHIFFRES[o >> 4];
        r += CHIFFRES[o & 0x0F];
    }
    return r;
}

const sGuillemets& guillemets(eLangue langue) {
    static constexpr sGuillemets DE_LANGUE[] = {{"« ", " »"}, {"“", "”"}};
    return DE_LANGUE[langue];
}

std::string cite(std::string_view octets, eLangue langue) {
    const sGuillemets& g = guillemets(langue);
    return g.avant + visible(octets) + g.apres;
}

std::string_view sansBlancs(std::string_view texte) {
    while (!texte.empty() && texte.back() == ' ')
        texte.remove_suffix(1);
    return texte;
}

std::string codeDErreur(int numero) {
    const std::string chiffres = std::to_string(numero);
    return "I" + std::string(chiffres.size() < 3 ? 3 - chiffres.size() : 0, '0') + chiffres + "1";
}

std::size_t caracteres(std::string_view utf8) {
    std::size_t n = 0;
    for (const char c : utf8)
        n += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return n;
}

}  // namespace quilvane
