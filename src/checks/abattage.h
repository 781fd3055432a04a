/**
 * abattage.h - the checks of the slaughter notice, most of which look at `cp`,
 * the extract of the whole notice, rather than at their own field.
 */
#ifndef QUILVANE_CHECKS_ABATTAGE_H
#define QUILVANE_CHECKS_ABATTAGE_H

#include "vocabulaire/regle.h"

namespace quilvane {

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

}  // namespace quilvane

#endif
