/**
 * The life of a run: command line, names, opening, publication, undoing.
 */
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <tuple>

#include "attgetopt/attgetopt.h"
#include "driver/etat.h"
#include "driver/quilvane.h"
#include "fautes/fautes.h"
#include "support/attendu.h"
#include "vocabulaire/pack.h"
#include "vocabulaire/store.h"

using namespace essai;
namespace fs = std::filesystem;

namespace {

using mots = std::vector<std::string>;

std::string rejetee() {
    std::string r = acti();
    poser(r, 256, "#");
    return r;
}

/** A file that is accepted, one that is rejected, one that ends the run. */
const std::string BON = fichier({fich(1), acti()});
const std::string MAUVAIS = fichier({fich(1), rejetee()});
const std::string FATAL = fichier({acti()});

const std::string EMIS = fichierEmis(fich(1), 1, {acti()});
const std::string ERREURS =
    fichierErreurs(fich(1), {1, 1, 0}, {erre(rejetee(), {94}, clesExploitation(rejetee()))});

const mots TROIS = {"in", "out", "log"};

const std::string USAGE = latin1(
    "\n Usage : quilvane [-i|-d|-v] <fichier a traiter> <fichier a emettre> <fichier log>\n \n"
    "         -i : resultats des traitements des VSE \n"
    "              vers la console sous forme informatique\n"
    "         -d : resultats des traitements des VSE\n"
    "              vers la console sous forme décriptée\n"
    "         -v : donne la version de quilvane\n ");
const std::string VERSION = "2.23.0 \n";

std::string illegale(const std::string& c) { return "quilvane: illegal option -- " + c + "\n"; }

/** Runs over a folder that holds `octets` as "in" and compares all that is left. */
void verifier(const std::string& octets, int statut, const contenu& attendu, const std::string& erreur = "",
              const mots& arguments = TROIS) {
    const dossier d;
    d.ecrire("in", octets);
    const resultat r = lancer(d, arguments);
    EXPECT_EQ(r.statut, statut);
    EXPECT_EQ(r.sortie, "");
    EXPECT_EQ(r.erreur, erreur);
    EXPECT_EQ(d.contenu(), attendu);
}

}  // namespace

TEST(Cycle, FichierAccepte) { verifier(BON, 0, {{"out", EMIS}, {"log", ""}}); }

TEST(Cycle, FichierRejete) { verifier(MAUVAIS, 2, {{"out", ERREURS}, {"log", ""}}); }

TEST(Cycle, ConditionFataleRendLEntree) { verifier(FATAL, 1, {{"in", FATAL}, {"log", ligneLog(LOG_IG011)}}); }

TEST(Cycle, NumeroDeFichierBlanc) {
    std::string f = fich(1);
    poser(f, 63, std::string(16, ' '));
    const std::string octets = fichier({f, acti()});
    verifier(octets, 1, {{"in", octets}, {"log", ligneLog(LOG_I099)}});
}

TEST(Cycle, LigneDeCommandeSansTraitement) {
    struct cas {
        mots arguments;
        std::string sortie;
        std::string erreur;
    };
    const std::vector<cas> CAS = {
        {{"-v"}, VERSION, ""},
        {{"-v", "-x"}, VERSION, ""},
        {{"-x", "-v"}, VERSION, illegale("x")},
        {{"-i", "-d", "-v", "in", "out", "log"}, VERSION, ""},
        {{"-vx"}, VERSION, ""},
        {{"-xv"}, VERSION, illegale("x")},
        {{"-idv", "in"}, VERSION, ""},
        {{"-D", "x", "-v"}, VERSION, ""},
        {{"-Dx", "-v"}, VERSION, ""},
        {{"-v", "-D"}, VERSION, ""},
        {{}, USAGE, ""},
        {{"in"}, USAGE, ""},
        {{"in", "out"}, USAGE, ""},
        {{"in", "out", "log", "autre"}, USAGE, ""},
        {{"-i", "in", "out"}, USAGE, ""},
        {{"--", "in", "out"}, USAGE, ""},
        {{"--", "-v"}, USAGE, ""},
        {{"-", "-v"}, USAGE, ""},
        {{"in", "out", "log", "-v"}, USAGE, ""},
        {{"-x", "in", "out", "log"}, USAGE, illegale("x")},
        {{"-ixd", "in", "out", "log"}, USAGE, illegale("x")},
        {{"-xy", "-z", "in", "out", "log"}, USAGE, illegale("x") + illegale("y") + illegale("z")},
        {{"-:", "in", "out", "log"}, USAGE, illegale(":")},
        {{"-V", "in", "out", "log"}, USAGE, illegale("V")},
        {{"-\xE9", "in", "out", "log"}, USAGE, illegale("\xE9")},
        {{"--aide", "in", "out", "log"}, USAGE, illegale("-") + illegale("a") + illegale("e")},
        {{"-i-", "in", "out", "log"}, USAGE, illegale("-")},
        {{"-D"}, USAGE, "quilvane: option requires an argument -- D\n"},
        {{"-iD"}, USAGE, "quilvane: option requires an argument -- D\n"},
        {{"-D", "-v"}, USAGE, ""},
        {{"-D", "in", "out", "log"}, USAGE, ""},
    };
    const dossier d;
    const contenu intact = {{"in", BON}, {"out", "ancien"}, {"log", "ancien"}};
    for (const auto& [nom, octets] : intact)
        d.ecrire(nom, octets);
    for (const cas& c : CAS) {
        SCOPED_TRACE(testing::PrintToString(c.arguments));
        const resultat r = lancer(d, c.arguments);
        EXPECT_EQ(r.statut, 3);
        EXPECT_EQ(r.sortie, c.sortie);
        EXPECT_EQ(r.erreur, c.erreur);
        EXPECT_EQ(d.contenu(), intact);
    }
}

