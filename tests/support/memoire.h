/**
 * memoire.h - a text in memory as the source of a record stream.
 */
#ifndef QUILVANE_TESTS_SUPPORT_MEMOIRE_H
#define QUILVANE_TESTS_SUPPORT_MEMOIRE_H

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "controle/lecteur.h"

namespace essai {

/** A text that is handed out block by block, or up to an offset at which
 *  reading fails. It must live as long as the stream that reads it. */
struct memoire {
    std::string octets;
    std::size_t panne = std::string::npos;  // bytes that can be read; npos: all, without error
    std::size_t position = 0;
    int appels = 0;  // blocks asked for

    explicit memoire(std::string o, std::size_t p = std::string::npos) : octets(std::move(o)), panne(p) {}

    static std::size_t remplir(void* source, unsigned char* bloc, std::size_t taille, bool& erreur) {
        memoire& m = *static_cast<memoire*>(source);
        ++m.appels;
        const std::size_t lisibles = std::min(m.octets.size(), m.panne);
        const std::size_t n = std::min(taille, lisibles - m.position);
        std::memcpy(bloc, m.octets.data() + m.position, n);
        m.position += n;
        erreur = n < taille && m.panne != std::string::npos;
        return n;
    }

    /** Makes `l` a stream that starts at the text's first byte. */
    void ouvrir(quilvane::lecteur& l) {
        position = 0;
        appels = 0;
        l = {};
        l.remplir = remplir;
        l.source = this;
    }
};

}  // namespace essai

#endif
