#include "lot/casier.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

constexpr int ESSAIS = 100;  // of names; any of them is free but for a meddling clean-up

std::string nouvelId() {
    const std::time_t maintenant = std::time(nullptr);
    std::tm t = {};
    gmtime_r(&maintenant, &t);
    char date[32];
    std::strftime(date, sizeof date, "%Y%m%d-%H%M%S-", &t);
    char hasard[8] = {};
    if (getrandom(hasard, sizeof hasard, 0) != sizeof hasard) return "";
    return date + hexadecimal({hasard, sizeof hasard});
}

/** The time that an id begins with. */
double heureDeLId(const std::string& id) {
    std::tm t = {};
    return strptime(id.c_str(), "%Y%m%d-%H%M%S", &t) != nullptr ? static_cast<double>(timegm(&t)) : heure();
}

/** Locks `verrou` in an open casier; false when another holds it, or when it
 *  was removed in the meantime. */
bool verrouiller(casier& c) {
    c.verrou = descripteur(
        openat(c.dossier.fd, VERROU, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
    if (!c.verrou.ouvert() || flock(c.verrou.fd, LOCK_EX | LOCK_NB) != 0) return false;
    struct stat tenu = {};
    struct stat present = {};
    if (fstat(c.verrou.fd, &tenu) == 0 && fstatat(c.dossier.fd, VERROU, &present, AT_SYMLINK_NOFOLLOW) == 0 &&
        tenu.st_ino == present.st_ino)
        return true;
    errno = ENOENT;
    return false;
}

/** Whether `verrouiller` failed because somebody else is at work here. */
bool estDisputee() { return errno == EWOULDBLOCK || errno == ENOENT; }

}  // namespace

bool estId(std::string_view nom) {
    constexpr std::string_view FORME = "dddddddd-dddddd-xxxxxxxxxxxxxxxx";
    if (nom.size() != FORME.size()) return false;
    for (std::size_t i = 0; i < nom.size(); ++i) {
        const bool chiffre = nom[i] >= '0' && nom[i] <= '9';
        const bool lettre = nom[i] >= 'a' && nom[i] <= 'f';
        if (FORME[i] == '-' ? nom[i] != '-' : FORME[i] == 'd' ? !chiffre : !chiffre && !lettre) return false;
    }
    return true;
}

double heure() {
    timespec t = {};
    clock_gettime(CLOCK_REALTIME, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) / 1e9;
}

bool ouvrirCasier(const depot& d, casier& c, faute& f) {
    for (int i = 0; i < ESSAIS; ++i) {
        c.id = nouvelId();
        c.debut = heure();
        c.repris = false;
        if (c.id.empty()) return echouer(f, ETAPE_CASIER, LIEUX[ENCOURS]);
        if (mkdirat(d.lieu(ENCOURS), c.id.c_str(), 0777) != 0) {
            if (errno == EEXIST) continue;
            return echouer(f, ETAPE_CASIER, c.id);
        }
        c.dossier = ouvrirDossier(d.lieu(ENCOURS), c.id);
        // Until it is locked another runner may take it for a dead one's.
        if (!c.dossier.ouvert() || !verrouiller(c)) {
            if (estDisputee()) continue;
            return echouer(f, ETAPE_CASIER, c.id);
        }
        if (mkdirat(c.dossier.fd, ENTREE, 0777) != 0 || !synchroniser(c.dossier.fd) ||
            !synchroniser(d.lieu(ENCOURS)))
            return echouer(f, ETAPE_CASIER, c.id);
        return true;
    }
    return echouer(f, ETAPE_CASIER, c.id);
}

eReprise reprendreCasier(const depot& d, const std::string& id, casier& c, faute& f) {
    c.id = id;
    c.debut = heureDeLId(id);
    c.repris = true;
    c.dossier = ouvrirDossier(d.lieu(ENCOURS), id);
    if (!c.dossier.ouvert()) {
        if (errno == ENOENT || errno == ENOTDIR || errno == ELOOP) return OCCUPE;
    } else {
        if (verrouiller(c)) return REPRIS;
        if (estDisputee()) return OCCUPE;
    }
    echouer(f, ETAPE_CASIER, id);
    return REPRISE_IMPOSSIBLE;
}

bool retirerCasier(const depot& d, casier& c, faute& f) {
    const int fd = c.dossier.fd;
    const bool entreeVidee = viderDossier(fd, ENTREE);
    if (!entreeVidee || (unlinkat(fd, ENTREE, AT_REMOVEDIR) != 0 && errno != ENOENT) || !synchroniser(fd))
        return echouer(f, ETAPE_RETIRER, c.id);
    unlinkat(fd, VERDICT, 0);
    // Nothing depends on the rest any more; the lock goes last.
    std::vector<std::string> noms;
    if (!lister(fd, noms)) return echouer(f, ETAPE_RETIRER, c.id);
    for (const std::string& nom : noms) {
        if (nom == VERROU || unlinkat(fd, nom.c_str(), 0) == 0) continue;
        if (!viderDossier(fd, nom) || unlinkat(fd, nom.c_str(), AT_REMOVEDIR) != 0)
            return echouer(f, ETAPE_RETIRER, c.id);
    }
    unlinkat(fd, VERROU, 0);
    if (unlinkat(d.lieu(ENCOURS), c.id.c_str(), AT_REMOVEDIR) != 0 && errno != ENOENT && errno != ENOTEMPTY)
        return echouer(f, ETAPE_RETIRER, c.id);
    return true;
}

bool nomEntre(const casier& c, std::string& nom, faute& f) {
    nom.clear();
    const descripteur e = ouvrirDossier(c.dossier.fd, ENTREE);
    if (!e.ouvert()) return errno == ENOENT || echouer(f, ETAPE_CASIER, c.id);
    std::vector<std::string> noms;
    if (!lister(e.fd, noms)) return echouer(f, ETAPE_CASIER, c.id);
    if (!noms.empty()) nom = noms.front();
    return true;
}

}  // namespace quilvane::lot