TEST(Cycle, LesFautesNommentLeProgrammeTelQuAppele) {
    const dossier d;
    for (const char* nom : {"/usr/bin/quilvane", "autre nom", ""}) {
        const resultat r = lancer(d, {"-x", "-D"}, {.argv0 = nom});
        EXPECT_EQ(r.erreur, std::string(nom) + ": illegal option -- x\n" + nom +
                                ": option requires an argument -- D\n");
        EXPECT_EQ(r.sortie, USAGE);
        EXPECT_EQ(r.statut, 3);
    }
}

TEST(Cycle, LigneDeCommandeAvecTraitement) {
    struct cas {
        mots options;
        char mode;  // '-', 'i' or 'd', as the console tells
    };
    const std::vector<cas> CAS = {
        {{}, '-'},           {{"-i"}, 'i'},
        {{"-d"}, 'd'},       {{"-i", "-d"}, 'd'},
        {{"-d", "-i"}, 'i'}, {{"-id"}, 'd'},
        {{"-di"}, 'i'},      {{"-dd", "-i", "-i"}, 'i'},
        {{"--"}, '-'},       {{"-i", "--"}, 'i'},
        {{"-D", "x"}, '-'},  {{"-Dx"}, '-'},
        {{"-D", "-d"}, '-'}, {{"-D", "--", "-i"}, 'i'},
        {{"-iDd"}, 'i'},     {{"-D", "-x", "-i"}, 'i'},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(testing::PrintToString(c.options));
        const dossier d;
        d.ecrire("in", BON);
        mots arguments = c.options;
        arguments.insert(arguments.end(), TROIS.begin(), TROIS.end());
        const resultat r = lancer(d, arguments);
        EXPECT_EQ(r.statut, 0);
        EXPECT_EQ(r.erreur, "");
        switch (c.mode) {
            case 'i': EXPECT_EQ(r.sortie, "\n\n"); break;
            case 'd': EXPECT_EQ(r.sortie.substr(0, 266), "VSE=|" + fich(1) + "|\n\n\nc"); break;
            default: EXPECT_EQ(r.sortie, "");
        }
        EXPECT_EQ(d.contenu(), (contenu{{"out", EMIS}, {"log", ""}}));
    }
}

TEST(Cycle, DesNomsQuiRessemblentADesOptions) {
    for (const mots& noms : std::vector<mots>{{"in", "-v", "-d"}, {"-", "-i", "--"}}) {
        const dossier d;
        d.ecrire(noms[0], BON);
        const resultat r = lancer(d, noms);
        EXPECT_EQ(r.statut, 0);
        EXPECT_EQ(r.sortie, "");
        EXPECT_EQ(d.contenu(), (contenu{{noms[1], EMIS}, {noms[2], ""}}));
    }
    const dossier d;
    d.ecrire("-in", BON);
    EXPECT_EQ(lancer(d, {"--", "-in", "-out", "--"}).statut, 0);
    EXPECT_EQ(d.contenu(), (contenu{{"-out", EMIS}, {"--", ""}}));
}

