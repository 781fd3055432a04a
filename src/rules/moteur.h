/**
 * moteur.h - the engine that applies a rule table to a record.
 */
#ifndef QUILVANE_RULES_MOTEUR_H
#define QUILVANE_RULES_MOTEUR_H

#include "rules/parcours.h"
#include "rules/temoin.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/**
 * Cuts a record into value slots: the n-th row with columns fills slot n-1.
 * Nothing is trimmed or padded; a record that ends inside or before a field
 * gives a shorter or empty slot. `tampon` is made the record in `xdebug` (see
 * `retenirVSE`); it may be `xdebug` itself, to cut the record that is there.
 * `tValVSE` has a slot for every row with columns. The witness, if any, is
 * told `VU_COUPE`.
 */
void getvseChamps(const sCorps* tCorps, int lCorps, const char* tampon, valeurVSE* tValVSE,
                  const temoin* vu = nullptr);

/**
 * Applies a table to the slots cut with it. `valE5` is the transaction kind
 * for a body table and null for header, footer and FICH tables, whose rows are
 * all checked. Errors go to `codeErreur` and `constats` behind the
 * `nbErreurPassee` already there, ten at most; the framing faults 106, 107 and
 * 108 come first. `premLettre` names the section to the witness ("E", "C",
 * "F"). Returns the new count.
 */
int verifChamps(const temoin* vu, int nbErreurPassee, const sCorps* pChamps, int lpChamps,
                valeurVSE* valChampsVSE, const char* valE5, const char* premLettre);

/** `getvseChamps` of the record in `xdebug` without a witness, and faster. */
void couperChamps(const parcours& p, valeurVSE* tValVSE);

/** `verifChamps` without a witness, and faster: the same errors, by the same
 *  calls in the same order. */
int suivreChamps(const parcours& p, int nbErreurPassee, valeurVSE* valChampsVSE, const char* valE5);

}  // namespace quilvane

#endif
