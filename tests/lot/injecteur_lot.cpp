/**
 * injecteur_lot.cpp - put in front of quilvane-lot: ends it before a chosen file
 * call, or makes that call fail. What the runner starts is left alone.
 *
 *   QUILVANE_LOT_FAUTE    "n:tuer" or "n:refuser": the n-th call of all those below;
 *                         "n:noter" disturbs none
 *   QUILVANE_LOT_TEMOIN   a file that takes the name of that call; with "noter", of
 *                         each from the n-th on
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
bool noter = false;
pid_t moi = 0;
char temoin[4096];
std::atomic<int> compte{0};

/** Whether this call, one of all, has to fail; does not return from a kill. */
bool atteint(const char* appel) {
    if (voulu == 0 || getpid() != moi) return false;
    const int n = ++compte;
    if (noter ? n < voulu : n != voulu) return false;
    char ligne[64];
    const int taille = std::snprintf(ligne, sizeof ligne, "%s\n", appel);
    const long fd = syscall(SYS_openat, AT_FDCWD, temoin, O_WRONLY | O_CREAT | O_APPEND, 0600);
    if (fd >= 0) {
        syscall(SYS_write, fd, ligne, taille);
        syscall(SYS_close, fd);
    }
    if (tuer) syscall(SYS_kill, moi, SIGKILL);
    return !noter;
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
    noter = std::strcmp(action, "noter") == 0;
    std::snprintf(temoin, sizeof temoin, "%s", nom);
    moi = getpid();
    unsetenv("QUILVANE_LOT_FAUTE");
    unsetenv("LD_PRELOAD");
}

}  // namespace

// The runner has 64-bit file offsets: the C library's names for them.
extern "C" {

int openat64(int dossier, const char* nom, int drapeaux, ...) {
    static auto* const vraie = suivante<int(int, const char*, int, mode_t)>("openat64");
    va_list l;
    va_start(l, drapeaux);
    const mode_t mode = (drapeaux & O_CREAT) != 0 ? va_arg(l, mode_t) : 0;
    va_end(l);
    return atteint("openat") ? refuser(EIO, -1) : vraie(dossier, nom, drapeaux, mode);
}

int mkdirat(int dossier, const char* nom, mode_t mode) noexcept {
    static auto* const vraie = suivante<int(int, const char*, mode_t)>("mkdirat");
    return atteint("mkdirat") ? refuser(ENOSPC, -1) : vraie(dossier, nom, mode);
}

int renameat(int de, const char* nom, int vers, const char* nouveau) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*)>("renameat");
    return atteint("renameat") ? refuser(EIO, -1) : vraie(de, nom, vers, nouveau);
}

int renameat2(int de, const char* nom, int vers, const char* nouveau, unsigned drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*, unsigned)>("renameat2");
    // As on a file system that cannot: QUILVANE_LOT_SANS_RENAMEAT2.
    static const bool sans = std::getenv("QUILVANE_LOT_SANS_RENAMEAT2") != nullptr;
    if (sans) return refuser(EINVAL, -1);
    return atteint("renameat2") ? refuser(EIO, -1) : vraie(de, nom, vers, nouveau, drapeaux);
}

int linkat(int de, const char* nom, int vers, const char* nouveau, int drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*, int)>("linkat");
    return atteint("linkat") ? refuser(EMLINK, -1) : vraie(de, nom, vers, nouveau, drapeaux);
}

int unlinkat(int dossier, const char* nom, int drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int)>("unlinkat");
    return atteint("unlinkat") ? refuser(EIO, -1) : vraie(dossier, nom, drapeaux);
}

int fstatat64(int dossier, const char* nom, struct stat64* s, int drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, struct stat64*, int)>("fstatat64");
    return atteint("fstatat") ? refuser(EIO, -1) : vraie(dossier, nom, s, drapeaux);
}

int fsync(int fd) {
    static auto* const vraie = suivante<int(int)>("fsync");
    return atteint("fsync") ? refuser(EIO, -1) : vraie(fd);
}

// The structure of the same name is in the way of the warnings only.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"
int flock(int fd, int operation) noexcept {
#pragma GCC diagnostic pop
    static auto* const vraie = suivante<int(int, int)>("flock");
    return atteint("flock") ? refuser(ENOLCK, -1) : vraie(fd, operation);
}

int fstat64(int fd, struct stat64* s) noexcept {
    static auto* const vraie = suivante<int(int, struct stat64*)>("fstat64");
    return atteint("fstat") ? refuser(EIO, -1) : vraie(fd, s);
}

DIR* fdopendir(int fd) {
    static auto* const vraie = suivante<DIR*(int)>("fdopendir");
    return atteint("fdopendir") ? refuser<DIR*>(ENOMEM, nullptr) : vraie(fd);
}

struct dirent64* readdir64(DIR* dossier) {
    static auto* const vraie = suivante<struct dirent64*(DIR*)>("readdir64");
    return atteint("readdir") ? refuser<struct dirent64*>(EIO, nullptr) : vraie(dossier);
}

ssize_t pread64(int fd, void* octets, size_t taille, off64_t ou) {
    static auto* const vraie = suivante<ssize_t(int, void*, size_t, off64_t)>("pread64");
    return atteint("pread") ? refuser(EIO, ssize_t{-1}) : vraie(fd, octets, taille, ou);
}

int pipe2(int fds[2], int drapeaux) noexcept {
    static auto* const vraie = suivante<int(int*, int)>("pipe2");
    return atteint("pipe2") ? refuser(EMFILE, -1) : vraie(fds, drapeaux);
}

int ftruncate64(int fd, off64_t taille) noexcept {
    static auto* const vraie = suivante<int(int, off64_t)>("ftruncate64");
    return atteint("ftruncate") ? refuser(EIO, -1) : vraie(fd, taille);
}

ssize_t read(int fd, void* octets, size_t taille) {
    static auto* const vraie = suivante<ssize_t(int, void*, size_t)>("read");
    return atteint("read") ? refuser(EIO, ssize_t{-1}) : vraie(fd, octets, taille);
}

/** A refused write has written half. */
ssize_t write(int fd, const void* octets, size_t taille) {
    static auto* const vraie = suivante<ssize_t(int, const void*, size_t)>("write");
    if (!atteint("write")) return vraie(fd, octets, taille);
    const ssize_t n = vraie(fd, octets, taille / 2);
    return taille < 2 || n < 0 ? refuser(ENOSPC, ssize_t{-1}) : n;
}

pid_t fork() {
    static auto* const vraie = suivante<pid_t()>("fork");
    return atteint("fork") ? refuser(EAGAIN, pid_t{-1}) : vraie();
}

}  // extern "C"
