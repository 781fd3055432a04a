/**
 * The built runner over a spool: what becomes of each kind of file.
 */
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

#include "lot/depot_essai.h"

using namespace essai;
namespace fs = std::filesystem;

namespace {

constexpr const char* GUIDE = "echo \"$@\"; test -f \"$6\" || exit 1; exit 2\n";

/** A runner in the background, killed at the latest with this. */
struct coureur {
    pid_t pid = -1;

    coureur(const depotEssai& s, std::vector<std::string> mots) {
        mots.insert(mots.begin(), "quilvane-lot");
        mots.push_back(s.d.nom("depot"));
        std::vector<char*> argv;
        for (std::string& m : mots)
            argv.push_back(m.data());
        argv.push_back(nullptr);
        const std::string programme = s.d.nom("bin/quilvane-lot");
        const std::string sortie = s.d.nom("sortie");
        pid = fork();
        if (pid != 0) return;
        const int fd = open(sortie.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
        dup2(fd, 1);
        dup2(fd, 2);
        execv(programme.c_str(), argv.data());
        _exit(127);
    }
    ~coureur() {
        if (pid > 0) {
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
        }
    }
    coureur(const coureur&) = delete;
    coureur& operator=(const coureur&) = delete;

    int finir(int signal) {
        kill(pid, signal);
        int etat = 0;
        waitpid(pid, &etat, 0);
        pid = -1;
        return WIFEXITED(etat) ? WEXITSTATUS(etat) : -1;
    }
};

template <typename Condition>
void attendre(Condition ici) {
    for (int i = 0; i < 60000; ++i) {
        if (ici()) return;
        usleep(1000);
    }
    throw std::runtime_error("what was waited for does not come");
}

/** A fake quilvane ends the file in echecs for this reason. */
void verifierEchec(const std::string& script, const std::string& cause, const std::string& raison,
                   const std::vector<std::string>& options = {}) {
    SCOPED_TRACE(script);
    const depotEssai s(false);
    s.programme("quilvane", script);
    s.deposer("a.vse", accepte());
    const resultat r = s.lancerLot(options);
    EXPECT_EQ(r.statut, 1);
    EXPECT_EQ(s.noms("emis"), std::vector<std::string>{});
    EXPECT_EQ(s.noms("rejets"), std::vector<std::string>{});
    verifierDepot(s, {{"a.vse", {accepte(), "echecs"}}});
    ASSERT_EQ(s.journal().size(), 1U);
    EXPECT_NE(s.journal()[0].find("\"cause\":\"" + cause + "\""), std::string::npos) << s.journal()[0];
    ASSERT_TRUE(s.est("echecs/a.vse.raison.txt"));
    EXPECT_NE(s.lire("echecs/a.vse.raison.txt").find(raison), std::string::npos)
        << s.lire("echecs/a.vse.raison.txt");
}

}  // namespace

TEST(Lot, TroisIssues) {
    const depotEssai s;
    s.deposer(troisEntrees());
    const resultat r = s.lancerLot();
    EXPECT_EQ(r.statut, 1);
    verifierDepot(s, troisEntrees());
    EXPECT_NE(r.sortie.find("accepted bon.vse; records: 2\n"), std::string::npos) << r.sortie;
    EXPECT_NE(r.sortie.find("refused  faux.vse; records: 1 refused of 2; errors: 94\n"), std::string::npos);
    EXPECT_NE(
        r.sortie.find("failed   mauvais.vse: quilvane could not process the file and ended with status 1"),
        std::string::npos);
    EXPECT_NE(r.sortie.find("; 1 accepted, 1 refused, 1 failed.\n"), std::string::npos);
    EXPECT_EQ(r.sortie.find('\r'), std::string::npos);
    EXPECT_EQ(r.sortie.find('\033'), std::string::npos);
    EXPECT_NE(s.lire("echecs/mauvais.vse.raison.txt").find("IG011: Données"), std::string::npos);
}

TEST(Lot, Statuts) {
    const depotEssai s;
    EXPECT_EQ(s.lancerLot().statut, 0);
    s.deposer("a", accepte());
    EXPECT_EQ(s.lancerLot().statut, 0);
    s.deposer("b", refuse());
    EXPECT_EQ(s.lancerLot().statut, 2);
    s.deposer("c", "rien");
    EXPECT_EQ(s.lancerLot().statut, 2);  // an empty FICH count is an error of the file
    s.deposer("d", "rien\n");
    s.deposer("e", refuse());
    EXPECT_EQ(s.lancerLot().statut, 1);
}

TEST(Lot, Couleurs) {
    const depotEssai s;
    s.deposer("a", accepte());
    EXPECT_NE(s.lancerLot({"--couleur", "toujours"}).sortie.find("\033[32m"), std::string::npos);
}

TEST(Lot, DepotInutilisable) {
    const depotEssai s;
    options o;
    o.horloge = "";
    const auto lot = [&](const std::string& depot) {
        return lancerProgramme(s.d.nom("bin/quilvane-lot"), s.d, {depot}, o);
    };
    EXPECT_EQ(lot("absent").statut, 3);
    EXPECT_EQ(lot("bin/quilvane").statut, 3);
    const resultat francais =
        lancerProgramme(s.d.nom("bin/quilvane-lot"), s.d, {"--langue", "fr", "absent"}, o);
    EXPECT_EQ(francais.erreur.find("quilvane-lot: impossible d'ouvrir le dépôt : absent : "), 0U)
        << francais.erreur;
    fs::create_directory_symlink(s.d.nom("bin"), s.d.nom("depot/emis"));
    EXPECT_EQ(lot("depot").statut, 3);
    fs::remove(s.d.nom("depot/emis"));
    fs::remove(s.d.nom("bin/quilvane"));
    EXPECT_EQ(lot("depot").statut, 3);
    EXPECT_EQ(lot("depot").erreur,
              "quilvane-lot: quilvane is found neither beside this program nor on PATH\n");
}

TEST(Lot, UnIncidentNEstPasUnDepotVide) {
    const depotEssai s;
    const std::string vide = "No file to process.\n";
    EXPECT_EQ(s.lancerLot({}).sortie, vide);
    const resultat r = s.lancerLot({"--metriques", "absent/m.prom"});
    EXPECT_EQ(r.statut, 1);
    EXPECT_EQ(r.sortie.find(vide), std::string::npos) << r.sortie;
    EXPECT_EQ(r.sortie.find("Incidents: "), 0U) << r.sortie;
}

TEST(Lot, QuilvaneSurLeChemin) {
    const depotEssai s;
    s.deposer("a", accepte());
    s.d.creerDossier("ailleurs");
    fs::rename(s.d.nom("bin/quilvane"), s.d.nom("ailleurs/quilvane"));
    options o;
    o.milieu["PATH"] = "relatif:" + s.d.nom("ailleurs");
    EXPECT_EQ(s.lancerLot({}, o).statut, 0);
}

TEST(Lot, NomsDejaPris) {
    const depotEssai s;
    for (int i = 0; i < 3; ++i) {
        s.deposer(troisEntrees());
        EXPECT_EQ(s.lancerLot().statut, 1);
    }
    using noms = std::vector<std::string>;
    EXPECT_EQ(s.noms("emis"), (noms{"bon.1.vse", "bon.2.vse", "bon.vse"}));
    EXPECT_EQ(s.noms("rejets"), (noms{"faux.1.vse", "faux.2.vse", "faux.vse"}));
    EXPECT_EQ(s.noms("echecs"), (noms{"mauvais.1.vse", "mauvais.1.vse.raison.txt", "mauvais.2.vse",
                                      "mauvais.2.vse.raison.txt", "mauvais.vse", "mauvais.vse.raison.txt"}));
    EXPECT_EQ(s.archive().size(), 9U);
    EXPECT_EQ(s.journal().size(), 9U);
}

TEST(Lot, UnDossierOuUnLienPrendLeNom) {
    const depotEssai s;
    s.d.creerDossier("depot/emis/a");
    fs::create_symlink("nulle-part", [&] {
        s.d.creerDossier("depot/emis");
        return s.d.nom("depot/emis/a.1");
    }());
    s.deposer("a", accepte());
    EXPECT_EQ(s.lancerLot().statut, 0);
    EXPECT_EQ(s.lire("emis/a.2"), fichierEmis(fich(2), 2, {acti(), acti()}));
}

TEST(Lot, Rapports) {
    const depotEssai s;
    s.programme("quilvane-guide", GUIDE);
    s.deposer("-faux.vse", refuse());
    const resultat r = s.lancerLot({"--langue", "fr"});
    EXPECT_EQ(r.statut, 2);
    EXPECT_EQ(r.erreur, "");
    EXPECT_EQ(s.noms("rejets"), (std::vector<std::string>{"-faux.vse", "-faux.vse.html", "-faux.vse.txt"}));
    EXPECT_EQ(s.lire("rejets/-faux.vse.txt"), "verifier --format texte --langue fr ./-faux.vse\n");
    EXPECT_EQ(s.lire("rejets/-faux.vse.html"), "verifier --format html --langue fr ./-faux.vse\n");
    EXPECT_NE(s.journal()[0].find("\"fichiers\":[\"rejets/-faux.vse.txt\",\"rejets/-faux.vse.html\","
                                  "\"rejets/-faux.vse\"]}"),
              std::string::npos);
}

TEST(Lot, RapportsDontUnNomEstPris) {
    const depotEssai s;
    s.programme("quilvane-guide", GUIDE);
    s.d.creerDossier("depot/rejets");
    s.d.ecrire("depot/rejets/a.vse.html", "ancien");
    s.deposer("a.vse", refuse());
    EXPECT_EQ(s.lancerLot().statut, 2);
    EXPECT_EQ(s.noms("rejets"),
              (std::vector<std::string>{"a.1.vse", "a.1.vse.html", "a.1.vse.txt", "a.vse.html"}));
}

TEST(Lot, SansRapport) {
    const depotEssai s;
    for (int i = 0; i < 2; ++i)
        s.deposer("a" + std::to_string(i), refuse());
    resultat r = s.lancerLot();
    EXPECT_EQ(r.statut, 2);
    EXPECT_EQ(r.erreur, "quilvane-lot: quilvane-guide is not installed: refused files get no report\n");
    EXPECT_EQ(s.noms("rejets"), (std::vector<std::string>{"a0", "a1"}));
    for (const char* guide : {"exit 3\n", "exit 0\n", "kill -9 $$\n"}) {
        s.programme("quilvane-guide", guide);
        for (int i = 0; i < 2; ++i)
            s.deposer("b" + std::to_string(i), refuse());
        r = s.lancerLot();
        EXPECT_EQ(r.statut, 2);
        EXPECT_EQ(r.erreur,
                  "quilvane-lot: quilvane-guide could not make a report: a refused file has none\n");
    }
    EXPECT_EQ(s.noms("rejets").size(), 8U);
}

TEST(Lot, FauxQuilvane) {
    const std::string bon = "cat recu > emis; : > log; rm recu; ";
    verifierEchec("exit 1\n", "statut", "ended with status 1");
    verifierEchec("exit 3\n", "statut", "ended with status 3");
    verifierEchec("printf 'perdu \\351t\\351 \\033\\n' > log; exit 1\n", "statut", "perdu été \\x1b");
    verifierEchec("echo console >&2; exit 1\n", "statut", "console");
    verifierEchec(bon + "echo IG010 > log; exit 0\n", "log", "IG010");
    verifierEchec(bon + "echo IG010 > log; exit 2\n", "log", "IG010");
    verifierEchec(bon + "rm log; exit 0\n", "log", "its log");
    verifierEchec(bon + "rm emis; exit 0\n", "resultat", "no result");
    verifierEchec(bon + "rm emis; mkdir emis; exit 0\n", "resultat", "no result");
    verifierEchec(bon + "rm emis; ln -s log emis; exit 0\n", "resultat", "no result");
    verifierEchec(bon + "exit 0\n", "comptes", "do not fit");  // the FICH record counts 3
    verifierEchec(bon + "exit 0\n", "comptes", "ends in a CR alone");
    verifierEchec(bon + ": > emis; exit 0\n", "comptes", "do not fit");
    verifierEchec(bon + "exit 2\n", "comptes", "do not fit");
    verifierEchec("kill -9 $$\n", "signal", "signal 9");
    verifierEchec("kill -SEGV $$\n", "signal", "signal 11");
    verifierEchec("kill -TERM $$\n", "signal", "signal 15");
    verifierEchec("sleep 1000\n", "delai", "time limit", {"--delai", "1"});
    verifierEchec("sleep 1000 & sleep 1000\n", "delai", "time limit", {"--delai", "1"});
}

TEST(Lot, NiTmpdirNiDescripteurs) {
    const depotEssai s(false);
    // What quilvane gets: no TMPDIR, a folder of its own, of the spool its lock alone.
    s.programme(
        "quilvane",
        "f=$(ls -l /proc/$$/fd)\n"
        "n() { echo \"$f\" | grep -c \"$1\"; }\n"
        "echo \"${TMPDIR-rien} $* $(ls | tr '\\n' ' ') $(n verrou) $(n 'depot/[a-z]*$')\" > log; exit 1\n");
    s.deposer("a", "x\n");
    options o;
    o.milieu["TMPDIR"] = s.d.chemin;
    s.lancerLot({}, o);
    const std::string raison = s.lire("echecs/a.raison.txt");
    EXPECT_NE(raison.find("rien recu emis log console recu  1 0\n"), std::string::npos) << raison;
}

TEST(Lot, NomsHostiles) {
    const depotEssai s;
    std::vector<std::string> hostiles = {"-j",
                                         "--help",
                                         "a b",
                                         "a\nb",
                                         "\xff\xfe",
                                         "'; rm -rf x; '",
                                         "$(x)",
                                         "%s%n",
                                         "\"",
                                         "\\",
                                         std::string(255, 'x'),
                                         "recu",
                                         "emis",
                                         "log",
                                         "verrou"};
    std::map<std::string, entreeLot> entrees;
    for (const std::string& nom : hostiles)
        s.deposer(nom, accepte());
    for (const char* laisse : {".cache", "a.part", "b.tmp", "c.FILEPART"})
        s.deposer(laisse, accepte());
    s.d.creerDossier("depot/arrivee/dossier");
    ASSERT_EQ(mkfifo(s.d.nom("depot/arrivee/tube").c_str(), 0600), 0);
    fs::create_symlink(s.d.nom("bin/quilvane"), s.d.nom("depot/arrivee/lien"));
    EXPECT_EQ(s.lancerLot().statut, 0);
    std::sort(hostiles.begin(), hostiles.end());
    EXPECT_EQ(s.noms("emis"), hostiles);
    EXPECT_EQ(s.noms("arrivee").size(), 7U);
    EXPECT_EQ(s.noms("encours").size(), 0U);
    EXPECT_EQ(s.journal().size(), hostiles.size());
    EXPECT_NE(s.lire("journal.jsonl").find("\"nom\":\"\\\\xff\\\\xfe\",\"nom_hex\":\"fffe\""),
              std::string::npos);
}

TEST(Lot, NomLongEnEchecEtEnDouble) {
    const depotEssai s;
    const std::string nom = std::string(251, 'x') + ".vse";
    for (int i = 0; i < 2; ++i) {
        s.deposer(nom, "rien\n");
        EXPECT_EQ(s.lancerLot().statut, 1);
    }
    EXPECT_EQ(s.noms("echecs").size(), 4U);
    EXPECT_EQ(s.archive().size(), 2U);
}

TEST(Lot, PlusieursALaFois) {
    const depotEssai s;
    std::map<std::string, entreeLot> entrees;
    for (int i = 0; i < 20; ++i)
        for (const auto& [nom, e] : troisEntrees())
            entrees[std::to_string(i) + nom] = e;
    s.deposer(entrees);
    EXPECT_EQ(s.lancerLot({"-j", "4"}).statut, 1);
    verifierDepot(s, entrees);
}

TEST(Lot, FichierTropRecent) {
    const depotEssai s;
    s.deposer("a", accepte());
    // A single pass waits for what stood there when it began.
    EXPECT_EQ(s.lancerLot({"--repos", "0.3"}).statut, 0);
    EXPECT_EQ(s.noms("emis"), std::vector<std::string>{"a"});
}

TEST(Lot, SuivreFinitSurUnSignal) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const depotEssai s;
        s.deposer(troisEntrees());
        coureur c(s, {"--suivre", "--repos", "0", "-j", "2"});
        attendre([&] { return s.journal().size() == 3; });
        auto entrees = troisEntrees();
        entrees["apres.vse"] = {accepte(), "emis"};
        s.d.ecrire("apres", accepte());
        fs::rename(s.d.nom("apres"), s.d.nom("depot/arrivee/apres.vse"));
        attendre([&] { return s.journal().size() == 4 && s.noms("encours").empty(); });
        EXPECT_EQ(c.finir(signal), 1);
        verifierDepot(s, entrees);
    }
}

