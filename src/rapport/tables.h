/**
 * tables.h - the rule tables by name, and what a row's pointers mean in words:
 * which table it stands in, which field it depends on, which list it has.
 */
#ifndef QUILVANE_RAPPORT_TABLES_H
#define QUILVANE_RAPPORT_TABLES_H

#include <span>
#include <string>

#include "catalogue/champs.h"
#include "catalogue/listes.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** One rule table. */
struct sTable {
    const char* nom;     // "E" header, "F" footer, "FICH", or a message type
    const char* partie;  // "E", "C" or "F", as in the console traces
    const sCorps* lignes;
    int nombre;
};

/** Header, FICH body, the message types in the order of their routing, footer. */
std::span<const sTable> tables();
/** The table that a row stands in, by the row or by its name; null for none. */
const sTable* tableDe(const sCorps* ligne);
const sTable* tableNommee(std::string_view nom);

/** A field: where it stands and what it is called. */
struct sPlace {
    const sTable* table;  // null: the field of no table
    const sCorps* champ;  // the row with its columns
    int emplacement;      // its slot, from 0
};

/** The field in slot `emplacement` of a table, from 0; no table when it has none there. */
sPlace auSlot(const sTable* table, int emplacement);
/** The field that a row checks. */
sPlace placeDe(const sCorps* ligne);
/** The field that a row depends on: of the header, of the footer, or of the
 *  row's own table; no table when it depends on none. A field of the FICH
 *  record's header (rows that look at the file's emitter) is given as that
 *  header field. */
sPlace dependanceDe(const sCorps* ligne);

/** "C17", "E8", "F1". */
std::string nomDuChamp(const sPlace& p);
/** The field's label; empty when it has none. */
const char* libelleDuChamp(const sPlace& p, eLangue langue);

/** The entry of a row's list, null when the row has none. */
const sListe* listeDeLigne(const sCorps* ligne);

/** The presence code of a row for a transaction kind (0 checked, 1 not
 *  checked, 2 not allowed); 2 for a kind without a column of its own. Rows of
 *  header, footer and FICH record are always checked. */
int presenceDe(const sTable& table, const sCorps* ligne, std::string_view genre);

/** Whether a row's check accepts `valeur`, a slot's text. */
bool accepte(const sCorps* ligne, char* valeur);

}  // namespace quilvane

#endif
