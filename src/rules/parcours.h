/**
 * parcours.h - a rule table as it is walked when nobody watches: the columns to
 * cut, and for each transaction kind the rows that have something to say.
 * Extra rows cut nothing, and of all rows hardly more than half are checked for
 * one kind: the others are not even come to. Made by the compiler; only the
 * table is written.
 */
#ifndef QUILVANE_RULES_PARCOURS_H
#define QUILVANE_RULES_PARCOURS_H

#include <cstddef>

#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** What a row asks for a transaction kind; other values are not allowed. */
enum ePresence { A_VERIFIER = 0, IGNORE = 1, INTERDIT = -1 };

/** The kinds that a presence column stands for. */
enum eGenre { GENRE_CRE, GENRE_DEM, GENRE_INV, GENRE_EDI, GENRE_MOD, NB_GENRES };

/** The presence column of each. */
inline constexpr int sCorps::*PRESENCES[NB_GENRES] = {&sCorps::typeCRE, &sCorps::typeDEM, &sCorps::typeINV,
                                                      &sCorps::typeEDI, &sCorps::typeMOD};

struct parcours {
    /** Rows that a table may have. */
    static constexpr int MAX_LIGNES = 64;
    /** The way of a table whose rows are all checked, whatever the kind. */
    static constexpr int SANS_GENRE = NB_GENRES;

    /** A field: its first column, from 0, and its width. */
    struct coupe {
        unsigned char debut;
        unsigned char largeur;
    };
    /** A row to come to: its place in the table, its field's slot, and whether
     *  the field is not allowed for the kind. */
    struct etape {
        unsigned char ligne;
        unsigned char emplacement;
        bool interdit;
    };

    const sCorps* lignes;
    int nombre;
    int champs = 0;
    coupe coupes[MAX_LIGNES] = {};
    int pas[NB_GENRES + 1] = {};
    etape etapes[NB_GENRES + 1][MAX_LIGNES] = {};

    /** The ways through a table of at most `MAX_LIGNES` rows, which lives as long
     *  as they do. */
    constexpr parcours(const sCorps* table, int n) : lignes(table), nombre(n) {
        for (int i = 0; i < n; ++i) {
            const sCorps& ligne = table[i];
            if (ligne.fin != 0)
                coupes[champs++] = {static_cast<unsigned char>(ligne.debut - 1),
                                    static_cast<unsigned char>(ligne.fin - ligne.debut + 1)};
            if (ligne.pfVerif == nullptr) continue;
            for (int genre = 0; genre <= SANS_GENRE; ++genre) {
                const int presence = genre == SANS_GENRE ? A_VERIFIER : ligne.*PRESENCES[genre];
                if (presence == IGNORE) continue;
                etapes[genre][pas[genre]++] = {static_cast<unsigned char>(i),
                                               static_cast<unsigned char>(champs - 1),
                                               presence != A_VERIFIER};
            }
        }
    }
    template <std::size_t N>
    explicit constexpr parcours(const sCorps (&table)[N]) : parcours(table, static_cast<int>(N)) {
        static_assert(N <= MAX_LIGNES);
    }
};

}  // namespace quilvane

#endif
