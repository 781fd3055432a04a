/**
 * traitement.h - the way of one file through the spool. Every step is on the
 * disk before the next begins, and each can be done again.
 */
#ifndef QUILVANE_LOT_TRAITEMENT_H
#define QUILVANE_LOT_TRAITEMENT_H

#include <atomic>
#include <string>

#include "lot/bilan.h"
#include "lot/casier.h"
#include "lot/processus.h"

namespace quilvane::lot {

/** What all files of a run are processed with. */
struct atelier {
    depot d;
    std::string quilvane;
    std::string guide;  // quilvane-guide, empty when there is none
    eLangue langue = FRANCAIS;
    int delai = 0;  // seconds for one run of quilvane, 0 for no limit
    arret a = CONTINUER;
    std::atomic<bool> rapportManque = false;  // a report could not be made
};

/** What came of trying to take a file. */
enum ePrise {
    PRISE,
    PARTIE,          // another runner has it, or it is no regular file any more
    PRISE_REFUSEE,   // it cannot be moved: its folder does not let us
    PRISE_EN_PANNE,  // the runner itself cannot go on
};

/** Makes a casier and moves a file of arrivee into it. */
ePrise prendre(atelier& t, const std::string& nom, casier& c, faute& f);

/**
 * Takes the file of a locked casier from wherever it stands to its end, or, when
 * all is to be stopped, back to arrivee. `b.issue` is ISSUE_AUCUNE for a casier
 * that held nothing. False for a fault of the runner's: the casier then stays,
 * to be taken over again.
 */
bool traiter(atelier& t, casier& c, bilan& b, faute& f);

}  // namespace quilvane::lot

#endif
