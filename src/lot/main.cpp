/**
 * main.cpp - quilvane-lot: the command line, then the run.
 */
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

#include "lot/lot.h"
#include "lot/textes.h"

using namespace quilvane::lot;

namespace {

/** Descriptors 0 to 2 that are closed get /dev/null, so that no file of the
 *  spool is taken for a console. */
void garnirConsoles() {
    for (int fd = open("/dev/null", O_RDWR); fd >= 0; fd = open("/dev/null", O_RDWR))
        if (fd > STDERR_FILENO) {
            close(fd);
            return;
        }
}

}  // namespace

int main(int argc, char* argv[]) {
    garnirConsoles();
    reglages r;
    std::string probleme;
    switch (lireOptions(argc, argv, r, probleme)) {
        case MONTRER_AIDE: std::fputs(aide(r.langue).c_str(), stdout); return 0;
        case MONTRER_VERSION: std::puts("quilvane-lot " QUILVANE_VERSION); return 0;
        case USAGE_FAUX:
            std::fprintf(stderr, "quilvane-lot: %s\n%s\n%s\n", probleme.c_str(),
                         USAGE_TITRE.en_langue(r.langue), USAGE_VOIR.en_langue(r.langue));
            return STATUT_USAGE;
        case TRAVAILLER: break;
    }
    return travailler(r);
}
