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
 * Both texts stand inside a script element, so that no "<" may occur in them:
 * `dansLaPage` writes each as `\u003C`, which JSON reads as the same character.
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

/** The JSON text with each "<" as `\u003C`. A JSON text has "<" in its strings
 *  only, so that a long one may be passed through in pieces, cut anywhere. */
std::string dansLaPage(std::string_view json);

}  // namespace quilvane

#endif