TEST(Cycle, EchecsDOuverture) {
    struct cas {
        const char* nom;
        std::function<void(const dossier&)> preparer;
        mots arguments;
        std::string erreur;  // UTF-8
        contenu laisse;
    };
    const std::string ig003 = ligneLog(LOG_IG003);
    const std::string ig009 = ligneLog(LOG_IG009);
    const auto entree = [](const dossier& d) { d.ecrire("in", BON); };
    const auto avec = [](const std::string& sousDossier) {
        return [sousDossier](const dossier& d) {
            d.ecrire("in", BON);
            d.creerDossier(sousDossier);
        };
    };
    const std::string tropLong(255, 'a');
    const std::vector<cas> CAS = {
        {"log in a missing folder",
         entree,
         {"in", "out", "nulle/log"},
         "Ouverture du fichier log: No such file or directory\n",
         {{"in", BON}}},
        {"log is a folder",
         avec("log"),
         TROIS,
         "Ouverture du fichier log: Is a directory\n",
         {{"in", BON}, {"log/", ""}}},
        {"no input",
         [](const dossier& d) { d.ecrire("out", "ancien"); },
         TROIS,
         "Ouverture du fichier à traiter: No such file or directory\n",
         {{"out", "ancien"}, {"log", ig003}}},
        {"no input folder",
         [](const dossier&) {},
         {"nulle/in", "out", "log"},
         "Ouverture du fichier à traiter: No such file or directory\n",
         {{"log", ig003}}},
        {"empty input name",
         entree,
         {"", "out", "log"},
         "Ouverture du fichier à traiter: No such file or directory\n",
         {{"in", BON}, {"log", ig003}}},
        {"input below a file",
         entree,
         {"in/in", "out", "log"},
         "Ouverture du fichier à traiter: Not a directory\n",
         {{"in", BON}, {"log", ig003}}},
        {"input working name is a folder",
         [](const dossier& d) {
             d.ecrire("in", BON);
             d.ecrire("out", "ancien");
             d.creerDossier("in_r");
         },
         TROIS,
         "rename: Is a directory\n",
         {{"in", BON}, {"out", "ancien"}, {"in_r/", ""}, {"log", ig009}}},
        {"input working name too long",
         [&](const dossier& d) { d.ecrire(tropLong, BON); },
         {tropLong, "out", "log"},
         "rename: File name too long\n",
         {{tropLong, BON}, {"log", ig009}}},
        {"output in a missing folder",
         entree,
         {"in", "nulle/out", "log"},
         "Ouverture du fichier résultat: No such file or directory\n",
         {{"in_r", BON}, {"log", ig003}}},
        {"output is a folder",
         avec("out"),
         TROIS,
         "Ouverture du fichier résultat: Is a directory\n",
         {{"in_r", BON}, {"out/", ""}, {"log", ig003}}},
        {"empty output name",
         entree,
         {"in", "", "log"},
         "Ouverture du fichier résultat: No such file or directory\n",
         {{"in_r", BON}, {"log", ig003}}},
        {"temporary output is a folder",
         avec("in_e"),
         TROIS,
         "Ouverture du fichier résultat temporaire: Is a directory\n",
         {{"in_r", BON}, {"out", ""}, {"in_e/", ""}, {"log", ""}}},
        {"error file is a folder",
         avec("in_o"),
         TROIS,
         "Ouverture du fichier des erreurs: Is a directory\n",
         {{"in_r", BON}, {"out", ""}, {"in_e", ""}, {"in_o/", ""}, {"log", ""}}},
        {"input is a folder",
         [](const dossier& d) {
             d.creerDossier("in");
             d.ecrire("in/dedans", "x");
         },
         TROIS,
         "",
         {{"in/", ""}, {"in/dedans", "x"}, {"log", ig003}}},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.nom);
        const dossier d;
        c.preparer(d);
        const resultat r = lancer(d, c.arguments);
        EXPECT_EQ(r.statut, 1);
        EXPECT_EQ(r.sortie, "");
        EXPECT_EQ(r.erreur, latin1(c.erreur));
        EXPECT_EQ(d.contenu(), c.laisse);
    }
}

TEST(Cycle, EntreeRenommeeIllisible) {
    // A relative link leads nowhere from the folder it is moved to.
    const dossier d;
    const dossier travail;
    d.ecrire("donnees", BON);
    fs::create_symlink("donnees", d.nom("in"));
    const resultat r = lancer(d, TROIS, {.milieu = {{"TMPDIR", travail.chemin}}});
    EXPECT_EQ(r.statut, 1);
    EXPECT_EQ(r.erreur, latin1("Ouverture du fichier à traiter renommé: No such file or directory\n"));
    EXPECT_EQ(d.contenu(), (contenu{{"donnees", BON}, {"log", ligneLog(LOG_IG003)}}));
    EXPECT_TRUE(travail.existe("in_r"));
}

