/**
 * quilvane.h - the whole run, from the command line to the exit status.
 */
#ifndef QUILVANE_DRIVER_QUILVANE_H
#define QUILVANE_DRIVER_QUILVANE_H

namespace quilvane {

/** Exit statuses. */
enum eStatut {
    STATUT_VALIDE = 0,   // file accepted (also when its publication failed)
    STATUT_FATAL = 1,    // the run could not be carried out; the log says why
    STATUT_ERREURS = 2,  // errors found; the error file is published
    STATUT_USAGE = 3     // usage or version printed; no file touched
};

/** Validates one file: `argv` holds the options, the file to process, the file
 *  to emit and the log file. Returns an `eStatut`. */
int quilvane(int argc, char* const argv[]);

}  // namespace quilvane

#endif
