#include "lot/disque.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "lot/textes.h"

namespace quilvane::lot {

bool echouer(faute& f, const texte& etape, std::string_view nom) {
    f.cause = errno;
    f.etape = etape;
    f.nom = nom;
    return false;
}

void descripteur::fermer() {
    if (fd >= 0) close(fd);
    fd = -1;
}

descripteur& descripteur::operator=(descripteur&& autre) noexcept {
    if (this != &autre) {
        fermer();
        fd = autre.fd;
        autre.fd = -1;
    }
    return *this;
}

descripteur ouvrirDossier(int dossier, const std::string& nom) {
    return descripteur(openat(dossier, nom.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

descripteur ouvrirFichier(int dossier, const std::string& nom) {
    descripteur d(openat(dossier, nom.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!d.ouvert()) return d;
    struct stat s = {};
    if (fstat(d.fd, &s) != 0) return descripteur();
    if (S_ISREG(s.st_mode)) return d;
    d.fermer();
    errno = EINVAL;
    return d;
}

bool synchroniser(int fd) { return fsync(fd) == 0 || errno == EINVAL; }

bool ecrireTout(int fd, std::string_view octets) {
    while (!octets.empty()) {
        const ssize_t n = write(fd, octets.data(), octets.size());
        if (n < 0) return false;
        octets.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

bool lireFichier(int dossier, const std::string& nom, std::string& octets, std::size_t limite) {
    octets.clear();
    const descripteur d = ouvrirFichier(dossier, nom);
    struct stat s = {};
    if (!d.ouvert() || fstat(d.fd, &s) != 0) return false;
    octets.reserve(std::min(static_cast<std::size_t>(s.st_size), limite));
    char bloc[65536];
    while (octets.size() < limite) {
        const ssize_t n = read(d.fd, bloc, sizeof bloc);
        if (n < 0) return false;
        if (n == 0) return true;
        octets.append(bloc, static_cast<std::size_t>(n));
    }
    octets.resize(limite);
    return true;
}

bool remplacerFichier(int dossier, const std::string& nom, std::string_view octets, faute& f) {
    const std::string part = nom + ".part";
    unlinkat(dossier, part.c_str(), 0);
    {
        const descripteur d(
            openat(dossier, part.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
        if (!d.ouvert() || !ecrireTout(d.fd, octets) || !synchroniser(d.fd))
            return echouer(f, ETAPE_ECRIRE, nom);
    }
    if (renameat(dossier, part.c_str(), dossier, nom.c_str()) != 0 || !synchroniser(dossier))
        return echouer(f, ETAPE_ECRIRE, nom);
    return true;
}

namespace {

bool memeFichier(int dossierA, const std::string& a, int dossierB, const std::string& b) {
    struct stat sa = {};
    struct stat sb = {};
    return fstatat(dossierA, a.c_str(), &sa, AT_SYMLINK_NOFOLLOW) == 0 &&
           fstatat(dossierB, b.c_str(), &sb, AT_SYMLINK_NOFOLLOW) == 0 && sa.st_dev == sb.st_dev &&
           sa.st_ino == sb.st_ino;
}

}  // namespace

eDeplacement deplacer(int de, const std::string& nom, int vers, const std::string& nouveau) {
    if (renameat2(de, nom.c_str(), vers, nouveau.c_str(), RENAME_NOREPLACE) == 0) return DEPLACE;
    const bool sansRenommage = errno == EINVAL || errno == ENOSYS;
    const bool lie = sansRenommage && linkat(de, nom.c_str(), vers, nouveau.c_str(), 0) == 0;
    if (!lie && errno != EEXIST) return DEPLACEMENT_REFUSE;
    // A move by a link that was cut short left the file under both names.
    if (!lie && !memeFichier(de, nom, vers, nouveau)) return NOM_PRIS;
    return unlinkat(de, nom.c_str(), 0) == 0 ? DEPLACE : DEPLACEMENT_REFUSE;
}

bool lister(int dossier, std::vector<std::string>& noms) {
    noms.clear();
    const int copie = openat(dossier, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (copie < 0) return false;
    DIR* const d = fdopendir(copie);
    if (d == nullptr) {
        close(copie);
        return false;
    }
    errno = 0;
    for (const dirent* e = readdir(d); e != nullptr; e = readdir(d)) {
        const std::string nom = e->d_name;
        if (nom != "." && nom != "..") noms.push_back(nom);
    }
    const int cause = errno;
    closedir(d);
    errno = cause;
    return cause == 0;
}

bool viderDossier(int dossier, const std::string& nom) {
    const descripteur d = ouvrirDossier(dossier, nom);
    if (!d.ouvert()) return errno == ENOENT;
    std::vector<std::string> noms;
    if (!lister(d.fd, noms)) return false;
    for (const std::string& n : noms) {
        if (unlinkat(d.fd, n.c_str(), 0) == 0 || errno == ENOENT) continue;
        if (errno != EISDIR && errno != EPERM) return false;
        if (!viderDossier(d.fd, n) || unlinkat(d.fd, n.c_str(), AT_REMOVEDIR) != 0) return false;
    }
    return true;
}

}  // namespace quilvane::lot
