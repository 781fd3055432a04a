#include "driver/processus.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cstdio>

#include "rules/latin1.h"

namespace quilvane {

namespace {

constexpr texteLatin1 MSG_ECRITURE("Écriture incomplète sur la console ou dans le fichier log\n");
constexpr int ARRETS[] = {SIGTERM, SIGINT, SIGHUP};

/** The signal that has come, 0 for none. Written by `noter`. */
constinit volatile sig_atomic_t signalRecu = 0;
/** Whether a failed write was told. Written by `signalerEcriture`. */
constinit bool ecritureSignalee = false;

void noter(int numero) { signalRecu = numero; }

sigset_t arrets() {
    sigset_t s;
    sigemptyset(&s);
    for (const int numero : ARRETS)
        sigaddset(&s, numero);
    return s;
}

}  // namespace

void preparerProcessus() {
    ecritureSignalee = false;
    // A descriptor that is opened takes the lowest free number.
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd)
        if (fcntl(fd, F_GETFD) < 0) open("/dev/null", O_RDWR);
    signal(SIGPIPE, SIG_IGN);
    signal(SIGXFSZ, SIG_IGN);
    for (const int numero : ARRETS) {
        struct sigaction action = {};
        sigaction(numero, nullptr, &action);
        if (action.sa_handler == SIG_IGN) continue;
        // A console that nobody reads does not keep the signal waiting: the
        // write is not begun again.
        action = {};
        action.sa_handler = noter;
        sigaction(numero, &action, nullptr);
    }
}

bool interrompu() { return signalRecu != 0; }

void retenirSignaux() {
    const sigset_t s = arrets();
    sigprocmask(SIG_BLOCK, &s, nullptr);
}

void signalerEcriture() {
    if (ecritureSignalee) return;
    ecritureSignalee = true;
    std::fputs(MSG_ECRITURE, stderr);
}

void terminerProcessus() {
    const sigset_t s = arrets();
    sigprocmask(SIG_UNBLOCK, &s, nullptr);
    if (!interrompu() && (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)) signalerEcriture();
    if (!interrompu()) return;
    signal(signalRecu, SIG_DFL);
    raise(signalRecu);
}

}  // namespace quilvane
