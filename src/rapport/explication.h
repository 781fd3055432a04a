/**
 * explication.h - one error in words: what is asked of the field, with the
 * record's values filled in; near values; which error comes first.
 */
#ifndef QUILVANE_RAPPORT_EXPLICATION_H
#define QUILVANE_RAPPORT_EXPLICATION_H

#include <string>

#include "rapport/rapport.h"

namespace quilvane {

/** An error of the current record, which is of body table `corps` (null for an
 *  unknown type): place, columns, value, words. */
sErreurVue expliquer(const constat& c, const lot& l, const sTable* corps, eLangue langue);

/** The FICH record announces another count than the `trouves` messages; -1 when
 *  there is not even a FICH record. */
sErreurVue expliquerCompte(int trouves, eLangue langue);

/** A creation of EXP1 or EGET (`record`) that its companion does not follow;
 *  `suivant` is the record that stands there, null at the end of the file. */
sErreurVue expliquerCompagnon(int numero, const sRecordVu& record, const sRecordVu* suivant, eLangue langue);

/** Marks in a record's errors those that probably follow from another one. */
void lierErreurs(std::vector<sErreurVue>& erreurs);

/** What is asked of the field, values filled in. */
std::string messageDe(const sErreurVue& e, eLangue langue);

}  // namespace quilvane

#endif
