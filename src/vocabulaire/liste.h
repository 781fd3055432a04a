/**
 * liste.h - what an allowed-value list is. The lists themselves stand in
 * checks/valautorise.h.
 */
#ifndef QUILVANE_VOCABULAIRE_LISTE_H
#define QUILVANE_VOCABULAIRE_LISTE_H

#include <cstdint>
#include <initializer_list>

namespace quilvane {

/**
 * One entry of an allowed-value list: a zero-terminated text with the exact
 * width of its field, blanks included. `debut` holds its first eight
 * characters packed into a number, so that a search decides on them at once.
 */
struct tValAutorise {
    const char* valeur;
    std::uint64_t debut;

    /** Entries are written as plain texts; a null text is an empty end row. */
    constexpr tValAutorise(const char* texte) : valeur(texte), debut(cle(texte)) {}

    /** The first eight characters of `texte`, zeros behind its end. */
    static constexpr std::uint64_t cle(const char* texte) {
        std::uint64_t r = 0;
        if (texte == nullptr) return r;
        for (int i = 0; i < 8 && texte[i] != '\0'; ++i)
            r |= std::uint64_t{static_cast<unsigned char>(texte[i])} << (8 * i);
        return r;
    }
};

struct indexListe;  // checks/index.h

/**
 * An allowed-value list in one value: its entries in the order in which they
 * are searched, how many of them make a row (2 for a table of pairs), and the
 * index of a long one. Written as `{{"A", "B"}}`, `{{"A", "1", "B", "2"}, 2}`;
 * the entries live as long as the list that is initialised with them.
 */
struct liste {
    std::initializer_list<tValAutorise> entrees = {};
    int colonnes = 1;
    const indexListe* index = nullptr;

    constexpr int nombre() const { return static_cast<int>(entrees.size()); }
    /** Whole rows of `n` columns; none when the rows have another number of them. */
    constexpr int lignes(int n) const { return n == colonnes ? nombre() / n : 0; }

    constexpr const tValAutorise* begin() const { return entrees.begin(); }
    constexpr const tValAutorise* end() const { return entrees.end(); }
    constexpr const tValAutorise& operator[](int rang) const { return entrees.begin()[rang]; }
    /** The first entry of row `rang`; its other columns follow it. */
    constexpr const tValAutorise* ligne(int rang) const { return entrees.begin() + rang * colonnes; }
};

/** The list of a check that needs none. */
inline constexpr liste sansListe = {};

/** Common width of the entries in column `colonne`, from 0, of a list's rows,
 *  or of all entries; -1 when they differ, when there is none, or when the last
 *  row is not whole. Empty end rows do not count. */
constexpr int largeur(const liste& l, int colonne = -1) {
    if (l.colonnes < 1 || l.nombre() % l.colonnes != 0) return -1;
    int commune = -1;
    for (int rang = 0; rang < l.nombre(); ++rang) {
        if (l[rang].valeur == nullptr || (colonne >= 0 && rang % l.colonnes != colonne)) continue;
        int n = 0;
        while (l[rang].valeur[n] != '\0')
            ++n;
        if (commune >= 0 && n != commune) return -1;
        commune = n;
    }
    return commune;
}

}  // namespace quilvane

#endif
