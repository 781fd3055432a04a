/**
 * identifiants.h - whether a text is a well-formed identifier: Luhn key, company
 * numbers, member states, French holding, approval and bovine numbers, EGET
 * holding codes.
 */
#ifndef QUILVANE_CHECKS_IDENTIFIANTS_H
#define QUILVANE_CHECKS_IDENTIFIANTS_H

#include "vocabulaire/regle.h"

namespace quilvane {

/** Luhn key (ISO/IEC 7812-1, annex B) of a text of digits: 1 when it holds. A
 *  text with a non-digit fails, the empty text passes. */
int fVerifLuhn(const char* texte);
/** 1 when `pays` is exactly one of the fifteen member states that the
 *  slaughter rules know (two letters, "EL" and "UK" forms). Narrower than
 *  `TCEE` on purpose. */
int appartient_UE(const char* pays);
/** French sanitary approval number (12): department ("2A" and "2B" included,
 *  "20" and "98" refused), digits to column 7, a digit or blank in column 8,
 *  four blanks. Overseas: 971, 972, 973, 974 and 976 only. */
int verifNumAgrementSanitaireFr(const char* numero);
/** French holding number (12): eight digits, a department of `TD`, four blanks. */
int verifNumExploitFr(const char* numero);
/** French or imported bovine number (12): ten digits, a department of `TD`
 *  (971 to 974 only overseas), two blanks. */
int verifNumBovinFrOuImporte(const char* numero);
/** 1 when the text is exactly eight digits that name a day of the Gregorian
 *  calendar, DDMMYYYY, from 1900 on. */
int verifDateCompleteEtCorrecte(const char* date);
/** Holding code of EGET, ERTI and RATA (12, five significant): by the
 *  production kind in body field C4, a series of `NEV` (list) plus letter and
 *  two digits ("V"), or a department form ("P"). A series that straddles a
 *  comma of the list passes. Error 140. */
fVerif fConformEget;
/** The first three characters of `champ` begin an entry of the list. Errors
 *  50 (DETE, DETI), 30 and 76 (EXP2). */
fVerif fConform3;

}  // namespace quilvane

#endif
