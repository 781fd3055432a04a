/**
 * json.h - the pieces of a report as JSON.
 */
#ifndef QUILVANE_RAPPORT_JSON_H
#define QUILVANE_RAPPORT_JSON_H

#include <string>

#include "rapport/rapport.h"

namespace quilvane {

/** Adds a record's errors, an object each, with `separateur` between them.
 *  `premier` is the place of the first in the file's list. `nom`, when given,
 *  stands first (JSON lines name the file in each). `bref` leaves out what a
 *  reader with the catalogue at hand finds there, and members that are null. */
void ajouterConstats(std::string& s, const sRecordVu& r, long long premier, eLangue langue,
                     std::string_view separateur, const std::string* nom = nullptr, bool bref = false);

std::string avertissementJson(const sAvertissement& a);

/** The members of a file's object that are known at its end, without braces. */
std::string resumeJson(const sResume& r, eLangue langue);

/** Adds bytes of an input, made visible, as they stand within a JSON string. */
void ajouterOctets(std::string& s, std::string_view octets);

/** A UTF-8 text as a JSON string, quotes included. */
std::string chaineJson(std::string_view utf8);

/** "table", "cadrage", ... */
const char* nomDOrigine(eOrigine origine);

}  // namespace quilvane

#endif
