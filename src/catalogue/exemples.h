/**
 * exemples.h - a correct record of every message type, and whole correct files
 * around it. Bodies, holdings and animals are invented; their values are fixed.
 */
#ifndef QUILVANE_CATALOGUE_EXEMPLES_H
#define QUILVANE_CATALOGUE_EXEMPLES_H

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quilvane {

/** A text from a column on, in a body that is blank elsewhere. */
struct sZone {
    int debut;                    // first column, 63 to 230
    const char* valeur;           // the example's value
    const char* forme = nullptr;  // what may stand in its place, see below
    const char* sauf = "";        // the transaction kind that leaves it blank
};

/**
 * A message type's correct body. In a `forme`, '@' stands for the department's
 * two digits, '#' for a digit, '^' for a capital and '$' for the six digits of
 * a number in the department's ovine and caprine range; every other character
 * for itself. A zone without one holds its value in every correct record.
 */
struct sModele {
    const char* type;
    const char* genres;     // transaction kinds, separated by blanks: "CRE INV MOD"
    const char* emetteur;   // header E3 (8) of a file in which the type is accepted
    const char* organisme;  // header E8 (8)
    std::span<const sZone> corps;
};

/** One for each message type, by type; there is none for FICH. */
extern const std::span<const sModele> modeles;

/** The model of a type; null when there is none. */
const sModele* modeleDe(std::string_view type);

/** The transaction kinds for which a type has its examples; empty for an
 *  unknown type. */
std::vector<std::string_view> genresDe(std::string_view type);

/**
 * A file that is accepted whole: the FICH record, the example of `type` with
 * kind `genre` and, behind a creation of EXP1 or EGET, its companion EXP2 or
 * RATA. Records have 256 columns and end in LF. The text is empty when the type
 * or the kind is not one of `genresDe`.
 */
std::string exemple(std::string_view type, std::string_view genre);

}  // namespace quilvane

#endif
