/**
 * sortie.h - where a report's bytes go: a file, standard output, memory.
 */
#ifndef QUILVANE_RAPPORT_SORTIE_H
#define QUILVANE_RAPPORT_SORTIE_H

#include <string_view>

namespace quilvane {

/** A place to write to, in the order given. */
struct sSortie {
    void (*ecrire)(void* ou, std::string_view octets);
    void* ou;

    void operator()(std::string_view octets) const { ecrire(ou, octets); }
};

}  // namespace quilvane

#endif
