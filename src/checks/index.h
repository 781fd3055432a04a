/**
 * index.h - where the entries stand in the longest of the lists that are
 * searched for a text, so that a search need not read them through.
 */
#ifndef QUILVANE_CHECKS_INDEX_H
#define QUILVANE_CHECKS_INDEX_H

#include "rules/pack.h"

namespace quilvane {

/**
 * The index of one list: a table of places with open addressing, made by the
 * compiler. The list keeps its order, and a search through the index finds
 * what reading the list finds.
 */
struct indexListe {
    static constexpr int COURTE = 60;  // a list of up to so many entries needs none
    static constexpr int BITS = 9;
    static constexpr unsigned TAILLE = 1U << BITS;

    const tValAutorise* liste;
    int nombre;
    int largeur = 0;                    // of the widest entry, at most eight
    unsigned char places[TAILLE] = {};  // of an entry, from 1 on; 0 where none stands

    template <int N>
    consteval explicit indexListe(const tValAutorise (&entrees)[N]) : liste(entrees), nombre(N) {
        static_assert(N > COURTE && N < 256 && N < static_cast<int>(TAILLE / 2));
        for (int i = 0; i < N; ++i) {
            unsigned place = depart(entrees[i].debut);
            while (places[place] != 0)
                place = suivante(place);
            places[place] = static_cast<unsigned char>(i + 1);
            int n = 0;
            while (entrees[i].valeur[n] != '\0')
                ++n;
            if (n > largeur) largeur = n;
        }
    }

    /** Whether an entry has these first eight characters, packed as in its `debut`. */
    bool contient(std::uint64_t cle) const {
        for (unsigned place = depart(cle); places[place] != 0; place = suivante(place))
            if (liste[places[place] - 1].debut == cle) return true;
        return false;
    }

    /** The first place of a key, and the one to look at next. */
    static constexpr unsigned depart(std::uint64_t cle) {
        return static_cast<unsigned>(cle * 0x9E3779B97F4A7C15U >> (64 - BITS));
    }
    static constexpr unsigned suivante(unsigned place) { return (place + 1) % TAILLE; }
};

/** The lists that have one, the most searched first. */
inline constexpr int NB_INDEX = 9;
extern const indexListe tIndex[NB_INDEX];

}  // namespace quilvane

#endif
