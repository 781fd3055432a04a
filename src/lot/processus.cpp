#include "lot/processus.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <string_view>

#include "lot/disque.h"

namespace quilvane::lot {

namespace {

constexpr int TRANCHE = 100;  // milliseconds between two looks at `arret`

std::vector<char*> pointeurs(std::vector<std::string>& textes) {
    std::vector<char*> r;
    r.reserve(textes.size() + 1);
    for (std::string& t : textes)
        r.push_back(t.data());
    r.push_back(nullptr);
    return r;
}

std::vector<std::string> milieuSansTmpdir() {
    std::vector<std::string> r;
    for (char** e = environ; *e != nullptr; ++e)
        if (!std::string_view(*e).starts_with("TMPDIR=")) r.emplace_back(*e);
    return r;
}

/** The child, between fork and exec: nothing here allocates or locks. */
[[noreturn]] void devenir(const commande& c, char* const* argv, char* const* envp, int nul, int temoin,
                          pid_t pere) {
    sigset_t rien;
    sigemptyset(&rien);
    sigprocmask(SIG_SETMASK, &rien, nullptr);
    signal(SIGPIPE, SIG_DFL);
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // Whoever started this may have died before the line above.
    const bool orphelin = getppid() != pere;
    if (!orphelin && fchdir(c.dossier) == 0 && dup2(nul, 0) == 0 && dup2(c.sortie, 1) == 1 &&
        dup2(c.sortie, 2) == 2 && (c.verrou < 0 || fcntl(c.verrou, F_SETFD, 0) == 0))
        execve(c.programme.c_str(), argv, envp);
    const int cause = errno;
    if (write(temoin, &cause, sizeof cause) < 0) _exit(126);
    _exit(127);
}

finDeProcessus attendre(pid_t fils, int delai, const arret& a) {
    using horloge = std::chrono::steady_clock;
    const auto limite = horloge::now() + std::chrono::seconds(delai);
    // Without one (an old kernel) the end is seen a little later.
    const descripteur pidfd(static_cast<int>(syscall(SYS_pidfd_open, fils, 0)));
    eFin fin = FINI;
    int etat = 0;
    for (;;) {
        pollfd p = {pidfd.fd, POLLIN, 0};
        poll(&p, 1, TRANCHE);
        const pid_t r = waitpid(fils, &etat, WNOHANG);
        if (r == fils) break;
        if (r < 0 && errno != EINTR) return {PAS_LANCE, errno};
        if (fin != FINI) continue;
        if (delai > 0 && horloge::now() >= limite) fin = DELAI_DEPASSE;
        if (a == ARRETER_TOUT) fin = INTERROMPU;
        if (fin != FINI) kill(-fils, SIGKILL);
    }
    // What it may have started must not go on in its folder.
    kill(-fils, SIGKILL);
    if (fin != FINI) return {fin, 0};
    if (WIFSIGNALED(etat)) return {TUE_PAR_SIGNAL, WTERMSIG(etat)};
    return {FINI, WEXITSTATUS(etat)};
}

bool estProgramme(const std::string& chemin) {
    struct stat s = {};
    return stat(chemin.c_str(), &s) == 0 && S_ISREG(s.st_mode) && access(chemin.c_str(), X_OK) == 0;
}

}  // namespace

finDeProcessus executer(const commande& c, const arret& a) {
    std::vector<std::string> arguments = {c.programme};
    arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
    std::vector<std::string> milieu = milieuSansTmpdir();
    const std::vector<char*> argv = pointeurs(arguments);
    const std::vector<char*> envp = pointeurs(milieu);
    const descripteur nul(open("/dev/null", O_RDONLY | O_CLOEXEC));
    int tuyau[2];
    if (!nul.ouvert() || pipe2(tuyau, O_CLOEXEC) != 0) return {PAS_LANCE, errno};
    const descripteur lecture(tuyau[0]);
    descripteur ecriture(tuyau[1]);
    const pid_t pere = getpid();
    const pid_t fils = fork();
    if (fils < 0) return {PAS_LANCE, errno};
    if (fils == 0) devenir(c, argv.data(), envp.data(), nul.fd, ecriture.fd, pere);
    setpgid(fils, fils);
    ecriture.fermer();
    int cause = 0;
    const bool echec = read(lecture.fd, &cause, sizeof cause) == static_cast<ssize_t>(sizeof cause);
    const finDeProcessus fin = attendre(fils, c.delai, a);
    if (echec) return {PAS_LANCE, cause};
    return fin;
}

std::string trouverProgramme(const std::string& nom) {
    char moi[PATH_MAX] = {};
    if (readlink("/proc/self/exe", moi, sizeof moi - 1) > 0) {
        std::string chemin = moi;
        chemin = chemin.substr(0, chemin.rfind('/') + 1) + nom;
        if (estProgramme(chemin)) return chemin;
    }
    const char* const path = std::getenv("PATH");
    std::string_view reste = path != nullptr ? path : "";
    while (!reste.empty()) {
        const std::size_t fin = std::min(reste.find(':'), reste.size());
        std::string chemin = std::string(reste.substr(0, fin)) + "/" + nom;
        // Only full paths: the program is run from another folder.
        if (chemin[0] == '/' && chemin.size() > nom.size() + 1 && estProgramme(chemin)) return chemin;
        reste.remove_prefix(std::min(fin + 1, reste.size()));
    }
    return "";
}

}  // namespace quilvane::lot
