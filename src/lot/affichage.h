/**
 * affichage.h - what the runner shows: a line a file, a progress bar on a
 * terminal, warnings on standard error, a summary. Used by one thread.
 */
#ifndef QUILVANE_LOT_AFFICHAGE_H
#define QUILVANE_LOT_AFFICHAGE_H

#include <initializer_list>
#include <string>

#include "lot/disque.h"
#include "lot/options.h"
#include "lot/total.h"

namespace quilvane::lot {

struct ecran {
    eLangue langue = ANGLAIS;
    bool terminal = false;  // standard output is one: there is a bar
    bool couleurs = false;
    bool barre = false;  // it is on the screen now
};

/** Looks at standard output, NO_COLOR and TERM. */
ecran ouvrirEcran(const reglages& r);

/** How far a burst of work has come. */
struct avancement {
    long finis = 0;
    long prevus = 0;
    double secondes = 0;
};

/** The text of the bar, at most `colonnes` columns of it. */
std::string texteBarre(const total& t, const avancement& a, eLangue langue, int colonnes);

void montrerBarre(ecran& e, const total& t, const avancement& a);
void effacerBarre(ecran& e);

/** One line for a file; accepted ones only without a terminal. */
void montrerBilan(ecran& e, const bilan& b);

/** A warning on standard error. */
void avertir(ecran& e, const std::string& phrase);
void avertir(ecran& e, const faute& f);

/** A sentence on standard output. */
void dire(ecran& e, const texte& quoi, std::initializer_list<std::string> valeurs);

/** The last lines. `secondes` is the time of work; `nonReposes` files were left because they were too new. */
void montrerTotal(ecran& e, const total& t, double secondes, long nonReposes, double repos);

}  // namespace quilvane::lot

#endif