namespace {

/** A folder on another file system than the usual ones, or null. */
std::unique_ptr<dossier> ailleurs(const dossier& d) {
    auto autre = std::make_unique<dossier>("/dev/shm");
    struct stat a;
    struct stat b;
    if (stat(d.chemin.c_str(), &a) != 0 || stat(autre->chemin.c_str(), &b) != 0 || a.st_dev == b.st_dev)
        return nullptr;
    return autre;
}

}  // namespace

TEST(Cycle, DossierDeTravailSurUnAutreDisque) {
    const dossier d;
    const std::unique_ptr<dossier> autre = ailleurs(d);
    if (autre == nullptr) GTEST_SKIP() << "one file system only";
    d.ecrire("in", BON);
    d.ecrire("out", "ancien");
    const resultat r = lancer(d, TROIS, {.milieu = {{"TMPDIR", autre->chemin}}});
    EXPECT_EQ(r.statut, 1);
    EXPECT_EQ(r.erreur, "rename: Invalid cross-device link\n");
    EXPECT_EQ(d.contenu(), (contenu{{"in", BON}, {"out", "ancien"}, {"log", ligneLog(LOG_IG009)}}));
    EXPECT_EQ(autre->contenu(), contenu{});
}

TEST(Cycle, SortieSurUnAutreDisque) {
    const dossier d;
    const std::unique_ptr<dossier> autre = ailleurs(d);
    if (autre == nullptr) GTEST_SKIP() << "one file system only";
    struct cas {
        std::string octets;
        int statut;
    };
    for (const cas& c : {cas{BON, 0}, cas{MAUVAIS, 1}}) {
        d.ecrire("in", c.octets);
        d.creerDossier("travail");
        autre->ecrire("out", "ancien");
        const resultat r =
            lancer(d, {"in", autre->nom("out"), "log"}, {.milieu = {{"TMPDIR", d.nom("travail")}}});
        EXPECT_EQ(r.statut, c.statut);
        EXPECT_EQ(r.sortie, "");
        EXPECT_EQ(r.erreur, "rename: Invalid cross-device link\n");
        EXPECT_EQ(d.contenu(), (contenu{{"in", c.octets}, {"travail/", ""}, {"log", ligneLog(LOG_IG010)}}));
        EXPECT_EQ(autre->contenu(), contenu{});
        // Without a working folder of its own the same output is reached.
        EXPECT_EQ(lancer(d, {"in", autre->nom("out"), "log"}).statut, c.statut == 0 ? 0 : 2);
        EXPECT_EQ(autre->contenu(), (contenu{{"out", c.statut == 0 ? EMIS : ERREURS}}));
    }
}

namespace {

/** Runs over `octets` and lets `pendant` change folder `d` while the run has
 *  its files open and has read nothing. */
resultat lancerEnDeuxTemps(const dossier& d, const std::string& octets,
                           const std::function<void(const dossier&)>& pendant) {
    const temoin t;
    d.ecrire("in", octets);
    std::future<resultat> course =
        std::async(std::launch::async, [&] { return lancer(d, TROIS, t.sous("fread:1:attendre")); });
    while (!t.atteint() && course.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
    }
    pendant(d);
    t.d.ecrire("feu", "");
    return course.get();
}

void occuper(const dossier& d, const std::string& nom) {
    fs::remove(d.nom(nom));
    d.creerDossier(nom);
    d.ecrire(nom + "/dedans", "x");
}

}  // namespace

TEST(Cycle, PublicationImpossible) {
    struct cas {
        std::string octets;
        int statut;
    };
    for (const cas& c : {cas{BON, 0}, cas{MAUVAIS, 1}}) {
        const dossier d;
        const resultat r = lancerEnDeuxTemps(d, c.octets, [](const dossier& e) { occuper(e, "out"); });
        EXPECT_EQ(r.statut, c.statut);
        EXPECT_EQ(r.erreur, "rename: Is a directory\n");
        EXPECT_EQ(
            d.contenu(),
            (contenu{{"in", c.octets}, {"out/", ""}, {"out/dedans", "x"}, {"log", ligneLog(LOG_IG010)}}));
    }
}

TEST(Cycle, EntreeImpossibleARendreApresPublication) {
    struct cas {
        std::string octets;
        int statut;
    };
    for (const cas& c : {cas{BON, 0}, cas{MAUVAIS, 1}}) {
        const dossier d;
        const resultat r = lancerEnDeuxTemps(d, c.octets, [](const dossier& e) {
            occuper(e, "out");
            occuper(e, "in");
        });
        EXPECT_EQ(r.statut, c.statut);
        EXPECT_EQ(r.erreur, "rename: Is a directory\nrename: Is a directory\n");
        EXPECT_EQ(d.contenu(), (contenu{{"in/", ""},
                                        {"in/dedans", "x"},
                                        {"out/", ""},
                                        {"out/dedans", "x"},
                                        {"log", ligneLog(LOG_IG009)}}));
    }
}

