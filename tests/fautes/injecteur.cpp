/**
 * injecteur - a library put in front of the program by tests only: it makes
 * chosen calls of the C library fail, or stops the program before them.
 *
 *   QUILVANE_FAUTE=<function>:<n>:<action>[,...]
 *       function  open fdopen fclose fwrite fread rename renameat2 link remove
 *                 unlink flock fsync ftruncate, stat (with lstat and fstat),
 *                 fcntl (the copying of descriptors), malloc (with calloc and
 *                 realloc), or tout: any of these but the allocations
 *       n         the n-th call of that function, counted in main only
 *       action    refuser    that call fails
 *                 toujours   it and all later ones fail
 *                 manquer    the same, as where the system does not have that call
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
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
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

enum eFonction {
    OPEN,
    FDOPEN,
    FCLOSE,
    FWRITE,
    FREAD,
    RENAME,
    RENAMEAT2,
    LINK,
    REMOVE,
    UNLINK,
    FLOCK,
    FSYNC,
    FTRUNCATE,
    STAT,
    FCNTL,
    MALLOC,
    TOUT,
    NB_FONCTIONS
};
constexpr const char* FONCTIONS[NB_FONCTIONS] = {"open",      "fdopen", "fclose", "fwrite", "fread", "rename",
                                                 "renameat2", "link",   "remove", "unlink", "flock", "fsync",
                                                 "ftruncate", "stat",   "fcntl",  "malloc", "tout"};
enum eAction { REFUSER, TOUJOURS, MANQUER, TUER, ATTENDRE, NB_ACTIONS };
constexpr const char* ACTIONS[NB_ACTIONS] = {"refuser", "toujours", "manquer", "tuer", "attendre"};

struct ordre {
    int fonction;
    int n;
    int action;
};
ordre ordres[MAX_ORDRES];
int nbOrdres = 0;
int appels[NB_FONCTIONS];
bool manquant = false;  // the call that was met last is to fail as a missing one
bool actif = false;     // within main
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
            std::sscanf(p, "%15[a-z0-9]:%d:%15[a-z]%n", fonction, &n, action, &lus) != 3)
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
struct nomDuDescripteur {
    char chemin[4096] = {};
    explicit nomDuDescripteur(int fd) {
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
        const bool dure = o.action == TOUJOURS || o.action == MANQUER;
        if (compte < o.n || (compte > o.n && !dure)) continue;
        actif = false;
        noter("QUILVANE_TEMOIN", nom);
        switch (o.action) {
            case TUER: syscall(SYS_kill, getpid(), SIGKILL); break;
            case ATTENDRE: attendreLeFeu(); break;
            default: echoue = true; manquant = o.action == MANQUER;
        }
        actif = true;
    }
    return echoue;
}

bool doitEchouer(eFonction fonction, std::FILE* fp) {
    return actif && doitEchouer(fonction, nomDuDescripteur(fileno(fp)).nom());
}

bool doitEchouer(eFonction fonction, int fd) {
    return actif && doitEchouer(fonction, nomDuDescripteur(fd).nom());
}

int echec(int cause) {
    errno = cause;
    return -1;
}

void noterOuverts() {
    for (int fd = 3; fd < MAX_DESCRIPTEURS; ++fd)
        if (!ouvertsAvant[fd] && fcntl(fd, F_GETFD) >= 0)
            noter("QUILVANE_OUVERTS", nomDuDescripteur(fd).nom());
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

int open64(const char* nom, int drapeaux, ...) {
    static auto* const vraie = suivante<int(const char*, int, ...)>("open64");
    va_list reste;
    va_start(reste, drapeaux);
    const mode_t droits = (drapeaux & O_CREAT) != 0 ? va_arg(reste, mode_t) : 0;
    va_end(reste);
    return doitEchouer(OPEN, sansDossier(nom)) ? echec(EMFILE) : vraie(nom, drapeaux, droits);
}

std::FILE* fdopen(int fd, const char* mode) noexcept {
    static auto* const vraie = suivante<std::FILE*(int, const char*)>("fdopen");
    if (!doitEchouer(FDOPEN, fd)) return vraie(fd, mode);
    errno = EMFILE;
    return nullptr;
}

int fcntl64(int fd, int commande, ...) {
    static auto* const vraie = suivante<int(int, int, ...)>("fcntl64");
    va_list reste;
    va_start(reste, commande);
    const long valeur = va_arg(reste, long);
    va_end(reste);
    if (commande == F_DUPFD_CLOEXEC && doitEchouer(FCNTL, fd)) return echec(EMFILE);
    return vraie(fd, commande, valeur);
}

int flock(int fd, int operation) noexcept {
    static auto* const vraie = suivante<int(int, int)>("flock");
    return doitEchouer(FLOCK, fd) ? echec(manquant ? EWOULDBLOCK : ENOLCK) : vraie(fd, operation);
}

int fsync(int fd) {
    static auto* const vraie = suivante<int(int)>("fsync");
    return doitEchouer(FSYNC, fd) ? echec(EIO) : vraie(fd);
}

int ftruncate64(int fd, off64_t taille) noexcept {
    static auto* const vraie = suivante<int(int, off64_t)>("ftruncate64");
    return doitEchouer(FTRUNCATE, fd) ? echec(EIO) : vraie(fd, taille);
}

int stat64(const char* nom, struct stat64* s) noexcept {
    static auto* const vraie = suivante<int(const char*, struct stat64*)>("stat64");
    return doitEchouer(STAT, sansDossier(nom)) ? echec(EIO) : vraie(nom, s);
}

int lstat64(const char* nom, struct stat64* s) noexcept {
    static auto* const vraie = suivante<int(const char*, struct stat64*)>("lstat64");
    return doitEchouer(STAT, sansDossier(nom)) ? echec(EIO) : vraie(nom, s);
}

int fstat64(int fd, struct stat64* s) noexcept {
    static auto* const vraie = suivante<int(int, struct stat64*)>("fstat64");
    return doitEchouer(STAT, fd) ? echec(EIO) : vraie(fd, s);
}

int renameat2(int ici, const char* ancien, int la, const char* nouveau, unsigned drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*, unsigned)>("renameat2");
    if (!doitEchouer(RENAMEAT2, sansDossier(ancien))) return vraie(ici, ancien, la, nouveau, drapeaux);
    return echec(manquant ? EINVAL : EBUSY);
}

int link(const char* ancien, const char* nouveau) noexcept {
    static auto* const vraie = suivante<int(const char*, const char*)>("link");
    if (!doitEchouer(LINK, sansDossier(ancien))) return vraie(ancien, nouveau);
    return echec(manquant ? EPERM : EBUSY);
}

int unlink(const char* nom) noexcept {
    static auto* const vraie = suivante<int(const char*)>("unlink");
    return doitEchouer(UNLINK, sansDossier(nom)) ? echec(EBUSY) : vraie(nom);
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
    return doitEchouer(RENAME, sansDossier(ancien)) ? echec(EBUSY) : vraie(ancien, nouveau);
}

int remove(const char* nom) noexcept {
    static auto* const vraie = suivante<int(const char*)>("remove");
    return doitEchouer(REMOVE, sansDossier(nom)) ? echec(EBUSY) : vraie(nom);
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
