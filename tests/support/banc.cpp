#include "support/banc.h"

#include <fcntl.h>
#include <poll.h>
#include <semaphore.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace essai {

std::string latin1(const std::string& utf8) {
    std::string r;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto o = static_cast<unsigned char>(utf8[i]);
        if (o < 0x80)
            r += utf8[i];
        else
            r += static_cast<char>(((o & 3U) << 6) | (static_cast<unsigned char>(utf8[++i]) & 0x3FU));
    }
    return r;
}

dossier::dossier(const std::string& parent) {
    const char* const base = std::getenv("TMPDIR");
    std::string modele = (!parent.empty() ? parent : base != nullptr ? base : "/tmp") + "/quilvane-XXXXXX";
    if (mkdtemp(modele.data()) == nullptr) throw std::runtime_error("mkdtemp " + modele);
    chemin = modele;
}

dossier::~dossier() {
    std::error_code ignore;
    fs::remove_all(chemin, ignore);
}

void dossier::ecrire(const std::string& relatif, const std::string& octets) const {
    std::ofstream f(nom(relatif), std::ios::binary);
    f << octets;
    if (!f.flush()) throw std::runtime_error("write " + nom(relatif));
}

void dossier::creerDossier(const std::string& relatif) const { fs::create_directories(nom(relatif)); }

std::string dossier::lire(const std::string& relatif) const {
    std::ifstream f(nom(relatif), std::ios::binary);
    if (!f) throw std::runtime_error("read " + nom(relatif));
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

bool dossier::existe(const std::string& relatif) const {
    return fs::exists(fs::symlink_status(nom(relatif)));
}

std::map<std::string, std::string> dossier::contenu() const {
    std::map<std::string, std::string> r;
    for (const auto& e : fs::recursive_directory_iterator(chemin)) {
        const std::string relatif = e.path().lexically_relative(chemin).string();
        if (e.is_directory())
            r[relatif + "/"] = "";
        else
            r[relatif] = lire(relatif);
    }
    return r;
}

namespace {

/** Reads both pipes until they are closed. */
void lireTout(int sortie, int erreur, resultat& r) {
    pollfd fds[2] = {{sortie, POLLIN, 0}, {erreur, POLLIN, 0}};
    std::string* const textes[2] = {&r.sortie, &r.erreur};
    for (int ouverts = 2; ouverts > 0;) {
        if (poll(fds, 2, -1) < 0) continue;
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || fds[i].revents == 0) continue;
            char bloc[65536];
            const ssize_t n = read(fds[i].fd, bloc, sizeof bloc);
            if (n > 0) {
                textes[i]->append(bloc, static_cast<std::size_t>(n));
            } else if (n == 0 || errno != EINTR) {
                close(fds[i].fd);
                fds[i].fd = -1;
                --ouverts;
            }
        }
    }
}

}  // namespace

resultat lancerProgramme(const std::string& programme, const dossier& d,
                         const std::vector<std::string>& arguments, const options& o) {
    std::vector<std::string> milieu = {"TZ=UTC", "LANG=C", "PATH=/usr/bin:/bin"};
    std::string precharge;
    for (const std::string& p : o.precharge)
        precharge += p + ":";
    if (!o.horloge.empty()) {
        precharge += QUILVANE_LIBFAKETIME;
        milieu.push_back("FAKETIME=" + o.horloge);
        milieu.push_back("FAKETIME_DONT_RESET=1");
    }
    if (!precharge.empty()) milieu.push_back("LD_PRELOAD=" + precharge);
    // The sanitizer's allocator must not read the clock while it holds its lock:
    // the library that freezes the clock allocates on its first call.
    std::string asan = "allocator_release_to_os_interval_ms=-1";
    if (const char* const v = std::getenv("ASAN_OPTIONS")) asan = std::string(v) + ":" + asan;
    milieu.push_back("ASAN_OPTIONS=" + asan);
    for (const char* garde : {"UBSAN_OPTIONS", "LSAN_OPTIONS", "GCOV_PREFIX"})
        if (const char* const v = std::getenv(garde)) milieu.push_back(std::string(garde) + "=" + v);
    for (const auto& [nom, valeur] : o.milieu) {
        std::erase_if(milieu, [debut = nom + "="](const std::string& m) { return m.starts_with(debut); });
        milieu.push_back(nom + "=" + valeur);
    }

    std::vector<char*> argv = {const_cast<char*>(o.argv0.c_str())};
    for (const std::string& a : arguments)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    std::vector<char*> envp;
    for (const std::string& m : milieu)
        envp.push_back(const_cast<char*>(m.c_str()));
    envp.push_back(nullptr);

    int sortie[2];
    int erreur[2];
    if (pipe2(sortie, O_CLOEXEC) != 0 || pipe2(erreur, O_CLOEXEC) != 0) throw std::runtime_error("pipe");
    const pid_t fils = fork();
    if (fils < 0) throw std::runtime_error("fork");
    if (fils == 0) {
        const int entree = open(o.entreeStandard.c_str(), O_RDONLY);
        if (entree < 0 || dup2(entree, 0) < 0 || dup2(sortie[1], 1) < 0 || dup2(erreur[1], 2) < 0 ||
            chdir(d.chemin.c_str()) != 0)
            _exit(126);
        execve(programme.c_str(), argv.data(), envp.data());
        _exit(127);
    }
    close(sortie[1]);
    close(erreur[1]);
    if (o.tuerApres > 0) {
        usleep(static_cast<useconds_t>(o.tuerApres));
        kill(fils, SIGKILL);
    }
    resultat r;
    lireTout(sortie[0], erreur[0], r);
    int etat = 0;
    while (waitpid(fils, &etat, 0) < 0 && errno == EINTR) {
    }
    // A killed program leaves what the frozen clock shares under its number.
    shm_unlink(("/faketime_shm_" + std::to_string(fils)).c_str());
    sem_unlink(("/faketime_sem_" + std::to_string(fils)).c_str());
    if (WIFEXITED(etat)) r.statut = WEXITSTATUS(etat);
    if (WIFSIGNALED(etat)) r.signal = WTERMSIG(etat);
    return r;
}

const char* programme() { return QUILVANE_BINAIRE; }

resultat lancer(const dossier& d, const std::vector<std::string>& arguments, const options& o) {
    const char* const valgrind = std::getenv("QUILVANE_VALGRIND");
    // valgrind finds the program by its name and cannot give it another, and
    // needs a usable TMPDIR itself.
    if (valgrind == nullptr || o.tuerApres > 0 || o.argv0 != "quilvane" || o.milieu.contains("TMPDIR"))
        return lancerProgramme(QUILVANE_BINAIRE, d, arguments, o);
    // Any message of valgrind's goes to standard error, where no test expects one.
    std::vector<std::string> mots = {"-q", "--vgdb=no", "--error-exitcode=99", o.argv0};
    mots.insert(mots.end(), arguments.begin(), arguments.end());
    options v = o;
    v.argv0 = "valgrind";
    v.milieu.insert({"PATH", fs::path(QUILVANE_BINAIRE).parent_path().string() + ":/usr/bin:/bin"});
    return lancerProgramme(valgrind, d, mots, v);
}

}  // namespace essai
