/**
 * What a run finds, it does not destroy: leftovers, links, devices, locks of
 * other runs, closed descriptors, signals, writes that fail.
 */
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <functional>
#include <future>

#include "fautes/fautes.h"

using namespace essai;
namespace fs = std::filesystem;

namespace {

using mots = std::vector<std::string>;

const mots TROIS = {"in", "out", "log"};
const passage BON = passages()[0];
const passage FATAL = passages()[2];

const std::string INCOMPLETE = latin1("Écriture incomplète sur la console ou dans le fichier log\n");
constexpr const char* REFUS = "Operation not supported";
constexpr const char* TENU = "Resource temporarily unavailable";

/** Runs `commande` in a shell, which finds the program as $Q. */
resultat lancerShell(const dossier& d, const std::string& commande, options o = {}) {
    o.milieu["Q"] = programme();
    return lancerProgramme("/bin/sh", d, {"-c", commande}, o);
}

/** Starts `commande`, which writes its number to "pid" and becomes the program,
 *  waits until it meets the call that it was told to wait at, does `alors`, and
 *  lets it go on. */
resultat interrompre(const dossier& d, const std::string& commande, const std::string& appel,
                     const std::function<void(pid_t)>& alors) {
    const temoin t;
    std::future<resultat> course = std::async(std::launch::async, [&] {
        return lancerShell(d, "echo $$ >pid; exec " + commande, t.sous(appel + ":attendre"));
    });
    while (!t.atteint() && course.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
    }
    EXPECT_TRUE(t.atteint());
    const pid_t pid = std::stoi(d.lire("pid"));
    fs::remove(d.nom("pid"));
    if (t.atteint()) alors(pid);
    t.d.ecrire("feu", "");
    return course.get();
}

void verifier(const dossier& d, const resultat& r, int statut, const std::string& erreur,
              const contenu& reste) {
    EXPECT_EQ(r.statut, statut);
    EXPECT_EQ(r.erreur, latin1(erreur));
    EXPECT_EQ(d.contenu(), reste);
}

bool peripherique(const dossier& d, const std::string& nom, unsigned mineur) {
    return mknod(d.nom(nom).c_str(), S_IFCHR | 0666, makedev(1, mineur)) == 0;
}

}  // namespace

TEST(Trouve, UneEntreePlusAncienneEstMiseDeCote) {
    for (const passage& p : passages()) {
        const dossier d;
        d.ecrire("in", p.octets);
        d.ecrire("in_r", "plus ancienne");
        contenu attendu = laisse(p);
        attendu["in_r.~1~"] = "plus ancienne";
        verifier(d, lancer(d, TROIS), p.statut, "", attendu);
        d.ecrire("in", p.octets);
        d.ecrire("in_r", "une autre");
        attendu["in_r.~2~"] = "une autre";
        verifier(d, lancer(d, TROIS), p.statut, "", attendu);
    }
}

TEST(Trouve, DeuxCoursesSurPlace) {
    // The first run ends on mixed line ends, the second finds an empty input.
    const std::string melange = fich(1) + "\r\n" + acti() + "\n";
    const dossier d;
    d.ecrire("f", melange);
    EXPECT_EQ(lancer(d, {"f", "f", "log"}).statut, 1);
    EXPECT_EQ(d.lire("f_r"), melange);
    EXPECT_EQ(lancer(d, {"f", "f", "log"}).statut, 2);
    EXPECT_EQ(d.lire("f_r.~1~"), melange);
}

TEST(Trouve, UnLienSousUnNomDeTravail) {
    for (const std::string nom : {"in_e", "in_o", "in_r"}) {
        for (const bool dur : {false, true}) {
            SCOPED_TRACE(nom + (dur ? ", hard" : ""));
            const dossier d;
            d.ecrire("in", BON.octets);
            d.ecrire("victime", "gardee");
            if (dur)
                fs::create_hard_link(d.nom("victime"), d.nom(nom));
            else
                fs::create_symlink("victime", d.nom(nom));
            contenu attendu = laisse(BON);
            attendu["victime"] = "gardee";
            if (nom == "in_r") attendu["in_r.~1~"] = "gardee";
            verifier(d, lancer(d, TROIS), 0, "", attendu);
        }
    }
    const dossier d;
    d.ecrire("in", BON.octets);
    fs::create_symlink("in_o", d.nom("in_e"));
    verifier(d, lancer(d, TROIS), 0, "", laisse(BON));
}