TEST(Cycle, EntreeImpossibleARendreApresConditionFatale) {
    // The undo comes first: its own failure is the one line of the log.
    struct cas {
        const char* nom;
        std::string octets;
    };
    for (const cas& c : {cas{"first record not FICH", FATAL}, cas{"empty line", fichier({fich(1), ""})},
                         cas{"no message record", fichier({fich(0)})}}) {
        SCOPED_TRACE(c.nom);
        const dossier d;
        const resultat r = lancerEnDeuxTemps(d, c.octets, [](const dossier& e) { occuper(e, "in"); });
        EXPECT_EQ(r.statut, 1);
        EXPECT_EQ(r.erreur, "rename: Is a directory\n");
        EXPECT_EQ(d.contenu(), (contenu{{"in/", ""}, {"in/dedans", "x"}, {"log", ligneLog(LOG_IG009)}}));
    }
}

TEST(Cycle, UneEntreeRevenueSousSonNomEstRemplacee) {
    // What took the input's name during the run gives way to the input.
    const dossier d;
    const resultat r = lancerEnDeuxTemps(d, FATAL, [](const dossier& e) { e.ecrire("in", "autre"); });
    EXPECT_EQ(r.statut, 1);
    EXPECT_EQ(r.erreur, "");
    EXPECT_EQ(d.contenu(), (contenu{{"in", FATAL}, {"log", ligneLog(LOG_IG011)}}));
}

TEST(Cycle, DossierDeTravail) {
    // Mixed line ends end the run and leave the working files where they are.
    const std::string melange = fich(1) + "\n" + acti() + "\r\n";
    const std::string reserve(256, ' ');
    struct cas {
        const char* tmpdir;
        const char* recu;  // where the working files stand
        const char* emis;
    };
    const std::vector<cas> CAS = {
        {nullptr, "a/", "b/"},
        {"travail", "travail/", "travail/"},
        {"travail/", "travail/", "travail/"},
        {"./travail//", "travail/", "travail/"},
        {".", "", ""},
        {"", "a/", "b/"},
        {"nulle", "a/", "b/"},
        {"fichier", "a/", "b/"},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.tmpdir == nullptr ? "TMPDIR not set" : c.tmpdir);
        const dossier d;
        for (const char* sous : {"a", "b", "travail"})
            d.creerDossier(sous);
        d.ecrire("a/in", melange);
        d.ecrire("fichier", "x");
        options o;
        if (c.tmpdir != nullptr) o.milieu["TMPDIR"] = c.tmpdir;
        EXPECT_EQ(lancer(d, {"a/in", "b/out", "log"}, o).statut, 1);
        contenu attendu = {{"a/", ""},       {"b/", ""},    {"travail/", ""},
                           {"fichier", "x"}, {"b/out", ""}, {"log", ligneLog(LOG_IG008)}};
        attendu[std::string(c.recu) + "in_r"] = melange;
        attendu[std::string(c.emis) + "in_e"] = reserve;
        attendu[std::string(c.emis) + "in_o"] = reserve;
        EXPECT_EQ(d.contenu(), attendu);
    }
}

TEST(Cycle, DossierDeTravailParDefaut) {
    // The folder of "nulle\in" is "nulle"; when it does not exist the system's
    // folder for temporary files is taken.
    const dossier d;
    const std::string unique = fs::path(d.chemin).filename().string();
    d.ecrire("nulle\\" + unique, fich(1) + "\n" + acti() + "\r\n");
    EXPECT_EQ(lancer(d, {"nulle\\" + unique, "out", "log"}).statut, 1);
    EXPECT_EQ(d.contenu(), (contenu{{"out", ""},
                                    {"log", ligneLog(LOG_IG008)},
                                    {unique + "_e", std::string(256, ' ')},
                                    {unique + "_o", std::string(256, ' ')}}));
    EXPECT_TRUE(fs::remove("/tmp/" + unique + "_r"));
}

