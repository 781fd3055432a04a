/**
 * etat.h - the state of the run: file names, open files, and what is kept from
 * one record to the next.
 */
#ifndef QUILVANE_DRIVER_ETAT_H
#define QUILVANE_DRIVER_ETAT_H

#include <cstdio>

#include "vocabulaire/pack.h"

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

/** Build variant; only "QUILVANE  " is built. */
extern const char* VARIANTE;

/** Footer stamp of the run, 26 columns. Written once, before the options are
 *  looked at. */
extern char VSEDate[36];

/** Console mode, an `eVisu`. Written by option parsing. */
extern int visu;

// --- Kept by record processing for the whole file.
/** Emitter and receiver of the file (FICH header E3 and E4). */
extern char sauvEmetteur[9];
extern char sauvRecepteur[9];
/** Errors of the FICH record, and their count. The count check adds to them. */
extern int codeFichErreur[MAX_ERREURS + 1];
extern int errFich;

// --- Kept by record processing from one record to the next.
/** Type, kind and error count of the record before. */
extern char sauvCodeVSE[5];
extern char sauvTypeVSE[4];
extern int sauvCodeVSEerr;
/** Body C2 of the last EXP1 or EGET creation; its companion must repeat it. */
extern char sauvLienVSE[13];
/** The error record to write when that companion does not come. */
extern char sauvTamponVSE[LARGEUR_VSE + 1];
/** 1 when that error record was written for the current record. */
extern int existDependanceVSEerr;

/** Extra error number of the variant rules, 0 for none. */
extern int err_aux;

/** Puts every variable above back to its value at the start of a process. */
void initialiserEtat();

}  // namespace quilvane

#endif
