/**
 * conformite.h - whether an animal or holding number, a tag model, a country of
 * origin or a counter has the prescribed form.
 */
#ifndef QUILVANE_CHECKS_CONFORMITE_H
#define QUILVANE_CHECKS_CONFORMITE_H

#include "vocabulaire/regle.h"

namespace quilvane {

// The list of the French number checks is a list of two-character departments.

/** Eight digits with a listed department (971 to 974 and 976 overseas), then
 *  exactly four blanks. Error 68. */
fVerif fConform8;
/** Ten digits with a listed department, then exactly two blanks. Error 67. */
fVerif fConform10;
/** As `fConform10`, and columns 7 to 10 are not "0000". Serves NAIS, NVMN and
 *  IMPO. Errors 67 and 118. */
fVerif fConform10NonNul;
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

}  // namespace quilvane

#endif
