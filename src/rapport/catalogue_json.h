/**
 * catalogue_json.h - tables, numbers, lists and examples as JSON
 * (quilvane-catalogue/1), for the reports and for other programs.
 */
#ifndef QUILVANE_RAPPORT_CATALOGUE_JSON_H
#define QUILVANE_RAPPORT_CATALOGUE_JSON_H

#include <string>
#include <vector>

#include "catalogue/texte.h"
#include "rapport/tables.h"

namespace quilvane {

/** The whole catalogue, or what concerns one table. */
std::string catalogueJson(eLangue langue, const sTable* seule = nullptr);

/** The transaction kinds with a presence column, in its order. */
inline constexpr const char* GENRES_A_COLONNE[] = {"CRE", "DEM", "INV", "EDI", "MOD"};

/** Title of a table: the message type's name, or "en-tête", "pied". */
std::string titreDeTable(const sTable& t, eLangue langue);

/** The fields of a table that raise an error number, "NAIS C17". */
std::vector<std::string> lieuxDe(int numero);

}  // namespace quilvane

#endif
