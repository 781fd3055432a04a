/**
 * avertissements.h - what is worth saying about a file's bytes and line ends:
 * the likely cause of a forbidden byte, lines that are lost without an error.
 */
#ifndef QUILVANE_RAPPORT_AVERTISSEMENTS_H
#define QUILVANE_RAPPORT_AVERTISSEMENTS_H

#include "rapport/rapport.h"

namespace quilvane {

/** The kinds of faults that a file may have on every line. */
enum eFauteDeLigne {
    FAUTE_UTF8,
    FAUTE_TABULATION,
    FAUTE_NUL,
    FAUTE_OCTET_HAUT,
    FAUTE_COMMANDE,
    FAUTE_CR_SEUL
};
inline constexpr int NB_FAUTES_DE_LIGNE = 6;

/** What has been told about a file so far. */
struct sAvertisseur {
    const sRendu* rendu = nullptr;
    eLangue langue = FRANCAIS;
    long long comptes[NB_FAUTES_DE_LIGNE] = {};  // lines with each fault
};

/** A line that was read, whatever became of it: byte order mark, forbidden
 *  bytes. The first lines with a fault are told one by one. */
void avertirLigne(sAvertisseur& a, const ligneLue& ligne);
/** A line that ends in CR alone and is not processed. */
void avertirSaut(sAvertisseur& a, const ligneLue& ligne);
/** The line whose end differs from those since line `premiere`. */
void avertirMelange(sAvertisseur& a, const ligneLue& ligne, int format, long long premiere);
void avertirVide(sAvertisseur& a, const ligneLue& ligne);
/** The end of the file: a last line that is lost, a Ctrl-Z, no record at all. */
void avertirFin(sAvertisseur& a, const ligneLue& ligne);
/** The lines with a fault that were counted only. */
void avertirReste(sAvertisseur& a);

}  // namespace quilvane

#endif
