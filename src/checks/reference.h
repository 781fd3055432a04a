/**
 * reference.h - rules that switch on at a reference date, tests of a list with
 * an exception for blanks or for one code, and tests that one of two fields is
 * filled.
 */
#ifndef QUILVANE_CHECKS_REFERENCE_H
#define QUILVANE_CHECKS_REFERENCE_H

#include "vocabulaire/regle.h"

namespace quilvane {

/** 1 when the date (blanks count as zeros) is on or after `reference`. */
int fVTABP(const char* date, const char* reference);
/** Before the reference date (`P5`, `P6`, `P8`; the dependency is compared) a
 *  blank field passes; otherwise it must be in the list. Errors 7, 2, 8 and 9
 *  of NAIS. */
fVerif fVTABP5;
fVerif fVTABP6;
fVerif fVTABP8;
/** From the reference date on (dependency) the field must not be blank.
 *  Errors 7, 2 and 55. */
fVerif fVDIFFNULLP5;
fVerif fVDIFFNULLP6;
/** Two leading blanks or asterisks pass; otherwise in the list. */
fVerif fVDIFFNULLVTAB;
/** In the list, and not "FR". Error 1 of ECHA. */
fVerif fVTABDIFFFR;
/** One of two thirty-column fields (`champ`, `dependance`) is filled. Error 74
 *  of DETE. */
fVerif fVDIFFVD;
/** The same, for a field whose blank form is in the list. Error 75 of EXP1. */
fVerif fCDIFF;
/** Cattle tag model (8): required from `P17` on (dependency); if given, no
 *  blank in columns 1 to 6 and exactly two blanks behind. Error 153. */
fVerif fConform_BV_model1;
/** Witness flag (1): not blank from `P17` on (dependency). Error 150. */
fVerif fConform_temoin_bouc1;
/** Columns `posDebut` to `posFin` (at most five) differ from "0000". */
int fVerifDiffZero(const char* champ, int posDebut, int posFin);

}  // namespace quilvane

#endif
