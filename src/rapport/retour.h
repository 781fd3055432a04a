/**
 * retour.h - an error file that quilvane published: what its ERRE records say,
 * and which records of the file that it answers they are about.
 */
#ifndef QUILVANE_RAPPORT_RETOUR_H
#define QUILVANE_RAPPORT_RETOUR_H

#include <string>
#include <vector>

#include "rapport/rapport.h"

namespace quilvane {

/** One ERRE record. That of a record cut short has fewer columns: the fields
 *  that were missing are, and the codes stand farther left. */
struct sErre {
    long long ligne;               // of the error file, from 1
    bool entier;                   // it has all its columns
    std::string type, genre, cle;  // of the record in error, trailing blanks apart
    std::vector<int> numeros;      // the error numbers that it carries
};

/** An error file. */
struct sRetour {
    std::vector<sErre> erres;
    long long recus;  // messages received, as its FICH record counts them
};

/** Reads an error file; the first line that does not belong into one in
 *  `faux`, 0 when all is well. */
sRetour lireErreurs(lecteur& source, long long& faux);

/** The ERRE record that speaks of a record in error: the first one not yet in
 *  `vus` with the same type, kind, key and numbers; it is then marked there. The
 *  number of ERRE records when there is none. `vus` has one place for each. */
std::size_t rapprocher(const sRetour& retour, const sRecordVu& r, std::vector<bool>& vus);

}  // namespace quilvane

#endif
