/**
 * vse.h - records for tests: 256 columns with a correct header and footer, to
 * be changed column by column.
 */
#ifndef QUILVANE_TESTS_SUPPORT_VSE_H
#define QUILVANE_TESTS_SUPPORT_VSE_H

#include <string>
#include <string_view>
#include <vector>

namespace essai {

/** Date and time of the records' footers: 15 March 2024, 10:20:30. */
inline constexpr const char* DATE_FIN = "15032024";
inline constexpr const char* HEURE_FIN = "102030";

/** Writes `texte` over the columns from `col` (1-based) on. */
void poser(std::string& record, int col, std::string_view texte);

/** A field put at a column, for lists of changes. */
struct pose {
    int col;
    std::string texte;
};

/**
 * A message record with a correct header for emitter "089ARS  " and
 * departmental body "078IPG  ", a blank body changed by `corps`, and a correct
 * footer dated `DATE_FIN`.
 */
std::string vse(std::string_view type, std::string_view genre, const std::vector<pose>& corps = {});

/** A FICH record of emitter `emetteur` (8) and receiver "031BDN  " that
 *  announces `nombre` message records. */
std::string fich(int nombre, std::string_view emetteur = "089ARS  ");

/** A correct ACTI record of kind CRE for body "078IPG  ". */
std::string acti();

/** The records, each followed by `finDeLigne`. */
std::string fichier(const std::vector<std::string>& records, std::string_view finDeLigne = "\n");

}  // namespace essai

#endif
