/**
 * journal.h - journal.jsonl: one line of JSON for every file that has left the
 * spool's care.
 */
#ifndef QUILVANE_LOT_JOURNAL_H
#define QUILVANE_LOT_JOURNAL_H

#include <string>

#include "lot/bilan.h"
#include "lot/depot.h"

namespace quilvane::lot {

/** The journal line of a file up to the names of its files: see ligneDuJournal. */
std::string redigerBilan(const bilan& b);

/** Reads back what the runner shows and counts of a line it did not write. */
bool relireBilan(const std::string& json, bilan& b);

/**
 * Puts a whole line at the end of the journal, in one write, and on the disk.
 * Runners that share the journal do so one after the other, by a lock on it. A
 * line that was cut by a crash stays, ended, on a line of its own. When
 * `peutEtreLa`, nothing is added if the journal holds this very line already.
 */
bool journaliser(const depot& d, const std::string& ligne, bool peutEtreLa, faute& f);

}  // namespace quilvane::lot

#endif
