/**
 * derriere.h - the errors of a record behind the tenth: quilvane stops there,
 * the rows that it did not come to are run here.
 */
#ifndef QUILVANE_RAPPORT_DERRIERE_H
#define QUILVANE_RAPPORT_DERRIERE_H

#include "rapport/rapport.h"

namespace quilvane {

/** Adds to `r`, the current record with ten errors, those of the rows behind
 *  the one that found the tenth. `corps` is its body table, null when it was
 *  not looked at. Nothing of the current record changes. */
void ajouterDerriere(sRecordVu& r, const lot& l, const sTable* corps, eLangue langue);

}  // namespace quilvane

#endif
