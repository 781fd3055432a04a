/**
 * listes.h - membership of value lists, absence of blanks, emptiness, and the
 * form of foreign numbers: the checks that the other families are built of.
 *
 * All families: a check with the signature of `fVerif` can be named by a rule
 * row. It returns non-zero when the field is acceptable; on 0 the engine
 * records the row's error number, given below as "error n". Checks allocate
 * nothing, print nothing, and never look behind a text's terminator. Dates are
 * eight characters DDMMYYYY, times six characters HHMMSS. A number is twelve
 * characters, left-aligned and padded with blanks, unless said otherwise.
 * "Exactly" means the whole text, trailing blanks included.
 */
#ifndef QUILVANE_CHECKS_LISTES_H
#define QUILVANE_CHECKS_LISTES_H

#include "vocabulaire/regle.h"

namespace quilvane {

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

}  // namespace quilvane

#endif
