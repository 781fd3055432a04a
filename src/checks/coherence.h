/**
 * coherence.h - comparison of a field with another field of its record: numbers
 * with the departmental body, dates with the record's own date; and the date
 * reader on which every date check rests.
 */
#ifndef QUILVANE_CHECKS_COHERENCE_H
#define QUILVANE_CHECKS_COHERENCE_H

#include "vocabulaire/regle.h"

namespace quilvane {

/** A number (12) belongs to the departmental body (dependency, header E8);
 *  "POINTFOC" covers every department. Error 50. */
fVerif fCoherenCC;
/** As `fCoherenCC`; the movement cause "J" (body C5) passes. Error 50 of ENTR
 *  and SORT. */
fVerif fCoherenCC_tr;
/** A three-character department equals that of the body in the dependency;
 *  "098" goes with "974". Error 50 of DETE. */
fVerif fCoherenCCD;
/** The file's emitter may send for the departmental body `codeDep` (both 8):
 *  equal, a national emitter, or a row of `TEDC`. Error 135. */
int fCoherenCCE(const char* emetteur, const char* codeDep);
/** 1 when (emitter, departmental body) is a row of `TEDC`, both compared whole. */
int pairesTEDC(const char* emetteur, const char* codeDep);
/** A holding code of EGET, ERTI or RATA belongs to the departmental body
 *  (dependency); list `NEV`, production kind in body C4. Error 50. */
fVerif fCoherenCCEget;
/** An ovine or caprine number lies in a range of the departmental body
 *  (dependency); list `IND_M`, then the supplementary ranges. An unknown body
 *  gets the list's last range. Error 50 of IMOC and PICO. */
fVerif fCoheren_OC_IND_M;
/** Compares a date with a reference, both DDMMYYYY: with `INF` passes when
 *  `date` is on or before it, with `SUP` on or after. Blanks of `date` count
 *  as zeros, those of `reference` stand as they are. */
int fCoherenDCSupInf(const char* reference, const char* date, esupInf sens);
/** The date is not after the dependency date (the record's own). Error 52. */
fVerif fCoherenDC;
/** The date is not before the dependency date. Serves ASSO's error 149. */
fVerif fCoherenDateSup;
/** As `fCoherenDC`, one year more for the movement cause "J" (body C5).
 *  Error 52 of ENTR and SORT. */
fVerif fCoherenDC_tr;
/** The date is not after the same day one year after the dependency date.
 *  Error 52 of ENTR and SORT, second date. */
fVerif fCoherenDC_tr2;
/** A year of four digits. Error 167 of RACO. */
fVerif fCoherenD_OC_an_1;
/** A year (4) strictly before that of the dependency date. Error 168 of RACO. */
fVerif fCoherenD_OC_an_2;
/**
 * Reads the first eight characters of `champ` as a date from 1900 on
 * (Gregorian rule). `INCOMPLETE` accepts a blank day, or a blank day and
 * month, and first rewrites them in place as zeros; a day or month written as
 * zeros, or a day with a blank tens place, is refused and leaves a blank in
 * the first character.
 */
int fDATECouI(char* champ, eCouI mode);

}  // namespace quilvane

#endif