TEST(Trouve, LEntreeSousUnNomDeTravail) {
    const std::string emis = "Ouverture du fichier résultat temporaire: File exists\n";
    const std::string erre = "Ouverture du fichier des erreurs: File exists\n";
    for (const bool dur : {false, true}) {
        for (const std::string suffixe : {"_e", "_o"}) {
            SCOPED_TRACE(suffixe + (dur ? ", hard" : ""));
            const dossier d;
            d.ecrire("lot" + suffixe, BON.octets);
            if (dur)
                fs::create_hard_link(d.nom("lot" + suffixe), d.nom("lot"));
            else
                fs::create_symlink("lot" + suffixe, d.nom("lot"));
            contenu attendu = {
                {"lot_r", BON.octets}, {"lot" + suffixe, BON.octets}, {"out", ""}, {"log", ""}};
            if (suffixe == "_o") attendu["lot_e"] = "";
            verifier(d, lancer(d, {"lot", "out", "log"}), 1, suffixe == "_e" ? emis : erre, attendu);
        }
    }
}

TEST(Trouve, CeQuUneAutreCourseTient) {
    struct cas {
        const char* nom;
        int genre;
        int statut;
        std::string erreur;
        contenu reste;
    };
    const std::string raison = std::string(": ") + TENU + "\n";
    const std::string ig003 = ligneLog(LOG_IG003);
    for (const cas& c : {
             cas{"in_e",
                 LOCK_EX,
                 1,
                 "Ouverture du fichier résultat temporaire" + raison,
                 {{"in_r", BON.octets}, {"in_e", "au voisin"}, {"out", ""}, {"log", ""}}},
             cas{"in_o",
                 LOCK_EX,
                 1,
                 "Ouverture du fichier des erreurs" + raison,
                 {{"in_r", BON.octets}, {"in_e", ""}, {"in_o", "au voisin"}, {"out", ""}, {"log", ""}}},
             cas{"in_r",
                 LOCK_EX,
                 1,
                 "rename" + raison,
                 {{"in", BON.octets}, {"in_r", "au voisin"}, {"log", ligneLog(LOG_IG009)}}},
             cas{"out",
                 LOCK_EX,
                 1,
                 "Ouverture du fichier résultat" + raison,
                 {{"in_r", BON.octets}, {"out", "au voisin"}, {"log", ig003}}},
             cas{"out", LOCK_SH, 0, "", laisse(BON)},
         }) {
        SCOPED_TRACE(c.nom);
        const dossier d;
        d.ecrire("in", BON.octets);
        d.ecrire(c.nom, "au voisin");
        const int fd = open(d.nom(c.nom).c_str(), O_RDONLY | O_CLOEXEC);
        ASSERT_EQ(flock(fd, c.genre), 0);
        verifier(d, lancer(d, TROIS), c.statut, c.erreur, c.reste);
        close(fd);
    }
}

TEST(Trouve, NiTubeNiPriseNiPeripherique) {
    const auto tube = [](const dossier& d, const std::string& nom) {
        return mkfifo(d.nom(nom).c_str(), 0600) == 0;
    };
    const auto prise = [](const dossier& d, const std::string& nom) {
        sockaddr_un a = {};
        a.sun_family = AF_UNIX;
        const std::string chemin = d.nom(nom);
        std::memcpy(a.sun_path, chemin.c_str(), std::min(chemin.size(), sizeof a.sun_path - 1));
        const int s = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const bool fait = bind(s, reinterpret_cast<const sockaddr*>(&a), sizeof a) == 0;
        close(s);
        return fait;
    };
    const auto nul = [](const dossier& d, const std::string& nom) { return peripherique(d, nom, 3); };
    const std::vector<std::function<bool(const dossier&, const std::string&)>> GENRES = {tube, prise, nul};
    for (std::size_t i = 0; i < GENRES.size(); ++i) {
        for (const bool lien : {false, true}) {
            SCOPED_TRACE(std::to_string(i) + (lien ? ", link" : ""));
            for (const std::string role : {"in", "out", "in_e", "in_o", "in_r"}) {
                const bool deTravail = role.size() > 3 || role == "in_r";
                if (deTravail && lien) continue;  // a link to it is removed as any link
                SCOPED_TRACE(role);
                const dossier d;
                const dossier ailleurs;
                if (!GENRES[i](lien ? ailleurs : d, role)) GTEST_SKIP() << "no device can be made here";
                if (lien) fs::create_symlink(ailleurs.nom(role), d.nom(role));
                if (role != "in") d.ecrire("in", BON.octets);
                const fs::file_type genre = fs::status(d.nom(role)).type();
                const resultat r = lancer(d, TROIS);
                EXPECT_EQ(fs::status(d.nom(role == "in_r" ? "in_r.~1~" : role)).type(), genre);
                fs::remove(d.nom(role == "in_r" ? "in_r.~1~" : role));
                const std::string fin = std::string(": ") + REFUS + "\n";
                if (role == "in")
                    verifier(d, r, 1, "Ouverture du fichier à traiter" + fin, {{"log", ligneLog(LOG_IG003)}});
                if (role == "out")
                    verifier(d, r, 1, "Ouverture du fichier résultat" + fin,
                             {{"in", BON.octets}, {"log", ligneLog(LOG_IG003)}});
                if (role == "in_e")
                    verifier(d, r, 1, "Ouverture du fichier résultat temporaire" + fin,
                             {{"in_r", BON.octets}, {"out", ""}, {"log", ""}});
                if (role == "in_o")
                    verifier(d, r, 1, "Ouverture du fichier des erreurs" + fin,
                             {{"in_r", BON.octets}, {"out", ""}, {"in_e", ""}, {"log", ""}});
                if (role == "in_r") verifier(d, r, 0, "", laisse(BON));
            }
        }
    }
}

