/**
 * aiguillage.h - the routing table: which rule table serves a message type,
 * and which two body fields name the holding concerned in an error record.
 */
#ifndef QUILVANE_MESSAGES_AIGUILLAGE_H
#define QUILVANE_MESSAGES_AIGUILLAGE_H

#include "rules/pack.h"

namespace quilvane {

/** One routing row. */
struct sAiguillage {
    const char* nomVSE;       // message type, header E6
    const sCorps* tabVerif;   // its rule table; null in the last row
    const int* pLenTabVerif;  // the table's row count; null in the last row
    codeVSE code;             // `CODE_INCONNU` in the last row
    numCorpsVSE champErrC7;   // country of the holding concerned, or `CINC`
    numCorpsVSE champErrC8;   // its twelve-character number, or `CINC`
};

inline constexpr int LEN_AIGUILLAGE = 28;
/** Index of the last row, which stands for every unknown type. */
inline constexpr int ERR_AIGUILLAGE = 27;

extern const sAiguillage tAiguillage[LEN_AIGUILLAGE];

/** Index of the row of a message type (exact, case-sensitive), `ERR_AIGUILLAGE`
 *  when there is none. */
int aiguiller(const char* typeVSE);

}  // namespace quilvane

#endif
