/**
 * contenu.h - what the runner reads in the files it handles: how many records
 * an input holds, what the FICH record of a result counts, which errors the
 * ERRE records of an error file carry. It judges no record.
 */
#ifndef QUILVANE_LOT_CONTENU_H
#define QUILVANE_LOT_CONTENU_H

#include <map>
#include <string>
#include <string_view>

#include "lot/empreinte.h"

namespace quilvane::lot {

/** What is known of an input once its last byte has been seen. */
struct mesure {
    long long taille = 0;
    std::string sha256;
    long enregistrements = 0;    // message records, as quilvane counts them: -1 for no line at all
    bool lignesSautees = false;  // some line ended in CR alone: counted and not processed
    long longueurFich = 0;       // characters of the first record, up to 256 and to a zero byte
};

/** An input that is being measured, block by block. */
struct mesureur {
    mesure m = {};
    empreinte e = {};
    long lignes = 0;
    long longueur = 0;       // of the line so far
    bool texteFini = false;  // a zero byte ended the text of the line
    bool finDeFichier = false;
    bool retour = false;  // the last byte was a CR
};

void commencer(mesureur& m);
void ajouter(mesureur& m, std::string_view octets);
mesure terminer(mesureur& m);

/** What a result says of the records. */
struct comptes {
    long enregistrements = 0;
    long acceptes = 0;
    long refuses = 0;
    std::map<int, long> erreurs = {};  // by number
};

/** Whether a file of accepted records is whole: the count of its FICH record
 *  (columns 113-118), its lines, and the records of the input are the same. */
bool lireEmis(std::string_view octets, const mesure& entree, comptes& c);

/**
 * Whether an error file is whole: the counts of its FICH record (95-100 and
 * 107-112 in error, 101-106 records, 113-118 valid) fit one another, its ERRE
 * records, and the records of the input.
 */
bool lireErreurs(std::string_view octets, const mesure& entree, comptes& c);

}  // namespace quilvane::lot

#endif
