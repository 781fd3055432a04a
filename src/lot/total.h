/**
 * total.h - what a run has done so far.
 */
#ifndef QUILVANE_LOT_TOTAL_H
#define QUILVANE_LOT_TOTAL_H

#include "lot/bilan.h"

namespace quilvane::lot {

struct total {
    long emis = 0;
    long rejets = 0;
    long echecs = 0;
    long rendus = 0;
    long repris = 0;    // of all these, taken over from another run
    long pannes = 0;    // faults of the runner itself
    long acceptes = 0;  // records
    long refuses = 0;
    double secondes = 0;  // spent on files, summed

    long finis() const { return emis + rejets + echecs; }
};

/** What has ended since `avant`, an earlier total of the same run. */
inline total depuis(const total& t, const total& avant) {
    total r;
    r.emis = t.emis - avant.emis;
    r.rejets = t.rejets - avant.rejets;
    r.echecs = t.echecs - avant.echecs;
    return r;
}

inline void compter(total& t, const bilan& b) {
    t.emis += b.issue == ISSUE_EMIS;
    t.rejets += b.issue == ISSUE_REJETS;
    t.echecs += b.issue == ISSUE_ECHECS;
    t.rendus += b.issue == ISSUE_RENDU;
    t.repris += b.repris && b.issue != ISSUE_AUCUNE;
    t.acceptes += b.c.acceptes;
    t.refuses += b.c.refuses;
    if (b.fin > b.debut) t.secondes += b.fin - b.debut;
}

}  // namespace quilvane::lot

#endif
