/**
 * sorties.h - what the program writes: accepted records, ERRE error records,
 * the two FICH summary records, and the console.
 */
#ifndef QUILVANE_DRIVER_SORTIES_H
#define QUILVANE_DRIVER_SORTIES_H

#include <cstdio>

#include "driver/flux.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Fills `tampon` (36 bytes) with a footer of 26 columns: the current local
 *  date DDMMYYYY and time HHMMSS, "025", eight blanks and "*". */
void faireVSEDate(char* tampon);

/** Has the output and error files, just opened, written in large blocks and
 *  without locks: one thread writes. */
void preparerSorties();

/** Writes the line end of the input's format: `CVERSE_DOS` CR LF,
 *  `CVERSE_UNIX` LF, `CVERSE_MAC` CR, anything else LF. */
void faireFinDeLigne(std::FILE* fp, int formatDeFichier);

/** Writes the 256 blanks that keep the place of the FICH record. */
void reserverVSEFICH(std::FILE* fp);

/** Result code of an accepted record, the first character of columns 77-78. */
const char* quilvaneRES();

/** Writes an accepted record to the output file, "40" in columns 77-78; an
 *  error return of kind "ECQ" is written unchanged. */
void faireVSEValide(const char* tampon, int formatDeFichier);

/**
 * Writes an ERRE record to the error file, without line end: who sent what,
 * the key fields of the holding concerned (`champC7` two columns, `champC8`
 * twelve), the codes "I%03d1" and the stamp of the run. More than ten codes
 * are cut to ten, in `nbErreur` too.
 */
void faireVSEERR(const char* champC7, const char* champC8, int nbErreurPassee, const valeurVSE* lvalEnteteVSE,
                 const valeurVSE* lvalCorpsVSE, const int* lcodeErreur);

/** Writes the ERRE record of the current record, routed to row `itAiguil`,
 *  with all its codes. A record of unknown type has blank C1 and C2. */
void faireVSEERRCourante(int itAiguil, int nbErreurPassee);

/** Builds in `sauvTamponVSE` the ERRE record of the current record with the
 *  single code `codeErr`. */
void faireTamponVSEERR(int codeErr, int itAiguil);

/** Writes the ERRE record of the FICH record itself to the error file. */
void faireVSEERRFich();

/** Rewrites the first 256 columns of the output file as its FICH record. */
void faireVSEFICHOk(int nombreDeVSE);

/** Header of the error file's FICH record. */
void faireEnteteVSEFICHNok(std::FILE* fp);
/** Footer of the error file's FICH record: 105 blanks and the current time. */
void finVSENok(std::FILE* fp);
/** Rewrites the first 256 columns of the error file as its FICH record:
 *  records received, in error, and valid. */
void faireVSEFICHNok(int nombreDeVSE, int nbVSE_Err);

/** Copies the record to `xdebug`; in mode -d prints it. */
void affichageVSE(const char* tampon, int visu);

/** Debug aid: prints a text to the console. */
void tracer(const char* s);

}  // namespace quilvane

#endif
