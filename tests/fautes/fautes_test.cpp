/**
 * Calls of the C library that fail, one by one and from one on: what the run
 * says, how it ends and what it leaves.
 */
#include "fautes/fautes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace essai;

namespace {

using mots = std::vector<std::string>;

/** Texts of the errors that the fault library gives. */
constexpr const char* OUVERTURE = "Too many open files";
constexpr const char* RENOMMAGE = "rename: Device or resource busy\n";
constexpr const char* FERMETURE = "rename: Disk quota exceeded\n";
constexpr const char* MEMOIRE = "Cannot allocate memory";
constexpr const char* ECRITURE = "Écriture incomplète sur la console ou dans le fichier log\n";
constexpr const char* ABSENT = "No such file or directory";

struct attente {
    int statut = 0;
    contenu fichiers = {};
    std::string erreur = "";  // UTF-8
    std::string sortie = "";  // UTF-8
    bool operator==(const attente&) const = default;
};

void PrintTo(const attente& a, std::ostream* flux) {
    *flux << "status " << a.statut << ", stderr \"" << a.erreur << "\", stdout \"" << a.sortie << "\", files";
    for (const auto& [nom, octets] : a.fichiers)
        *flux << ' ' << nom << ": " << octets.size() << " bytes \"" << octets.substr(0, 90) << "\"";
}

attente sansFaute(const passage& p) { return {p.statut, laisse(p)}; }

/** The result cannot be published: the input is given back. */
attente rendu(const passage& p, int statut, const std::string& erreur) {
    return {statut, {{"in", p.octets}, {"log", ligneLog(LOG_IG010)}}, erreur};
}

/** Nor can the input be given back: everything is removed. */
attente perdu(int statut, const std::string& erreur) {
    return {statut, {{"log", ligneLog(LOG_IG009)}}, erreur};
}

/** A run over `p` as "in" with an old output; checks what holds under any fault. */
attente courir(const passage& p, const temoin& t, const std::string& faute, const contenu& milieu = {}) {
    const dossier d;
    d.ecrire("in", p.octets);
    d.ecrire("out", ANCIEN);
    options o = t.sous(faute);
    for (const auto& [nom, valeur] : milieu)
        o.milieu[nom] = valeur == "." ? d.chemin : valeur;
    const resultat r = lancer(d, {"in", "out", "log"}, o);
    EXPECT_EQ(r.signal, 0);
    const attente a = {r.statut, d.contenu(), r.erreur, r.sortie};
    const auto contient = [&](const std::string& nom, const std::string& octets) {
        const auto i = a.fichiers.find(nom);
        return i != a.fichiers.end() && i->second == octets;
    };
    const bool toutRetire = contient("log", ligneLog(LOG_IG009)) && a.fichiers.size() == 1;
    const bool sauf = contient("in", p.octets) || contient("in_r", p.octets) || contient("_r", p.octets) ||
                      (!p.publie.empty() && contient("out", p.publie));
    EXPECT_TRUE(sauf || toutRetire) << "neither the input nor a whole result is left";
    return a;
}

void comparer(const attente& recu, attente attendu) {
    attendu.erreur = latin1(attendu.erreur);
    attendu.sortie = latin1(attendu.sortie);
    EXPECT_EQ(recu, attendu);
}

std::string trace(const passage& p, const std::string& faute) { return std::string(p.nom) + ", " + faute; }

mots trie(mots m) {
    std::sort(m.begin(), m.end());
    return m;
}

}  // namespace

TEST(Fautes, LaBibliothequeSansOrdreNeChangeRien) {
    for (const passage& p : passages()) {
        SCOPED_TRACE(p.nom);
        const temoin t;
        comparer(courir(p, t, ""), sansFaute(p));
        EXPECT_FALSE(t.atteint());
        EXPECT_EQ(t.ouverts(), mots{});
    }
}