TEST(Cycle, Noms) {
    const std::string long253(253, 'a');
    std::string profond;
    for (int i = 0; i < 10; ++i)
        profond += std::string(200, static_cast<char>('a' + i)) + "/";
    const std::vector<mots> CAS = {
        {"mon fichier", " le resultat ", "le journal"},
        {"in", "s/out", "s/log"},
        {"s/in", "out", "log"},
        {"./in", "./out", "./log"},
        {"s//in", "s///out", "s/log"},
        {"s/../s/in", "s/./out", "log"},
        {"s\\in", "out", "log"},
        {"in", "s\\out", "log"},
        {"s\\\\in", "s\\/out", "log"},
        {"s/a\\b", "s/c\\d", "log"},
        {long253, std::string(255, 'b'), std::string(255, 'c')},
        {"in", profond + "out", profond + "log"},
        {profond + long253, "out", "log"},
        {latin1("reçu"), latin1("émis"), "log"},
        {"%s%n", "%d", "%s"},
        {"in_r", "in_e", "in_o"},
        {"ABS/in", "ABS/out", "ABS/log"},
    };
    for (const mots& c : CAS) {
        SCOPED_TRACE(c[0].substr(0, 40) + " | " + c[1].substr(0, 40));
        const dossier d;
        d.creerDossier("s");
        d.creerDossier("s\\");
        d.creerDossier(profond);
        mots noms = c;
        for (std::string& nom : noms)
            if (nom.starts_with("ABS/")) nom = d.nom(nom.substr(4));
        const auto relatif = [&](const std::string& nom) {
            return nom.starts_with(d.chemin) ? nom.substr(d.chemin.size() + 1) : nom;
        };
        for (const auto& [octets, statut, resultatEmis] :
             {std::tuple{BON, 0, EMIS}, std::tuple{MAUVAIS, 2, ERREURS}}) {
            d.ecrire(relatif(noms[0]), octets);
            const contenu avant = d.contenu();
            const resultat r = lancer(d, noms);
            EXPECT_EQ(r.statut, statut) << r.erreur;
            EXPECT_EQ(d.lire(relatif(noms[1])), resultatEmis);
            EXPECT_EQ(d.lire(relatif(noms[2])), "");
            EXPECT_FALSE(d.existe(relatif(noms[0])));
            // Output and log are there for the one input that is gone.
            const std::size_t ajoutes = statut == 0 ? 2 : 0;
            EXPECT_EQ(d.contenu().size(), avant.size() - 1 + ajoutes);
        }
    }
}

TEST(Cycle, NomDeTravailIntrouvable) {
    // Folder names at the limit of the system leave no room for a working name.
    std::string points;
    while (points.size() < 4088)
        points += "./";
    {
        const dossier d;
        d.ecrire("in", BON);
        const resultat r = lancer(d, {points + "in", "out", "log"});
        EXPECT_EQ(r.statut, 1);
        EXPECT_EQ(r.sortie, latin1("\allocation mémoire impossible sos-2"));
        EXPECT_EQ(r.erreur, "rename: No such file or directory\n");
        EXPECT_EQ(d.contenu(), (contenu{{"in", BON}, {"log", ligneLog(LOG_IG009)}}));
    }
    const dossier d;
    d.ecrire("in", BON);
    const resultat r = lancer(d, {"in", points + "out", "log"});
    EXPECT_EQ(r.statut, 1);
    EXPECT_EQ(r.sortie, latin1("\allocation mémoire impossible sos-3"));
    EXPECT_EQ(r.erreur, latin1("Ouverture du fichier résultat temporaire: No such file or directory\n"));
    EXPECT_EQ(d.contenu(), (contenu{{"in_r", BON}, {"out", ""}, {"log", ""}}));
}

TEST(Cycle, EntreeEtSortieLeMemeFichier) {
    struct cas {
        const char* nom;
        std::function<void(const dossier&)> preparer;  // "a" holds the bytes
        const char* recu;
        const char* emis;
        mots apresResultat;  // names left, with the result
        mots apresEchec;     // names left, with the input's bytes
    };
    const auto rien = [](const dossier&) {};
    const std::vector<cas> CAS = {
        {"same name", rien, "a", "a", {"a"}, {"a"}},
        {"same file, other spelling", rien, "a", "./a", {"a"}, {"a"}},
        {"output is a hard link",
         [](const dossier& d) { fs::create_hard_link(d.nom("a"), d.nom("b")); },
         "a",
         "b",
         {"b"},
         {"a", "b"}},
        {"input is a link to the output",
         [](const dossier& d) { fs::create_symlink("a", d.nom("b")); },
         "b",
         "a",
         {"a"},
         {"a", "b"}},
    };
    for (const cas& c : CAS) {
        for (const auto& [octets, statut, resultatEmis, log] :
             {std::tuple{BON, 0, EMIS, std::string()}, std::tuple{MAUVAIS, 2, ERREURS, std::string()},
              std::tuple{FATAL, 1, FATAL, ligneLog(LOG_IG011)}}) {
            SCOPED_TRACE(std::string(c.nom) + ", status " + std::to_string(statut));
            const dossier d;
            d.ecrire("a", octets);
            c.preparer(d);
            const resultat r = lancer(d, {c.recu, c.emis, "log"});
            EXPECT_EQ(r.statut, statut);
            EXPECT_EQ(r.erreur, "");
            contenu attendu = {{"log", log}};
            for (const std::string& nom : statut == 1 ? c.apresEchec : c.apresResultat)
                attendu[nom] = resultatEmis;
            EXPECT_EQ(d.contenu(), attendu);
        }
    }
}

