/**
 * A disk that fills up: a result that could not be written whole is not
 * published, the input is given back.
 */
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include "fautes/fautes.h"

using namespace essai;

namespace {

constexpr std::size_t PAGE = 4096;

std::size_t pages(std::size_t octets) { return (octets + PAGE - 1) / PAGE; }

/** Whether this process now sees mounts of its own, as root or in a user
 *  namespace. They vanish with it. */
bool montagesPrives() {
    static const bool prives = [] {
        const std::string uid = "0 " + std::to_string(getuid()) + " 1";
        const std::string gid = "0 " + std::to_string(getgid()) + " 1";
        if (unshare(CLONE_NEWNS) != 0) {
            if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
            std::ofstream("/proc/self/uid_map") << uid;
            std::ofstream("/proc/self/setgroups") << "deny";
            std::ofstream("/proc/self/gid_map") << gid;
        }
        return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    }();
    return prives;
}

/** A disk of its own of `nombre` pages, as long as this lives. */
struct petitDisque {
    dossier point;
    bool monte;

    explicit petitDisque(std::size_t nombre) {
        const std::string taille = "size=" + std::to_string(nombre * PAGE);
        monte = montagesPrives() && mount("none", point.chemin.c_str(), "tmpfs", 0, taille.c_str()) == 0;
    }
    ~petitDisque() {
        if (monte) umount2(point.chemin.c_str(), MNT_DETACH);
    }
    petitDisque(const petitDisque&) = delete;
    petitDisque& operator=(const petitDisque&) = delete;
};

/** What a run does with the log in a folder of its own. */
struct attente {
    int statut;
    contenu fichiers;
    std::string log;
    std::string erreur;
    bool operator==(const attente&) const = default;
};

attente publie(const passage& p) {
    contenu c = laisse(p);
    c.erase("log");
    return {p.statut, c, p.log, ""};
}

attente rendu(const passage& p, const char* cause) {
    return {1, {{"in", p.octets}}, ligneLog(LOG_IG010), std::string("rename: ") + cause + "\n"};
}

attente courir(const dossier& d, const dossier& dossierDuLog, const passage& p, const options& o = {}) {
    d.ecrire("in", p.octets);
    const resultat r = lancer(d, {"in", "out", dossierDuLog.nom("log")}, o);
    return {r.statut, d.contenu(), dossierDuLog.lire("log"), r.erreur};
}

void PrintTo(const attente& a, std::ostream* flux) {
    *flux << "status " << a.statut << ", log \"" << a.log << "\", stderr \"" << a.erreur << "\", files";
    for (const auto& [nom, octets] : a.fichiers)
        *flux << ' ' << nom << ": " << octets.size() << " bytes";
}

/** A run in which no file may grow beyond `max` bytes publishes a result that
 *  is not larger, and gives the input back for any other. */
void verifierTailleMax(const passage& p, std::size_t max) {
    const temoin t;
    options o = t.sous("");
    o.milieu["QUILVANE_TAILLE_MAX"] = std::to_string(max);
    const dossier d;
    const dossier dossierDuLog;
    EXPECT_EQ(courir(d, dossierDuLog, p, o),
              max < p.publie.size() ? rendu(p, std::strerror(EFBIG)) : publie(p));
    EXPECT_EQ(t.ouverts(), std::vector<std::string>{});
}

}  // namespace

TEST(DisquePlein, UnDisqueVraimentPlein) {
    if (petitDisque essai(1); !essai.monte)
        GTEST_SKIP() << "no disk can be mounted here: " << std::strerror(errno);
    // Small files reach the disk when they are closed, larger ones before.
    for (const int n : {20, 600}) {
        for (const passage& p : passages(n)) {
            const std::size_t entree = pages(p.octets.size());
            const std::size_t toutes = entree + pages(p.tmpEmis.size()) + pages(p.erre.size());
            const std::size_t pas = 1 + toutes / 40;
            bool deja = false;  // the result was whole on a smaller disk
            int rendus = 0;
            for (std::size_t nombre = entree; nombre < toutes + pas; nombre += pas) {
                SCOPED_TRACE(std::string(p.nom) + ", " + std::to_string(nombre) + " pages of " +
                             std::to_string(toutes));
                const petitDisque disque(nombre);
                ASSERT_TRUE(disque.monte);
                const dossier d(disque.point.chemin);
                const dossier dossierDuLog;
                const attente a = courir(d, dossierDuLog, p);
                if (p.publie.empty() || nombre >= toutes || deja || a.statut == p.statut) {
                    EXPECT_EQ(a, publie(p));
                    deja = true;
                } else {
                    EXPECT_EQ(a, rendu(p, std::strerror(ENOSPC)));
                    ++rendus;
                }
            }
            if (p.publie.empty()) continue;
            // Published no sooner than there is room for it.
            const std::size_t resultat = pages(p.publie.size());
            EXPECT_GE(rendus, static_cast<int>((resultat + pas - 1) / pas)) << p.nom;
        }
    }
}

TEST(DisquePlein, TailleDeFichierLimitee) {
    for (const int n : {20, 600}) {
        for (const passage& p : passages(n)) {
            if (p.publie.empty()) continue;
            const std::size_t taille = p.publie.size();
            for (const std::size_t max : {std::size_t{200}, std::size_t{256}, std::size_t{257}, taille / 2,
                                          taille - 257, taille - 1, taille, taille + 1}) {
                SCOPED_TRACE(std::string(p.nom) + ", " + std::to_string(max) + " bytes of " +
                             std::to_string(taille));
                verifierTailleMax(p, max);
            }
        }
    }
}

TEST(DisquePlein, LAutreFichierNeComptePas) {
    // The accepted records of a rejected file need more room than its errors.
    passage p = passages(300)[1];
    std::vector<std::string> records = {fich(300)};
    records.insert(records.end(), 299, acti());
    std::string fausse = acti();
    poser(fausse, 256, "#");
    records.push_back(fausse);
    p.octets = fichier(records);
    p.publie =
        fichierErreurs(fich(300), {1, 300, 299}, {erre(fausse, {94}, clesExploitation(fausse), fich(300))});
    for (const std::size_t max : {p.publie.size(), p.publie.size() - 1})
        verifierTailleMax(p, max);
}