TEST(Fautes, Ouvertures) {
    // In the order of the openings; the last two lose their log line.
    struct cas {
        const char* fichier;
        const char* message;
        const char* log;      // null: no log at all
        bool renomme;         // the input has its working name
        const char* out;      // content of the output name
        const char* tmpEmis;  // content of the temporary output, or null
        mots ouverts;         // what may be left open
    };
    const std::vector<cas> CAS = {
        {"log", "Ouverture du fichier log", nullptr, false, ANCIEN, nullptr, {}},
        {"in", "Ouverture du fichier à traiter", LOG_IG003, false, ANCIEN, nullptr, {}},
        {"in_r", "Ouverture du fichier à traiter renommé", LOG_IG003, true, ANCIEN, nullptr, {}},
        {"out", "Ouverture du fichier résultat", LOG_IG003, true, ANCIEN, nullptr, {"in_r"}},
        {"in_e", "Ouverture du fichier résultat temporaire", "", true, "", nullptr, {}},
        {"in_o", "Ouverture du fichier des erreurs", "", true, "", "", {}},
    };
    for (const passage& p : passages()) {
        for (const char* action : {"refuser", "toujours"}) {
            for (std::size_t n = 1; n <= CAS.size(); ++n) {
                const cas& c = CAS[n - 1];
                const std::string faute = "open:" + std::to_string(n) + ":" + action;
                SCOPED_TRACE(trace(p, faute));
                const temoin t;
                attente a = {1, {{"out", c.out}}, std::string(c.message) + ": " + OUVERTURE + "\n"};
                a.fichiers[c.renomme ? "in_r" : "in"] = p.octets;
                if (c.log != nullptr) a.fichiers["log"] = *c.log != '\0' ? ligneLog(c.log) : "";
                if (c.tmpEmis != nullptr) a.fichiers["in_e"] = c.tmpEmis;
                comparer(courir(p, t, faute), a);
                EXPECT_EQ(t.touches(), mots{c.fichier});
                for (const std::string& nom : t.ouverts())
                    EXPECT_TRUE(std::count(c.ouverts.begin(), c.ouverts.end(), nom) == 1)
                        << nom << " left open";
            }
            // One opening more is that of the folder, which may fail.
            const temoin t;
            SCOPED_TRACE(trace(p, "one opening more"));
            comparer(courir(p, t, "open:" + std::to_string(CAS.size() + 1) + ":" + action), sansFaute(p));
            EXPECT_EQ(t.atteint(), !p.publie.empty());
        }
    }
}

TEST(Fautes, Renommages) {
    for (const passage& p : passages()) {
        // The next renaming publishes, or gives the input of a fatal file back.
        const bool fatal = p.publie.empty();
        const std::string travail = "in" + p.travail;
        const std::string deux = std::string(RENOMMAGE) + RENOMMAGE;
        // A publication that fails leaves an accepted file's status as it is.
        const int statut = p.statut == 0 ? 0 : 1;
        const attente jamaisPris = {
            1, {{"in", p.octets}, {"out", ANCIEN}, {"log", ligneLog(LOG_IG009)}}, RENOMMAGE};
        struct cas {
            const char* faute;
            mots touches;
            attente attendu;
        };
        const std::vector<cas> CAS = {
            {"renameat2:1:refuser", {"in"}, jamaisPris},
            {"renameat2:1:toujours", {"in"}, jamaisPris},
            {"renameat2:2:refuser", {}, sansFaute(p)},
            {"rename:1:refuser",
             {fatal ? "in_r" : travail},
             fatal ? perdu(1, RENOMMAGE) : rendu(p, statut, RENOMMAGE)},
            {"rename:1:toujours", fatal ? mots{"in_r"} : mots{travail, "in_r"},
             fatal ? perdu(1, RENOMMAGE) : perdu(statut, deux)},
            {fatal ? "rename:2:refuser" : "rename:3:refuser", {}, sansFaute(p)},
            {fatal ? "rename:2:toujours" : "rename:2:refuser", {}, sansFaute(p)},
        };
        for (const cas& c : CAS) {
            SCOPED_TRACE(trace(p, c.faute));
            const temoin t;
            comparer(courir(p, t, c.faute), c.attendu);
            EXPECT_EQ(t.touches(), c.touches);
            EXPECT_EQ(t.ouverts(), mots{});
        }
    }
}

TEST(Fautes, Suppressions) {
    // What cannot be removed stays and disturbs nothing else.
    for (const passage& p : passages()) {
        const bool fatal = p.publie.empty();
        const mots ordre = fatal           ? mots{"in", "in_e", "out", "in_o"}
                           : p.statut == 0 ? mots{"in_r", "in_o"}
                                           : mots{"in_r", "in_e"};
        const contenu reste = {{"in_r", p.octets}, {"in_e", p.tmpEmis}, {"in_o", p.erre}, {"out", ""}};
        for (const bool toujours : {false, true}) {
            for (std::size_t n = 1; n <= ordre.size() + 1; ++n) {
                const std::string faute =
                    "remove:" + std::to_string(n) + (toujours ? ":toujours" : ":refuser");
                SCOPED_TRACE(trace(p, faute));
                const auto debut = ordre.begin() + static_cast<std::ptrdiff_t>(n - 1);
                const mots touches(debut, toujours || debut == ordre.end() ? ordre.end() : debut + 1);
                attente a = sansFaute(p);
                for (const std::string& nom : touches)
                    if (nom != "in" && (nom != "out" || fatal)) a.fichiers[nom] = reste.at(nom);
                const temoin t;
                comparer(courir(p, t, faute), a);
                EXPECT_EQ(t.touches(), touches);
                EXPECT_EQ(t.ouverts(), mots{});
            }
        }
    }
}

