/**
 * store.h - what is known of the record in hand: its text, its fields, its
 * errors. One struct, so that all of it is put back by one assignment.
 */
#ifndef QUILVANE_VOCABULAIRE_STORE_H
#define QUILVANE_VOCABULAIRE_STORE_H

#include "vocabulaire/avis.h"
#include "vocabulaire/pack.h"

namespace quilvane {

/** One field's text, exactly as cut from the record, zero-terminated. */
struct valeurVSE {
    char valeur[LARGEUR_VSE + 1];
};

/** Size of `xdebug`, terminator included. */
inline constexpr int TAILLE_XDEBUG = 4096;

/** The names below it are the names by which its members are used. */
struct store {
    valeurVSE valEnteteVSE[13];
    valeurVSE valCorpsVSE[100];
    valeurVSE valFinVSE[5];
    valeurVSE valFichEnteteVSE[13];
    valeurVSE valFichCorpsVSE[9];
    valeurVSE valFichFinVSE[5];
    char xdebug[TAILLE_XDEBUG];
    int codeErreur[MAX_ERREURS + 1];
    int nbErreur;
    int codCaract;
    int codLong;
    vseCorps cp;
};

/** The store of the run. `leStore = {}` puts it back to its start. */
extern store leStore;

/**
 * The field slots. `getvseChamps` writes those of the current record; record
 * processing keeps the FICH record's for the whole run. Nothing clears them
 * between records: a table with fewer fields leaves the higher slots as they
 * were.
 */
inline constexpr valeurVSE (&valEnteteVSE)[13] = leStore.valEnteteVSE;
inline constexpr valeurVSE (&valCorpsVSE)[100] = leStore.valCorpsVSE;
inline constexpr valeurVSE (&valFinVSE)[5] = leStore.valFinVSE;
inline constexpr valeurVSE (&valFichEnteteVSE)[13] = leStore.valFichEnteteVSE;
inline constexpr valeurVSE (&valFichCorpsVSE)[9] = leStore.valFichCorpsVSE;
inline constexpr valeurVSE (&valFichFinVSE)[5] = leStore.valFichFinVSE;

/** The slot texts by field, as rule rows name their dependency. */
constexpr const char* entete(numEnteteVSE champ) { return valEnteteVSE[champ].valeur; }
constexpr const char* corps(numCorpsVSE champ) { return valCorpsVSE[champ].valeur; }
constexpr const char* fin(numFinVSE champ) { return valFinVSE[champ].valeur; }
constexpr const char* fichEntete(numEnteteVSE champ) { return valFichEnteteVSE[champ].valeur; }

/** The record being processed, up to its first zero byte; the columns up to 256
 *  that it lacks hold zeros. Written by `retenirVSE` for each record; read by
 *  the engine and by checks that look at columns. */
inline constexpr char (&xdebug)[TAILLE_XDEBUG] = leStore.xdebug;

/** Makes `tampon` (at most `TAILLE_XDEBUG` - 1 characters) the record in `xdebug`. */
void retenirVSE(const char* tampon);

/** Error numbers of the current record in the order found. Written by
 *  `ajouterErreur`; cleared by record processing at each record. */
inline constexpr int (&codeErreur)[MAX_ERREURS + 1] = leStore.codeErreur;
/** Their count. Written by record processing and by the error-record writer. */
inline constexpr int& nbErreur = leStore.nbErreur;

/** 1 when the record holds a byte outside 0x20..0x7E. Raised by the record
 *  stream, reset by `verifChamps` when it stores error 106. */
inline constexpr int& codCaract = leStore.codCaract;
/** 0 length correct, 1 too long, 2 too short. Raised by the record stream,
 *  reset by `verifChamps` when it stores error 107 or 108. */
inline constexpr int& codLong = leStore.codLong;

/** Extract of the current slaughter notice. Written by `getVseCorps` only. */
inline constexpr vseCorps& cp = leStore.cp;

/** Not of the record but of the run: part of the first command-line argument between its first two '_' (at
 * most 31 characters). Written once by the driver; read by `fichier_C11`. */
extern char bufC11[32];

}  // namespace quilvane

#endif
