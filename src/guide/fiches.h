/**
 * fiches.h - what the subcommands that look things up show: numbers, rules,
 * tables and lists, as text for a terminal and as Markdown.
 */
#ifndef QUILVANE_GUIDE_FICHES_H
#define QUILVANE_GUIDE_FICHES_H

#include <string>

#include "catalogue/erreurs.h"
#include "catalogue/listes.h"
#include "rapport/diagnostic.h"
#include "rapport/tables.h"

namespace quilvane::guide {

std::string ficheErreur(const sErreur& e, eLangue langue, const sStyles& s);
std::string ficheFatale(const sFatal& f, eLangue langue, const sStyles& s);
std::string ficheListe(const sListe& l, eLangue langue, const sStyles& s);

/** Which rules are meant: all, or those of a table, of a field ("C17") of it,
 *  of a transaction kind. */
struct sChoix {
    const sTable* table = nullptr;
    std::string_view champ = {};
    std::string_view genre = {};
};

/** The rules that give a number. For 86, which any field can earn that a kind
 *  excludes, those of a table only. */
std::string reglesDuNumero(int numero, const sChoix& choix, eLangue langue, const sStyles& s);

/** All tables, or one. */
std::string catalogueTexte(eLangue langue, const sTable* seule, const sStyles& s);
std::string catalogueMarkdown(eLangue langue, const sTable* seule);
/** The page of reports, with a catalogue and no report. */
std::string catalogueHtml(eLangue langue, const sTable* seule);

/** Every number and fatal code with meaning, remedy and places. */
std::string erreursMarkdown(eLangue langue);

}  // namespace quilvane::guide

#endif
