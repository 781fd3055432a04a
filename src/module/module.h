/**
 * module.h - the core, the catalogue and the reports for a caller that has no
 * files: a browser page (compiled to WebAssembly) or a test. The caller gives
 * the bytes when they are asked for and takes what is written; nothing else
 * passes between the two, and nothing is kept from one call to the next.
 *
 * The caller numbers its inputs from 0. `langue` is 0 for French and 1 for
 * English. The clock is the C library's; in the page it shows local time.
 */
#ifndef QUILVANE_MODULE_MODULE_H
#define QUILVANE_MODULE_MODULE_H

#ifdef __wasm__
#define QUILVANE_IMPORTE(nom) __attribute__((import_module("quilvane"), import_name(#nom)))
#define QUILVANE_EXPORTE(nom) __attribute__((export_name(#nom)))
#else
#define QUILVANE_IMPORTE(nom)
#define QUILVANE_EXPORTE(nom)
#endif

/** What a piece of output is. */
enum eMorceau {
    MORCEAU_SORTIE = 0,    // bytes of a file or of a whole JSON text, one behind the other
    MORCEAU_CONSTATS = 1,  // findings, without what the catalogue says: JSON objects with commas between
    MORCEAU_TEXTES = 2,    // members "line":"text of the refused record"
    MORCEAU_AVERTISSEMENTS = 3,  // warnings: JSON objects with commas between them
    MORCEAU_RESUME = 4           // the other members of the file's object, without braces
};

/** Formats of `quilvane_rapport`, as the guide writes them. */
enum eFormatDeRapport { RAPPORT_JSON = 1, RAPPORT_CSV = 3, RAPPORT_HTML = 4 };

extern "C" {

// ---------------------------------------------------------------- the caller

/** Starts an input anew: its next byte is its first. */
QUILVANE_IMPORTE(rembobiner) void quilvane_rembobiner(int source);
/** Puts up to `taille` bytes of an input at `ou`; returns how many, fewer only
 *  at its end, -1 when it cannot be read. */
QUILVANE_IMPORTE(lire) int quilvane_lire(int source, unsigned char* ou, int taille);
/** Puts the name of an input (UTF-8) at `ou`; returns its bytes, at most `place`. */
QUILVANE_IMPORTE(nommer) int quilvane_nommer(int source, char* ou, int place);
/** Takes `taille` bytes of output; `morceau` is an `eMorceau`. */
QUILVANE_IMPORTE(ecrire) void quilvane_ecrire(int morceau, const char* octets, int taille);

// ---------------------------------------------------------------- the module

/** Examines an input and tells its report in pieces, each of whole JSON values.
 *  Returns the status that quilvane would end with. */
QUILVANE_EXPORTE(examiner) int quilvane_examiner(int source, int langue);

/** Writes the report on inputs 0 to `nombre` - 1 in one of the guide's formats. */
QUILVANE_EXPORTE(rapport) void quilvane_rapport(int nombre, int langue, int format);

/** Writes the file that quilvane would publish: the accepted records (status
 *  0) or the error records (status 2). Writes nothing under status 1. Returns
 *  the status. */
QUILVANE_EXPORTE(publier) int quilvane_publier(int source);

/** Writes the whole catalogue, quilvane-catalogue/1. */
QUILVANE_EXPORTE(catalogue) void quilvane_catalogue(int langue);

/** Reads input `retour` as an error file that came back and writes what it
 *  says, quilvane-retour/1; `origine` is the input that it answers, -1 when it
 *  is not at hand. Returns whether it is an error file and, when there is an
 *  origin, answers it. */
QUILVANE_EXPORTE(retour) int quilvane_retour(int retour, int origine, int langue);
}

#endif
