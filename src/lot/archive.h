/**
 * archive.h - every input as it came, under archive/AAAA/MM/JJ (UTC).
 */
#ifndef QUILVANE_LOT_ARCHIVE_H
#define QUILVANE_LOT_ARCHIVE_H

#include <string>

#include "lot/casier.h"

namespace quilvane::lot {

/**
 * Puts the copy that stands in a casier into the archive of the day on which it
 * was taken, under the input's name or, when that is taken, with a number. Done
 * again after a crash it finds what it had put there. `chemin` is then its place
 * in the spool.
 */
bool archiver(const depot& d, const casier& c, const std::string& nom, std::string& chemin, faute& f);

/** Takes it out again, for an input that is put back. */
bool desarchiver(const depot& d, const casier& c, const std::string& nom, faute& f);

/**
 * Removes the days that lie more than `jours` before today, and the months and
 * years that are then empty. Only folders named AAAA/MM/JJ are looked into, and
 * only their files and links are removed; `retires` counts the days that went,
 * `restes` those that hold something else and stay.
 */
bool garderJours(const depot& d, int jours, long& retires, long& restes, faute& f);

}  // namespace quilvane::lot

#endif
