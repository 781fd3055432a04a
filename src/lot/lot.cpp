#include "lot/lot.h"

#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <set>

#include "lot/affichage.h"
#include "lot/archive.h"
#include "lot/file.h"
#include "lot/metriques.h"
#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

// All in seconds.
constexpr double TRANCHE = 0.2;     // between two drawings of the bar
constexpr double REGARD = 1;        // between two looks at an empty arrivee
constexpr double APRES_PANNE = 10;  // before trying again
constexpr double RELEVE = 60;       // between two looks for what others left
constexpr double METRIQUES = 5;     // between two writings of the metrics
constexpr double JOUR = 86400;      // between two clearings of the archive

/** A run. */
struct passage {
    const reglages& r;
    atelier t = {};
    file f = {};
    ecran e = {};
    total fait = {};
    total avant = {};  // counted by earlier runs, for the metrics
    descripteur signaux = {};
    std::set<std::string> ecartes = {};  // files that cannot be taken
    long nonReposes = 0;
    bool malade = false;        // a fault of the runner's own: take nothing more for now
    bool sansGuideDit = false;  // said already
    bool rapportDit = false;
    double debut = heure();
    double debutRafale = 0;  // of the work that is going on
    double travail = 0;      // seconds of work, without waiting for files
    total montre = {};       // what the bar leaves out: with --suivre all that was done before
    double montreDebut = 0;  // `travail` at that time
    double releve = 0;       // when these were last done
    double metriques = 0;
    double garde = 0;
};

void ecrireLesMetriques(passage& p) {
    if (p.r.metriques.empty()) return;
    faute f;
    if (!ecrireMetriques(p.r.metriques, p.t.d, p.avant, p.fait, p.r.langue, f)) {
        ++p.fait.pannes;
        avertir(p.e, f);
    }
    p.metriques = heure();
}

void garder(passage& p) {
    if (p.r.garder < 0) return;
    long retires = 0;
    long restes = 0;
    faute f;
    if (!garderJours(p.t.d, p.r.garder, retires, restes, f)) {
        ++p.fait.pannes;
        avertir(p.e, f);
    }
    if (retires > 0) dire(p.e, BILAN_GARDES, {std::to_string(retires)});
    if (restes > 0) dire(p.e, BILAN_RESTES, {std::to_string(restes)});
    p.garde = heure();
}

/** Adds the casiers of other runners, dead or alive: a lock tells them apart. */
void releverCasiers(passage& p, std::vector<tache>& taches) {
    std::vector<std::string> noms;
    faute f;
    if (!lister(p.t.d.lieu(ENCOURS), noms)) {
        echouer(f, ETAPE_LISTER, LIEUX[ENCOURS]);
        ++p.fait.pannes;
        avertir(p.e, f);
        return;
    }
    for (const std::string& nom : noms) {
        if (estId(nom))
            taches.push_back({true, nom});
        else if (p.releve == 0)
            avertir(p.e, remplir(AVIS_CASIER, p.r.langue, {montrable(nom)}));
    }
    p.releve = heure();
}

/** Looks for work and hands it out; false when there is none. */
bool regarder(passage& p) {
    std::vector<tache> taches;
    // Once for a single pass: what it could not end itself is for the next one.
    if (p.releve == 0 || (p.r.suivre && heure() - p.releve > RELEVE)) {
        releverCasiers(p, taches);
        p.ecartes.clear();
    }
    std::vector<arrivage> arrives;
    faute f;
    p.nonReposes = 0;
    if (!listerArrivee(p.t.d, arrives, f)) {
        ++p.fait.pannes;
        p.malade = true;
        avertir(p.e, f);
    }
    for (const arrivage& a : arrives) {
        if (p.ecartes.contains(a.nom)) continue;
        if (a.repos >= p.r.repos)
            taches.push_back({false, a.nom});
        else
            ++p.nonReposes;
    }
    confier(p.f, taches);
    p.debutRafale = heure();
    // The bar of a single pass is about all of it, also where files came later.
    if (p.r.suivre) {
        p.montre = p.fait;
        p.montreDebut = p.travail;
    }
    return !taches.empty();
}

void compterUn(passage& p, const compteRendu& r) {
    if (r.panne) {
        ++p.fait.pannes;
        avertir(p.e, r.f);
        if (r.ecarte.empty())
            p.malade = true;
        else
            p.ecartes.insert(r.ecarte);
        return;
    }
    compter(p.fait, r.b);
    montrerBilan(p.e, r.b);
    if (r.b.issue == ISSUE_REJETS && p.t.guide.empty() && !p.sansGuideDit) {
        avertir(p.e, remplir(AVIS_SANS_GUIDE, p.r.langue, {}));
        p.sansGuideDit = true;
    }
    if (p.t.rapportManque && !p.rapportDit) {
        avertir(p.e, remplir(AVIS_RAPPORT, p.r.langue, {}));
        p.rapportDit = true;
    }
}

