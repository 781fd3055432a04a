/**
 * constat.h - what was found wrong with a record: the number, where it comes
 * from, and the rule row that found it.
 */
#ifndef QUILVANE_RULES_CONSTAT_H
#define QUILVANE_RULES_CONSTAT_H

#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Which step found an error. */
enum eOrigine {
    ORIGINE_TABLE,       // a rule row
    ORIGINE_CADRAGE,     // the record's length or bytes (106, 107, 108)
    ORIGINE_ADMISSION,   // who may send what to whom, before any row
    ORIGINE_PARTENAIRE,  // the rules about partners, behind the body's rows
    ORIGINE_COMPAGNON,   // the record that must follow did not (105, 138)
    ORIGINE_COMPTE       // the FICH record announces another count (100)
};

/** One error of a record. */
struct constat {
    int numero;
    eOrigine origine;
    const sCorps* ligne;  // the row that found it, null unless it was one
};

/** The errors of the current record, as many as `codeErreur` holds and in the
 *  same order. Written by `ajouterErreur`. */
extern constat constats[MAX_ERREURS];

/** Stores an error as the `compte`-th one of the current record unless ten are
 *  stored, in `codeErreur` and `constats`; returns the new count. */
int ajouterErreur(int compte, int numero, eOrigine origine, const sCorps* ligne = nullptr);

/** The row with the columns of the field that `ligne` checks: itself, or the
 *  nearest one above an extra row. */
const sCorps* champDe(const sCorps* ligne);

/** Where a text stands, and how much of it there is. */
struct extrait {
    const char* debut;
    int longueur;
};

/**
 * The columns that an error speaks of, as they came in the current record:
 * the field's slot may have been rewritten since (dates that may be
 * incomplete). Shorter where the record ends early; empty for an error without
 * a row.
 */
extrait texteDe(const constat& c);

}  // namespace quilvane

#endif
