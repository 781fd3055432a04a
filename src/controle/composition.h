/**
 * composition.h - the records that the program makes, put together column by
 * column: accepted records, ERRE error records, the two FICH summary records.
 * Nothing is written here; a front end writes them where it likes.
 */
#ifndef QUILVANE_CONTROLE_COMPOSITION_H
#define QUILVANE_CONTROLE_COMPOSITION_H

#include <cstddef>
#include <ctime>

#include "controle/lot.h"

namespace quilvane {

/** A record being put together. What does not fit is dropped: no field of a
 *  record is that wide. */
struct ligneVSE {
    ligneVSE& texte(const char* t);
    ligneVSE& champ(const valeurVSE& v);
    ligneVSE& blancs(std::size_t n);
    /** "I%03d1". */
    ligneVSE& code(int numero);
    /** At least `largeur` columns: a sign if negative, zeros, the digits. */
    ligneVSE& nombre(int n, int largeur);
    ligneVSE& octets(const char* o, std::size_t n);
    /** One character; left out when there is no place. */
    ligneVSE& octet(char o) {
        if (longueur < sizeof tampon) tampon[longueur++] = o;
        return *this;
    }

    char tampon[64 * LARGEUR_VSE];
    std::size_t longueur = 0;
};

/** Fills `tampon` (36 bytes) with a footer of 26 columns: the local date
 *  DDMMYYYY and time HHMMSS of `t`, "025", eight blanks and "*". */
void faireVSEDate(char* tampon, const std::tm& t);

/** The line end of the input's format: `CVERSE_DOS` CR LF, `CVERSE_UNIX` LF,
 *  `CVERSE_MAC` CR, anything else LF. */
void faireFinDeLigne(ligneVSE& l, int formatDeFichier);

/** Result code of an accepted record, the first character of columns 77-78. */
const char* quilvaneRES();

/** The current record, `n` columns, as it is published when accepted: "40" in columns 77-78;
 *  an error return of kind "ECQ" stays unchanged. */
void faireVSEValide(ligneVSE& l, const char* tampon, std::size_t n);

/**
 * An ERRE record: who sent what, the key fields of the holding concerned
 * (`champC7` two columns, `champC8` twelve), the codes and the footer stamp.
 * `e` and `c` are the header and body slots of the record in error. More than
 * ten codes are cut to ten.
 */
void faireVSEERR(ligneVSE& l, const char* champC7, const char* champC8, int nbCodes, const valeurVSE* e,
                 const valeurVSE* c, const int* codes, const char* estampille);

/** The ERRE record of the current record, routed to row `itAiguil`. */
void faireVSEERRCourante(ligneVSE& l, int itAiguil, int nbCodes, const int* codes, const char* estampille);

/** The ERRE record of the FICH record itself. */
void faireVSEERRFich(ligneVSE& l, const lot& de);

/** Builds in `l.sauvTamponVSE` the ERRE record of the current record with the
 *  single code `codeErr`. */
void faireTamponVSEERR(lot& l, int codeErr, int itAiguil);

/** The FICH record of the accepted records' file: the counts put right. */
void faireVSEFICHOk(ligneVSE& l, const lot& de);

/** Header of the FICH record of the error records' file. */
void faireEnteteVSEFICHNok(ligneVSE& l);
/** Footer of that FICH record: 105 blanks and a stamp. */
void finVSENok(ligneVSE& l, const char* estampille);
/** The FICH record of the error records' file: records received, in error and
 *  valid. `estampille` is the footer stamp of this moment. */
void faireVSEFICHNok(ligneVSE& l, const lot& de, const char* estampille);

/** The two files of a run as they grow: what is added to each, line ends
 *  before each record. There is room for the records of several verdicts, so
 *  that they can be written together. */
struct ajouts {
    ligneVSE emis;  // the accepted records' file
    ligneVSE erre;  // the error records' file

    /** Whether another verdict may not find room. */
    bool pleins() const {
        constexpr std::size_t PAR_VERDICT = 4 * LARGEUR_VSE;  // at most two records and their line ends
        constexpr std::size_t SEUIL = sizeof ligneVSE::tampon - PAR_VERDICT;
        return emis.longueur > SEUIL || erre.longueur > SEUIL;
    }
};

/** What a record just judged adds. Nothing for the FICH record, which is
 *  written at the end. */
void ajouterVerdict(ajouts& a, const lot& de, const verdict& v);

/** What the end of the file adds to the one of the two that is published
 *  (`fichierValide` tells which); its FICH record then replaces its first 256
 *  columns. */
void ajouterFin(ajouts& a, const lot& de, const bilan& b);

}  // namespace quilvane

#endif
