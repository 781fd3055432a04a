/**
 * noms.h - names of files: which are taken, how one that is taken already gets
 * a number, how any bytes are shown.
 */
#ifndef QUILVANE_LOT_NOMS_H
#define QUILVANE_LOT_NOMS_H

#include <string>
#include <string_view>

namespace quilvane::lot {

/** The longest name that a folder can hold, in bytes. */
inline constexpr std::size_t NOM_MAX = 255;

/** Whether an arrival of this name may be taken: not hidden, and not one of the
 *  names under which transfers write (*.part, *.tmp, *.filepart, any case). */
bool estPrenable(std::string_view nom);

/**
 * `nom` with number `n` before its extension, then `suffixe`: ("a.vse", 0) is
 * "a.vse", ("a.vse", 2, ".txt") is "a.2.vse.txt", ("a", 1) is "a.1". The stem
 * is cut, at a whole UTF-8 character, so that the longest suffix still fits.
 */
std::string nomNumerote(std::string_view nom, int n, std::string_view suffixe = "");

/** Whether all of `octets` is UTF-8. */
bool estUtf8(std::string_view octets);

/** For people: control characters, and bytes that are not UTF-8, as \xHH. */
std::string montrable(std::string_view octets);

/** A Latin-1 text as UTF-8. */
std::string depuisLatin1(std::string_view octets);

/** Two hexadecimal digits a byte. */
std::string hexadecimal(std::string_view octets);

}  // namespace quilvane::lot

#endif
