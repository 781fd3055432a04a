#include "page/page.h"

#include <cstdint>

namespace quilvane {

namespace {

/** Appends `\uXXXX`. */
void echapper(std::string& sortie, std::uint32_t unite) {
    constexpr char CHIFFRES[] = "0123456789ABCDEF";
    sortie += "\\u";
    for (int decalage = 12; decalage >= 0; decalage -= 4)
        sortie += CHIFFRES[(unite >> decalage) & 15U];
}

/** Bytes of the UTF-8 sequence that begins with `octet`; 1 for ASCII and for
 *  what begins none. */
std::size_t longueurUTF8(unsigned char octet) {
    if (octet >= 0xC2 && octet <= 0xDF) return 2;
    if (octet >= 0xE0 && octet <= 0xEF) return 3;
    if (octet >= 0xF0 && octet <= 0xF4) return 4;
    return 1;
}

/** The code point of a sequence of two to four bytes; 0 when it is none. */
std::uint32_t point(std::string_view sequence) {
    std::uint32_t r = static_cast<unsigned char>(sequence[0]) & (0x7FU >> sequence.size());
    for (char c : sequence.substr(1)) {
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) return 0;
        r = r << 6 | (static_cast<unsigned char>(c) & 0x3FU);
    }
    return r;
}

}  // namespace

std::string dansLaPage(std::string_view json) {
    std::string sortie;
    sortie.reserve(json.size() + json.size() / 8);
    // Most of it is copied as it stands, up to the next byte that may not be.
    const auto telQuel = [](char c) { return static_cast<unsigned char>(c) < 0x80 && c != '<'; };
    for (std::size_t i = 0; i < json.size();) {
        std::size_t fin = i;
        while (fin < json.size() && telQuel(json[fin]))
            ++fin;
        sortie += json.substr(i, fin - i);
        i = fin;
        if (i == json.size()) break;
        std::string_view sequence = json.substr(i, longueurUTF8(static_cast<unsigned char>(json[i])));
        const std::uint32_t p = sequence.size() > 1 ? point(sequence) : 0;
        if (p > 0xFFFF) {
            echapper(sortie, 0xD800 + ((p - 0x10000) >> 10));
            echapper(sortie, 0xDC00 + ((p - 0x10000) & 0x3FFU));
        } else if (p > 0xFF) {
            echapper(sortie, p);
        } else if (json[i] == '<') {
            echapper(sortie, '<');
        } else {
            if (p == 0) sequence = json.substr(i, 1);
            sortie += sequence;
        }
        i += sequence.size();
    }
    return sortie;
}

}  // namespace quilvane
