/**
 * textes.h - all that the batch runner says, in French and in English.
 */
#ifndef QUILVANE_LOT_TEXTES_H
#define QUILVANE_LOT_TEXTES_H

#include <string>

#include "catalogue/texte.h"

namespace quilvane::lot {

/** The words of --langue. */
inline constexpr const char* CODES_LANGUES[] = {"fr", "en"};

/** What the system says of an error number. */
std::string raisonDuSysteme(int cause, eLangue langue);

/** `t` with %1, %2... replaced. */
std::string remplir(const texte& t, eLangue langue, std::initializer_list<std::string> valeurs);

// The steps that can fail, as "cannot ...".
extern const texte ETAPE_OUVRIR_DEPOT, ETAPE_LISTER, ETAPE_CASIER, ETAPE_RETIRER, ETAPE_PRENDRE, ETAPE_COPIER,
    ETAPE_ARCHIVER, ETAPE_GARDER, ETAPE_PREPARER, ETAPE_LANCER, ETAPE_LIRE_RESULTAT, ETAPE_ECRIRE,
    ETAPE_PUBLIER, ETAPE_JOURNAL, ETAPE_RENDRE, ETAPE_METRIQUES;

// The text beside a file in echecs.
extern const texte RAISON_TITRE, RAISON_DETAIL, RAISON_QUE_FAIRE, RAISON_ARCHIVE, RAISON_ID;

// One line a file.
extern const texte LIGNE_EMIS, LIGNE_REJETS, LIGNE_ECHECS, LIGNE_RENDU, LIGNE_REPRIS;

// The progress bar: counts, then what fits behind them.
extern const texte BARRE_COMPTES, BARRE_DEBIT, BARRE_RESTE;

// The end.
extern const texte BILAN_RIEN, BILAN_TITRE, BILAN_REPRIS, BILAN_RENDUS, BILAN_NON_REPOSES, BILAN_PANNES,
    BILAN_GARDES, BILAN_RESTES;

// Warnings and faults.
extern const texte AVIS_SANS_GUIDE, AVIS_RAPPORT, AVIS_PANNE, AVIS_CASIER, AVIS_ARRET, AVIS_ARRET_TOUT,
    USAGE_QUILVANE;

// The command line.
extern const texte USAGE_TITRE, USAGE_DESCRIPTION, USAGE_OPTIONS, USAGE_STATUTS, USAGE_VOIR,
    USAGE_DEPOT_ABSENT, USAGE_DE_TROP, USAGE_INCONNUE, USAGE_SANS_VALEUR, USAGE_VALEUR;

// The metrics.
extern const texte METRIQUE_FICHIERS, METRIQUE_ENREGISTREMENTS, METRIQUE_PANNES, METRIQUE_DUREE,
    METRIQUE_ATTENTE, METRIQUE_AGE, METRIQUE_ENCOURS, METRIQUE_ECHECS, METRIQUE_DERNIER;

}  // namespace quilvane::lot

#endif
