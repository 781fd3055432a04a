/**
 * proches.h - the entries of a list that somebody who wrote a wrong value may
 * have meant.
 */
#ifndef QUILVANE_CATALOGUE_PROCHES_H
#define QUILVANE_CATALOGUE_PROCHES_H

#include <string_view>

#include "catalogue/listes.h"

namespace quilvane {

/** Near values that are told at most. */
inline constexpr int MAX_PROCHES = 3;

/** The near entries of a list, the likeliest first. */
struct sProches {
    const char* valeurs[MAX_PROCHES];
    int nombre;
};

/**
 * The entries of `liste` (the first of each row) that are one slip away from
 * `valeur`, in this order and then in that of the list: written with other
 * capitals; with O for 0 or I for 1 or the reverse; shifted among blanks; two
 * neighbours swapped; one character wrong; one missing or too many, trailing
 * blanks apart. One-character codes know the first two slips only, for any
 * code is one character away from any other. A value that is blank or in the
 * list has no near entry.
 */
sProches prochesDe(std::string_view valeur, const sListe& liste);

}  // namespace quilvane

#endif
