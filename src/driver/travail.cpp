#include "driver/travail.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace quilvane {

namespace {

constexpr int ESSAIS = 5;  // how often a step begins again when another run comes between
constexpr mode_t DROITS = 0666;
constexpr int SANS_ATTENDRE = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

bool memeNoeud(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool echouer(int cause) {
    errno = cause;
    return false;
}

/** Closes a descriptor and leaves `errno` as it is; false. */
bool abandonner(int fd) {
    const int cause = errno;
    close(fd);
    return echouer(cause);
}

/** Whether `nom`, links followed, is the file behind `fd`. */
bool mene(const char* nom, int fd) {
    struct stat a;
    struct stat b;
    return fd >= 0 && stat(nom, &a) == 0 && fstat(fd, &b) == 0 && memeNoeud(a, b);
}

/** Whether `nom`, no link followed, is the file behind `fd`. */
bool nomme(const char* nom, int fd) {
    struct stat a;
    struct stat b;
    return lstat(nom, &a) == 0 && fstat(fd, &b) == 0 && memeNoeud(a, b);
}

bool memeDescripteur(int fd, int autre) {
    struct stat a;
    struct stat b;
    return fstat(fd, &a) == 0 && fstat(autre, &b) == 0 && memeNoeud(a, b);
}

/** A stream over a copy of the held descriptor, so that closing the stream
 *  leaves the lock; null when there is none. */
std::FILE* fluxSur(int tenu, const char* mode) {
    const int fd = fcntl(tenu, F_DUPFD_CLOEXEC, 0);
    if (fd < 0) return nullptr;
    std::FILE* const fp = fdopen(fd, mode);
    if (fp == nullptr) abandonner(fd);
    return fp;
}

/** Renames without ever overwriting. Where the file system cannot do so at
 *  once, a second name is made first; where it has no second names, a test
 *  comes first. */
bool renommerSansEcraser(const char* nom, const char* nouveau) {
    if (renameat2(AT_FDCWD, nom, AT_FDCWD, nouveau, RENAME_NOREPLACE) == 0) return true;
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) return false;
    if (link(nom, nouveau) == 0) return unlink(nom) == 0;
    if (errno == EEXIST) return false;
    struct stat present;
    if (lstat(nouveau, &present) == 0) return echouer(EEXIST);
    return std::rename(nom, nouveau) == 0;
}

/** Gives `nom` the first free numbered name. */
bool numeroter(const char* nom) {
    const std::size_t taille = std::strlen(nom) + sizeof ".~2147483647~";
    auto* const numerote = static_cast<char*>(std::malloc(taille));
    if (numerote == nullptr) return false;
    bool fait = false;
    for (int n = 1; !fait; ++n) {
        std::snprintf(numerote, taille, "%s.~%d~", nom, n);
        fait = renommerSansEcraser(nom, numerote);
        if (!fait && errno != EEXIST) break;
    }
    const int cause = errno;
    std::free(numerote);
    return fait || echouer(cause);
}

/** Whether what stands under `nom` leads to a file that this run can lock. */
bool estVerrouillable(const char* nom) {
    struct stat present;
    return stat(nom, &present) == 0 && S_ISREG(present.st_mode) && !mene(nom, tenu_recu.fd);
}

/** Opens the folder of `nom`. Its lock stands for that of a link, which has none. */
int ouvrirDossier(const char* nom) {
    const char* const barre = std::strrchr(nom, '/');
    const std::size_t n = barre != nullptr ? static_cast<std::size_t>(barre - nom) + 1 : 0;
    char dossier[PATH_MAX] = ".";
    if (n >= sizeof dossier) {
        errno = ENAMETOOLONG;
        return -1;
    }
    if (n > 0) {
        std::memcpy(dossier, nom, n);
        dossier[n] = '\0';
    }
    return open(dossier, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

/** Puts aside what stands under `nom`, locked meanwhile: it may be the input of
 *  a run that goes on, and then stays where it is. */
bool mettreDeCote(const char* nom) {
    const bool verrouillable = estVerrouillable(nom);
    const int verrou = verrouillable ? open(nom, O_RDONLY | SANS_ATTENDRE) : ouvrirDossier(nom);
    if (verrou < 0) return false;
    bool fait = flock(verrou, LOCK_EX | LOCK_NB) == 0;
    // What has changed before it was locked is looked at again by the caller.
    const bool encore = verrouillable ? mene(nom, verrou) : !estVerrouillable(nom);
    if (fait && encore) fait = numeroter(nom);
    return abandonner(verrou) || fait;
}

/** Removes a file that no other run holds. */
bool retirerFichier(const char* nom) {
    const int fd = open(nom, O_WRONLY | O_NOFOLLOW | SANS_ATTENDRE);
    if (fd < 0) return false;
    bool fait = flock(fd, LOCK_EX | LOCK_NB) == 0;
    if (fait && nomme(nom, fd)) fait = unlink(nom) == 0;
    return abandonner(fd) || fait;
}

bool retirerLien(const char* nom) {
    const int dossier = ouvrirDossier(nom);
    if (dossier < 0) return false;
    struct stat present;
    bool fait = flock(dossier, LOCK_EX | LOCK_NB) == 0;
    if (fait && lstat(nom, &present) == 0 && S_ISLNK(present.st_mode)) fait = unlink(nom) == 0;
    return abandonner(dossier) || fait;
}

/** Frees the name of a temporary file. */
bool liberer(const char* nom) {
    struct stat present;
    if (lstat(nom, &present) != 0) return errno == ENOENT;
    if (S_ISDIR(present.st_mode)) return echouer(EISDIR);
    if (mene(nom, tenu_recu.fd)) return echouer(EEXIST);
    if (S_ISLNK(present.st_mode)) return retirerLien(nom);
    // An output that was given this name is the run's own.
    if (mene(nom, tenu_emis.fd)) flock(tenu_emis.fd, LOCK_UN);
    return S_ISREG(present.st_mode) ? retirerFichier(nom) : echouer(ENOTSUP);
}

}  // namespace

constinit fichierTenu tenu_recu;
constinit fichierTenu tenu_emis;
constinit fichierTenu tenu_tmp_emis;
constinit fichierTenu tenu_erre;

bool memeFichier(const char* nom, const char* autre) {
    struct stat a;
    struct stat b;
    return stat(nom, &a) == 0 && stat(autre, &b) == 0 && memeNoeud(a, b);
}

bool estFichierOuDossier(const char* nom) {
    struct stat present;
    if (stat(nom, &present) != 0 || S_ISREG(present.st_mode) || S_ISDIR(present.st_mode)) return true;
    return echouer(ENOTSUP);
}

std::FILE* ouvrirLog(const char* nom) {
    const int fd = open(nom, O_WRONLY | O_CREAT | O_TRUNC | SANS_ATTENDRE, DROITS);
    if (fd < 0) return nullptr;
    std::FILE* const fp = fdopen(fd, "w");
    if (fp == nullptr) abandonner(fd);
    return fp;
}

bool tenirEntree(const char* nom) {
    if (!estFichierOuDossier(nom)) return false;
    const int fd = open(nom, O_RDONLY | SANS_ATTENDRE);
    if (fd < 0) return false;
    // Whoever started the run may hold a lock of his own: it serves as well.
    flock(fd, LOCK_EX | LOCK_NB);
    return tenir(nom, fd, tenu_recu);
}

bool renommerEntree(const char* nom, const char* travail) {
    for (int i = 0; i < ESSAIS; ++i) {
        if (renommerSansEcraser(nom, travail)) return true;
        struct stat present;
        if (errno != EEXIST || lstat(travail, &present) != 0) return false;
        if (S_ISDIR(present.st_mode)) return std::rename(nom, travail) == 0;
        if (!mettreDeCote(travail)) return false;
    }
    return echouer(EBUSY);
}

std::FILE* ouvrirEntree(const char* travail) {
    const int fd = open(travail, O_RDONLY | SANS_ATTENDRE);
    if (fd < 0) return nullptr;
    const bool memeEntree = memeDescripteur(fd, tenu_recu.fd);
    if (!memeEntree) errno = ESTALE;
    std::FILE* const fp = memeEntree ? fdopen(fd, "rb") : nullptr;
    if (fp == nullptr) abandonner(fd);
    return fp;
}

bool ouvrirSortie(const char* nom) {
    const int fd = open(nom, O_WRONLY | O_CREAT | SANS_ATTENDRE, DROITS);
    if (fd < 0) return false;
    struct stat ouvert;
    if (fstat(fd, &ouvert) != 0) return abandonner(fd);
    if (!S_ISREG(ouvert.st_mode)) {
        errno = ENOTSUP;
        return abandonner(fd);
    }
    if (!memeDescripteur(fd, tenu_recu.fd)) {
        // Several runs may have one output, but it is no one's temporary file.
        if (flock(fd, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK) return abandonner(fd);
        if (ftruncate(fd, 0) != 0) return abandonner(fd);
    }
    return tenir(nom, fd, tenu_emis);
}

std::FILE* ouvrirTravail(const char* nom, fichierTenu& tenu) {
    for (int i = 0; i < ESSAIS; ++i) {
        const int fd = open(nom, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | SANS_ATTENDRE, DROITS);
        if (fd < 0) {
            if (errno != EEXIST || !liberer(nom)) return nullptr;
            continue;
        }
        // Between the making and the lock another run may have taken the file
        // for one that was left behind, and have removed it.
        const bool verrouille = flock(fd, LOCK_EX | LOCK_NB) == 0;
        if (!verrouille && errno != EWOULDBLOCK) {
            abandonner(fd);
            return nullptr;
        }
        if (!verrouille || !nomme(nom, fd)) {
            abandonner(fd);
            continue;
        }
        if (!tenir(nom, fd, tenu)) return nullptr;
        std::FILE* const fp = fluxSur(fd, "w");
        if (fp != nullptr) return fp;
        const int cause = errno;
        retirer(nom, tenu);
        relacher(tenu);
        errno = cause;
        return nullptr;
    }
    errno = EBUSY;
    return nullptr;
}

bool tenir(const char* nom, int fd, fichierTenu& tenu) {
    relacher(tenu);
    if (lstat(nom, &tenu.noeud) != 0) return abandonner(fd);
    tenu.fd = fd;
    return true;
}

bool estTenu(const char* nom, const fichierTenu& tenu) {
    struct stat present;
    return tenu.fd >= 0 && lstat(nom, &present) == 0 && memeNoeud(present, tenu.noeud);
}

void retirer(const char* nom, const fichierTenu& tenu) {
    if (estTenu(nom, tenu)) std::remove(nom);
}

bool synchroniser(const fichierTenu& tenu) { return fsync(tenu.fd) == 0; }

void synchroniserDossier(const char* nom) {
    const int dossier = ouvrirDossier(nom);
    if (dossier < 0) return;
    fsync(dossier);  // not every file system has it
    close(dossier);
}

void relacher(fichierTenu& tenu) {
    if (tenu.fd >= 0) close(tenu.fd);
    tenu.fd = -1;
}

void relacherFichiers() {
    for (fichierTenu* const f : {&tenu_recu, &tenu_emis, &tenu_tmp_emis, &tenu_erre})
        relacher(*f);
}

}  // namespace quilvane
