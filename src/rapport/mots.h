/**
 * mots.h - small tools for texts that people read: placeholders, bytes made
 * visible, quotes of a language.
 */
#ifndef QUILVANE_RAPPORT_MOTS_H
#define QUILVANE_RAPPORT_MOTS_H

#include <initializer_list>
#include <string>
#include <string_view>

#include "catalogue/texte.h"

namespace quilvane {

/** A text with "{0}", "{1}", ... replaced by the arguments. */
std::string remplir(const texte& modele, eLangue langue, std::initializer_list<std::string_view> arguments);

/** A count and what is counted, "{0} message": for one, and for several. */
struct accord {
    texte un;
    texte plusieurs;
};
/** The words for `n`: French keeps the singular for 0, English does not. */
std::string accorder(const accord& mots, long long n, eLangue langue);

/** Bytes of an input as UTF-8: what lies outside 0x20..0x7E is written \xHH. */
std::string visible(std::string_view octets);

/** The quotes of a language, with the blanks that belong to them. */
struct sGuillemets {
    const char* avant;
    const char* apres;
};
const sGuillemets& guillemets(eLangue langue);
/** A value in the quotes of the language: « FR », "FR". */
std::string cite(std::string_view octets, eLangue langue);

/** The text without its trailing blanks. */
std::string_view sansBlancs(std::string_view texte);

/** An error number as error records carry it: "I%03d1". */
std::string codeDErreur(int numero);

/** Number of characters of a UTF-8 text. */
std::size_t caracteres(std::string_view utf8);

}  // namespace quilvane

#endif