TEST(Fautes, Fermetures) {
    // Only the file that is to be published counts.
    for (const passage& p : passages()) {
        for (const char* action : {"refuser", "toujours"}) {
            mots premiers;
            for (int n = 1;; ++n) {
                ASSERT_LT(n, ASSEZ);
                const std::string faute = "fclose:" + std::to_string(n) + ":" + action;
                SCOPED_TRACE(trace(p, faute));
                const temoin t;
                const attente a = courir(p, t, faute);
                const bool publie = !p.publie.empty() && t.touche("in" + p.travail);
                attente attendu = publie ? rendu(p, 1, FERMETURE) : sansFaute(p);
                if (t.touche("log") && !attendu.fichiers["log"].empty()) attendu.erreur += ECRITURE;
                comparer(a, attendu);
                EXPECT_EQ(t.ouverts(), mots{});
                if (!t.atteint()) break;
                premiers.push_back(t.touches().front());
            }
            EXPECT_EQ(premiers.empty() ? "" : premiers.back(), "log");
            EXPECT_EQ(trie(premiers), (mots{"in_e", "in_o", "in_r", "log"}));
        }
    }
}

TEST(Fautes, FermeturePuisRenommage) {
    // The result is not whole and the input cannot be given back.
    for (const passage& p : passages()) {
        if (p.publie.empty()) continue;
        for (int n = 1; n <= 3; ++n) {  // all closes but the log's
            const std::string faute = "fclose:" + std::to_string(n) + ":refuser,rename:1:refuser";
            SCOPED_TRACE(trace(p, faute));
            const temoin t;
            const attente a = courir(p, t, faute);
            if (t.touches().front() == "in" + p.travail)
                comparer(a, perdu(1, std::string(FERMETURE) + RENOMMAGE));
            else
                comparer(a, rendu(p, p.statut == 0 ? 0 : 1, RENOMMAGE));
        }
    }
}

TEST(Fautes, Ecritures) {
    for (const passage& p : passages()) {
        for (const char* action : {"refuser", "toujours"}) {
            mots premiers;
            int rendus = 0;
            for (int n = 1;; ++n) {
                ASSERT_LT(n, ASSEZ);
                const std::string faute = "fwrite:" + std::to_string(n) + ":" + action;
                SCOPED_TRACE(trace(p, faute));
                const temoin t;
                attente a = courir(p, t, faute);
                if (!t.atteint()) {
                    comparer(a, sansFaute(p));
                    break;
                }
                premiers.push_back(t.touches().front());
                EXPECT_EQ(t.ouverts(), mots{});
                if (p.publie.empty()) {
                    comparer(a, sansFaute(p));
                } else if (t.touche("in" + p.travail)) {
                    // Which error it was is no longer known, but that it was one.
                    EXPECT_TRUE(a.erreur.starts_with("rename: ")) << a.erreur;
                    EXPECT_NE(a.erreur, "rename: Success\n");
                    EXPECT_EQ(std::count(a.erreur.begin(), a.erreur.end(), '\n'), 1);
                    a.erreur.clear();
                    comparer(a, rendu(p, 1, ""));
                    ++rendus;
                } else {
                    attente attendu = sansFaute(p);
                    comparer(a, attendu);
                }
            }
            // Both files were met, from their first byte to the summary record.
            EXPECT_GE(std::count(premiers.begin(), premiers.end(), "in_e"), 1);
            EXPECT_GE(std::count(premiers.begin(), premiers.end(), "in_o"), 1);
            EXPECT_GE(rendus, p.publie.empty() ? 0 : 3) << p.nom;
        }
    }
}