TEST(Lot, UnSignalLaisseFinir) {
    const depotEssai s(false);
    s.programme("quilvane", ": > " + s.d.nom("la") + "; while [ ! -e " + s.d.nom("feu") +
                                " ]; do sleep 0.01; done; exit 1\n");
    s.deposer("a", accepte());
    s.deposer("b", accepte());
    coureur c(s, {"--repos", "0", "-j", "1"});
    attendre([&] { return s.d.existe("la"); });
    kill(c.pid, SIGTERM);
    attendre([&] { return s.d.lire("sortie").find("asked to stop") != std::string::npos; });
    s.d.ecrire("feu", "");
    EXPECT_EQ(c.finir(0), 1);
    // What ran has ended, the other was not begun.
    EXPECT_EQ(s.noms("echecs"), (std::vector<std::string>{"a", "a.raison.txt"}));
    EXPECT_EQ(s.noms("arrivee"), std::vector<std::string>{"b"});
    EXPECT_EQ(s.noms("encours"), std::vector<std::string>{});
}

TEST(Lot, UnSecondSignalRemet) {
    const depotEssai s(false);
    s.programme("quilvane", "echo $$ > " + s.d.nom("la.part") + "; mv " + s.d.nom("la.part") + " " +
                                s.d.nom("la") + "; exec sleep 1000\n");
    s.deposer("a", accepte());
    coureur c(s, {"--repos", "0", "-j", "1"});
    attendre([&] { return s.d.existe("la"); });
    kill(c.pid, SIGTERM);
    attendre([&] { return s.d.lire("sortie").find("asked to stop") != std::string::npos; });
    EXPECT_EQ(c.finir(SIGTERM), 0);
    EXPECT_EQ(s.lire("arrivee/a"), accepte());
    EXPECT_EQ(s.noms("encours"), std::vector<std::string>{});
    EXPECT_EQ(s.archive().size(), 0U);
    EXPECT_EQ(s.journal().size(), 0U);
    EXPECT_NE(kill(std::stoi(s.d.lire("la")), 0), 0);  // it is gone
}

