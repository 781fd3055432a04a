/**
 * utils.h - the check library. One source per family: listes, identifiants,
 * conformite, coherence, dates, reference, abattage.
 *
 * Checks with the signature of `fVerif` (rules/pack.h) can be named by a rule
 * row. They return non-zero when the field is acceptable; on 0 the engine
 * records the row's error number, given below as "error n". They allocate
 * nothing, print nothing, and never look behind a text's terminator.
 *
 * Dates are eight characters DDMMYYYY, times six characters HHMMSS. A number
 * is twelve characters, left-aligned and padded with blanks, unless said
 * otherwise. "Exactly" means the whole text, trailing blanks included.
 */
#ifndef QUILVANE_CHECKS_UTILS_H
#define QUILVANE_CHECKS_UTILS_H

#include "checks/valautorise.h"
#include "rules/pack.h"

namespace quilvane {

// ----------------------------------- value lists, blanks, emptiness (listes)

/**
 * Membership of a text in a list, by exact comparison in stored order. The
 * codes "NORMABEV", "NORM01  ", "NORM02  " and "PFOC01  " belong to every
 * list, an empty one included.
 */
int dansListe(const char* texte, const liste& l);

/** Membership by exact comparison alone: the four special codes get no favour. */
int dansListeStricte(const char* texte, const liste& l);

/** Whether some entry and `texte`, both cut after `n` characters (at most
 *  eight), are equal. */
int debutDansListe(const char* texte, const liste& l, int n);

/** 1 when an optional number is left open: twelve blanks or twelve asterisks
 *  (list membership, so the four special codes pass too). */
int champOuvert(const char* champ);

/** `champ` belongs to the row's list (see `dansListe`). Any width; most
 *  messages, errors by row. */
fVerif fVerifValAut;
/** `champ` equals no entry of the row's list; the special codes play no part.
 *  With a list of blanks: the field must be filled. An empty list accepts all. */
fVerif fVerifDiffNull;
/** No blank anywhere in `champ`; the empty text passes. */
fVerif fVerifAucunBlanc;
/** No blank before the trailing ones, and not blank altogether. The empty
 *  text passes. */
fVerif fVerifAucunBlanc_SD;
/** Twelve blanks, twelve asterisks, or as `fVerifAucunBlanc_SD`. */
fVerif fVerifAucunBlanc_SDN;
/** Foreign identification number (12): digits and capitals up to the trailing
 *  blanks, at least one, and not beginning with the two-letter country code in
 *  `dependance`. Error 1 of ECHA. */
fVerif fVerifNumEtranger;
/** Optional foreign number: twelve blanks, twelve asterisks, or as
 *  `fVerifNumEtranger`. Errors 6 and 14 of NAIS, NVMN, ECHA, IMPO. */
fVerif fVerifNumEtrangerN;
/** 1 when the text is empty or made only of blanks. */
int champVide(const char* texte);

// ------------------------------------------------ identifiers (identifiants)

/** Luhn key (ISO/IEC 7812-1, annex B) of a text of digits: 1 when it holds. A
 *  text with a non-digit fails, the empty text passes. */
int fVerifLuhn(const char* texte);
/** Company number (SIREN) in fourteen columns: blank, or nine characters
 *  without a blank and exactly five blanks. Named by no row. */
fVerif fConformSiren;
/** Establishment number (SIRET) in fourteen columns: blank, or fourteen
 *  characters without a blank. Named by no row. */
fVerif fConformSiret;
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

// ------------------------------------- conformity of numbers (conformite)
// The list of the French number checks is a list of two-character departments.

/** Eight digits with a listed department (971 to 974 and 976 overseas), then
 *  exactly four blanks. Error 68. */
fVerif fConform8;
/** Ten digits with a listed department, then exactly two blanks. Error 67. */
fVerif fConform10;
/** Eight digits with a listed department, whatever follows. Named by no row. */
fVerif fConform8C;
/** Ten digits with a listed department, whatever follows. Named by no row. */
fVerif fConform;
/** Country (dependency) "FR": as `fConform8`; any other country passes. Error 68. */
fVerif fConform8FR;
/** Country "FR" or two blanks passes; otherwise no blank before the trailing
 *  ones, and not blank altogether (see `fVerifAucunBlanc_SD`). Error 2. */
fVerif fConform8FRnon;
/** Twelve blanks or asterisks pass; otherwise as `fConform8FR`. Error 68. */
fVerif fCONFORM8FRNULL;
/** Country "FR": as `fConform10`; any other country passes. Error 67. */
fVerif fConform10FR;
/** Twelve blanks or asterisks pass; otherwise as `fConform10FR`. Error 67. */
fVerif fCONFORM10FRNULL;
/** Country of `TCEE` passes; any other must carry a number of French form. */
fVerif fConform10FRnonUEnon;
/** Country of `TECH` passes; any other must carry a number of French form.
 *  Error 118. */
fVerif fConform10FRnonECHAnon;
/** Country of `TCEE` other than "FR": as `fVerifNumEtranger`; any other passes. */
fVerif fConform10FRnonUEoui;
/** Country of `TECH` other than "FR": as `fVerifNumEtranger`; any other
 *  passes. Errors 1 and 6. */
fVerif fConform10FRnonECHAoui;
/** Country "FR" passes; any other: as `fVerifNumEtranger`. Error 17 of ECBO. */
fVerif fConform10FRnon;
/** `fConform10FRnon` for ovine and caprine numbers. Error 1 of GROC. */
fVerif fConform_OC_UE;
/** Ovine or caprine number (12) of country "FR": range 100000 to 683499 in the
 *  first six, eleven digits, one blank. Other countries pass. Error 151. */
fVerif fConform_OC_FR;
/** Ovine or caprine number of a tag order (12), country "FR": the same range,
 *  six digits, in column 7 "R" or "C" for the order types "PR" and "PC" of
 *  body field C9 and a digit otherwise, four blanks or digits, one blank.
 *  Error 151. */
fVerif fConform_OC_TP;
/** Mark (12): six digits in the same range, six blanks. Error 161. */
fVerif fConform_OC_IND_M;
/** Tag model (8): no blank in columns 1 to 6, then exactly two blanks. Error 153. */
fVerif fConform_OC_model1;
/** Tag model, column 1 in the list (maker). Error 154. */
fVerif fConform_OC_model2;
/** Tag model, column 2 in the list. Error 155. */
fVerif fConform_OC_model3;
/** Tag model, column 3 in the list. Error 156. */
fVerif fConform_OC_model4;
/** Tag model, digits in columns 4 to 6. Error 157. */
fVerif fConform_OC_model5;
/** Cattle tag model: eight blanks, or as `fConform_OC_model2`. Error 154. */
fVerif fConform_BV_model2;
/** Cattle tag model: eight blanks, or as `fConform_OC_model3`. Error 155. */
fVerif fConform_BV_model3;
/** Cattle tag model: eight blanks, or as `fConform_OC_model4`. Error 156. */
fVerif fConform_BV_model4;
/** Cattle tag model: eight blanks, or as `fConform_OC_model5`. Error 157. */
fVerif fConform_BV_model5;
/** Country of origin (2, ISO 3166 with "EL" and "UK"): in `TP` when the
 *  dependency is "FR", else exactly two blanks. Error 152. */
fVerif fConform_OC_pays_orig;
/** Counter (1): "0" to "7" when the model in the dependency has "E" in column
 *  3, else exactly a blank. Error 158. */
fVerif fConform_OC_compteur;
/** Witness flag (1): not "0". Error 191. */
fVerif fConform_temoin_bouc2;

// ------------------------------------------- coherence of fields (coherence)

/** A number (12) belongs to the departmental body (dependency, header E8);
 *  "POINTFOC" covers every department. Error 50. */
fVerif fCoherenCC;
/** As `fCoherenCC`; the movement cause "J" (body C5) passes. Error 50 of ENTR
 *  and SORT. */
fVerif fCoherenCC_tr;
/** A three-character department equals that of the body in the dependency;
 *  "098" goes with "974". Error 50 of DETE. */
fVerif fCoherenCCD;
/** Two departments are equal or of one department group. Named by no row. */
fVerif fCoherenCCDR;
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

// -------------------------------------------------- dates and times (dates)

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
/** Exactly eight characters: blank or complete. Named by no row. */
fVerif fDATEC_xad;
/** Complete; a blank receipt date fails. Error 134. */
fVerif fDatRecCorr_O;
/** Complete, or blank when the dependency date is before `P18`. Named by no row. */
fVerif fDatRecCorr_O_P18;
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
/** The moment of date (dependency) and time (`champ`) is strictly past, local
 *  time, 1970 to 2038. Named by no row. */
fVerif fDATEHEUREC;
/** `champ` and `dependance` both filled or both empty (up to thirty blanks).
 *  Errors 113, 114 and 115. */
fVerif fSimult;
/** Always pass; they hold a place. Named by no row. */
fVerif fVerifDateInput;
fVerif fVerifDateInputCvse;
/** Blank, or a year after 1997. Error 121 of ABAT. */
fVerif fVerifDateInputPost;
/** A year after 1997. Error 123 of ABAT. */
fVerif fVerifDateAbatPost;
/** The slaughter date is not before the entry date in `cp`. Error 124 of ABAT. */
fVerif fVerifDateAbatPostEntr;

// ------------------------------------------- reference dates (reference)

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
/** Exactly two blanks, or in the list. Named by no row. */
fVerif fVDIFF2B;
/** When the dependency is filled two leading blanks pass; otherwise in the
 *  list. Named by no row. */
fVerif fVEGALDNULLVTAB;
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
/** Twelve blanks before `P6`, or `fConform8FR` with body C16 as country.
 *  Named by no row. */
fVerif fCONFORM8FRP6;
/** Twelve blanks before `P5`, or `fConform10FR` with body C10 as country.
 *  Named by no row. */
fVerif fCONFORM10FRP5;
/** A country of `TP` outside `TCEE`. Named by no row. */
fVerif fPaysNonCEE;
/** The second or third list entry, or digits when the first entry is "NUM".
 *  Named by no row. */
fVerif fVTYPE;
/** The field repeats columns a to b of the dependency; a and b are the first
 *  two list entries. Named by no row. */
fVerif fVEGDS;
/** Columns `posDebut` to `posFin` (at most five) differ from "0000". */
int fVerifDiffZero(const char* champ, int posDebut, int posFin);

// ------------------------------------------- slaughter notices (abattage)
// These read `cp`, the extract of the current notice.

/** Refreshes `cp`, then: the animal number is there and not twelve blanks. Error 1. */
fVerif presence_C2;
/** The provenance holding number is filled. Error 31. */
fVerif presence_C5;
/** The slaughterhouse number is eight blanks, or eight letters, digits and
 *  blanks that do not begin with a blank. Error 68. */
fVerif presence_C8;
/** The notifier identification is there and not twelve blanks. Error 127. */
fVerif presence_C11;
/** A country of `TP` or `TCPNOCEE`; the special codes do not pass. Error 31. */
fVerif fVerif_ASDA;
/** Provenance holding number of country "FR": French form, or a national
 *  notifier. Error 68. */
fVerif fVerif_NUM_ASDA;
/** Slaughterhouse number (8): blank; begins with a letter or digit; for an
 *  OFFICE notifier the two country codes of the notice. Error 128. */
fVerif fVerif_NUM_TUE;
/** Carcass weight (7): blank or NNNN,NN. Error 125. */
fVerif fVerif_chaine_POIDS;
/** Carcass weight (7): blank or at most 1000,00 kg. Error 126. */
fVerif fVerif_POIDS;
/** Notifier country (2): "FR", or for a national notifier the country behind
 *  its name. Error 127. */
fVerif fVerif_CODEPE_ABATNOT;
/** Notifier identification (12): seven or eight characters with a department
 *  of `TD`, "2A" or "2B", or a national notifier. Error 68. */
fVerif fVerif_NUMID_ABATNOT_CONF;
/** Always pass: they hold the place of rules that are not enforced. Errors
 *  129, 127 and 139. */
fVerif fVerif_NUMID_ABATNOT_COHER;
fVerif fVerif_NUMID_ABATNOT_TABREF;
fVerif fVerif_INDIC_ABAT;
/** Always passes. Named by no row. */
fVerif return_true;
/** The digits of the notifier identification are those of the input file's
 *  name (`bufC11`), or body C11 is a national or Corsican one. Named by no row. */
fVerif fichier_C11;
/** Exactly "10" or two blanks. Named by no row. */
fVerif verifSpace;

}  // namespace quilvane

#endif
