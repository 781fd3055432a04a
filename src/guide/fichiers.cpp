#include "guide/fichiers.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "guide/commandes.h"
#include "rapport/mots.h"

namespace quilvane::guide {

namespace {

constexpr texte T_SORTIE = {"{0} ne peut être écrit : {1}", "{0} cannot be written: {1}"};
constexpr texte T_EXISTE = {"{0} existe déjà (--remplacer pour le remplacer)",
                            "{0} exists already (--remplacer to replace it)"};
constexpr texte T_SANS_DOSSIER = {"son dossier n'existe pas", "its folder does not exist"};
constexpr texte T_SORTIE_STANDARD = {"la sortie standard", "standard output"};
constexpr texte T_ENTREE = {"c'est un des fichiers à lire", "it is one of the files to be read"};

/** What a system's error number means to whoever names a file. */
struct sRaison {
    int cause;
    texte enMots;
};
constexpr sRaison RAISONS[] = {
    {ENOENT, {"ce fichier n'existe pas", "there is no such file"}},
    {EACCES, {"l'accès en est interdit", "permission denied"}},
    {EISDIR, {"c'est un dossier", "it is a folder"}},
    {EINVAL, {"ce n'est pas un fichier ordinaire", "it is not a regular file"}},
    {ENOSPC, {"il n'y a plus de place", "there is no space left"}},
};

void montrer(sProgres& p) {
    constexpr int LARGEUR = 30;
    const int pour = p.lus < p.total ? static_cast<int>(p.lus * 100 / p.total) : 100;
    if (pour == p.montre) return;
    p.montre = pour;
    std::string barre(static_cast<std::size_t>(pour * LARGEUR / 100), '#');
    barre.resize(LARGEUR, '.');
    std::fprintf(stderr, "\r[%s] %3d %%", barre.c_str(), pour);
}

std::size_t lire(void* source, unsigned char* bloc, std::size_t taille, bool& erreur) {
    sFichier& f = *static_cast<sFichier*>(source);
    std::size_t n = 0;
    while (n < taille) {
        const ssize_t k = read(f.descripteur, bloc + n, taille - n);
        if (k < 0 && errno == EINTR) continue;
        erreur = k < 0;
        if (k <= 0) break;
        n += static_cast<std::size_t>(k);
    }
    if (f.progres != nullptr && f.progres->total > 0) {
        f.progres->lus += static_cast<long long>(n);
        montrer(*f.progres);
    }
    return n;
}

bool plaindre(const texte& m, eLangue langue, const std::string& nom, const std::string& raison = "") {
    std::fprintf(stderr, "quilvane-guide: %s\n", remplir(m, langue, {nom, raison}).c_str());
    return false;
}

bool memeFichier(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/** Whether the output is one of the files that the command reads. */
bool denoteUneEntree(const struct stat& sortie, const sDemandeLue& d) {
    return std::any_of(d.arguments.begin(), d.arguments.end(), [&](const std::string& nom) {
        struct stat s = {};
        const int lu = nom == "-" ? fstat(STDIN_FILENO, &s) : stat(nom.c_str(), &s);
        return lu == 0 && memeFichier(s, sortie);
    });
}

/** Opens the file of -o for writing; -1 with `errno`. What is no plain file is
 *  not even opened: opening a device may do something to it. */
int ouvrirEcriture(const sDemandeLue& d) {
    struct stat s = {};
    const char* const nom = d.sortie.c_str();
    if (d.remplacer && stat(nom, &s) == 0 && !S_ISREG(s.st_mode)) {
        errno = S_ISDIR(s.st_mode) ? EISDIR : EINVAL;
        return -1;
    }
    const int nouveau = d.remplacer ? 0 : O_EXCL;
    return open(nom, O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | nouveau, 0666);
}

}  // namespace

std::string raisonDe(int cause, eLangue langue) {
    for (const sRaison& r : RAISONS)
        if (r.cause == cause) return r.enMots.en_langue(langue);
    return std::strerror(cause);
}

sProgres progresDe(const sDemandeLue& d) {
    constexpr long long LONG = 16 << 20;  // bytes from which a bar is shown
    const bool ailleurs = !d.sortie.empty() || isatty(STDOUT_FILENO) == 0;
    sProgres p;
    if (!ailleurs || isatty(STDERR_FILENO) == 0) return p;
    for (const std::string& nom : d.arguments) {
        struct stat s = {};
        if (nom != "-" && stat(nom.c_str(), &s) == 0 && S_ISREG(s.st_mode)) p.total += s.st_size;
    }
    if (p.total < LONG) p.total = 0;
    return p;
}

void effacer(const sProgres& p) {
    if (p.montre >= 0) std::fputs("\r\x1b[K", stderr);
}

bool ouvrir(sFichier& f, const std::string& nom) {
    if (nom == "-") {
        f.descripteur = STDIN_FILENO;
    } else {
        // Not waiting: what is no regular file is refused below.
        f.descripteur = open(nom.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        if (f.descripteur < 0) return false;
        struct stat s = {};
        if (fstat(f.descripteur, &s) != 0 || !S_ISREG(s.st_mode)) {
            close(f.descripteur);
            f.descripteur = -1;
            errno = S_ISDIR(s.st_mode) ? EISDIR : EINVAL;
            return false;
        }
    }
    f.lecture.remplir = lire;
    f.lecture.source = &f;
    return true;
}

void fermer(sFichier& f) {
    if (f.descripteur > STDIN_FILENO) close(f.descripteur);
    f.descripteur = -1;
}

bool ouvrirSortie(sEcriture& e, const sDemandeLue& d) {
    constexpr std::size_t TAMPON = 1 << 16;
    if (d.sortie.empty()) {
        e.fp = stdout;
        std::setvbuf(e.fp, nullptr, _IOFBF, TAMPON);
        return true;
    }
    const std::string nom = visible(d.sortie);
    const int descripteur = ouvrirEcriture(d);
    if (descripteur < 0) {
        const int cause = errno;
        if (cause == EEXIST) return plaindre(T_EXISTE, d.langue, nom);
        return plaindre(T_SORTIE, d.langue, nom,
                        cause == ENOENT ? T_SANS_DOSSIER.en_langue(d.langue) : raisonDe(cause, d.langue));
    }
    struct stat s = {};
    std::string raison;
    if (fstat(descripteur, &s) != 0 || !S_ISREG(s.st_mode))
        raison = raisonDe(EINVAL, d.langue);
    else if (denoteUneEntree(s, d))
        raison = T_ENTREE.en_langue(d.langue);
    else if (ftruncate(descripteur, 0) != 0 || (e.fp = fdopen(descripteur, "w")) == nullptr)
        raison = raisonDe(errno, d.langue);
    if (raison.empty()) return std::setvbuf(e.fp, nullptr, _IOFBF, TAMPON) == 0;
    close(descripteur);
    return plaindre(T_SORTIE, d.langue, nom, raison);
}

void ecrireDans(void* ou, std::string_view octets) {
    sEcriture& e = *static_cast<sEcriture*>(ou);
    if (std::fwrite(octets.data(), 1, octets.size(), e.fp) != octets.size()) e.faute = true;
}

bool fermerSortie(sEcriture& e, const sDemandeLue& d) {
    const bool ecrit = (e.fp == stdout ? std::fflush(e.fp) : std::fclose(e.fp)) == 0 && !e.faute;
    e.fp = nullptr;
    if (ecrit) return true;
    const std::string raison = raisonDe(errno, d.langue);
    return plaindre(T_SORTIE, d.langue,
                    d.sortie.empty() ? T_SORTIE_STANDARD.en_langue(d.langue) : visible(d.sortie), raison);
}

bool imprimer(std::string_view texte, eLangue langue) {
    sDemandeLue d;
    d.langue = langue;
    sEcriture e = {stdout};
    ecrireDans(&e, texte);
    return fermerSortie(e, d);
}

bool enCouleur(const sDemandeLue& d) {
    if (d.couleur != COULEUR_AUTO) return d.couleur == COULEUR_TOUJOURS;
    const char* const sans = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    const bool muet = terminal != nullptr && std::strcmp(terminal, "dumb") == 0;
    return (sans == nullptr || *sans == '\0') && !muet && isatty(STDOUT_FILENO) != 0;
}

}  // namespace quilvane::guide
