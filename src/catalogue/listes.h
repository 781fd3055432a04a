/**
 * listes.h - what every allowed-value list holds.
 */
#ifndef QUILVANE_CATALOGUE_LISTES_H
#define QUILVANE_CATALOGUE_LISTES_H

#include <span>
#include <string_view>

#include "catalogue/texte.h"
#include "vocabulaire/liste.h"

namespace quilvane {

/** One list. */
struct sListe {
    const char* nom;              // "TD"
    const liste* valeurs;         // the list itself, as rule rows name it
    const tValAutorise* entrees;  // its texts, row after row, an empty end row apart
    int nombre;                   // their count: rows times `colonnes`
    int colonnes;                 // 1; 2 or 3 when the texts are read by pairs or triples
    texte titre;                  // a short noun phrase, at most 60 characters, no final stop
    texte contenu;                // what it holds and how it is read; one sentence
};

/** Every list that a rule row names or that a check of a row looks up. */
extern const std::span<const sListe> listes;

/** The entry of a list, by the pointer that a rule row holds or by its name;
 *  null when there is none. */
const sListe* listeEnMots(const liste* valeurs);
const sListe* listeNommee(std::string_view nom);

}  // namespace quilvane

#endif
