#include "lot/textes.h"

#include <cerrno>
#include <cstring>
#include <initializer_list>

#include "lot/bilan.h"

namespace quilvane::lot {

namespace {

/** What the system's most likely refusals are called. */
struct refus {
    int cause;
    texte nom;
};

// clang-format off
constexpr refus REFUS[] = {
    {EACCES,    {"droit d'accès refusé",                          "permission denied"}},
    {EDQUOT,    {"quota de disque dépassé",                       "disk quota exceeded"}},
    {EEXIST,    {"un fichier de ce nom existe déjà",              "a file of that name exists already"}},
    {EINVAL,    {"ce n'est pas un fichier ordinaire",             "it is not a regular file"}},
    {EIO,       {"erreur du disque",                              "disk error"}},
    {ELOOP,     {"c'est un lien",                                 "it is a link"}},
    {EMFILE,    {"trop de fichiers ouverts",                      "too many open files"}},
    {ENFILE,    {"trop de fichiers ouverts sur cette machine",    "too many open files on this machine"}},
    {ENOENT,    {"fichier ou dossier absent",                     "no such file or folder"}},
    {ENOMEM,    {"mémoire insuffisante",                          "not enough memory"}},
    {ENOSPC,    {"il n'y a plus de place sur le disque",          "no space is left on the disk"}},
    {ENOTDIR,   {"ce n'est pas un dossier",                       "it is not a folder"}},
    {EPERM,     {"opération interdite",                           "operation not permitted"}},
    {EROFS,     {"le disque est en lecture seule",                "the disk is read-only"}},
    {EXDEV,     {"il est sur un autre système de fichiers",       "it is on another file system"}},
};
// clang-format on

}  // namespace

std::string raisonDuSysteme(int cause, eLangue langue) {
    for (const refus& r : REFUS)
        if (r.cause == cause) return r.nom.en_langue(langue);
    const char* const nom = strerrordesc_np(cause);
    return nom != nullptr ? nom : std::to_string(cause);
}

std::string remplir(const texte& t, eLangue langue, std::initializer_list<std::string> valeurs) {
    std::string r;
    for (const char* p = t.en_langue(langue); *p != '\0'; ++p) {
        const auto rang = static_cast<std::size_t>(p[1] - '1');
        if (*p == '%' && p[1] >= '1' && rang < valeurs.size()) {
            r += valeurs.begin()[rang];
            ++p;
        } else {
            r += *p;
        }
    }
    return r;
}

const ligneCause CAUSES[NB_CAUSES] = {
    {"", {"", ""}},
    {"statut",
     {"quilvane n'a pas pu traiter le fichier et s'est terminé avec le statut",
      "quilvane could not process the file and ended with status"}},
    {"signal", {"quilvane a été interrompu par le signal", "quilvane was ended by signal"}},
    {"delai",
     {"quilvane n'avait pas fini dans le délai accordé", "quilvane had not ended within the time limit"}},
    {"log",
     {"quilvane s'est terminé sans erreur, mais son log n'est pas vide ou manque",
      "quilvane ended without an error, but its log is not empty or is missing"}},
    {"resultat",
     {"quilvane s'est terminé sans erreur, mais n'a laissé aucun résultat",
      "quilvane ended without an error but left no result"}},
    {"comptes",
     {"les nombres d'enregistrements du résultat ne concordent pas avec ceux du fichier reçu ;"
      " souvent une ligne y finit par un CR seul, que quilvane compte et saute",
      "the record counts of the result do not fit those of the input; often a line of it ends"
      " in a CR alone, which quilvane counts and leaves out"}},
    {"illisible", {"le fichier ne peut pas être lu", "the file cannot be read"}},
};

const texte ETAPE_OUVRIR_DEPOT = {"d'ouvrir le dépôt", "open the spool"};
const texte ETAPE_LISTER = {"de lister les fichiers", "list the files"};
const texte ETAPE_CASIER = {"d'ouvrir le dossier privé", "open the private folder"};
const texte ETAPE_RETIRER = {"de retirer le dossier privé", "remove the private folder"};
const texte ETAPE_PRENDRE = {"de prendre le fichier", "take the file"};
const texte ETAPE_COPIER = {"de copier le fichier", "copy the file"};
const texte ETAPE_ARCHIVER = {"d'archiver le fichier", "archive the file"};
const texte ETAPE_GARDER = {"de vider l'archive", "clear the archive"};
const texte ETAPE_PREPARER = {"de préparer le passage de quilvane", "prepare the run of quilvane"};
const texte ETAPE_LANCER = {"de lancer le programme", "start the program"};
const texte ETAPE_LIRE_RESULTAT = {"de lire le résultat", "read the result"};
const texte ETAPE_ECRIRE = {"d'écrire le fichier", "write the file"};
const texte ETAPE_PUBLIER = {"de ranger le fichier", "put the file in its place"};
const texte ETAPE_JOURNAL = {"d'écrire dans le journal", "write to the journal"};
const texte ETAPE_RENDRE = {"de remettre le fichier dans arrivee", "put the file back into arrivee"};
const texte ETAPE_METRIQUES = {"d'écrire les métriques", "write the metrics"};

const texte RAISON_TITRE = {"Ce fichier n'a pas pu être traité. Raison :",
                            "This file could not be processed. Reason:"};
const texte RAISON_DETAIL = {"Ce qui a été dit :", "What was said of it:"};
const texte RAISON_QUE_FAIRE = {
    "Le fichier est à côté de ce texte, tel qu'il est arrivé. Une fois la cause levée,\n"
    "remettez-le dans arrivee pour qu'il soit traité de nouveau.",
    "The file stands beside this text as it arrived. Once the cause is mended, move\n"
    "it back into arrivee to have it processed again."};
const texte RAISON_ARCHIVE = {"Copie dans l'archive :", "Copy in the archive:"};
const texte RAISON_ID = {"Ligne du journal (id) :", "Line of the journal (id):"};

const texte LIGNE_EMIS = {"accepté  %1 ; enregistrements : %2", "accepted %1; records: %2"};
const texte LIGNE_REJETS = {"refusé   %1 ; enregistrements refusés : %2 sur %3 ; erreurs : %4",
                            "refused  %1; records: %2 refused of %3; errors: %4"};
const texte LIGNE_ECHECS = {"échec    %1 : %2", "failed   %1: %2"};
const texte LIGNE_RENDU = {"remis    %1 (retour dans arrivee)", "put back %1 (stands in arrivee again)"};
const texte LIGNE_REPRIS = {" [repris d'un passage interrompu]",
                            " [taken over from a run that was cut short]"};

const texte BARRE_COMPTES = {"%1/%2 ; acceptés %3, refusés %4, échecs %5",
                             "%1/%2; %3 accepted, %4 refused, %5 failed"};
const texte BARRE_DEBIT = {" ; %1/s", "; %1/s"};
const texte BARRE_RESTE = {" ; reste %1", "; %1 left"};

const texte BILAN_RIEN = {"Aucun fichier à traiter.", "No file to process."};
const texte BILAN_TITRE = {"Fichiers : %1 en %2 s (%3/s) ; acceptés %4, refusés %5, en échec %6.",
                           "Files: %1 in %2 s (%3/s); %4 accepted, %5 refused, %6 failed."};
const texte BILAN_REPRIS = {"Repris de passages interrompus : %1.",
                            "Taken over from runs that were cut short: %1."};
const texte BILAN_RENDUS = {"Remis dans arrivee : %1.", "Put back into arrivee: %1."};
const texte BILAN_NON_REPOSES = {"Laissés dans arrivee, modifiés il y a moins de %2 s : %1.",
                                 "Left in arrivee, touched less than %2 s ago: %1."};
const texte BILAN_PANNES = {
    "Incidents : %1. Les fichiers concernés sont dans arrivee ou encours et seront repris.",
    "Incidents: %1. The files concerned are in arrivee or encours and will be taken up again."};
const texte BILAN_GARDES = {"Archive : jours retirés : %1.", "Archive: days removed: %1."};
const texte BILAN_RESTES = {
    "Archive : jours non retirés, car ils contiennent des dossiers ou sont protégés : %1.",
    "Archive: days not removed, because they hold folders or are protected: %1."};

const texte AVIS_SANS_GUIDE = {
    "quilvane-guide n'est pas installé : les fichiers refusés n'auront pas de rapport",
    "quilvane-guide is not installed: refused files get no report"};
const texte AVIS_RAPPORT = {"quilvane-guide n'a pas pu faire un rapport : un fichier refusé est sans rapport",
                            "quilvane-guide could not make a report: a refused file has none"};
const texte AVIS_PANNE = {"impossible %1 : %2 : %3", "cannot %1: %2: %3"};
const texte AVIS_CASIER = {"encours/%1 n'est pas un dossier de ce programme : il est laissé tel quel",
                           "encours/%1 is not a folder of this program: it is left alone"};
const texte AVIS_ARRET = {
    "arrêt demandé : les fichiers en cours sont terminés ; un second signal les remet dans arrivee",
    "asked to stop: files in progress are finished; a second signal puts them back into arrivee"};
const texte AVIS_ARRET_TOUT = {"arrêt immédiat : les fichiers en cours sont remis dans arrivee",
                               "stopping at once: files in progress are put back into arrivee"};
const texte USAGE_QUILVANE = {"quilvane est introuvable, à côté de ce programme comme dans PATH",
                              "quilvane is found neither beside this program nor on PATH"};

const texte USAGE_TITRE = {"Usage : quilvane-lot [options] DEPOT", "Usage: quilvane-lot [options] DEPOT"};
const texte USAGE_DESCRIPTION = {
    "Traite avec quilvane les fichiers déposés dans DEPOT/arrivee. Chacun finit une seule\n"
    "fois dans DEPOT/emis (accepté), rejets (refusé, avec rapport) ou echecs (non traité,\n"
    "avec la raison) ; archive garde chaque fichier reçu, journal.jsonl une ligne par fichier.",
    "Processes with quilvane the files that are put into DEPOT/arrivee. Each ends once in\n"
    "DEPOT/emis (accepted), rejets (refused, with a report) or echecs (not processed, with\n"
    "the reason); archive keeps every file received, journal.jsonl one line a file."};
const texte USAGE_OPTIONS = {"Options :", "Options:"};
const texte USAGE_STATUTS = {
    "Statut de sortie : 0 tout est accepté, 2 des fichiers sont refusés, 1 des fichiers sont en\n"
    "échec ou n'ont pu être traités, 3 usage incorrect ou dépôt inutilisable.",
    "Exit status: 0 all accepted, 2 some files refused, 1 some files failed or could not be\n"
    "dealt with, 3 wrong usage or unusable spool."};
const texte USAGE_VOIR = {"quilvane-lot --aide montre les options.",
                          "quilvane-lot --help shows the options."};
const texte USAGE_DEPOT_ABSENT = {"il manque le dossier DEPOT", "the folder DEPOT is missing"};
const texte USAGE_DE_TROP = {"argument de trop : %1", "one argument too many: %1"};
const texte USAGE_INCONNUE = {"option inconnue ou incomplète : %1", "unknown or incomplete option: %1"};
const texte USAGE_SANS_VALEUR = {"l'option %1 demande une valeur", "option %1 needs a value"};
const texte USAGE_VALEUR = {"valeur incorrecte pour %1 : %2", "wrong value for %1: %2"};

const texte METRIQUE_FICHIERS = {"Fichiers traités, par issue.", "Files processed, by where they ended."};
const texte METRIQUE_ENREGISTREMENTS = {"Enregistrements des fichiers acceptés ou refusés.",
                                        "Records of accepted and refused files."};
const texte METRIQUE_PANNES = {"Incidents du programme lui-même.", "Faults of the runner itself."};
const texte METRIQUE_DUREE = {"Somme des durées de traitement des fichiers.",
                              "Sum of the time spent on each file."};
const texte METRIQUE_ATTENTE = {"Fichiers qui attendent dans arrivee.", "Files that wait in arrivee."};
const texte METRIQUE_AGE = {"Attente du plus ancien d'entre eux.", "How long the oldest of them has waited."};
const texte METRIQUE_ENCOURS = {"Dossiers privés dans encours.", "Private folders in encours."};
const texte METRIQUE_ECHECS = {"Fichiers présents dans echecs, raisons comprises.",
                               "Files that stand in echecs, reasons included."};
const texte METRIQUE_DERNIER = {"Heure de la dernière écriture de ce fichier.",
                                "When this file was last written."};

}  // namespace quilvane::lot
