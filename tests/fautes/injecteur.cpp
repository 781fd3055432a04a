/**
 * injecteur - a library put in front of the program by tests only: it makes
 * chosen calls of the C library fail, or stops the program before them.
 *
 *   QUILVANE_FAUTE=<function>:<n>:<action>[,...]
 *       function  fopen fclose fwrite fread rename remove, malloc (with calloc
 *                 and realloc), or tout: any of these but the allocations
 *       n         the n-th call of that function, counted in main only
 *       action    refuser    that call fails
 *                 toujours   it and all later ones fail
 *                 tuer       the process is killed before it
 *                 attendre   it waits before it until the file QUILVANE_FEU exists
 *   QUILVANE_TEMOIN      file that gets a line for every call that was met
 *   QUILVANE_OUVERTS     file that gets the name of every file that main left open
 *   QUILVANE_TAILLE_MAX  limit on the size of a written file
 *
 * A failed fwrite or fread sets the stream's error flag, a failed fclose has
 * closed the file, as real ones do.
 */
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

extern "C" {
void* __libc_malloc(size_t);
void* __libc_calloc(size_t, size_t);
void* __libc_realloc(void*, size_t);
}

namespace {

constexpr int ERREUR_DE_FLUX = 0x20;  // _IO_ERR_SEEN
constexpr int MAX_ORDRES = 4;
constexpr int MAX_DESCRIPTEURS = 256;
constexpr int ATTENTE = 60000;  // milliseconds

enum eFonction { FOPEN, FCLOSE, FWRITE, FREAD, RENAME, REMOVE, MALLOC, TOUT, NB_FONCTIONS };
constexpr const char* FONCTIONS[NB_FONCTIONS] = {"fopen",  "fclose", "fwrite", "fread",
                                                 "rename", "remove", "malloc", "tout"};
enum eAction { REFUSER, TOUJOURS, TUER, ATTENDRE, NB_ACTIONS };
constexpr const char* ACTIONS[NB_ACTIONS] = {"refuser", "toujours", "tuer", "attendre"};

struct ordre {
    int fonction;
    int n;
    int action;
};
ordre ordres[MAX_ORDRES];
int nbOrdres = 0;
int appels[NB_FONCTIONS];
bool actif = false;  // within main
bool ouvertsAvant[MAX_DESCRIPTEURS];

template <typename Fonction>
Fonction* suivante(const char* nom) {
    void* const p = dlsym(RTLD_NEXT, nom);
    Fonction* f = nullptr;
    std::memcpy(&f, &p, sizeof f);
    return f;
}

int rang(const char* mot, const char* const* mots, int nombre) {
    for (int i = 0; i < nombre; ++i)
        if (std::strcmp(mot, mots[i]) == 0) return i;
    std::abort();
}

void lireOrdres() {
    const char* p = std::getenv("QUILVANE_FAUTE");
    while (p != nullptr && *p != '\0') {
        char fonction[16];
        char action[16];
        int n = 0;
        int lus = 0;
        if (nbOrdres == MAX_ORDRES ||
            std::sscanf(p, "%15[a-z]:%d:%15[a-z]%n", fonction, &n, action, &lus) != 3)
            std::abort();
        ordres[nbOrdres++] = {rang(fonction, FONCTIONS, NB_FONCTIONS), n, rang(action, ACTIONS, NB_ACTIONS)};
        p += lus;
        if (*p == ',') ++p;
    }
}

/** Appends to the file that environment variable `variable` names. */
void noter(const char* variable, const char* texte) {
    const char* const nom = std::getenv(variable);
    if (nom == nullptr) return;
    const int fd = open(nom, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (fd < 0 || write(fd, texte, std::strlen(texte)) < 0 || write(fd, "\n", 1) < 0) std::abort();
    close(fd);
}

const char* sansDossier(const char* chemin) {
    const char* const barre = std::strrchr(chemin, '/');
    return barre != nullptr ? barre + 1 : chemin;
}

/** Name of the file behind a descriptor. */
struct nomDuFlux {
    char chemin[4096] = {};
    explicit nomDuFlux(int fd) {
        char lien[64];
        std::snprintf(lien, sizeof lien, "/proc/self/fd/%d", fd);
        if (readlink(lien, chemin, sizeof chemin - 1) < 0) chemin[0] = '\0';
    }
    const char* nom() const { return sansDossier(chemin); }
};

void attendreLeFeu() {
    const char* const feu = std::getenv("QUILVANE_FEU");
    for (int i = 0; i < ATTENTE; ++i) {
        if (access(feu, F_OK) == 0) return;
        usleep(1000);
    }
    std::abort();
}

/** Counts a call over the file `nom`; whether it must fail. */
bool doitEchouer(eFonction fonction, const char* nom) {
    if (!actif) return false;
    ++appels[fonction];
    if (fonction != MALLOC) ++appels[TOUT];
    bool echoue = false;
    for (int i = 0; i < nbOrdres; ++i) {
        const ordre& o = ordres[i];
        if (o.fonction != fonction && (o.fonction != TOUT || fonction == MALLOC)) continue;
        const int compte = appels[o.fonction];
        if (compte < o.n || (compte > o.n && o.action != TOUJOURS)) continue;
        actif = false;
        noter("QUILVANE_TEMOIN", nom);
        switch (o.action) {
            case TUER: syscall(SYS_kill, getpid(), SIGKILL); break;
            case ATTENDRE: attendreLeFeu(); break;
            default: echoue = true;
        }
        actif = true;
    }
    return echoue;
}

bool doitEchouer(eFonction fonction, std::FILE* fp) {
    return actif && doitEchouer(fonction, nomDuFlux(fileno(fp)).nom());
}

void noterOuverts() {
    for (int fd = 3; fd < MAX_DESCRIPTEURS; ++fd)
        if (!ouvertsAvant[fd] && fcntl(fd, F_GETFD) >= 0) noter("QUILVANE_OUVERTS", nomDuFlux(fd).nom());
}

using fonctionMain = int(int, char**, char**);
fonctionMain* vraiMain = nullptr;

int mainSurveille(int argc, char** argv, char** envp) {
    lireOrdres();
    for (int fd = 0; fd < MAX_DESCRIPTEURS; ++fd)
        ouvertsAvant[fd] = fcntl(fd, F_GETFD) >= 0;
    rlimit taille;
    getrlimit(RLIMIT_FSIZE, &taille);
    const rlimit avant = taille;
    if (const char* const max = std::getenv("QUILVANE_TAILLE_MAX")) {
        signal(SIGXFSZ, SIG_IGN);
        taille.rlim_cur = std::strtoul(max, nullptr, 10);
        setrlimit(RLIMIT_FSIZE, &taille);
    }
    actif = true;
    const int statut = vraiMain(argc, argv, envp);
    actif = false;
    setrlimit(RLIMIT_FSIZE, &avant);
    noterOuverts();
    return statut;
}

}  // namespace

extern "C" {

int __libc_start_main(fonctionMain* principal, int argc, char** argv, void (*init)(), void (*fini)(),
                      void (*rtldFini)(), void* pile) {
    vraiMain = principal;
    using demarrage = int(fonctionMain*, int, char**, void (*)(), void (*)(), void (*)(), void*);
    return suivante<demarrage>("__libc_start_main")(mainSurveille, argc, argv, init, fini, rtldFini, pile);
}

std::FILE* fopen(const char* nom, const char* mode) {
    static auto* const vraie = suivante<decltype(fopen)>("fopen");
    if (doitEchouer(FOPEN, sansDossier(nom))) {
        errno = EMFILE;
        return nullptr;
    }
    return vraie(nom, mode);
}

int fclose(std::FILE* fp) {
    static auto* const vraie = suivante<decltype(fclose)>("fclose");
    const bool echoue = doitEchouer(FCLOSE, fp);
    const int r = vraie(fp);
    if (!echoue) return r;
    errno = EDQUOT;
    return EOF;
}

size_t fwrite(const void* octets, size_t taille, size_t nombre, std::FILE* fp) {
    static auto* const vraie = suivante<decltype(fwrite)>("fwrite");
    if (!doitEchouer(FWRITE, fp)) return vraie(octets, taille, nombre, fp);
    const size_t ecrits = vraie(octets, taille, nombre / 2, fp);
    fp->_flags |= ERREUR_DE_FLUX;
    errno = ENOSPC;
    return ecrits;
}

size_t fread(void* octets, size_t taille, size_t nombre, std::FILE* fp) {
    static auto* const vraie = suivante<decltype(fread)>("fread");
    if (!doitEchouer(FREAD, fp)) return vraie(octets, taille, nombre, fp);
    fp->_flags |= ERREUR_DE_FLUX;
    errno = EIO;
    return 0;
}

int rename(const char* ancien, const char* nouveau) noexcept {
    static auto* const vraie = suivante<int(const char*, const char*)>("rename");
    if (!doitEchouer(RENAME, sansDossier(ancien))) return vraie(ancien, nouveau);
    errno = EBUSY;
    return -1;
}

int remove(const char* nom) noexcept {
    static auto* const vraie = suivante<int(const char*)>("remove");
    if (!doitEchouer(REMOVE, sansDossier(nom))) return vraie(nom);
    errno = EBUSY;
    return -1;
}

void* malloc(size_t taille) noexcept {
    if (!doitEchouer(MALLOC, "malloc")) return __libc_malloc(taille);
    errno = ENOMEM;
    return nullptr;
}

void* calloc(size_t nombre, size_t taille) noexcept {
    if (!doitEchouer(MALLOC, "calloc")) return __libc_calloc(nombre, taille);
    errno = ENOMEM;
    return nullptr;
}

void* realloc(void* bloc, size_t taille) noexcept {
    if (!doitEchouer(MALLOC, "realloc")) return __libc_realloc(bloc, taille);
    errno = ENOMEM;
    return nullptr;
}

}  // extern "C"
