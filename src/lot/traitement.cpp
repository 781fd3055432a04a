#include "lot/traitement.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "lot/archive.h"
#include "lot/journal.h"
#include "lot/jugement.h"
#include "lot/noms.h"
#include "lot/rapports.h"
#include "lot/textes.h"
#include "lot/verdict.h"

namespace quilvane::lot {

namespace {

std::string cheminEntre(const std::string& nom) { return std::string(ENTREE) + "/" + nom; }

/** Gives an input that has no verdict back to arrivee, and forgets the casier. */
bool rendre(atelier& t, casier& c, const std::string& nom, bilan& b, faute& f) {
    if (!desarchiver(t.d, c, nom, f)) return false;
    const descripteur entree = ouvrirDossier(c.dossier.fd, ENTREE);
    if (!entree.ouvert()) return echouer(f, ETAPE_RENDRE, nom);
    for (int n = 0; n < INT_MAX; ++n) {
        const eDeplacement fait = deplacer(entree.fd, nom, t.d.lieu(ARRIVEE), nomNumerote(nom, n));
        if (fait == NOM_PRIS) continue;
        if (fait == DEPLACEMENT_REFUSE) return echouer(f, ETAPE_RENDRE, nom);
        break;
    }
    if (!synchroniser(t.d.lieu(ARRIVEE)) || !synchroniser(entree.fd)) return echouer(f, ETAPE_RENDRE, nom);
    b.issue = ISSUE_RENDU;
    return retirerCasier(t.d, c, f);
}

/** What came of copying an input. */
enum eCopie { COPIE_FAITE, ENTREE_ILLISIBLE, ENTREE_CHANGEANTE, COPIE_EN_PANNE };

/** Whether a failed opening is the file's own fault and not a lack of the runner's. */
bool estRefusDuFichier() { return errno == EACCES || errno == EPERM; }

/** Reads all of `de`, measures it, and writes it to `vers` if that is open. */
bool transvaser(int de, int vers, mesure& m) {
    mesureur mes;
    commencer(mes);
    char bloc[65536];
    for (;;) {
        const ssize_t n = read(de, bloc, sizeof bloc);
        if (n < 0) return false;
        if (n == 0) break;
        const std::string_view octets(bloc, static_cast<std::size_t>(n));
        ajouter(mes, octets);
        if (vers >= 0 && !ecrireTout(vers, octets)) return false;
    }
    m = terminer(mes);
    return true;
}

bool memeEtat(const struct stat& a, const struct stat& b) {
    return a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
           a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

/** Makes the copy that is archived and processed, and measures it. A copy that
 *  stands there already is whole. */
eCopie copier(const casier& c, const std::string& nom, mesure& m, faute& f) {
    constexpr const char* PART = "copie.part";
    const auto panne = [&f, &nom] {
        echouer(f, ETAPE_COPIER, nom);
        return COPIE_EN_PANNE;
    };
    const descripteur deja = ouvrirFichier(c.dossier.fd, COPIE);
    if (deja.ouvert()) return transvaser(deja.fd, -1, m) ? COPIE_FAITE : panne();
    if (errno != ENOENT) return panne();
    const descripteur entree = ouvrirFichier(c.dossier.fd, cheminEntre(nom));
    struct stat avant = {};
    struct stat apres = {};
    if (!entree.ouvert()) {
        if (!estRefusDuFichier()) return panne();
        echouer(f, ETAPE_COPIER, nom);
        return ENTREE_ILLISIBLE;
    }
    unlinkat(c.dossier.fd, PART, 0);
    // Not to be written to by anybody: the archive holds this very file.
    const descripteur copie(
        openat(c.dossier.fd, PART, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0444));
    if (!copie.ouvert() || fstat(entree.fd, &avant) != 0 || !transvaser(entree.fd, copie.fd, m) ||
        fstat(entree.fd, &apres) != 0)
        return panne();
    if (!memeEtat(avant, apres) || apres.st_size != m.taille) return ENTREE_CHANGEANTE;
    if (!synchroniser(copie.fd) || renameat(c.dossier.fd, PART, c.dossier.fd, COPIE) != 0 ||
        !synchroniser(c.dossier.fd))
        return panne();
    return COPIE_FAITE;
}

/** The files that leave the casier, by where its input ends. */
void choisirFichiers(const atelier& t, const casier& c, verdict& v, const bilan& b) {
    v.nom = b.nom;
    if (b.issue == ISSUE_ECHECS) {
        v.fichiers = {{RAISON, ECHECS, ".raison.txt", ""}, {cheminEntre(b.nom), ECHECS, "", ""}};
        return;
    }
    if (b.issue == ISSUE_REJETS)
        for (const rapport& r : RAPPORTS)
            if (!t.guide.empty() && faccessat(c.dossier.fd, r.nom, F_OK, AT_SYMLINK_NOFOLLOW) == 0)
                v.fichiers.push_back({r.nom, REJETS, r.suffixe, ""});
    v.fichiers.push_back({RESULTAT, b.issue == ISSUE_EMIS ? EMIS : REJETS, "", ""});
}

/** What is decided of a file. `interrompu` when it has to be put back instead. */
bool decider(atelier& t, casier& c, bilan& b, verdict& v, bool& interrompu, faute& f) {
    interrompu = true;
    const eCopie copie = copier(c, b.nom, b.entree, f);
    if (copie == COPIE_EN_PANNE) return false;
    if (copie == ENTREE_CHANGEANTE) return true;
    if (copie == ENTREE_ILLISIBLE) {
        b.issue = ISSUE_ECHECS;
        b.cause = CAUSE_ILLISIBLE;
        b.detail = raisonDuSysteme(f.cause, t.langue);
    } else {
        finDeProcessus fin;
        if (!archiver(t.d, c, b.nom, b.archive, f) || !lancerQuilvane(c, t.quilvane, t.delai, t.a, fin, f))
            return false;
        if (fin.fin == INTERROMPU) return true;
        if (!juger(c, fin, b, f)) return false;
    }
    b.fin = heure();
    if (b.issue == ISSUE_REJETS && !t.guide.empty() && !faireRapports(t, c, b, f)) return false;
    if (t.a == ARRETER_TOUT) return true;
    if (b.issue == ISSUE_ECHECS && !remplacerFichier(c.dossier.fd, RAISON, redigerRaison(b, t.langue), f))
        return false;
    interrompu = false;
    v.json = redigerBilan(b);
    choisirFichiers(t, c, v, b);
    return ecrireVerdict(t.d, c, v, f);
}

/** Whether what was moved into a casier is a file at all. */
bool estRegulier(const casier& c, const std::string& nom) {
    struct stat s = {};
    return fstatat(c.dossier.fd, cheminEntre(nom).c_str(), &s, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISREG(s.st_mode);
}

}  // namespace

ePrise prendre(atelier& t, const std::string& nom, casier& c, faute& f) {
    struct stat s = {};
    if (fstatat(t.d.lieu(ARRIVEE), nom.c_str(), &s, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(s.st_mode))
        return PARTIE;
    if (!ouvrirCasier(t.d, c, f)) return PRISE_EN_PANNE;
    const std::string cible = cheminEntre(nom);
    if (renameat(t.d.lieu(ARRIVEE), nom.c_str(), c.dossier.fd, cible.c_str()) != 0) {
        const int cause = errno;
        // A server may have done what it then said it had not.
        if (fstatat(c.dossier.fd, cible.c_str(), &s, AT_SYMLINK_NOFOLLOW) != 0) {
            faute rien;
            retirerCasier(t.d, c, rien);
            errno = cause;
            if (cause == ENOENT) return PARTIE;
            echouer(f, ETAPE_PRENDRE, nom);
            return PRISE_REFUSEE;
        }
    }
    const descripteur entree = ouvrirDossier(c.dossier.fd, ENTREE);
    if (!entree.ouvert() || !synchroniser(entree.fd) || !synchroniser(t.d.lieu(ARRIVEE))) {
        echouer(f, ETAPE_PRENDRE, nom);
        return PRISE_EN_PANNE;
    }
    return PRISE;
}

bool traiter(atelier& t, casier& c, bilan& b, faute& f) {
    b = {};
    b.id = c.id;
    b.debut = c.debut;
    b.repris = c.repris;
    verdict v;
    if (lireVerdict(c, v)) {
        b.nom = v.nom;
        relireBilan(v.json, b);
        b.fin = b.debut;
    } else if (errno != ENOENT) {
        return echouer(f, ETAPE_CASIER, c.id);
    } else {
        if (!nomEntre(c, b.nom, f)) return false;
        if (b.nom.empty()) return retirerCasier(t.d, c, f);
        if (t.a == ARRETER_TOUT || !estRegulier(c, b.nom)) return rendre(t, c, b.nom, b, f);
        bool interrompu = false;
        if (!decider(t, c, b, v, interrompu, f)) return false;
        if (interrompu) return rendre(t, c, b.nom, b, f);
    }
    return publier(t.d, c, v, f) && journaliser(t.d, ligneDuJournal(v), c.repris, f) &&
           retirerCasier(t.d, c, f);
}

}  // namespace quilvane::lot
