/**
 * jugement.h - running quilvane on a copy, and what its end means: only a result
 * that is whole beyond doubt is accepted or rejected, all else has failed.
 */
#ifndef QUILVANE_LOT_JUGEMENT_H
#define QUILVANE_LOT_JUGEMENT_H

#include "lot/bilan.h"
#include "lot/casier.h"
#include "lot/processus.h"

namespace quilvane::lot {

/** The result of quilvane in a casier. */
inline constexpr const char* RESULTAT = "travail/emis";

/** Runs quilvane in the casier's folder travail, on a link to the copy. Ended by
 *  TERM, INT or HUP it is run again, three times at most: those come from
 *  outside and say nothing about the file. False for a fault of the runner's. */
bool lancerQuilvane(const casier& c, const std::string& quilvane, int delai, const arret& a,
                    finDeProcessus& fin, faute& f);

/** Fills issue, cause, detail, counts and result of `b` from how it ended and
 *  what it left. False when that could not be read, or is not safely on disk. */
bool juger(const casier& c, const finDeProcessus& fin, bilan& b, faute& f);

}  // namespace quilvane::lot

#endif
