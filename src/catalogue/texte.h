/**
 * texte.h - a text in the two languages in which people read it.
 */
#ifndef QUILVANE_CATALOGUE_TEXTE_H
#define QUILVANE_CATALOGUE_TEXTE_H

namespace quilvane {

/** The languages of the texts. */
enum eLangue { FRANCAIS = 0, ANGLAIS = 1 };

/** One text, UTF-8, in French and in English. */
struct texte {
    const char* fr;
    const char* en;

    constexpr const char* en_langue(eLangue langue) const { return langue == FRANCAIS ? fr : en; }
};

}  // namespace quilvane

#endif
