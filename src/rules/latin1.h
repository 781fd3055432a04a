/**
 * latin1.h - texts with accents are written in UTF-8 in the sources and are
 * Latin-1 bytes in the program.
 */
#ifndef QUILVANE_RULES_LATIN1_H
#define QUILVANE_RULES_LATIN1_H

#include <cstddef>

namespace quilvane {

/** Never defined: reaching it while a text is made stops the compilation. */
void caractereHorsLatin1();

/** A zero-terminated Latin-1 text, made at compile time from a UTF-8 literal.
 *  A character outside Latin-1 does not compile. */
template <std::size_t N>
struct texteLatin1 {
    char octets[N] = {};

    consteval texteLatin1(const char (&utf8)[N]) {
        std::size_t n = 0;
        for (std::size_t i = 0; i + 1 < N; ++i) {
            const auto o = static_cast<unsigned char>(utf8[i]);
            if (o < 0x80) {
                octets[n++] = utf8[i];
            } else if (o == 0xC2 || o == 0xC3) {
                const auto suite = static_cast<unsigned char>(utf8[++i]);
                octets[n++] = static_cast<char>(((o & 0x03) << 6) | (suite & 0x3F));
            } else {
                caractereHorsLatin1();
            }
        }
    }

    constexpr operator const char*() const { return octets; }
};

}  // namespace quilvane

#endif
