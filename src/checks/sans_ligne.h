/**
 * sans_ligne.h - the checks that no rule row names: kept for tables to come,
 * tested like the others, without words in the catalogue. Each is defined with
 * its family. A row that begins to name one moves it to its family's header.
 */
#ifndef QUILVANE_CHECKS_SANS_LIGNE_H
#define QUILVANE_CHECKS_SANS_LIGNE_H

#include "vocabulaire/regle.h"

namespace quilvane {

// abattage.cpp

/** Always passes. */
fVerif return_true;
/** The digits of the notifier identification are those of the input file's
 *  name (`bufC11`), or body C11 is a national or Corsican one. */
fVerif fichier_C11;
/** Exactly "10" or two blanks. */
fVerif verifSpace;

// coherence.cpp

/** Two departments are equal or of one department group. */
fVerif fCoherenCCDR;

// conformite.cpp

/** Eight digits with a listed department, whatever follows. */
fVerif fConform8C;
/** Ten digits with a listed department, whatever follows. */
fVerif fConform;

// dates.cpp

/** Exactly eight characters: blank or complete. */
fVerif fDATEC_xad;
/** Complete, or blank when the dependency date is before `P18`. */
fVerif fDatRecCorr_O_P18;
/** The moment of date (dependency) and time (`champ`) is strictly past, local
 *  time, 1970 to 2038. */
fVerif fDATEHEUREC;
/** Always pass; they hold a place. */
fVerif fVerifDateInput;
fVerif fVerifDateInputCvse;

// identifiants.cpp

/** Company number (SIREN) in fourteen columns: blank, or nine characters
 *  without a blank and exactly five blanks. */
fVerif fConformSiren;
/** Establishment number (SIRET) in fourteen columns: blank, or fourteen
 *  characters without a blank. */
fVerif fConformSiret;

// reference.cpp

/** Exactly two blanks, or in the list. */
fVerif fVDIFF2B;
/** When the dependency is filled two leading blanks pass; otherwise in the
 *  list. */
fVerif fVEGALDNULLVTAB;
/** Twelve blanks before `P6`, or `fConform8FR` with body C16 as country. */
fVerif fCONFORM8FRP6;
/** Twelve blanks before `P5`, or `fConform10FR` with body C10 as country. */
fVerif fCONFORM10FRP5;
/** A country of `TP` outside `TCEE`. */
fVerif fPaysNonCEE;
/** The second or third list entry, or digits when the first entry is "NUM". */
fVerif fVTYPE;
/** The field repeats columns a to b of the dependency; a and b are the first
 *  two list entries. */
fVerif fVEGDS;

}  // namespace quilvane

#endif
