/**
 * regle.h - what a check is and what a rule row is.
 */
#ifndef QUILVANE_VOCABULAIRE_REGLE_H
#define QUILVANE_VOCABULAIRE_REGLE_H

#include "vocabulaire/liste.h"
#include "vocabulaire/pack.h"

namespace quilvane {

/**
 * A check. `dependance` is the text of the field that the row depends on (or
 * ""), `champ` the field's own slot and `sverif` the row's list. Returns
 * non-zero when the field is acceptable. A check prints nothing and changes
 * nothing, with two exceptions: the date reader in incomplete mode rewrites
 * `champ`, and `presence_C2` cuts the slaughter notice `cp` anew for the
 * checks behind it.
 */
using fVerif = int(const char* dependance, char* champ, const liste& sverif);

/** One rule row. */
struct sCorps {
    int numChamp;  // field number from 0; shown as number + 1 in traces
    int debut;     // first column, from 1; 0 on an extra row
    int fin;       // last column, inclusive; 0 on an extra row
    int typeCRE;   // presence code by transaction kind: 0 checked,
    int typeDEM;   //   1 not checked, 2 not allowed (error 86)
    int typeINV;
    int typeEDI;
    int typeMOD;
    fVerif* pfVerif;         // the check, or null: the field is only cut out
    const liste* sverif;     // the list, `sansListe` when it needs none
    const char* dependance;  // slot of another field, or ""
    int noErr;               // error number when the check fails
};

/** The dependency of a row that compares with no other field: an empty text
 *  with an address of its own, which the compiler can compare. */
inline constexpr char aucune[] = "";

}  // namespace quilvane

#endif