TEST(Cycle, SortieEstUnLienVersLEntree) {
    for (const auto& [octets, statut, resultatEmis] :
         {std::tuple{BON, 0, EMIS}, std::tuple{MAUVAIS, 2, ERREURS}}) {
        const dossier d;
        d.ecrire("in", octets);
        fs::create_symlink("in", d.nom("out"));
        EXPECT_EQ(lancer(d, TROIS).statut, statut);
        EXPECT_FALSE(fs::is_symlink(d.nom("out")));
        EXPECT_EQ(d.contenu(), (contenu{{"out", resultatEmis}, {"log", ""}}));
    }
    const dossier d;
    d.ecrire("in", FATAL);
    fs::create_symlink("in", d.nom("out"));
    EXPECT_EQ(lancer(d, TROIS).statut, 1);
    EXPECT_EQ(d.contenu(), (contenu{{"in", FATAL}, {"out", FATAL}, {"log", ligneLog(LOG_IG011)}}));
}

TEST(Cycle, SortieEstUnAutreLien) {
    struct cas {
        const char* nom;
        const char* entree;  // where the input's name leads, null: it is the file
        const char* sortie;  // where the output's name leads
        const char* reste;   // file that stays beside the result
        std::string octets;
    };
    for (const cas& c : {cas{"to another file, which is emptied", nullptr, "autre", "autre", ""},
                         cas{"to a file that is made", nullptr, "nouveau", "nouveau", ""},
                         cas{"both to one file, which is only read", "donnees", "donnees", "donnees", BON}}) {
        SCOPED_TRACE(c.nom);
        const dossier d;
        d.ecrire("autre", "ancien");
        d.ecrire(c.entree != nullptr ? c.entree : "in", BON);
        if (c.entree != nullptr) fs::create_symlink(c.entree, d.nom("in"));
        fs::create_symlink(c.sortie, d.nom("out"));
        const resultat r = lancer(d, TROIS);
        EXPECT_EQ(r.statut, 0);
        EXPECT_EQ(r.erreur, "");
        EXPECT_FALSE(fs::is_symlink(d.nom("out")));
        contenu attendu = {{"autre", "ancien"}, {"out", EMIS}, {"log", ""}};
        attendu[c.reste] = c.octets;
        EXPECT_EQ(d.contenu(), attendu);
    }
}

TEST(Cycle, LeLogNeContientQueLaDerniereCourse) {
    const dossier d;
    d.ecrire("log", "ancien");
    d.ecrire("in", FATAL);
    EXPECT_EQ(lancer(d, TROIS).statut, 1);
    EXPECT_EQ(d.lire("log"), ligneLog(LOG_IG011));
    d.ecrire("in", BON);
    EXPECT_EQ(lancer(d, TROIS).statut, 0);
    EXPECT_EQ(d.contenu(), (contenu{{"out", EMIS}, {"log", ""}}));
}

TEST(Cycle, LogSousLeNomDeLaSortie) {
    // The result takes the name; after a fatal condition it is removed with
    // the empty output, before its line is written.
    for (const auto& [octets, statut, laisse] :
         {std::tuple{BON, 0, contenu{{"out", EMIS}}}, std::tuple{MAUVAIS, 2, contenu{{"out", ERREURS}}},
          std::tuple{FATAL, 1, contenu{{"in", FATAL}}}}) {
        const dossier d;
        d.ecrire("in", octets);
        EXPECT_EQ(lancer(d, {"in", "out", "out"}).statut, statut);
        EXPECT_EQ(d.contenu(), laisse);
    }
}

TEST(Cycle, LogQuiDesigneLEntree) {
    const auto lien = [](const dossier& d) { fs::create_symlink("in", d.nom("log")); };
    const auto lienDur = [](const dossier& d) { fs::create_hard_link(d.nom("in"), d.nom("log")); };
    const auto rien = [](const dossier&) {};
    for (const auto& [nom, preparer] :
         std::vector<std::pair<const char*, std::function<void(const dossier&)>>>{
             {"in", rien}, {"./in", rien}, {"log", lien}, {"log", lienDur}}) {
        SCOPED_TRACE(nom);
        const dossier d;
        d.ecrire("in", BON);
        d.ecrire("out", "ancien");
        preparer(d);
        const contenu avant = d.contenu();
        const resultat r = lancer(d, {"in", "out", nom});
        EXPECT_EQ(r.statut, 1);
        EXPECT_EQ(r.sortie, "");
        EXPECT_EQ(r.erreur, "Ouverture du fichier log: File exists\n");
        EXPECT_EQ(d.contenu(), avant);
    }
}

