/**
 * fichiers.h - the files that quilvane-guide reads and the one that it may
 * write. Inputs are opened for reading only and never waited for; the output
 * is written beside its name and gets it when it is whole: under that name there
 * is what was there before, or all of the answer.
 */
#ifndef QUILVANE_GUIDE_FICHIERS_H
#define QUILVANE_GUIDE_FICHIERS_H

#include <string>

#include "controle/lecteur.h"
#include "guide/options.h"

namespace quilvane::guide {

/** The bar that a terminal shows while much is read. */
struct sProgres {
    long long total = 0;  // bytes of all inputs; 0: no bar
    long long lus = 0;
    int montre = -1;  // per cent on the screen
};
/** With a bar when the inputs are long, standard error is a terminal, and the
 *  answer goes elsewhere. */
sProgres progresDe(const sDemandeLue& d);
/** Takes the bar from the screen. */
void effacer(const sProgres& p);

/** An input being read. */
struct sFichier {
    int descripteur = -1;
    sProgres* progres = nullptr;  // null: no bar
    int cause = 0;                // `errno` of a read that failed
    lecteur lecture;
};

/** Opens an input ("-" is standard input); false, with `errno`, when it cannot
 *  be read: a folder, a device or a FIFO by name is refused. */
bool ouvrir(sFichier& f, const std::string& nom);
void fermer(sFichier& f);
/** Why a file cannot be read or written, in words; `cause` is an `errno`. */
std::string raisonDe(int cause, eLangue langue);

/** Where an answer goes: standard output, or the file of -o. */
struct sEcriture {
    int descripteur = -1;
    std::string cible;       // the name that the file is to have
    std::string provisoire;  // the one that it has until then; empty for standard output
    std::string tampon;      // not yet written
    int cause = 0;           // `errno` of the first write that failed
};

/** Opens it; false, told on standard error, when it cannot be made. */
bool ouvrirSortie(sEcriture& e, const sDemandeLue& d);
/** `sSortie::ecrire` of an `sEcriture`. */
void ecrireDans(void* ou, std::string_view octets);
/** Closes it and gives the file its name; false, told on standard error, when
 *  not all was written, and then no file is left. */
bool fermerSortie(sEcriture& e, const sDemandeLue& d);

}  // namespace quilvane::guide

#endif