/** Waits for a signal, the end of a task, or that time has passed. */
void patienter(passage& p, double secondes) {
    pollfd fds[2] = {{p.signaux.fd, POLLIN, 0}, {p.f.cloche.fd, POLLIN, 0}};
    poll(fds, 2, static_cast<int>(secondes * 1000));
    signalfd_siginfo recu = {};
    while (read(p.signaux.fd, &recu, sizeof recu) == static_cast<ssize_t>(sizeof recu)) {
        const bool premier = p.t.a == CONTINUER;
        if (p.t.a != ARRETER_TOUT)
            avertir(p.e, remplir(premier ? AVIS_ARRET : AVIS_ARRET_TOUT, p.r.langue, {}));
        p.t.a = premier ? NE_PLUS_PRENDRE : ARRETER_TOUT;
    }
}

/** Until all that was handed out is done. */
void mener(passage& p) {
    for (;;) {
        std::vector<compteRendu> faits;
        const long reste = recueillir(p.f, faits);
        for (const compteRendu& r : faits)
            compterUn(p, r);
        if (reste == 0) {
            p.travail += heure() - p.debutRafale;
            return;
        }
        if (p.malade || p.t.a != CONTINUER) abandonner(p.f);
        const total t = depuis(p.fait, p.montre);
        const double secondes = p.travail - p.montreDebut + heure() - p.debutRafale;
        montrerBarre(p.e, t, {t.finis(), t.finis() + reste, secondes});
        if (heure() - p.metriques > METRIQUES) ecrireLesMetriques(p);
        patienter(p, TRANCHE);
    }
}

/** The signals that ask to stop are read, not delivered, in all threads. */
bool preparerSignaux(passage& p) {
    signal(SIGPIPE, SIG_IGN);
    sigset_t s;
    sigemptyset(&s);
    for (const int n : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&s, n);
    sigprocmask(SIG_BLOCK, &s, nullptr);
    p.signaux = descripteur(signalfd(-1, &s, SFD_CLOEXEC | SFD_NONBLOCK));
    return p.signaux.ouvert();
}

void boucler(passage& p) {
    for (;;) {
        p.malade = false;
        const bool travail = regarder(p);
        mener(p);
        if (p.t.a != CONTINUER || (p.malade && !p.r.suivre)) return;
        if (heure() - p.metriques > METRIQUES) ecrireLesMetriques(p);
        if (p.r.suivre && heure() - p.garde > JOUR) garder(p);
        if (travail && !p.malade) continue;
        // A single pass waits for the files that stood there when it began.
        if (!p.r.suivre && (p.nonReposes == 0 || heure() - p.debut > p.r.repos + REGARD)) return;
        effacerBarre(p.e);
        patienter(p, p.malade ? APRES_PANNE : p.r.suivre ? REGARD : TRANCHE);
        if (p.t.a != CONTINUER) return;
    }
}

int statut(const total& t) {
    if (t.echecs > 0 || t.pannes > 0) return STATUT_ECHEC;
    return t.rejets > 0 ? STATUT_REFUS : STATUT_ACCEPTE;
}

}  // namespace

int travailler(const reglages& r) {
    passage p{r};
    p.e = ouvrirEcran(r);
    p.t.langue = r.langue;
    p.t.delai = r.delai;
    faute f;
    if (!ouvrirDepot(r.depot, p.t.d, f)) {
        avertir(p.e, f);
        return STATUT_USAGE;
    }
    p.t.quilvane = trouverProgramme("quilvane");
    p.t.guide = trouverProgramme("quilvane-guide");
    if (p.t.quilvane.empty()) {
        avertir(p.e, remplir(USAGE_QUILVANE, r.langue, {}));
        return STATUT_USAGE;
    }
    if (!preparerSignaux(p) || !ouvrirFile(p.f, p.t, r.travaux)) {
        echouer(f, ETAPE_CASIER, r.depot);
        avertir(p.e, f);
        return STATUT_ECHEC;
    }
    if (!r.metriques.empty()) p.avant = lireMetriques(r.metriques);
    garder(p);
    boucler(p);
    fermerFile(p.f);
    ecrireLesMetriques(p);
    montrerTotal(p.e, p.fait, p.travail, p.nonReposes, r.repos);
    return statut(p.fait);
}

}  // namespace quilvane::lot
