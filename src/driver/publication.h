/**
 * publication.h - the end of a run: publishing its result by renaming, undoing
 * it, and the one line of the log.
 */
#ifndef QUILVANE_DRIVER_PUBLICATION_H
#define QUILVANE_DRIVER_PUBLICATION_H

#include <cstdio>

namespace quilvane {

// The conditions that end a run, Latin-1, as they stand in the log.
extern const char* const IG001;  // log not accessible
extern const char* const IG002;  // error file not accessible
extern const char* const IG003;  // input file not accessible
extern const char* const IG004;  // output file not accessible
extern const char* const IG008;  // DOS and UNIX line ends mixed
extern const char* const IG009;  // input file cannot be renamed
extern const char* const IG010;  // result cannot be published
extern const char* const IG011;  // first record not FICH
extern const char* const IG014;  // no message record
extern const char* const IG015;  // empty line
extern const char* const I073;   // more than 10000 records
extern const char* const I099;   // FICH file number blank

/** Closes the input, output and error files that are open; the log stays open. */
void fermerFichiers();

/**
 * Closes a stream and sets it to null. Returns 0 when the file could not be
 * written whole (`errno` says why), else 1; a null stream gives 1.
 */
int fermer(std::FILE*& fp);

/** Writes "Le DD/MM/YYYY a HH:MM:SS : <erreur>" to the log and closes it; a
 *  write that fails is told on standard error. A null stream, as after a first
 *  message, does nothing. */
void consigner(const char* erreur, std::FILE* fp);

/**
 * Publishes the file `name_emettre` under the output name, over what stands
 * there. Returns 0; or 1 when it cannot be renamed, and the input has then been
 * given back and the failure logged (see `renoncer`).
 */
int emettre(const char* name_emettre);

/**
 * Gives up a publication: prints why (`errno`), gives the input back under its
 * name, removes the temporary and output files and logs IG010. When the input
 * cannot be given back all four files are removed and IG009 is logged. Returns 1.
 */
int renoncer();

/** Undoes a run whose files are closed: gives the input back and removes the
 *  temporary and output files; logs IG009 when it cannot be given back. A name
 *  that no longer is the file that the run holds is left alone. */
void nePasEmettre();

/** Ends a run on a fatal condition: closes the files, undoes, logs `erreur`. */
void annuler(const char* erreur);

}  // namespace quilvane

#endif
