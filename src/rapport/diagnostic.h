/**
 * diagnostic.h - a report as text for a terminal or a file, in the manner of a
 * compiler: place, what is wrong, the columns underlined, what is asked, how
 * to mend it.
 */
#ifndef QUILVANE_RAPPORT_DIAGNOSTIC_H
#define QUILVANE_RAPPORT_DIAGNOSTIC_H

#include <span>
#include <string>

#include "rapport/rapport.h"

namespace quilvane {

/** A record in error; first causes stand first. */
std::string refusEnTexte(const sRecordVu& r, std::string_view nom, eLangue langue, bool couleur);
std::string avertissementEnTexte(const sAvertissement& a, std::string_view nom, eLangue langue, bool couleur);
/** The outcome for a file, errors by number and by type. */
std::string resumeEnTexte(const sResume& r, std::string_view nom, eLangue langue, bool couleur);
/** The outcome for several files, a line each. */
std::string bilanEnTexte(std::span<const sResume> fichiers, eLangue langue, bool couleur);

/** A text broken into lines of at most `largeur` characters, each behind
 *  `marge`. What stands in quotes is not broken: its blanks count. */
std::string enPages(std::string_view texte, std::string_view marge, std::size_t largeur = 100);

/** The styles of a terminal; nothing without colour. */
struct sStyles {
    const char* fort;    // headings
    const char* erreur;  // what is wrong
    const char* avis;    // what is worth a look
    const char* bon;     // what is well
    const char* discret;
    const char* fin;
};
const sStyles& styles(bool couleur);

}  // namespace quilvane

#endif