// The log that opening makes under the input's name is no input.
TEST(Cycle, LogQuiDesigneUneEntreeAbsente) {
    for (const char* nom : {"in", "./in", "log"}) {
        SCOPED_TRACE(nom);
        const dossier d;
        d.ecrire("out", "ancien");
        if (nom == std::string("log")) fs::create_symlink("in", d.nom("log"));
        const resultat r = lancer(d, {"in", "out", nom});
        EXPECT_EQ(r.statut, 1);
        EXPECT_EQ(r.erreur, latin1("Ouverture du fichier à traiter: No such file or directory\n"));
        contenu attendu = {{"out", "ancien"}, {"in", ligneLog(LOG_IG003)}};
        if (nom == std::string("log")) attendu["log"] = ligneLog(LOG_IG003);
        EXPECT_EQ(d.contenu(), attendu);
    }
}

// A link that still leads to the input after its renaming is tried like any output.
TEST(Cycle, EntreeEtSortieLiensVersUnDossier) {
    const dossier d;
    fs::create_directory(d.nom("dossier"));
    fs::create_symlink("dossier", d.nom("in"));
    fs::create_symlink("dossier", d.nom("out"));
    const resultat r = lancer(d, TROIS);
    EXPECT_EQ(r.statut, 1);
    EXPECT_EQ(r.erreur, latin1("Ouverture du fichier résultat: Is a directory\n"));
    EXPECT_EQ(d.lire("log"), ligneLog(LOG_IG003));
    EXPECT_TRUE(fs::is_symlink(d.nom("in_r")));
    EXPECT_FALSE(fs::exists(fs::symlink_status(d.nom("in"))));
}

TEST(Cycle, LaConsoleNeChangePasLesFichiers) {
    for (const char* option : {"-i", "-d"}) {
        for (const auto& [octets, statut, resultatEmis] :
             {std::tuple{BON, 0, EMIS}, std::tuple{MAUVAIS, 2, ERREURS}}) {
            const dossier d;
            d.ecrire("in", octets);
            EXPECT_EQ(lancer(d, {option, "in", "out", "log"}).statut, statut);
            EXPECT_EQ(d.contenu(), (contenu{{"out", resultatEmis}, {"log", ""}}));
        }
    }
}

TEST(Cycle, JetonDuPremierArgument) {
    struct cas {
        mots arguments;
        std::string jeton;
    };
    const std::string long31(31, 'x');
    const std::vector<cas> CAS = {
        {{"nulle/AB_123_x.txt", "out", "log"}, "123"},
        {{"-i", "nulle/AB_123_x.txt", "out", "log"}, ""},
        {{"nulle/AB_123", "out", "log"}, "123"},
        {{"nulle/AB", "x_1_", "log"}, ""},
        {{"nulle/AB__1_", "out", "log"}, ""},
        {{"nulle_4/AB_5", "out", "log"}, "4/AB"},
        {{"-D_77_", "nulle/AB_5", "out", "log"}, "77"},
        {{"nulle/_" + long31, "out", "log"}, long31},
        {{"nulle/_" + long31 + "yz", "out", "log"}, long31},
    };
    const dossier d;
    for (const cas& c : CAS) {
        quilvane::initialiserEtat();
        quilvane::recommencerOptions();
        std::memset(quilvane::bufC11, '?', sizeof quilvane::bufC11 - 1);
        mots arguments = c.arguments;
        arguments.insert(arguments.begin(), "quilvane");
        if (arguments.back() == "log") arguments.back() = d.nom("log");
        std::vector<char*> argv;
        for (std::string& a : arguments)
            argv.push_back(a.data());
        argv.push_back(nullptr);
        testing::internal::CaptureStderr();
        testing::internal::CaptureStdout();
        const int statut = quilvane::quilvane(static_cast<int>(arguments.size()), argv.data());
        testing::internal::GetCapturedStdout();
        testing::internal::GetCapturedStderr();
        EXPECT_EQ(statut, 1);  // there is no such input file
        EXPECT_EQ(quilvane::bufC11, c.jeton) << testing::PrintToString(c.arguments);
    }
}
