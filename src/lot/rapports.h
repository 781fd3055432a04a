/**
 * rapports.h - what people read beside a file: the report of quilvane-guide on
 * a rejected one, the reason of one that failed.
 */
#ifndef QUILVANE_LOT_RAPPORTS_H
#define QUILVANE_LOT_RAPPORTS_H

#include <string>

#include "lot/traitement.h"

namespace quilvane::lot {

/** A report: its name in the casier, what stands behind the file's name in
 *  rejets, and quilvane-guide's word for it. */
struct rapport {
    const char* nom;
    const char* suffixe;
    const char* format;
};
inline constexpr rapport RAPPORTS[] = {
    {"rapport.txt", ".txt", "texte"},
    {"rapport.html", ".html", "html"},
};

/** Has quilvane-guide explain the archived input. A report that it does not make
 *  is left out and `t.rapportManque` set; false only for a fault of the disk. */
bool faireRapports(atelier& t, const casier& c, const bilan& b, faute& f);

/** The text that stands beside a file in echecs, UTF-8. */
std::string redigerRaison(const bilan& b, eLangue langue);

}  // namespace quilvane::lot

#endif
