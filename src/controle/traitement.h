/**
 * traitement.h - what happens to one record, from its header to its verdict.
 */
#ifndef QUILVANE_CONTROLE_TRAITEMENT_H
#define QUILVANE_CONTROLE_TRAITEMENT_H

#include "controle/lot.h"

namespace quilvane {

/**
 * Judges the record in `l.ligne`, of at most 256 columns. `l.nombreDeVSE` is
 * its place in the file; the first is the FICH record, which is only kept.
 * Sets the verdict's error count and routing row; its fatal condition when the
 * FICH record is none (IG011) or has no file number (I099); and, when the
 * record before waited for a companion that this one is not, its error.
 */
void traitement(lot& l, verdict& v);

/**
 * For a record before that waits for its companion (EXP2 for a created EXP1,
 * RATA for a created EGET) when it does not follow: puts its error record into
 * `l.tamponSansCompagnon` and returns its error number (105, 138). Returns 0
 * when it waits for none.
 */
int sansCompagnon(lot& l);

/** Whether the pairing rules are on: always 1. */
int dependanceVSE();

}  // namespace quilvane

#endif
