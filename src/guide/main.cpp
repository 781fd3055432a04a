#include <fcntl.h>
#include <unistd.h>

#include "guide/commandes.h"

using namespace quilvane::guide;

namespace {

/** Descriptors 0 to 2 that are closed get one through which nothing can be read
 *  or written, so that no file is taken for a console. */
void garnirConsoles() {
    for (int fd = open("/dev/null", O_PATH); fd >= 0; fd = open("/dev/null", O_PATH))
        if (fd > STDERR_FILENO) {
            close(fd);
            return;
        }
}

}  // namespace

int main(int argc, char* argv[]) {
    garnirConsoles();
    sDemandeLue d;
    switch (lireLigne(argc, argv, d)) {
        case LECTURE_FINIE: return STATUT_ACCEPTE;
        case LECTURE_FAUSSE: return STATUT_USAGE;
        case LECTURE_RATEE: return STATUT_ARRET;
        default: return commandeDe(d.commande)->executer(d);
    }
}
