/**
 * index.h - where the entries stand in the longest of the lists that are
 * searched for a text, so that a search need not read them through.
 */
#ifndef QUILVANE_CHECKS_INDEX_H
#define QUILVANE_CHECKS_INDEX_H

#include "vocabulaire/liste.h"

namespace quilvane {

/**
 * The index of one list: a table of places with open addressing, made by the
 * compiler. The list keeps its order, and a search through the index finds
 * what reading the list finds.
 */
struct indexListe {
    static constexpr int COURTE = 18;  // a list of up to so many entries needs none
    static constexpr int BITS = 9;
    static constexpr unsigned TAILLE = 1U << BITS;  // more than twice the longest list

    const tValAutorise* entrees;
    int largeur;                        // of every entry, at most eight
    unsigned char places[TAILLE] = {};  // of an entry, from 1 on; 0 where none stands

    /** A list that does not fit does not compile. */
    consteval explicit indexListe(const liste& l) : entrees(l.begin()), largeur(quilvane::largeur(l)) {
        // An entry is known by its first eight characters, a place is one byte.
        if (largeur < 1 || largeur > 8 || l.nombre() > 255) laListeNeTientPasDansUnIndex();
        for (int i = 0; i < l.nombre(); ++i) {
            unsigned place = depart(entrees[i].debut);
            while (places[place] != 0)
                place = suivante(place);
            places[place] = static_cast<unsigned char>(i + 1);
        }
    }

    /** Whether an entry has these first eight characters, packed as in its `debut`. */
    bool contient(std::uint64_t cle) const {
        for (unsigned place = depart(cle); places[place] != 0; place = suivante(place))
            if (entrees[places[place] - 1].debut == cle) return true;
        return false;
    }

    /** Called by no program: the compiler refuses it, and names it. */
    static void laListeNeTientPasDansUnIndex();

    /** The first place of a key, and the one to look at next. */
    static constexpr unsigned depart(std::uint64_t cle) {
        return static_cast<unsigned>(cle * 0x9E3779B97F4A7C15U >> (64 - BITS));
    }
    static constexpr unsigned suivante(unsigned place) { return (place + 1) % TAILLE; }
};

}  // namespace quilvane

#endif
