#include "lot/jugement.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

constexpr int ESSAIS = 3;
constexpr std::size_t LOG_MAX = 4096;
// 10,002 lines of at most 258 bytes are 2.6 MB; nothing larger is a result.
constexpr std::size_t RESULTAT_MAX = 16U << 20U;

bool preparer(const casier& c, faute& f) {
    if (!viderDossier(c.dossier.fd, TRAVAIL) ||
        (mkdirat(c.dossier.fd, TRAVAIL, 0777) != 0 && errno != EEXIST) ||
        linkat(c.dossier.fd, COPIE, c.dossier.fd, "travail/recu", 0) != 0)
        return echouer(f, ETAPE_PREPARER, c.id);
    return true;
}

bool vientDeDehors(const finDeProcessus& fin) {
    return fin.fin == TUE_PAR_SIGNAL &&
           (fin.valeur == SIGTERM || fin.valeur == SIGINT || fin.valeur == SIGHUP);
}

/** Latin-1 text as people can read it: UTF-8, without its line end, controls escaped. */
std::string lisible(std::string octets) {
    while (!octets.empty() && (octets.back() == '\n' || octets.back() == '\r'))
        octets.pop_back();
    return montrable(depuisLatin1(octets));
}

/** Always true: the file has failed, the runner has not. */
bool echec(bilan& b, eCause cause, const std::string& detail) {
    b.issue = ISSUE_ECHECS;
    b.cause = cause;
    b.detail = detail;
    return true;
}

/** Reads a file that quilvane may have left; `la` when it is there and regular. */
bool lireLaisse(const casier& c, const std::string& nom, std::size_t limite, std::string& octets, bool& la,
                faute& f) {
    la = lireFichier(c.dossier.fd, nom, octets, limite);
    return la || errno == ENOENT || errno == ELOOP || errno == EINVAL ||
           echouer(f, ETAPE_LIRE_RESULTAT, c.id);
}

/** The result must be on the disk before anything is said of it. */
bool assurerResultat(const casier& c, faute& f) {
    const descripteur resultat = ouvrirFichier(c.dossier.fd, RESULTAT);
    const descripteur dossier = ouvrirDossier(c.dossier.fd, TRAVAIL);
    return (resultat.ouvert() && dossier.ouvert() && synchroniser(resultat.fd) && synchroniser(dossier.fd)) ||
           echouer(f, ETAPE_LIRE_RESULTAT, c.id);
}

}  // namespace

bool lancerQuilvane(const casier& c, const std::string& quilvane, int delai, const arret& a,
                    finDeProcessus& fin, faute& f) {
    for (int i = 0; i < ESSAIS; ++i) {
        if (!preparer(c, f)) return false;
        const descripteur travail = ouvrirDossier(c.dossier.fd, TRAVAIL);
        const descripteur console(
            openat(c.dossier.fd, "travail/console", O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!travail.ouvert() || !console.ouvert()) return echouer(f, ETAPE_PREPARER, c.id);
        fin = executer({quilvane, {"recu", "emis", "log"}, travail.fd, console.fd, c.verrou.fd, delai}, a);
        if (fin.fin == PAS_LANCE) {
            errno = fin.valeur;
            return echouer(f, ETAPE_LANCER, quilvane);
        }
        if (!vientDeDehors(fin)) return true;
        if (a != CONTINUER) {
            fin.fin = INTERROMPU;
            return true;
        }
    }
    return true;
}

bool juger(const casier& c, const finDeProcessus& fin, bilan& b, faute& f) {
    std::string log;
    std::string console;
    std::string octets;
    bool aUnLog = false;
    bool aUneConsole = false;
    bool aUnResultat = false;
    if (!lireLaisse(c, "travail/log", LOG_MAX, log, aUnLog, f) ||
        !lireLaisse(c, "travail/console", LOG_MAX, console, aUneConsole, f) ||
        !lireLaisse(c, RESULTAT, RESULTAT_MAX, octets, aUnResultat, f))
        return false;
    const std::string dit = lisible(log.empty() ? console : log);
    b.statut = fin.fin == FINI ? fin.valeur : -1;
    b.signal = fin.fin == TUE_PAR_SIGNAL ? fin.valeur : 0;
    if (fin.fin == DELAI_DEPASSE) return echec(b, CAUSE_DELAI, dit);
    if (fin.fin != FINI) return echec(b, CAUSE_SIGNAL, dit);
    if (fin.valeur != 0 && fin.valeur != 2) return echec(b, CAUSE_STATUT, dit);
    if (!aUnLog || !log.empty()) return echec(b, CAUSE_LOG, dit);
    if (!aUnResultat) return echec(b, CAUSE_RESULTAT, dit);
    if (!(fin.valeur == 0 ? lireEmis(octets, b.entree, b.c) : lireErreurs(octets, b.entree, b.c))) {
        b.c = {};
        return echec(b, CAUSE_COMPTES, dit);
    }
    // A file without any line is counted as -1 record.
    b.c.enregistrements = std::max(b.c.enregistrements, 0L);
    b.c.acceptes = std::max(b.c.acceptes, 0L);
    if (!assurerResultat(c, f)) return false;
    empreinte e;
    commencer(e);
    ajouter(e, octets);
    b.sha256Resultat = terminer(e);
    b.tailleResultat = static_cast<long long>(octets.size());
    b.issue = fin.valeur == 0 ? ISSUE_EMIS : ISSUE_REJETS;
    return true;
}

}  // namespace quilvane::lot