TEST(Trouve, LogSurUnTubeOuUnPeripherique) {
    {
        const dossier d;
        d.ecrire("in", BON.octets);
        ASSERT_EQ(mkfifo(d.nom("log").c_str(), 0600), 0);
        const resultat r = lancer(d, TROIS);
        fs::remove(d.nom("log"));
        verifier(d, r, 1, "Ouverture du fichier log: No such device or address\n", {{"in", BON.octets}});
    }
    for (const passage& p : passages()) {
        const dossier d;
        d.ecrire("in", p.octets);
        if (!peripherique(d, "log", 3)) GTEST_SKIP() << "no device can be made here";
        const resultat r = lancer(d, TROIS);
        EXPECT_TRUE(fs::is_character_file(d.nom("log")));
        fs::remove(d.nom("log"));
        contenu attendu = laisse(p);
        attendu.erase("log");
        verifier(d, r, p.statut, "", attendu);
    }
}

TEST(Trouve, UneAutreEntreeALaPlaceDeLaPremiere) {
    // The third opening is that of the renamed input.
    const dossier d;
    d.ecrire("in", BON.octets);
    const resultat r = interrompre(d, "\"$Q\" in out log", "renameat2:1", [&](pid_t) {
        fs::rename(d.nom("in"), d.nom("premiere"));
        d.ecrire("in", FATAL.octets);
    });
    verifier(d, r, 1, "Ouverture du fichier à traiter renommé: Stale file handle\n",
             {{"premiere", BON.octets}, {"in_r", FATAL.octets}, {"log", ligneLog(LOG_IG003)}});
}

TEST(Trouve, LeLecteurDeLaTraceSEnVa) {
    const passage p = passages(200)[0];
    for (const char* option : {"-d", "-i"}) {
        const dossier d;
        d.ecrire("in", p.octets);
        const resultat r =
            lancerShell(d, std::string("mkfifo tube; exec 3<>tube; exec 4>tube; exec 3<&-; \"$Q\" ") +
                               option + " in out log >&4; echo $? >statut");
        EXPECT_EQ(d.lire("statut"), "0\n");
        EXPECT_EQ(r.erreur, INCOMPLETE);
        fs::remove(d.nom("tube"));
        contenu attendu = laisse(p);
        attendu["statut"] = "0\n";
        EXPECT_EQ(d.contenu(), attendu);
    }
}

TEST(Trouve, TailleDeFichierLimitee) {
    for (const passage& p : passages(200)) {
        const dossier d;
        d.ecrire("in", p.octets);
        d.ecrire("out", ANCIEN);
        const resultat r = lancerShell(d, "ulimit -f 8; exec \"$Q\" in out log");
        if (p.publie.empty())
            verifier(d, r, 1, "", laisse(p));
        else
            verifier(d, r, 1, "rename: File too large\n", {{"in", p.octets}, {"log", ligneLog(LOG_IG010)}});
    }
}

TEST(Trouve, DescripteursFermes) {
    for (const char* fermes : {"<&-", ">&-", "2>&-", "<&- >&-", "<&- >&- 2>&-"}) {
        for (const passage& p : passages()) {
            SCOPED_TRACE(std::string(p.nom) + " " + fermes);
            const dossier d;
            d.ecrire("in", p.octets);
            const resultat r = lancerShell(d, std::string("exec \"$Q\" -d in out log ") + fermes);
            verifier(d, r, p.statut, "", laisse(p));
        }
        const dossier d;
        const resultat r = lancerShell(d, std::string("exec \"$Q\" absente out log ") + fermes);
        EXPECT_EQ(r.statut, 1);
        EXPECT_EQ(d.contenu(), (contenu{{"log", ligneLog(LOG_IG003)}}));
    }
}

