/**
 * bilan.h - what became of one file: what the journal, the screen and the
 * metrics tell of it.
 */
#ifndef QUILVANE_LOT_BILAN_H
#define QUILVANE_LOT_BILAN_H

#include <string>

#include "catalogue/texte.h"
#include "lot/contenu.h"

namespace quilvane::lot {

/** Where a file ends. */
enum eIssue { ISSUE_EMIS, ISSUE_REJETS, ISSUE_ECHECS, ISSUE_RENDU, ISSUE_AUCUNE };
inline constexpr const char* ISSUES[] = {"emis", "rejets", "echecs", "rendu", ""};

/** Why a file ends in echecs. */
enum eCause {
    CAUSE_AUCUNE,
    CAUSE_STATUT,     // quilvane ended with another status than 0 or 2
    CAUSE_SIGNAL,     // it was ended by a signal
    CAUSE_DELAI,      // it was killed after the time limit
    CAUSE_LOG,        // status 0 or 2 with a line in the log, or no log
    CAUSE_RESULTAT,   // status 0 or 2 without a result
    CAUSE_COMPTES,    // the counts of the result do not fit
    CAUSE_ILLISIBLE,  // the input cannot be read
    NB_CAUSES
};

/** A word for each cause in the journal and a sentence for people. */
struct ligneCause {
    const char* mot;
    texte phrase;
};
extern const ligneCause CAUSES[NB_CAUSES];

struct bilan {
    std::string nom;
    std::string id;
    std::string archive;  // empty when it could not be read
    eIssue issue = ISSUE_AUCUNE;
    eCause cause = CAUSE_AUCUNE;
    std::string detail;  // what quilvane or the system said of it, UTF-8
    mesure entree;
    comptes c;
    long long tailleResultat = -1;  // -1 for no result
    std::string sha256Resultat;
    int statut = -1;  // of quilvane, -1 when a signal ended it or it did not run
    int signal = 0;
    double debut = 0;
    double fin = 0;
    bool repris = false;
};

}  // namespace quilvane::lot

#endif
