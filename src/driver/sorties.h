/**
 * sorties.h - the two temporary files of a run: what is added to them record by
 * record, and the FICH record that is put in front at the end.
 */
#ifndef QUILVANE_DRIVER_SORTIES_H
#define QUILVANE_DRIVER_SORTIES_H

#include "controle/composition.h"

namespace quilvane {

/** Has the output and error files, just opened, written in large blocks and
 *  without locks (one thread writes), and keeps the place of their FICH
 *  records with 256 blanks. */
void preparerSorties();

/** Writes what has been added to either file, and leaves nothing to add. */
void ecrireAjouts(ajouts& a);

/** Rewrites the first 256 columns of the file to publish as its FICH record. */
void ecrireVSEFICH(const lot& l, bool valide);

}  // namespace quilvane

#endif
