/**
 * depot.h - the spool folder: its parts, and what has arrived.
 */
#ifndef QUILVANE_LOT_DEPOT_H
#define QUILVANE_LOT_DEPOT_H

#include <string>
#include <vector>

#include "lot/disque.h"

namespace quilvane::lot {

/** The folders of a spool, in the order of a file's way through it. */
enum eLieu { ARRIVEE, ENCOURS, EMIS, REJETS, ECHECS, ARCHIVE, NB_LIEUX };
inline constexpr const char* LIEUX[NB_LIEUX] = {"arrivee", "encours", "emis", "rejets", "echecs", "archive"};

inline constexpr const char* JOURNAL = "journal.jsonl";

struct depot {
    descripteur racine;
    descripteur lieux[NB_LIEUX];

    int lieu(eLieu l) const { return lieux[l].fd; }
};

/** Opens a spool and makes the folders that it lacks. All must be folders, not
 *  links, and on one file system: files pass between them by renaming. */
bool ouvrirDepot(const std::string& chemin, depot& d, faute& f);

/** A file that stands in arrivee. */
struct arrivage {
    std::string nom;
    timespec modifie = {};
    double repos = 0;  // seconds since it was last touched
};

/** The files in arrivee that may be taken by their name and kind, the oldest
 *  first. "Touched" is the time of the last change of the file or its names
 *  (ctime), so that a transfer that sets an old date still counts as new. */
bool listerArrivee(const depot& d, std::vector<arrivage>& fichiers, faute& f);

/** How many names a folder of the spool holds; 0 when it cannot be read. */
long compterFichiers(const depot& d, eLieu lieu);

}  // namespace quilvane::lot

#endif
