/**
 * lot.h - the life of a file without files: framing, FICH record, message
 * records, pairing, count. Front ends read their bytes through a `lecteur`,
 * take one verdict at a time and do with it what is theirs to do; conditions
 * that end a run are values here, not actions.
 *
 * The slots of the field store (vocabulaire/store.h) are those of the record last
 * judged: one file at a time.
 */
#ifndef QUILVANE_CONTROLE_LOT_H
#define QUILVANE_CONTROLE_LOT_H

#include "controle/lecteur.h"
#include "rules/constat.h"
#include "rules/temoin.h"
#include "vocabulaire/store.h"

namespace quilvane {

/** Message records that a file may hold. */
inline constexpr int MAX_MESSAGES = 10000;
/** Columns of a footer stamp: date DDMMYYYY, time HHMMSS, version, blanks, mark. */
inline constexpr int LARGEUR_ESTAMPILLE = 26;

/** Build variant; only "QUILVANE  " is built. */
extern const char* VARIANTE;

/** The conditions that end a run, named as they stand in the log. */
enum class eFatal {
    AUCUN,
    IG003,  // the input cannot be read
    IG008,  // DOS and UNIX line ends mixed
    IG011,  // first record not FICH
    IG014,  // no message record
    IG015,  // empty line
    I073,   // more than 10000 message records
    I099    // FICH file number blank
};

/** What is kept from one record of a file to the next. */
struct lot {
    /** Who watches the records being checked, or null. */
    const temoin* vu = nullptr;
    /** Footer stamp of the records that the run makes. */
    char VSEDate[36] = {};

    int nombreDeVSE = 1;       // place of the next record, the FICH record being 1
    int nbVSE_Err = 0;         // records in error
    int formatDuFichier = -1;  // line ends of the file, a `cverseFgetsRet`

    /** Emitter and receiver of the file (FICH header E3 and E4). */
    char sauvEmetteur[9] = "XXXXXXXX";
    char sauvRecepteur[9] = "XXXXXXXX";
    /** Errors of the FICH record, and their count. The count check adds to them.
     *  `texteDe` finds their texts only while no other record has been judged. */
    int codeFichErreur[MAX_ERREURS + 1] = {};
    constat constatsFich[MAX_ERREURS] = {};
    int errFich = 0;

    /** Type, kind and error count of the record before. */
    char sauvCodeVSE[5] = {};
    char sauvTypeVSE[4] = {};
    int sauvCodeVSEerr = 0;
    /** Body C2 of the last EXP1 or EGET creation; its companion must repeat it. */
    char sauvLienVSE[13] = {};
    /** The error record to write when that companion does not come. */
    char sauvTamponVSE[LARGEUR_VSE + 1] = {};
    /** That error record, once the companion has not come: to be written behind
     *  the current record's own. */
    char tamponSansCompagnon[LARGEUR_VSE + 1] = {};
    /** 1 when that companion did not come with the current record. */
    int existDependanceVSEerr = 0;
    /** Extra error number of the variant rules, 0 for none. */
    int err_aux = 0;

    /** The line last read. */
    ligneLue ligne = {};
};

/** How the step to the next line ended. */
enum eSuite {
    SUITE_VERDICT,  // a record has been judged
    SUITE_SAUTE,    // a line that ends in CR alone: counted, not processed
    SUITE_FIN,      // the end of the file, or a Ctrl-Z
    SUITE_ARRET     // a condition that ends the run: `verdict::fatal`
};

/** What became of one record. Its text is `lot::ligne`, its slots and errors
 *  are in the field store until the next step. */
struct verdict {
    eFatal fatal;
    int rang;           // place in the file, the FICH record being 1
    int erreurs;        // error count; 0: accepted (or, for rang 1, kept)
    int itAiguil;       // routing row, `ERR_AIGUILLAGE` for no known type and for rang 1
    int sansCompagnon;  // error number that the record before earned because
                        //   this one is not its companion, 0 for none; the
                        //   error record is `lot::tamponSansCompagnon`
};

/** Puts `l` and the field store to the start of a file. */
void commencer(lot& l);

/** Reads and judges the next line of the file. */
eSuite suivant(lot& l, lecteur& source, verdict& v);

/** What can only be judged at the end of the file. */
struct bilan {
    eFatal fatal;
    int sansCompagnon;  // as in `verdict`, for a last record that waits in vain
    bool compteFaux;    // the FICH record announces another count (error 100 if there is room)
};

/** Ends a file whose records are all read; `nombreDeVSE` is from here on the
 *  number of message records. */
bilan conclure(lot& l);

/** Whether no record and no FICH field is in error; asked after `conclure`. */
bool fichierValide(const lot& l);

/** Whether the limit of 10000 message records holds: always 1. */
int maxAutoVSE();

}  // namespace quilvane

#endif
