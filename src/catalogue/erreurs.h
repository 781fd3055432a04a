/**
 * erreurs.h - what every error number and every fatal code means, and how to
 * mend what caused it.
 */
#ifndef QUILVANE_CATALOGUE_ERREURS_H
#define QUILVANE_CATALOGUE_ERREURS_H

#include <span>
#include <string_view>

#include "catalogue/texte.h"

namespace quilvane {

/** One error number of a record. */
struct sErreur {
    int numero;    // as in the code "I%03d1" of an error record
    texte titre;   // at most 60 characters
    texte sens;    // what it means
    texte remede;  // how to mend it
};

/** One code that ends a run, as it stands at the start of its log line. */
struct sFatal {
    const char* code;  // "IG008", "I073"
    texte titre;       // at most 60 characters
    texte sens;
    texte remede;
};

/** Every error number, in ascending order. */
extern const std::span<const sErreur> erreurs;
/** Every fatal code, in ascending order of its text. */
extern const std::span<const sFatal> fatals;

/** The entry of an error number, of a fatal code; null when there is none. */
const sErreur* erreurDe(int numero);
const sFatal* fatalDe(std::string_view code);

}  // namespace quilvane

#endif
