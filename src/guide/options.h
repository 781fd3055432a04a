/**
 * options.h - the command line of quilvane-guide. One table of subcommands and
 * one of options feed the parser, the help, the manual pages and the
 * completions of the shells.
 */
#ifndef QUILVANE_GUIDE_OPTIONS_H
#define QUILVANE_GUIDE_OPTIONS_H

#include <span>
#include <string>
#include <vector>

#include "catalogue/texte.h"

namespace quilvane::guide {

/** Exit statuses; several files: the gravest of 1, 2, 0 in that order. */
enum eStatut {
    STATUT_ACCEPTE = 0,  // every file would be accepted; or done
    STATUT_ARRET = 1,    // a file cannot be processed, or something failed
    STATUT_REFUSE = 2,   // some record would be refused
    STATUT_USAGE = 3     // wrong usage
};

enum eCouleur { COULEUR_AUTO, COULEUR_TOUJOURS, COULEUR_JAMAIS };

/** A command line, read. */
struct sDemandeLue {
    const char* commande = "";
    std::vector<std::string> arguments;
    eLangue langue = ANGLAIS;
    eCouleur couleur = COULEUR_AUTO;
    std::string format;  // as given, empty for none
    std::string sortie;  // -o, empty for standard output
    std::string source;  // --source
    bool remplacer = false;
    bool tout = false;
};

/** One subcommand. */
struct sCommande {
    const char* nom;
    const char* arguments;  // as the usage shows them
    int min;                // arguments it takes
    int max;                // -1: any number
    const char* formats;    // values of --format, separated by '|'; "" without the option
    const char* options;    // its own options, short letters as in `sOption`
    texte resume;           // one line
    texte detail;           // a paragraph
    int (*executer)(const sDemandeLue& d);
};

/** One option. */
struct sOption {
    char lettre;  // of the short form; a capital for options without one
    const char* longue;
    const char* autre;    // another long form, or null
    texte argument;       // name of its argument, empty texts for none
    const char* valeurs;  // its values, separated by '|'; "" for any
    bool partout;         // for every subcommand
    texte aide;
};

extern const std::span<const sCommande> commandes;
extern const std::span<const sOption> options;

/** Whether a subcommand has an option. */
bool connait(const sCommande& c, const sOption& o);
/** Whether an option takes an argument. */
bool aArgument(const sOption& o);

/** The subcommand of this name, null when there is none. */
const sCommande* commandeDe(std::string_view nom);

/** Language of the environment: LC_ALL, LC_MESSAGES, LANG, the first that is
 *  set; French when it begins with "fr". */
eLangue langueDuMilieu();

/** How reading a command line ended. */
enum eLecture { LECTURE_BONNE, LECTURE_FINIE, LECTURE_FAUSSE, LECTURE_RATEE };

/** Reads a command line. Help and version are printed (`LECTURE_FINIE`), wrong
 *  usage is told on standard error (`LECTURE_FAUSSE`), as is an answer that
 *  cannot be written (`LECTURE_RATEE`). */
eLecture lireLigne(int argc, char* argv[], sDemandeLue& d);

/** The help on all subcommands, or on one. */
std::string aide(eLangue langue, const sCommande* seule = nullptr);

}  // namespace quilvane::guide

#endif
