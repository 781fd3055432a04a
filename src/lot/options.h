/**
 * options.h - the command line of the batch runner. One table feeds the parser
 * and the help.
 */
#ifndef QUILVANE_LOT_OPTIONS_H
#define QUILVANE_LOT_OPTIONS_H

#include <string>

#include "catalogue/texte.h"

namespace quilvane::lot {

/** One option. A table of them ends in a row without a long name. */
struct ligneOption {
    const char* longue;
    char courte;     // 0 for none
    texte argument;  // how its value is called; empty texts for an option without one
    texte aide;
};
extern const ligneOption OPTIONS[];

enum eCouleur { COULEUR_AUTO, COULEUR_TOUJOURS, COULEUR_JAMAIS };

/** What the command line asks for. */
struct reglages {
    std::string depot;
    int travaux = 1;
    bool suivre = false;
    double repos = 2;
    int delai = 600;
    std::string metriques;  // empty for none
    int garder = -1;        // -1: the archive is kept
    eLangue langue = ANGLAIS;
    eCouleur couleur = COULEUR_AUTO;
};

/** What to do after reading the command line. */
enum eLecture { TRAVAILLER, MONTRER_AIDE, MONTRER_VERSION, USAGE_FAUX };

/** Reads the command line; `probleme` says what is wrong with it, in the
 *  language it asks for. */
eLecture lireOptions(int argc, char* argv[], reglages& r, std::string& probleme);

/** The language that the environment asks for: French when the first of LC_ALL,
 *  LC_MESSAGES and LANG that is set begins with "fr", else English. */
eLangue langueDuMilieu();

/** The text of --help. */
std::string aide(eLangue langue);

}  // namespace quilvane::lot

#endif
