/**
 * temoin.h - watching a record being checked. A front end that shows more than
 * the verdict (the console modes, the guide) gives the engine a witness; a run
 * without one pays nothing for it.
 *
 * It stands beside the engine, which calls it; the record's life in controle/
 * calls it too.
 */
#ifndef QUILVANE_RULES_TEMOIN_H
#define QUILVANE_RULES_TEMOIN_H

#include "vocabulaire/regle.h"

namespace quilvane {

/** What happens, in the order in which it can for one record. */
enum eVu {
    VU_RECORD,     // a record is about to be processed; it is in `xdebug`
    VU_COUPE,      // a part of it has been cut into its slots
    VU_CADRAGE,    // a framing fault: `numero` is 106, 107 or 108
    VU_LIGNE,      // the engine comes to a row, which it may skip without a word
    VU_IGNOREE,    // the row is not checked for this transaction kind
    VU_VERIFIEE,   // the row's check is about to see `valeur`
    VU_REFUSEE,    // the check refused `valeur`, which it may have rewritten
    VU_INTERDITE,  // the field is not allowed for this transaction kind
    VU_TERMINE     // the record has been processed to its end
};

/** One thing seen. Members that an event does not name are zero. */
struct sVu {
    eVu quoi;
    const sCorps* ligne = nullptr;  // rows
    const char* partie = "";        // rows: "E" header, "C" body, "F" footer
    int emplacement = 0;            // rows: the field's slot, from 0
    const char* valeur = "";        // rows: the slot's text
    int presence = 0;               // VU_INTERDITE: the row's code, -1 for an unknown kind
    int numero = 0;                 // the error number, stored or not
};

/** A witness: a function and what it is called with. */
struct temoin {
    void (*voir)(void* qui, const sVu& vu);
    void* qui;
};

/** Tells a witness, if there is one. */
inline void dire(const temoin* t, const sVu& vu) {
    if (t != nullptr) t->voir(t->qui, vu);
}

}  // namespace quilvane

#endif
