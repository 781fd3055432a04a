/**
 * page.h - the HTML report: one self-contained page into which the data are
 * written. Style, script and their digests are put together when the program
 * is built (Embarquer.cmake).
 *
 * A report is the concatenation of
 *
 *     pageDebut      then the language, "fr" or "en"
 *     pageRapport    then the report, JSON of the format quilvane-rapport/1
 *     pageCatalogue  then the catalogue, JSON of the format quilvane-catalogue/1
 *     pageFin
 *
 * Report and catalogue may each be a JSON list with one object per language;
 * the reader can then change the language. The catalogue may be `null`.
 *
 * Both texts stand inside a script element, so that no "<" may occur in them;
 * `dansLaPage` makes them so. What a finding leaves out and the catalogue says
 * (titre, remede, libelle) is taken from there, which keeps long reports small.
 */
#ifndef QUILVANE_PAGE_PAGE_H
#define QUILVANE_PAGE_PAGE_H

#include <string>
#include <string_view>

namespace quilvane {

/** The constant parts, UTF-8, in the order of the page. */
extern const std::string_view pageDebut;
extern const std::string_view pageRapport;
extern const std::string_view pageCatalogue;
extern const std::string_view pageFin;

/** The JSON text (UTF-8) with each "<" and each character from U+0100 on
 *  written as `\uXXXX`, which JSON reads as the same character: such characters
 *  stand in strings only. No tag can begin in the result, and browsers hold it
 *  in one byte per character, which opens long reports a quarter faster. A long
 *  text may be passed through in pieces that are cut between characters. Bytes
 *  that are not UTF-8 are kept. */
std::string dansLaPage(std::string_view json);

}  // namespace quilvane

#endif