TEST(Lot, Metriques) {
    const depotEssai s;
    for (int i = 1; i <= 2; ++i) {
        s.deposer(troisEntrees());
        EXPECT_EQ(s.lancerLot({"--metriques", "m.prom"}).statut, 1);
        const std::string m = s.d.lire("m.prom");
        for (const char* issue : {"emis", "rejets", "echecs"})
            EXPECT_NE(m.find(std::string("quilvane_lot_fichiers_total{issue=\"") + issue + "\"} " +
                             std::to_string(i) + "\n"),
                      std::string::npos)
                << m;
        EXPECT_NE(
            m.find("quilvane_lot_enregistrements_total{verdict=\"accepte\"} " + std::to_string(3 * i) + "\n"),
            std::string::npos);
        EXPECT_NE(m.find("quilvane_lot_echecs_presents " + std::to_string(2 * i) + "\n"), std::string::npos);
        EXPECT_FALSE(s.d.existe("m.prom.part"));
    }
    EXPECT_EQ(s.lancerLot({"--metriques", "absent/m.prom"}).statut, 1);
}

// Values that no counter reaches are not counted on; the others are.
TEST(Lot, MetriquesAbimees) {
    const depotEssai s;
    s.d.ecrire("m.prom",
               "quilvane_lot_fichiers_total{issue=\"emis\"} 1e300\n"
               "quilvane_lot_fichiers_total{issue=\"rejets\"} -1\n"
               "quilvane_lot_fichiers_total{issue=\"echecs\"} 41\n"
               "quilvane_lot_incidents_total nan\n"
               "quilvane_lot_traitement_secondes_total inf\n");
    s.deposer(troisEntrees());
    EXPECT_EQ(s.lancerLot({"--metriques", "m.prom"}).statut, 1);
    const std::string m = s.d.lire("m.prom");
    for (const char* ligne :
         {"\nquilvane_lot_fichiers_total{issue=\"emis\"} 1\n",
          "\nquilvane_lot_fichiers_total{issue=\"rejets\"} 1\n",
          "\nquilvane_lot_fichiers_total{issue=\"echecs\"} 42\n", "\nquilvane_lot_incidents_total 0\n"})
        EXPECT_NE(m.find(ligne), std::string::npos) << ligne << m;
    EXPECT_EQ(m.find("secondes_total inf"), std::string::npos);
}

