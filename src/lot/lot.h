/**
 * lot.h - a whole run of the batch runner.
 */
#ifndef QUILVANE_LOT_LOT_H
#define QUILVANE_LOT_LOT_H

#include "lot/options.h"

namespace quilvane::lot {

/** Exit statuses. */
enum eStatut { STATUT_ACCEPTE = 0, STATUT_ECHEC = 1, STATUT_REFUS = 2, STATUT_USAGE = 3 };

/**
 * Works through the spool that `r` names, once or until TERM, INT or HUP comes:
 * then what is in progress is finished, or put back when a second one comes.
 */
int travailler(const reglages& r);

}  // namespace quilvane::lot

#endif