TEST(Trouve, UnSignalRendLEntree) {
    for (const int numero : {SIGTERM, SIGINT, SIGHUP}) {
        const passage p = passages(200)[0];
        const dossier d;
        d.ecrire("in", p.octets);
        d.ecrire("out", ANCIEN);
        const resultat r =
            interrompre(d, "\"$Q\" in out log", "fread:1", [&](pid_t pid) { kill(pid, numero); });
        EXPECT_EQ(r.signal, numero);
        verifier(d, r, -1, "", {{"in", p.octets}, {"log", ""}});
    }
}

TEST(Trouve, UnSignalIgnoreLeReste) {
    const dossier d;
    d.ecrire("in", BON.octets);
    const resultat r = interrompre(d, "sh -c 'trap \"\" HUP; echo $$ >pid; exec \"$Q\" in out log'",
                                   "fread:1", [&](pid_t pid) { kill(pid, SIGHUP); });
    verifier(d, r, 0, "", laisse(BON));
}

TEST(Trouve, UnSignalAttendLaFinDeLaPublication) {
    for (const passage& p : passages()) {
        if (p.publie.empty()) continue;
        for (const char* appel : {"fsync:1", "rename:1", "fsync:2", "remove:1"}) {
            SCOPED_TRACE(std::string(p.nom) + ", " + appel);
            const dossier d;
            d.ecrire("in", p.octets);
            const resultat r =
                interrompre(d, "\"$Q\" in out log", appel, [&](pid_t pid) { kill(pid, SIGTERM); });
            EXPECT_EQ(r.signal, SIGTERM);
            verifier(d, r, -1, "", laisse(p));
        }
    }
}

TEST(Trouve, EcrituresPerdues) {
    for (const passage& p : passages()) {
        for (const bool console : {false, true}) {
            for (const bool log : {false, true}) {
                SCOPED_TRACE(std::string(p.nom) + (console ? ", console" : "") + (log ? ", log" : ""));
                const dossier d;
                d.ecrire("in", p.octets);
                if (!peripherique(d, "plein", 7)) GTEST_SKIP() << "no device can be made here";
                const resultat r = lancerShell(d, std::string("exec \"$Q\" -d in out ") +
                                                      (log ? "plein" : "log") + (console ? " >plein" : ""));
                const bool perdu = console || (log && !p.log.empty());
                contenu attendu = laisse(p);
                if (log) attendu.erase("log");
                fs::remove(d.nom("plein"));
                EXPECT_EQ(r.erreur, perdu ? INCOMPLETE : "");
                EXPECT_EQ(r.statut, p.statut);
                EXPECT_EQ(d.contenu(), attendu);
            }
        }
    }
}

TEST(Trouve, LaSortieEstRemplaceeEnUneFois) {
    for (const passage& p : passages()) {
        if (p.publie.empty()) continue;
        const dossier d;
        d.ecrire("in", p.octets);
        const resultat r = interrompre(d, "\"$Q\" in out log", "rename:1", [&](pid_t) {
            EXPECT_EQ(d.lire("out"), "");  // it is there until the result takes its place
        });
        verifier(d, r, p.statut, "", laisse(p));
        // An empty folder is removed to make room.
        d.ecrire("in", p.octets);
        const resultat s = interrompre(d, "\"$Q\" in out log", "rename:1", [&](pid_t) {
            fs::remove(d.nom("out"));
            d.creerDossier("out");
        });
        verifier(d, s, p.statut, "", laisse(p));
    }
}

TEST(Trouve, LeResultatEstSurLeDisqueAvantQueLEntreeNeParte) {
    for (const passage& p : passages()) {
        if (p.publie.empty()) continue;
        const std::string travail = "in" + p.travail;
        const std::string autre = p.travail == "_e" ? "in_o" : "in_e";
        for (const char* appel : {"fsync:1", "rename:1", "fsync:2", "remove:1"}) {
            SCOPED_TRACE(std::string(p.nom) + ", " + appel);
            const bool publie = std::string(appel) == "fsync:2" || std::string(appel) == "remove:1";
            const dossier d;
            d.ecrire("in", p.octets);
            const resultat r = interrompre(d, "\"$Q\" in out log", appel, [&](pid_t) {
                contenu attendu = {{"in_r", p.octets}, {"log", ""}, {"out", publie ? p.publie : ""}};
                attendu[autre] = p.travail == "_e" ? p.erre : p.tmpEmis;
                if (std::string(appel) == "fsync:1") attendu[autre] = "";  // not closed yet
                if (!publie) attendu[travail] = p.publie;
                EXPECT_EQ(d.contenu(), attendu);
            });
            verifier(d, r, p.statut, "", laisse(p));
        }
    }
}
