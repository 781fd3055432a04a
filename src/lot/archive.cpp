#include "lot/archive.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <ctime>

#include "lot/noms.h"
#include "lot/textes.h"

namespace quilvane::lot {

namespace {

constexpr int ESSAIS = 5;  // a clean-up may remove a folder that was just made
constexpr long SECONDES_PAR_JOUR = 86400;

/** "AAAA/MM/JJ" of the day on which a casier was made. */
std::string jourDuCasier(const casier& c) {
    return c.id.substr(0, 4) + "/" + c.id.substr(4, 2) + "/" + c.id.substr(6, 2);
}

/** Opens a folder of the archive, making what it lacks. */
descripteur ouvrirJour(const depot& d, const std::string& jour) {
    descripteur ici = ouvrirDossier(d.lieu(ARCHIVE), ".");
    for (const std::string& nom : {jour.substr(0, 4), jour.substr(5, 2), jour.substr(8, 2)}) {
        if (!ici.ouvert()) break;
        if (mkdirat(ici.fd, nom.c_str(), 0777) == 0) {
            if (!synchroniser(ici.fd)) return descripteur();
        } else if (errno != EEXIST) {
            return descripteur();
        }
        ici = ouvrirDossier(ici.fd, nom);
    }
    return ici;
}

/** The name under which the copy stands in a day's folder already; else the
 *  first free one. */
bool chercher(const descripteur& jour, const casier& c, const std::string& nom, std::string& trouve) {
    struct stat copie = {};
    if (fstatat(c.dossier.fd, COPIE, &copie, AT_SYMLINK_NOFOLLOW) != 0) return false;
    for (int n = 0; n < INT_MAX; ++n) {
        trouve = nomNumerote(nom, n);
        struct stat s = {};
        if (fstatat(jour.fd, trouve.c_str(), &s, AT_SYMLINK_NOFOLLOW) != 0) return errno == ENOENT;
        if (s.st_ino == copie.st_ino && s.st_dev == copie.st_dev) return true;
    }
    return false;
}

/** The number that a folder's name of `chiffres` digits is, -1 for another name. */
int nombre(const std::string& nom, std::size_t chiffres) {
    if (nom.size() != chiffres || nom.find_first_not_of("0123456789") != std::string::npos) return -1;
    return std::stoi(nom);
}

/** Days since 1970 of a date, -1 when there is no such day. */
long jourDuCalendrier(int annee, int mois, int jour) {
    std::tm t = {};
    t.tm_year = annee - 1900;
    t.tm_mon = mois - 1;
    t.tm_mday = jour;
    const std::tm voulu = t;
    const std::time_t s = timegm(&t);
    if (t.tm_year != voulu.tm_year || t.tm_mon != voulu.tm_mon || t.tm_mday != voulu.tm_mday) return -1;
    return static_cast<long>(s / SECONDES_PAR_JOUR);
}

/** Removes the files and links of a day's folder, then the folder; false when
 *  it stays. */
bool retirerJour(int mois, const std::string& jour) {
    const descripteur d = ouvrirDossier(mois, jour);
    std::vector<std::string> noms;
    if (!d.ouvert() || !lister(d.fd, noms)) return false;
    for (const std::string& nom : noms)
        unlinkat(d.fd, nom.c_str(), 0);
    return unlinkat(mois, jour.c_str(), AT_REMOVEDIR) == 0;
}

}  // namespace

bool archiver(const depot& d, const casier& c, const std::string& nom, std::string& chemin, faute& f) {
    const std::string jour = jourDuCasier(c);
    for (int i = 0; i < ESSAIS;) {
        const descripteur dossier = ouvrirJour(d, jour);
        std::string trouve;
        if (!dossier.ouvert() || !chercher(dossier, c, nom, trouve)) {
            if (errno == ENOENT && ++i < ESSAIS) continue;
            return echouer(f, ETAPE_ARCHIVER, nom);
        }
        struct stat s = {};
        const bool present = fstatat(dossier.fd, trouve.c_str(), &s, AT_SYMLINK_NOFOLLOW) == 0;
        if (!present && linkat(c.dossier.fd, COPIE, dossier.fd, trouve.c_str(), 0) != 0) {
            if (errno == EEXIST || (errno == ENOENT && ++i < ESSAIS)) continue;
            return echouer(f, ETAPE_ARCHIVER, nom);
        }
        if (!synchroniser(dossier.fd)) return echouer(f, ETAPE_ARCHIVER, nom);
        chemin = LIEUX[ARCHIVE];
        chemin.append("/").append(jour).append("/").append(trouve);
        return true;
    }
    return echouer(f, ETAPE_ARCHIVER, nom);
}

bool desarchiver(const depot& d, const casier& c, const std::string& nom, faute& f) {
    struct stat copie = {};
    if (fstatat(c.dossier.fd, COPIE, &copie, AT_SYMLINK_NOFOLLOW) != 0) return true;
    const descripteur dossier = ouvrirJour(d, jourDuCasier(c));
    std::string trouve;
    if (!dossier.ouvert() || !chercher(dossier, c, nom, trouve)) return echouer(f, ETAPE_ARCHIVER, nom);
    if (unlinkat(dossier.fd, trouve.c_str(), 0) != 0 && errno != ENOENT)
        return echouer(f, ETAPE_ARCHIVER, nom);
    return synchroniser(dossier.fd) || echouer(f, ETAPE_ARCHIVER, nom);
}

bool garderJours(const depot& d, int jours, long& retires, long& restes, faute& f) {
    const long premier = static_cast<long>(std::time(nullptr) / SECONDES_PAR_JOUR) - jours;
    const int archive = d.lieu(ARCHIVE);
    std::vector<std::string> annees;
    if (!lister(archive, annees)) return echouer(f, ETAPE_GARDER, LIEUX[ARCHIVE]);
    for (const std::string& annee : annees) {
        const descripteur a = nombre(annee, 4) > 0 ? ouvrirDossier(archive, annee) : descripteur();
        std::vector<std::string> lesMois;
        if (!a.ouvert() || !lister(a.fd, lesMois)) continue;
        for (const std::string& mois : lesMois) {
            const descripteur m = nombre(mois, 2) > 0 ? ouvrirDossier(a.fd, mois) : descripteur();
            std::vector<std::string> lesJours;
            if (!m.ouvert() || !lister(m.fd, lesJours)) continue;
            bool retire = false;
            for (const std::string& jour : lesJours) {
                const int j = nombre(jour, 2);
                const long date = j > 0 ? jourDuCalendrier(nombre(annee, 4), nombre(mois, 2), j) : -1;
                if (date < 0 || date >= premier || !ouvrirDossier(m.fd, jour).ouvert()) continue;
                retire = retirerJour(m.fd, jour);
                ++(retire ? retires : restes);
            }
            if (retire) unlinkat(a.fd, mois.c_str(), AT_REMOVEDIR);
        }
        // Refused while the year still holds a month.
        if (!lesMois.empty()) unlinkat(archive, annee.c_str(), AT_REMOVEDIR);
    }
    return true;
}

}  // namespace quilvane::lot