TEST(Lot, Garder) {
    const depotEssai s;
    s.d.creerDossier("ailleurs");
    s.d.ecrire("ailleurs/f", "x");
    for (const char* nom : {"2020/01/31", "2020/02/30", "2020/1/1", "2020/01/xx", "autre/01/01", "2021/12/01",
                            "2021/12/02/sous"}) {
        s.d.creerDossier(std::string("depot/archive/") + nom);
        s.d.ecrire(std::string("depot/archive/") + nom + "/f", "x");
    }
    s.d.ecrire("depot/archive/2020/01/30", "a file, not a day");
    fs::create_directory_symlink(s.d.nom("ailleurs"), s.d.nom("depot/archive/2020/01/05"));
    fs::create_directory_symlink(s.d.nom("ailleurs"), s.d.nom("depot/archive/2020/01/31/lien"));
    s.deposer("a", accepte());
    const resultat r = s.lancerLot({"--garder", "30"});
    EXPECT_EQ(r.statut, 0);
    EXPECT_NE(r.sortie.find("Archive: days removed: 2.\nArchive: days not removed, because"),
              std::string::npos)
        << r.sortie;
    for (const char* parti : {"2020/01/31", "2021/12/01"})
        EXPECT_FALSE(s.est(std::string("archive/") + parti)) << parti;
    for (const char* reste : {"2020/02/30/f", "2020/1/1/f", "2020/01/xx/f", "autre/01/01/f",
                              "2021/12/02/sous/f", "2020/01/30", "2020/01/05"})
        EXPECT_TRUE(s.est(std::string("archive/") + reste)) << reste;
    EXPECT_TRUE(s.d.existe("ailleurs/f"));
    EXPECT_EQ(s.archive().count("a"), 1U);
}
