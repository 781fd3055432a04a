/**
 * phrases.h - what a rule row asks of its field, in words. Everything about a
 * row that does not change from record to record is put together once.
 */
#ifndef QUILVANE_RAPPORT_PHRASES_H
#define QUILVANE_RAPPORT_PHRASES_H

#include <string>
#include <vector>

#include "catalogue/verifs.h"
#include "rapport/tables.h"

namespace quilvane {

/** What is the same for every error of a row. */
struct sRegle {
    sPlace place;       // the field that it checks
    sPlace dependance;  // the field that it depends on, no table for none
    const sVerif* verif;
    const sListe* liste;
    std::string phrase;  // what it asks, without values
    /** The same in pieces, between which stands the value of the field that the
     *  row depends on, in quotes. Never empty. */
    std::vector<std::string> morceaux;
};

/** The words of a row; it names a check. */
const sRegle& regleDe(const sCorps* ligne, eLangue langue);

/** Whether the sentence names the list without its values. */
bool listeTue(const sRegle& r);

/** The row's sentence for a record whose field depended on holds `valeur`. */
std::string phraseAvecValeur(const sRegle& r, std::string_view valeur, eLangue langue);

}  // namespace quilvane

#endif
