/**
 * casier.h - the private folder of one file under encours. Its runner holds a
 * lock on it for as long as it lives; what stands in it says how far the file
 * has come:
 *
 *   verrou          locked while a runner, or what it started, works here
 *   entree/<nom>    the input, moved here from arrivee under its name
 *   copie           its bytes as they are processed and archived
 *   travail/        where quilvane works: recu, emis, log
 *   rapport.*, raison.txt   what is published beside the result
 *   verdict         where all of it goes: nothing is decided again after it
 *
 * A casier without verdict is processed again from its input, one with a
 * verdict is published to its end, one without input or verdict is empty.
 */
#ifndef QUILVANE_LOT_CASIER_H
#define QUILVANE_LOT_CASIER_H

#include <string>
#include <string_view>

#include "lot/depot.h"

namespace quilvane::lot {

inline constexpr const char* VERROU = "verrou";
inline constexpr const char* ENTREE = "entree";
inline constexpr const char* TRAVAIL = "travail";
inline constexpr const char* COPIE = "copie";
inline constexpr const char* VERDICT = "verdict";
inline constexpr const char* RAISON = "raison.txt";

struct casier {
    std::string id;       // "AAAAMMJJ-hhmmss-<16 hexadecimal digits>", UTC; its folder's name
    double debut = 0;     // when it was made, in seconds since 1970
    bool repris = false;  // made by a runner that has ended
    descripteur dossier;
    descripteur verrou;
};

/** Whether a name under encours is one of a casier. */
bool estId(std::string_view nom);

/** Seconds since 1970, UTC. */
double heure();

/** Makes a casier under a new name and locks it. */
bool ouvrirCasier(const depot& d, casier& c, faute& f);

/** What came of trying to get hold of another runner's casier. */
enum eReprise { REPRIS, OCCUPE, REPRISE_IMPOSSIBLE };

/** Locks the casier `id` when no living runner holds it. */
eReprise reprendreCasier(const depot& d, const std::string& id, casier& c, faute& f);

/** Removes a casier with all that it holds. Its input goes first, the verdict
 *  after it: a crash in between never makes it look unprocessed. */
bool retirerCasier(const depot& d, casier& c, faute& f);

/** The one name in entree; empty for none. False with a fault when the folder
 *  cannot be read. */
bool nomEntre(const casier& c, std::string& nom, faute& f);

}  // namespace quilvane::lot

#endif
