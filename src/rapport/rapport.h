/**
 * rapport.h - what there is to say about one file: its records in error with
 * each error explained, faults of bytes and frame, and the outcome. It is told
 * to a rendering as it is found, so that memory does not grow with the file.
 */
#ifndef QUILVANE_RAPPORT_RAPPORT_H
#define QUILVANE_RAPPORT_RAPPORT_H

#include <map>
#include <string>
#include <vector>

#include "catalogue/proches.h"
#include "controle/lot.h"
#include "rapport/phrases.h"

namespace quilvane {

/** One error of a record. */
struct sErreurVue {
    int numero;
    eOrigine origine;
    const sRegle* regle;  // what its row asks; null without a row, or when the field is not allowed at all
    sPlace place;         // the field, no table for none
    int debut;            // first and last column it speaks of, 0 for none
    int fin;
    int colonne;                   // where to look first
    std::string valeur;            // those columns as received
    std::string valeurDependance;  // the field that the row depends on, as received
    int decouleDe;                 // the error of the same record that it probably follows from, -1
    bool derriere;                 // behind the tenth: quilvane does not write it
    std::string phrase;            // what is wrong, when there is no `regle` to say it
    sProches proches;              // near values of the row's list
};

/** One record in error. */
struct sRecordVu {
    long long ligne;   // line of the file, from 1
    int rang;          // place in the file, the FICH record being 1
    std::string type;  // header E6, E5 and body C2 as received, trailing blanks apart
    std::string genre;
    std::string cle;
    std::string texte;                // at most 256 columns
    std::vector<sErreurVue> erreurs;  // in quilvane's order
};

/** A fault of bytes or frame that is worth a word although it is no error, or
 *  that explains one. */
struct sAvertissement {
    long long ligne;
    long long colonne;
    const char* code;  // "bom", "utf16", "utf8", "tabulation", "cr_seul", ...
    std::string message;
};

/** The outcome for one file. */
struct sResume {
    std::string nom;
    int statut = 0;  // what quilvane would end with: 0, 1 or 2
    eFatal fatal = eFatal::AUCUN;
    long long ligneFatale = 0;         // where, 0 for the file as a whole
    int formatDuFichier = -1;          // a `cverseFgetsRet`, -1 when no record was read
    int enregistrements = 0;           // records judged, the FICH record included
    int acceptes = 0;                  // message records without error
    int refuses = 0;                   // records in error, the FICH record included
    int comptes[1000] = {};            // errors by number
    long long premiers[1000] = {};     // line of the first one
    std::map<std::string, int> types;  // records in error by message type
};

/** Who is told; either may be null. */
struct sRendu {
    void (*avertir)(void* qui, const sAvertissement& a);
    void (*refuser)(void* qui, const sRecordVu& r);
    void* qui;
};

/** What is asked for. */
struct sDemande {
    eLangue langue = FRANCAIS;
    bool tout = false;  // the errors behind the tenth, too
};

/** Reads a whole file and tells `rendu` what there is to say. */
sResume examiner(lecteur& source, std::string_view nom, const sDemande& demande, const sRendu& rendu);

/** The code of a fatal condition as in the log ("IG008"), empty for none. */
const char* codeDe(eFatal fatal);

/** What quilvane would do with the file, in one sentence. */
std::string issueDe(const sResume& r, eLangue langue);

}  // namespace quilvane

#endif
