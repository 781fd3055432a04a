#include "guide/fichiers.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
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
        if (erreur) f.cause = errno;
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

/** What a signal has to remove: the unfinished file of -o, "" for none. */
char aRetirer[PATH_MAX] = "";

void retirerPuisFinir(int signal) {
    if (aRetirer[0] != '\0') unlink(aRetirer);
    raise(signal);
}

/** From now on a signal that ends the program removes the unfinished file. */
void retirerAuSignal() {
    struct sigaction action = {};
    action.sa_handler = retirerPuisFinir;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    for (const int n : {SIGHUP, SIGINT, SIGPIPE, SIGTERM, SIGXCPU}) {
        struct sigaction avant = {};
        if (sigaction(n, nullptr, &avant) == 0 && avant.sa_handler == SIG_DFL) sigaction(n, &action, nullptr);
    }
    // Too large a file is then a write that fails.
    signal(SIGXFSZ, SIG_IGN);
}

/** Makes the file that will take the name of -o, beside it and hidden; -1 with
 *  `errno`. Numbered, since a killed run of the same number may have left one. */
int creerProvisoire(sEcriture& e) {
    constexpr int ESSAIS = 100;
    const std::size_t barre = e.cible.rfind('/');
    const std::string dossier = barre == std::string::npos ? "" : e.cible.substr(0, barre + 1);
    for (int k = 0; k < ESSAIS; ++k) {
        e.provisoire =
            dossier + ".quilvane-guide-" + std::to_string(getpid()) + "-" + std::to_string(k) + ".tmp";
        std::snprintf(aRetirer, sizeof aRetirer, "%s", e.provisoire.c_str());
        const int fd = open(e.provisoire.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0) return fd;
        aRetirer[0] = '\0';
        if (errno != EEXIST) break;
    }
    return -1;
}

/** Gives the new file the rights of the one that it replaces, as far as the
 *  system allows it. */
void reprendreDroits(int descripteur, const struct stat& ancien) {
    struct stat s = {};
    const bool autre =
        fstat(descripteur, &s) == 0 && (s.st_uid != ancien.st_uid || s.st_gid != ancien.st_gid);
    if (autre && fchown(descripteur, ancien.st_uid, ancien.st_gid) != 0) return;
    fchmod(descripteur, ancien.st_mode & 07777U);
}

/** Where the file of -o is to stand, and what is there now; false, with the
 *  reason (none: it exists), when it may not be written. What is no plain file is
 *  never opened: opening a device may do something to it. */
bool viser(sEcriture& e, const sDemandeLue& d, struct stat& ancien, std::string& raison) {
    e.cible = d.sortie;
    const bool present = stat(d.sortie.c_str(), &ancien) == 0;
    const int cause = errno;
    struct stat lien = {};
    if (!d.remplacer && (present || lstat(d.sortie.c_str(), &lien) == 0)) return false;
    if (!present && cause == ENOENT) {
        ancien = {};
        return true;
    }
    if (!present)
        raison = raisonDe(cause, d.langue);
    else if (!S_ISREG(ancien.st_mode))
        raison = raisonDe(S_ISDIR(ancien.st_mode) ? EISDIR : EINVAL, d.langue);
    else if (denoteUneEntree(ancien, d))
        raison = T_ENTREE.en_langue(d.langue);
    else if (access(d.sortie.c_str(), W_OK) != 0)
        raison = raisonDe(errno, d.langue);  // the folder would allow it, but the file is protected
    if (!raison.empty()) return false;
    // Behind a link it is the file that is replaced, not the link.
    char vrai[PATH_MAX];
    if (realpath(d.sortie.c_str(), vrai) != nullptr) e.cible = vrai;
    return true;
}

/** Writes what has been gathered; after a failure nothing more. */
void vider(sEcriture& e) {
    std::string_view reste = e.tampon;
    while (e.cause == 0 && !reste.empty()) {
        const ssize_t n = write(e.descripteur, reste.data(), reste.size());
        if (n >= 0)
            reste.remove_prefix(static_cast<std::size_t>(n));
        else if (errno != EINTR)
            e.cause = errno;
    }
    e.tampon.clear();
}

/** Gives the finished file its name; what has come under that name meanwhile is
 *  left alone unless it may be replaced. */
bool nommer(const sEcriture& e, bool remplacer) {
    const char* const de = e.provisoire.c_str();
    const char* const vers = e.cible.c_str();
    if (remplacer) return rename(de, vers) == 0;
    if (renameat2(AT_FDCWD, de, AT_FDCWD, vers, RENAME_NOREPLACE) == 0) return true;
    // File systems without that have links; a second name that stays does no harm.
    if ((errno != EINVAL && errno != ENOSYS) || link(de, vers) != 0) return false;
    unlink(de);
    return true;
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
    e.descripteur = STDOUT_FILENO;
    if (d.sortie.empty()) return true;
    const std::string nom = visible(d.sortie);
    struct stat ancien = {};
    std::string raison;
    if (!viser(e, d, ancien, raison))
        return raison.empty() ? plaindre(T_EXISTE, d.langue, nom) : plaindre(T_SORTIE, d.langue, nom, raison);
    retirerAuSignal();
    e.descripteur = creerProvisoire(e);
    if (e.descripteur < 0)
        return plaindre(T_SORTIE, d.langue, nom,
                        errno == ENOENT ? T_SANS_DOSSIER.en_langue(d.langue) : raisonDe(errno, d.langue));
    if (ancien.st_nlink > 0) reprendreDroits(e.descripteur, ancien);
    return true;
}

void ecrireDans(void* ou, std::string_view octets) {
    constexpr std::size_t TAMPON = 1 << 16;
    sEcriture& e = *static_cast<sEcriture*>(ou);
    e.tampon += octets;
    if (e.tampon.size() >= TAMPON) vider(e);
}

bool fermerSortie(sEcriture& e, const sDemandeLue& d) {
    vider(e);
    const bool fichier = !e.provisoire.empty();
    const auto noter = [&](bool fait) {
        if (!fait && e.cause == 0) e.cause = errno;
    };
    if (fichier) {
        // The name must never lead to less than the whole, not even after a power cut.
        if (e.cause == 0) noter(fsync(e.descripteur) == 0);
        noter(close(e.descripteur) == 0);
        if (e.cause == 0) noter(nommer(e, d.remplacer));
        if (e.cause != 0) unlink(e.provisoire.c_str());
        aRetirer[0] = '\0';
    }
    e.descripteur = -1;
    if (e.cause == 0) return true;
    const std::string nom = fichier ? visible(d.sortie) : T_SORTIE_STANDARD.en_langue(d.langue);
    if (fichier && e.cause == EEXIST) return plaindre(T_EXISTE, d.langue, nom);
    return plaindre(T_SORTIE, d.langue, nom, raisonDe(e.cause, d.langue));
}

bool imprimer(std::string_view texte, eLangue langue) {
    sDemandeLue d;
    d.langue = langue;
    sEcriture e;
    ouvrirSortie(e, d);
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