TEST(Fautes, Lectures) {
    // A read error is no end of file: the run is undone.
    for (const passage& p : passages()) {
        int n = 1;
        for (;; ++n) {
            ASSERT_LT(n, ASSEZ);
            const std::string faute = "fread:" + std::to_string(n) + ":refuser";
            SCOPED_TRACE(trace(p, faute));
            const temoin t;
            const attente a = courir(p, t, faute);
            EXPECT_EQ(t.ouverts(), mots{});
            if (!t.atteint()) {
                comparer(a, sansFaute(p));
                break;
            }
            EXPECT_EQ(t.touches(), mots{"in_r"});
            comparer(a, {1, {{"in", p.octets}, {"log", ligneLog(LOG_IG003)}}});
        }
        EXPECT_GT(n, 1);
    }
}

TEST(Fautes, Allocations) {
#ifdef QUILVANE_ASSAINI
    GTEST_SKIP() << "the address sanitizer has its own allocator, which no library can stand in front of";
#endif
    // As n grows the run must fail in these ways, in this order, and in no other.
    const std::string texte = "\allocation mémoire impossible";
    for (const passage& p : passages()) {
        const std::string ig003 = ligneLog(LOG_IG003);
        const std::string ig009 = ligneLog(LOG_IG009);
        const auto echec = [](const char* message, const char* cause) {
            return std::string(message) + ": " + cause + "\n";
        };
        const contenu pris = {{"in_r", p.octets}, {"out", ""}, {"log", ""}};
        contenu prisAvecEmis = pris;
        prisAvecEmis["in_e"] = "";
        const contenu intact = {{"in", p.octets}, {"out", ANCIEN}};
        const auto avecLog = [](contenu c, const std::string& log) {
            c["log"] = log;
            return c;
        };
        const char* const LOG = "Ouverture du fichier log";
        const char* const TMP_RECU = "Ouverture du fichier à traiter renommé";
        const char* const TMP_EMIS = "Ouverture du fichier résultat temporaire";
        const char* const ERRE = "Ouverture du fichier des erreurs";
        const attente suite[] = {
            {1, avecLog(intact, ig009), echec("rename", ABSENT), texte + " sos-2"},
            {1, {{"in_r", p.octets}, {"out", ANCIEN}, {"log", ig003}}, echec(TMP_RECU, MEMOIRE)},
            {1, pris, echec(TMP_EMIS, ABSENT), texte + " sos-3"},
            {1, pris, echec(TMP_EMIS, MEMOIRE)},
            {1, prisAvecEmis, echec(ERRE, ABSENT), texte + " sos-3"},
            {1, prisAvecEmis, echec(ERRE, MEMOIRE)},
        };
        // A folder or file name that is missing is reported and does no harm:
        // TMPDIR says where to work.
        std::vector<attente> un = {sansFaute(p), {1, avecLog(intact, ""), echec(LOG, MEMOIRE)}};
        un[0].sortie = texte;
        std::vector<attente> tous(3, {1, avecLog(intact, ""), echec(LOG, MEMOIRE)});
        tous[0].sortie = texte + texte + texte;
        tous[1].sortie = texte + texte;
        tous[2].sortie = texte;
        tous.push_back({1, avecLog(intact, ""), echec(LOG, MEMOIRE)});
        un.insert(un.end(), std::begin(suite), std::end(suite));
        tous.insert(tous.end(), std::begin(suite), std::end(suite));

        for (const bool toujours : {false, true}) {
            std::vector<attente> vus;
            int sansNom = 0;
            for (int n = 1;; ++n) {
                ASSERT_LT(n, ASSEZ);
                const temoin t;
                const attente a =
                    courir(p, t, "malloc:" + std::to_string(n) + (toujours ? ":toujours" : ":refuser"),
                           {{"TMPDIR", "."}});
                if (a.sortie == latin1(texte)) ++sansNom;
                if (a != sansFaute(p) && (vus.empty() || a != vus.back())) vus.push_back(a);
                if (!t.atteint()) {
                    comparer(a, sansFaute(p));
                    break;
                }
            }
            const std::vector<attente>& attendus = toujours ? tous : un;
            ASSERT_EQ(vus.size(), attendus.size()) << testing::PrintToString(vus);
            for (std::size_t i = 0; i < vus.size(); ++i) {
                SCOPED_TRACE(std::string(p.nom) + (toujours ? ", from it on, " : ", one, ") +
                             std::to_string(i));
                comparer(vus[i], attendus[i]);
            }
            EXPECT_EQ(sansNom, toujours ? 1 : 3) << "the two folders and the file name";
        }
    }
}

