#include "lot/noms.h"

#include <algorithm>

namespace quilvane::lot {

namespace {

/** The longest of the suffixes that are put behind a name. */
constexpr std::size_t SUFFIXE_MAX = std::string_view(".raison.txt").size();

constexpr std::string_view EN_TRANSFERT[] = {".part", ".tmp", ".filepart"};

unsigned char octet(char c) { return static_cast<unsigned char>(c); }

bool estSuite(char c) { return (octet(c) & 0xC0U) == 0x80U; }

char minuscule(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool finitPar(std::string_view nom, std::string_view fin) {
    return nom.size() >= fin.size() &&
           std::equal(fin.begin(), fin.end(), nom.end() - static_cast<std::ptrdiff_t>(fin.size()),
                      [](char a, char b) { return a == minuscule(b); });
}

/** Length of the UTF-8 character at the start of `s`, 0 when there is none. */
std::size_t longueurUtf8(std::string_view s) {
    const unsigned char c = octet(s[0]);
    if (c < 0x80) return 1;
    const std::size_t n = c >= 0xC2 && c < 0xE0   ? 2
                          : c >= 0xE0 && c < 0xF0 ? 3
                          : c >= 0xF0 && c < 0xF5 ? 4
                                                  : 0;
    if (n == 0 || s.size() < n) return 0;
    for (std::size_t i = 1; i < n; ++i)
        if (!estSuite(s[i])) return 0;
    const unsigned char d = octet(s[1]);
    // Overlong forms, surrogates, beyond U+10FFFF.
    if ((c == 0xE0 && d < 0xA0) || (c == 0xED && d > 0x9F) || (c == 0xF0 && d < 0x90) ||
        (c == 0xF4 && d > 0x8F))
        return 0;
    return n;
}

}  // namespace

bool estPrenable(std::string_view nom) {
    if (nom.empty() || nom[0] == '.') return false;
    return std::none_of(std::begin(EN_TRANSFERT), std::end(EN_TRANSFERT),
                        [nom](std::string_view fin) { return finitPar(nom, fin); });
}

std::string nomNumerote(std::string_view nom, int n, std::string_view suffixe) {
    const std::size_t point = nom.rfind('.');
    // An extension has up to 16 characters behind a stem; all else is the stem.
    const bool extension = point != std::string_view::npos && point > 0 && nom.size() - point <= 17;
    std::string_view tronc = extension ? nom.substr(0, point) : nom;
    std::string fin;
    if (n > 0) fin.append(".").append(std::to_string(n));
    if (extension) fin.append(nom.substr(point));
    const std::size_t place = NOM_MAX - SUFFIXE_MAX;
    // Without number and suffix the name is what came, and fits.
    if ((n > 0 || !suffixe.empty()) && tronc.size() + fin.size() > place) {
        std::size_t coupe = place - fin.size();
        while (coupe > 1 && estSuite(tronc[coupe]))
            --coupe;
        tronc = tronc.substr(0, coupe);
    }
    return std::string(tronc) + fin + std::string(suffixe);
}

bool estUtf8(std::string_view octets) {
    while (!octets.empty()) {
        const std::size_t n = longueurUtf8(octets);
        if (n == 0) return false;
        octets.remove_prefix(n);
    }
    return true;
}

std::string montrable(std::string_view octets) {
    std::string r;
    while (!octets.empty()) {
        const std::size_t n = longueurUtf8(octets);
        // C0, DEL, and C1 in its UTF-8 form (0xC2 0x80..0x9F).
        const bool commande = n == 1   ? octet(octets[0]) < 0x20 || octets[0] == 0x7F
                              : n == 2 ? octet(octets[0]) == 0xC2 && octet(octets[1]) < 0xA0
                                       : false;
        const std::size_t pris = n == 0 ? 1 : n;
        if (n == 0 || commande) {
            for (std::size_t i = 0; i < pris; ++i)
                r += "\\x" + hexadecimal(octets.substr(i, 1));
        } else {
            r += octets.substr(0, pris);
        }
        octets.remove_prefix(pris);
    }
    return r;
}

std::string depuisLatin1(std::string_view octets) {
    std::string r;
    for (const char c : octets) {
        if (octet(c) < 0x80) {
            r += c;
        } else {
            r += static_cast<char>(0xC0U | (octet(c) >> 6U));
            r += static_cast<char>(0x80U | (octet(c) & 0x3FU));
        }
    }
    return r;
}

std::string hexadecimal(std::string_view octets) {
    constexpr char CHIFFRES[] = "0123456789abcdef";
    std::string r;
    for (const char c : octets) {
        r += CHIFFRES[octet(c) >> 4U];
        r += CHIFFRES[octet(c) & 0xFU];
    }
    return r;
}

}  // namespace quilvane::lot
