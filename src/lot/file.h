/**
 * file.h - the queue between the thread that looks and the threads that work.
 */
#ifndef QUILVANE_LOT_FILE_H
#define QUILVANE_LOT_FILE_H

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "lot/traitement.h"

namespace quilvane::lot {

/** Something to do: a casier to take over, or a file of arrivee to take. */
struct tache {
    bool reprise = false;
    std::string nom;  // of the casier, or of the file
};

/** What came of it. */
struct compteRendu {
    bilan b;  // ISSUE_AUCUNE when somebody else had it
    bool panne = false;
    faute f;             // why, when `panne`
    std::string ecarte;  // a file that cannot be taken and is not to be tried again
};

struct file {
    std::mutex m;
    std::condition_variable reveil;
    std::deque<tache> aFaire;
    std::vector<compteRendu> faits;
    int enMain = 0;  // tasks that a thread is at
    bool finie = false;
    descripteur cloche;  // an eventfd that rings after every task
    std::vector<std::thread> fils;
};

/** Starts `nombre` threads that work with `t`. */
bool ouvrirFile(file& f, atelier& t, int nombre);

void confier(file& f, const std::vector<tache>& taches);

/** Drops the tasks that nobody has begun; returns how many. */
long abandonner(file& f);

/** Takes over what is done; returns how many tasks are left, begun or not. */
long recueillir(file& f, std::vector<compteRendu>& faits);

/** Waits for the threads to end what they are at, and ends them. */
void fermerFile(file& f);

}  // namespace quilvane::lot

#endif