TEST(Fautes, AppelsSurLesFichiersTenus) {
    // One at a time and from the n-th on; an older input and older working
    // files stand in the way, so that every call is made.
    struct cas {
        const char* fonction;
        int auMoins;  // how many calls an undisturbed run makes at least
    };
    const std::vector<cas> CAS = {{"open", 9},      {"fdopen", 4}, {"flock", 7},  {"fsync", 1},
                                  {"renameat2", 3}, {"stat", 20},  {"fcntl", 2},  {"ftruncate", 1},
                                  {"unlink", 2},    {"link", 0},   {"rename", 1}, {"remove", 2}};
    for (const passage& p : passages()) {
        for (const cas& c : CAS) {
            for (const std::string action : {"refuser", "toujours", "manquer"}) {
                if (action == "manquer" && c.fonction != std::string("flock")) continue;
                for (int n = 1;; ++n) {
                    ASSERT_LT(n, ASSEZ);
                    SCOPED_TRACE(std::string(p.nom) + ", " + c.fonction + ":" + std::to_string(n) + ":" +
                                 action);
                    const dossier d;
                    const temoin t;
                    d.ecrire("in", p.octets);
                    d.ecrire("out", ANCIEN);
                    d.ecrire("victime", ANCIEN);
                    d.ecrire("in_r", "plus ancienne");
                    d.ecrire("in_e", "reste");
                    std::filesystem::create_symlink("victime", d.nom("in_o"));
                    const resultat r = lancer(d, {"in", "out", "log"},
                                              t.sous(c.fonction + (":" + std::to_string(n)) + ":" + action));
                    EXPECT_EQ(r.signal, 0);
                    const contenu reste = d.contenu();
                    const auto contient = [&](const char* nom, const std::string& octets) {
                        const auto i = reste.find(nom);
                        return i != reste.end() && i->second == octets;
                    };
                    EXPECT_TRUE(contient("in", p.octets) || contient("in_r", p.octets) ||
                                (!p.publie.empty() && contient("out", p.publie)) ||
                                contient("log", ligneLog(LOG_IG009)))
                        << "neither the input nor a whole result is left";
                    EXPECT_TRUE(contient("in_r", "plus ancienne") || contient("in_r.~1~", "plus ancienne"));
                    EXPECT_TRUE(contient("victime", ANCIEN));
                    // The opening of the output fails with the input open.
                    if (r.statut != 1) {
                        EXPECT_EQ(t.ouverts(), mots{});
                    }
                    if (r.statut == 2) {
                        EXPECT_TRUE(contient("out", p.publie));
                    }
                    if (!t.atteint()) {
                        contenu attendu = laisse(p);
                        attendu["victime"] = ANCIEN;
                        attendu["in_r.~1~"] = "plus ancienne";
                        EXPECT_EQ(reste, attendu);
                        EXPECT_EQ(r.statut, p.statut);
                        if (!p.publie.empty()) {
                            EXPECT_GT(n, c.auMoins);
                        }
                        break;
                    }
                }
            }
        }
    }
}

TEST(Fautes, SansRenommageQuiNEcrasePas) {
    // The file system cannot rename without overwriting, or has no second names either.
    for (const passage& p : passages()) {
        for (const char* faute : {"renameat2:1:manquer", "renameat2:1:manquer,link:1:manquer"}) {
            SCOPED_TRACE(trace(p, faute));
            const dossier d;
            const temoin t;
            d.ecrire("in", p.octets);
            d.ecrire("in_r", "plus ancienne");
            d.ecrire("in_r.~1~", "encore");
            const resultat r = lancer(d, {"in", "out", "log"}, t.sous(faute));
            EXPECT_EQ(r.statut, p.statut);
            EXPECT_EQ(r.erreur, "");
            EXPECT_TRUE(t.touche("in") && t.touche("in_r"));
            contenu attendu = laisse(p);
            attendu["in_r.~1~"] = "encore";
            attendu["in_r.~2~"] = "plus ancienne";
            EXPECT_EQ(d.contenu(), attendu);
        }
    }
}

TEST(Fautes, Synchronisations) {
    // The result must reach the disk; its folder need not.
    for (const passage& p : passages()) {
        if (p.publie.empty()) continue;
        {
            const temoin t;
            comparer(courir(p, t, "fsync:1:refuser"), rendu(p, 1, "rename: Input/output error\n"));
            EXPECT_EQ(t.touches(), mots{"in" + p.travail});
            EXPECT_EQ(t.ouverts(), mots{});
        }
        const temoin t;
        comparer(courir(p, t, "fsync:2:refuser"), sansFaute(p));
        EXPECT_TRUE(t.atteint());
        EXPECT_EQ(t.ouverts(), mots{});
    }
}
