/**
 * verdict.h - what was decided of a file, written down before any of it is
 * published, so that whoever takes the casier over ends it in the same way.
 */
#ifndef QUILVANE_LOT_VERDICT_H
#define QUILVANE_LOT_VERDICT_H

#include <string>
#include <vector>

#include "lot/casier.h"

namespace quilvane::lot {

/** A file that leaves the casier. */
struct publication {
    std::string source;   // in the casier
    eLieu lieu = ECHECS;  // where it goes
    std::string suffixe;  // behind the input's name
    std::string cible;    // the name it gets there
};

/** The decision. */
struct verdict {
    std::string json;  // the journal line up to the names of the files, without its last brace
    std::string nom;   // of the input, as it arrived
    std::vector<publication> fichiers;  // in the order in which they are published: the main one last
};

/** Reads the verdict of a casier; false with errno, ENOENT when there is none. */
bool lireVerdict(const casier& c, verdict& v);

/** Gives every file a free name, all with the same number, and writes the
 *  verdict down. */
bool ecrireVerdict(const depot& d, const casier& c, verdict& v, faute& f);

/** Moves what has not left the casier yet. A name that was taken in the
 *  meantime is exchanged, and the verdict written again, before the move. */
bool publier(const depot& d, const casier& c, verdict& v, faute& f);

/** The journal line of a published verdict, with its line end. */
std::string ligneDuJournal(const verdict& v);

}  // namespace quilvane::lot

#endif
