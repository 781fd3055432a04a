/**
 * rendus.h - a report as text, JSON, JSON lines, CSV or HTML. All formats are
 * written as the records come; only HTML keeps the refused records' texts.
 */
#ifndef QUILVANE_RAPPORT_RENDUS_H
#define QUILVANE_RAPPORT_RENDUS_H

#include <span>
#include <string>

#include "rapport/rapport.h"
#include "rapport/sortie.h"

namespace quilvane {

enum eFormat { FORMAT_TEXTE, FORMAT_JSON, FORMAT_JSONL, FORMAT_CSV, FORMAT_HTML };

/** A report being written. Made from the first four members. */
struct sRapport {
    eFormat format;
    eLangue langue;
    bool couleur;  // text: with the terminal's colours
    sSortie sortie;

    std::string nom = {};  // the file being reported
    bool premierFichier = true;
    bool premierConstat = true;
    long long constats = 0;           // told for this file so far
    std::string avertissements = {};  // JSON of the warnings so far
    std::string textes = {};          // JSON: the refused records' texts
    bool avecTextes = false;          // JSON: with them
    std::string tampon = {};          // a record being written
};

/** What stands before, around and behind the files' reports. */
void commencerRapport(sRapport& r);
void commencerFichier(sRapport& r, std::string_view nom);
/** To be told while a file is examined. */
sRendu renduDe(sRapport& r);
void terminerFichier(sRapport& r, const sResume& resume);
/** A file that could not be read at all; `raison` is the system's. */
void fichierIllisible(sRapport& r, std::string_view nom, std::string_view raison);
void terminerRapport(sRapport& r, std::span<const sResume> fichiers);

}  // namespace quilvane

#endif
