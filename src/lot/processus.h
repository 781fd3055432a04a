/**
 * processus.h - running another program: with a folder, a time limit and a lock
 * of its own, and so that it never outlives the runner.
 */
#ifndef QUILVANE_LOT_PROCESSUS_H
#define QUILVANE_LOT_PROCESSUS_H

#include <atomic>
#include <string>
#include <vector>

namespace quilvane::lot {

/** How far the runner has been asked to stop. Set by the thread that gets the
 *  signals, read by all. */
enum eArret { CONTINUER, NE_PLUS_PRENDRE, ARRETER_TOUT };
using arret = std::atomic<int>;

struct commande {
    std::string programme;               // its path
    std::vector<std::string> arguments;  // behind its name
    int dossier = -1;                    // it works there
    int sortie = -1;                     // its standard output and error
    int verrou = -1;                     // kept open by it: the lock is held until it has ended, too
    int delai = 0;                       // seconds after which it is killed, 0 for no limit
};

/** How a program ended. */
enum eFin { FINI, TUE_PAR_SIGNAL, DELAI_DEPASSE, INTERROMPU, PAS_LANCE };

struct finDeProcessus {
    eFin fin = PAS_LANCE;
    int valeur = 0;  // exit status, signal, or errno when it could not be started
};

/**
 * Runs a program to its end. TMPDIR is not handed on, standard input is empty.
 * It is in a process group of its own, so that a Ctrl-C is the runner's alone;
 * the whole group is killed after the time limit and when `a` asks to stop all,
 * and the program itself when the runner dies.
 */
finDeProcessus executer(const commande& c, const arret& a);

/** The path of program `nom`: beside this one, else on PATH, else empty. */
std::string trouverProgramme(const std::string& nom);

}  // namespace quilvane::lot

#endif
