/**
 * champs.h - what the message types, the transaction kinds and the fields are
 * called.
 */
#ifndef QUILVANE_CATALOGUE_CHAMPS_H
#define QUILVANE_CATALOGUE_CHAMPS_H

#include <span>
#include <string_view>

#include "catalogue/texte.h"

namespace quilvane {

/** One field of the header ("E"), of the footer ("F"), of the FICH record's
 *  body ("FICH") or of a message type's body ("NAIS"). */
struct sChamp {
    const char* table;  // "E", "F", "FICH" or a message type
    int numChamp;       // from 0, as in the rule rows: `C2` is 1
    texte libelle;      // a short name, at most 60 characters, no final stop
};

/** One message type or transaction kind. */
struct sNom {
    const char* code;  // "NAIS", "CRE"
    texte libelle;     // a short name, no final stop
};

/** Every field that a rule table cuts, by table, then by field. */
extern const std::span<const sChamp> champs;
/** Every message type, FICH included, by code; every transaction kind, by code. */
extern const std::span<const sNom> typesDeVSE;
extern const std::span<const sNom> genres;

/** The entry of a field, of a type, of a kind; null when there is none. */
const sChamp* libelleDe(std::string_view table, int numChamp);
const sNom* typeDe(std::string_view code);
const sNom* genreDe(std::string_view code);

}  // namespace quilvane

#endif
