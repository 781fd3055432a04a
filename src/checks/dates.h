/**
 * dates.h - whether a date or time is well formed and plausible: complete or
 * partly unknown, before or after another date of its record.
 */
#ifndef QUILVANE_CHECKS_DATES_H
#define QUILVANE_CHECKS_DATES_H

#include "vocabulaire/regle.h"

namespace quilvane {

/** A complete date. Errors 90 (footer) and many by row. */
fVerif fDATEC;
/** A date whose day, or day and month, may be blank; rewrites the field (see
 *  `fDATECouI`). Error 29. */
fVerif fDATEI;
/** Blank or complete. Error 120 of ABAT. */
fVerif fDATECxad;
/** Blank or complete receipt date. Errors 134 and 145. */
fVerif fDatRecCorr;
/** Eight leading blanks, or complete. Errors 5 and 22 of ERRE. */
fVerif fDATEC_INC;
/** Complete; a blank receipt date fails. Error 134. */
fVerif fDatRecCorr_O;
/** Day and month compulsory from `P6` on, incomplete accepted before. Errors
 *  22 and 58. */
fVerif fDATEP6;
/** Complete from `P6` and `P7` on; month compulsory from `P6`, day from `P7`;
 *  incomplete accepted before both. Error 5. */
fVerif fDATEP6P7;
/** Blank, or not after the dependency date. Error 52. */
fVerif fDatRecCohe;
/** Blank, or not before the dependency date. Errors 137 and 149. */
fVerif fDatRecPost;
/** As `fDatRecPost`; the movement cause "J" (body C5) passes. Error 137. */
fVerif fDatRecPost_tr;
/** Blank, or a year strictly after the year (4) in the dependency. Error 137
 *  of RACO. */
fVerif fDatRec_OC_Post;
/** A movement cause of the list (pairs: cause, last valid day or "TOUJOURS")
 *  that is valid on the dependency date. Error 23. */
fVerif fVerifValAutDate;
/** A time HHMMSS, 000000 to 235959. Errors 91 (footer) and 103. */
fVerif fHEUREC;
/** `champ` and `dependance` both filled or both empty (up to thirty blanks).
 *  Errors 113, 114 and 115. */
fVerif fSimult;
/** Blank, or a year after 1997. Error 121 of ABAT. */
fVerif fVerifDateInputPost;
/** A year after 1997. Error 123 of ABAT. */
fVerif fVerifDateAbatPost;
/** The slaughter date is not before the entry date in `cp`. Error 124 of ABAT. */
fVerif fVerifDateAbatPostEntr;

}  // namespace quilvane

#endif
