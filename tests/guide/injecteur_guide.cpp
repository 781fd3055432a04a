/**
 * injecteur_guide.cpp - put in front of quilvane-guide: ends it before a chosen
 * file call, or makes that call fail.
 *
 *   QUILVANE_GUIDE_FAUTE    "n:tuer", "n:refuser" or "n:toujours": the n-th call of
 *                           all those below, or all from it on
 *   QUILVANE_GUIDE_TEMOIN   a file that takes the name of each call that was met
 */
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

int voulu = 0;
int compte = 0;
char action[16];
char temoin[4096];

/** Whether this call has to fail; does not return from a kill. */
bool atteint(const char* appel) {
    if (voulu == 0 || ++compte < voulu) return false;
    if (compte > voulu && std::strcmp(action, "toujours") != 0) return false;
    const auto fd =
        static_cast<int>(syscall(SYS_openat, AT_FDCWD, temoin, O_WRONLY | O_CREAT | O_APPEND, 0600));
    syscall(SYS_write, fd, appel, std::strlen(appel));
    syscall(SYS_write, fd, "\n", 1);
    syscall(SYS_close, fd);
    if (std::strcmp(action, "tuer") == 0) syscall(SYS_kill, getpid(), SIGKILL);
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

__attribute__((constructor)) void preparer() {
    const char* const faute = std::getenv("QUILVANE_GUIDE_FAUTE");
    const char* const nom = std::getenv("QUILVANE_GUIDE_TEMOIN");
    if (faute == nullptr || nom == nullptr) return;
    if (std::sscanf(faute, "%d:%15[a-z]", &voulu, action) != 2) std::abort();
    std::snprintf(temoin, sizeof temoin, "%s", nom);
}

int ouvrir(const char* nom, int drapeaux, mode_t mode) {
    static auto* const vraie = suivante<int(const char*, int, mode_t)>("open64");
    return atteint("open") ? refuser(EMFILE, -1) : vraie(nom, drapeaux, mode);
}

char* resoudre(const char* nom, char* vrai) {
    static auto* const vraie = suivante<char*(const char*, char*)>("realpath");
    return atteint("realpath") ? refuser<char*>(EACCES, nullptr) : vraie(nom, vrai);
}

}  // namespace

// The names that the C library has for 64-bit offsets and for checked calls, too.
extern "C" {

int open(const char* nom, int drapeaux, ...) {
    va_list l;
    va_start(l, drapeaux);
    const mode_t mode = (drapeaux & O_CREAT) != 0 ? va_arg(l, mode_t) : 0;
    va_end(l);
    return ouvrir(nom, drapeaux, mode);
}

int open64(const char* nom, int drapeaux, ...) {
    va_list l;
    va_start(l, drapeaux);
    const mode_t mode = (drapeaux & O_CREAT) != 0 ? va_arg(l, mode_t) : 0;
    va_end(l);
    return ouvrir(nom, drapeaux, mode);
}

ssize_t read(int fd, void* octets, size_t taille) {
    static auto* const vraie = suivante<ssize_t(int, void*, size_t)>("read");
    return atteint("read") ? refuser(EIO, ssize_t{-1}) : vraie(fd, octets, taille);
}

/** A refused write has written half. */
ssize_t write(int fd, const void* octets, size_t taille) {
    static auto* const vraie = suivante<ssize_t(int, const void*, size_t)>("write");
    if (!atteint("write")) return vraie(fd, octets, taille);
    const ssize_t n = taille < 2 || std::strcmp(action, "toujours") == 0 ? 0 : vraie(fd, octets, taille / 2);
    return n <= 0 ? refuser(ENOSPC, ssize_t{-1}) : n;
}

int close(int fd) {
    static auto* const vraie = suivante<int(int)>("close");
    const bool refus = atteint("close");
    const int r = vraie(fd);
    return refus ? refuser(EDQUOT, -1) : r;
}

int fsync(int fd) {
    static auto* const vraie = suivante<int(int)>("fsync");
    return atteint("fsync") ? refuser(EIO, -1) : vraie(fd);
}

int stat64(const char* nom, struct stat64* s) noexcept {
    static auto* const vraie = suivante<int(const char*, struct stat64*)>("stat64");
    return atteint("stat") ? refuser(EACCES, -1) : vraie(nom, s);
}

int lstat64(const char* nom, struct stat64* s) noexcept {
    static auto* const vraie = suivante<int(const char*, struct stat64*)>("lstat64");
    return atteint("lstat") ? refuser(EACCES, -1) : vraie(nom, s);
}

int fstat64(int fd, struct stat64* s) noexcept {
    static auto* const vraie = suivante<int(int, struct stat64*)>("fstat64");
    return atteint("fstat") ? refuser(EIO, -1) : vraie(fd, s);
}

char* realpath(const char* nom, char* vrai) noexcept { return resoudre(nom, vrai); }
char* __realpath_chk(const char* nom, char* vrai, size_t) noexcept { return resoudre(nom, vrai); }

int fchmod(int fd, mode_t mode) noexcept {
    static auto* const vraie = suivante<int(int, mode_t)>("fchmod");
    return atteint("fchmod") ? refuser(EPERM, -1) : vraie(fd, mode);
}

int rename(const char* de, const char* vers) noexcept {
    static auto* const vraie = suivante<int(const char*, const char*)>("rename");
    return atteint("rename") ? refuser(EIO, -1) : vraie(de, vers);
}

int renameat2(int de, const char* nom, int vers, const char* nouveau, unsigned drapeaux) noexcept {
    static auto* const vraie = suivante<int(int, const char*, int, const char*, unsigned)>("renameat2");
    // As on a file system that cannot: QUILVANE_GUIDE_SANS_RENAMEAT2.
    static const bool sans = std::getenv("QUILVANE_GUIDE_SANS_RENAMEAT2") != nullptr;
    if (sans) return refuser(EINVAL, -1);
    return atteint("renameat2") ? refuser(EIO, -1) : vraie(de, nom, vers, nouveau, drapeaux);
}

int link(const char* de, const char* vers) noexcept {
    static auto* const vraie = suivante<int(const char*, const char*)>("link");
    return atteint("link") ? refuser(EMLINK, -1) : vraie(de, vers);
}

int unlink(const char* nom) noexcept {
    static auto* const vraie = suivante<int(const char*)>("unlink");
    return atteint("unlink") ? refuser(EPERM, -1) : vraie(nom);
}

}  // extern "C"
