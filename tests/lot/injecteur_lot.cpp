/**
 * injecteur_lot.cpp - put in front of quilvane-lot: ends it before a chosen file
 * call, or makes that call fail. What the runner starts is left alone.
 *
 *   QUILVANE_LOT_FAUTE    "n:tuer" or "n:refuser": the n-th call of all those below
 *   QUILVANE_LOT_TEMOIN   a file that is made when that call was met
 */
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

int voulu = 0;
bool tuer = false;
pid_t moi = 0;
char temoin[4096];
std::atomic<int> compte{0};

/** Whether this call, one of all, has to fail; does not return from a kill. */
bool atteint() {
    if (voulu == 0 || getpid() != moi || ++compte != voulu) return false;
    const long fd = syscall(SYS_openat, AT_FDCWD, temoin, O_WRONLY | O_CREAT, 0600);
    if (fd >= 0) syscall(SYS_close, fd);
    if (tuer) syscall(SYS_kill, moi, SIGKILL);
    return true;
}

template <typename Fonction>
Fonction* suivante(const char* nom) {
    void* const p = dlsym(RTLD_NEXT, nom);
    Fonction* f = nullptr;
    std::memcpy(&f, &p, sizeof f);
    return f;
}

template <typename Type>
Type refuser(int cause, Type valeur) {
    errno = cause;
    return valeur;
}

/** The runner's own environment is cleared of this: its children are not concerned. */
__attribute__((constructor)) void preparer() {
    const char* const faute = std::getenv("QUILVANE_LOT_FAUTE");
    const char* const nom = std::getenv("QUILVANE_LOT_TEMOIN");
    if (faute == nullptr || nom == nullptr) return;
    char action[16] = {};
    if (std::sscanf(faute, "%d:%15[a-z]", &voulu, action) != 2) std::abort();
    tuer = std::strcmp(action, "tuer") == 0;
    std::snprintf(temoin, sizeof temoin, "%s", nom);
    moi = getpid();
    unsetenv("QUILVANE_LOT_FAUTE");
    unsetenv("LD_PRELOAD");
}

}  // namespace

extern "C" {

int openat(int dossier, const char* nom, int drapeaux, ...) {
    static auto* const vraie = suivante<int(int, const char*, int, mode_t)>("openat");
    va_list l;
    va_start(l, drapeaux);
    const mode_t mode = (drapeaux & O_CREAT) != 0 ? va_arg(l, mode_t) : 0;
    va_end(l);
    return atteint() ? refuser(EIO, -1) : vraie(dossier, nom, drapeaux, mode);
}

int mkdirat(int dossier, const char* nom, mode_t mode) noexcept {
    static auto* const vraie = suivante<int(int, const char*, mode_t)>("mkdirat");
    return atteint() ? refuser(ENOSPC, -1) : vraie(dossier, nom, mode);
}

int renameat(int de, const char* nom, int vers, const char* nouveau) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*)>("renameat");
    return atteint() ? refuser(EIO, -1) : vraie(de, nom, vers, nouveau);
}

int renameat2(int de, const char* nom, int vers, const char* nouveau, unsigned drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*, unsigned)>("renameat2");
    // As on a file system that cannot: QUILVANE_LOT_SANS_RENAMEAT2.
    static const bool sans = std::getenv("QUILVANE_LOT_SANS_RENAMEAT2") != nullptr;
    if (sans) return refuser(EINVAL, -1);
    return atteint() ? refuser(EIO, -1) : vraie(de, nom, vers, nouveau, drapeaux);
}

int linkat(int de, const char* nom, int vers, const char* nouveau, int drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*, int)>("linkat");
    return atteint() ? refuser(EMLINK, -1) : vraie(de, nom, vers, nouveau, drapeaux);
}

int unlinkat(int dossier, const char* nom, int drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int)>("unlinkat");
    return atteint() ? refuser(EIO, -1) : vraie(dossier, nom, drapeaux);
}

int fstatat(int dossier, const char* nom, struct stat* s, int drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, struct stat*, int)>("fstatat");
    return atteint() ? refuser(EIO, -1) : vraie(dossier, nom, s, drapeaux);
}

int fsync(int fd) {
    static auto* const vraie = suivante<int(int)>("fsync");
    return atteint() ? refuser(EIO, -1) : vraie(fd);
}

// The structure of the same name is in the way of the warnings only.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"
int flock(int fd, int operation) noexcept {
#pragma GCC diagnostic pop
    static auto* const vraie = suivante<int(int, int)>("flock");
    return atteint() ? refuser(ENOLCK, -1) : vraie(fd, operation);
}

int ftruncate(int fd, off_t taille) noexcept {
    static auto* const vraie = suivante<int(int, off_t)>("ftruncate");
    return atteint() ? refuser(EIO, -1) : vraie(fd, taille);
}

ssize_t read(int fd, void* octets, size_t taille) {
    static auto* const vraie = suivante<ssize_t(int, void*, size_t)>("read");
    return atteint() ? refuser(EIO, ssize_t{-1}) : vraie(fd, octets, taille);
}

/** A refused write has written half. */
ssize_t write(int fd, const void* octets, size_t taille) {
    static auto* const vraie = suivante<ssize_t(int, const void*, size_t)>("write");
    if (!atteint()) return vraie(fd, octets, taille);
    const ssize_t n = vraie(fd, octets, taille / 2);
    return taille < 2 || n < 0 ? refuser(ENOSPC, ssize_t{-1}) : n;
}

pid_t fork() {
    static auto* const vraie = suivante<pid_t()>("fork");
    return atteint() ? refuser(EAGAIN, pid_t{-1}) : vraie();
}

}  // extern "C"
