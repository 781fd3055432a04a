/**
 * verifs.h - what every check that a rule row names asks of its field, in
 * words. The entries stand in verifs.def.
 *
 * A text may hold two placeholders, which the caller words:
 *   {dep}    the field that the row depends on: "le champ C1 (pays, « DE »)",
 *            "the field C1 (country, “DE”)". Never behind "de" or "à", so that
 *            French needs no contraction.
 *   {liste}  the row's list: "la liste TD (...)", "the list TD (...)".
 * The four special codes that belong to every list are not told here: they are
 * the same for all checks and are said once.
 */
#ifndef QUILVANE_CATALOGUE_VERIFS_H
#define QUILVANE_CATALOGUE_VERIFS_H

#include <span>
#include <string>
#include <string_view>

#include "catalogue/texte.h"
#include "vocabulaire/regle.h"

namespace quilvane {

// Each check with an entry, whichever header it comes from.
#define VERIF(nom, francais, anglais) extern fVerif nom;
#include "catalogue/verifs.def"
#undef VERIF

/** One check. */
struct sVerif {
    fVerif* verif;
    const char* nom;  // "fConform10"
    texte phrase;     // what the value must be; one or two sentences, with placeholders
};

/** Every check that a rule row names, by family. */
extern const std::span<const sVerif> verifs;

/** The entry of a check, by its function or by its name; null when there is none. */
const sVerif* verifDe(fVerif* verif);
const sVerif* verifNommee(std::string_view nom);

/** The sentence of a check with its placeholders filled, as often as they stand. */
std::string phraseDe(const sVerif& verif, eLangue langue, std::string_view liste, std::string_view dep);

}  // namespace quilvane

#endif
