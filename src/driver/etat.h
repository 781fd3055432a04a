/**
 * etat.h - the state of the run: file names, open files, console mode. What is
 * kept from one record to the next is a `lot` (controle/lot.h).
 */
#ifndef QUILVANE_DRIVER_ETAT_H
#define QUILVANE_DRIVER_ETAT_H

#include <cstdio>

namespace quilvane {

/** File names as given. Written once by the driver. */
extern const char* name_recu;  // input file
extern const char* name_emis;  // file to emit
extern const char* name_log;   // log file

/** Working names, allocated by the driver when their file is opened and freed
 *  only by the end of the process. */
extern const char* name_tmp_recu;  // the input while it is being processed ("_r")
extern const char* name_tmp_emis;  // temporary output file ("_e")
extern const char* name_erre;      // temporary error file ("_o")

/** Open streams. Opened by the driver, closed by `fermerFichiers`, `consigner`
 *  and the publication, which leave null behind. */
extern std::FILE* fp_log;
extern std::FILE* fp_recu;
extern std::FILE* fp_emis;
extern std::FILE* fp_erre;

/** Console mode, an `eVisu`. Written by option parsing. */
extern int visu;

/** Puts every variable above back to its value at the start of a process. */
void initialiserEtat();

}  // namespace quilvane

#endif
