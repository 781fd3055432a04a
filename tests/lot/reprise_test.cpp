/**
 * Runners that die at any call, or whose calls fail: the next one ends what they
 * had begun, and nothing is lost or doubled.
 */
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>
#include <set>
#include <sstream>

#include "lot/depot_essai.h"

using namespace essai;
namespace fs = std::filesystem;

namespace {

constexpr int ASSEZ = 3000;

/** What a killed runner had started dies with it, but not at the same instant, and
 *  holds the lock until then: the next runner would leave that folder to a later one. */
void attendreVerrous(const depotEssai& s) {
    for (const std::string& casier : s.noms("encours")) {
        const int fd = open(s.d.nom("depot/encours/" + casier + "/verrou").c_str(), O_RDWR | O_CLOEXEC);
        if (fd < 0) continue;
        EXPECT_EQ(flock(fd, LOCK_EX), 0);
        close(fd);
    }
}

resultat lancerAvec(const depotEssai& s, const std::string& faute, bool sansRenameat2 = false) {
    options o;
    o.precharge = {QUILVANE_INJECTEUR_LOT};
    o.milieu["QUILVANE_LOT_FAUTE"] = faute;
    o.milieu["QUILVANE_LOT_TEMOIN"] = s.d.nom("temoin");
    if (sansRenameat2) o.milieu["QUILVANE_LOT_SANS_RENAMEAT2"] = "1";
    const resultat r = s.lancerLot({}, o);
    attendreVerrous(s);
    return r;
}

/** A run that is disturbed at call `n`, then an undisturbed one; false when `n`
 *  is beyond the last call. */
bool derangerPuisFinir(int n, const char* action, bool sansRenameat2 = false) {
    SCOPED_TRACE(std::string(action) + " at call " + std::to_string(n));
    const depotEssai s;
    s.deposer(troisEntrees());
    const resultat r = lancerAvec(s, std::to_string(n) + ":" + action, sansRenameat2);
    const bool atteint = s.d.existe("temoin");
    EXPECT_EQ(r.signal, atteint && std::string(action) == "tuer" ? SIGKILL : 0);
    const resultat suite = s.lancerLot();
    EXPECT_EQ(suite.signal, 0);
    verifierDepot(s, troisEntrees());
    return atteint;
}

/** Every how many calls a run is disturbed. scripts/lot_epreuve.sh does it at each. */
int pas() {
    const char* const voulu = std::getenv("QUILVANE_LOT_PAS");
#ifdef QUILVANE_ASSAINI
    constexpr int D_ORDINAIRE = 31;
#else
    constexpr int D_ORDINAIRE = 8;
#endif
    return voulu != nullptr ? std::max(1, std::atoi(voulu)) : D_ORDINAIRE;
}

void derangerPartout(const char* action, bool sansRenameat2 = false) {
    int n = 1;
    for (; derangerPuisFinir(n, action, sansRenameat2) && !testing::Test::HasFailure(); n += pas())
        ASSERT_LT(n, ASSEZ);
    EXPECT_GT(n, 100);
}

const char* const ID = "20240316-112233-0123456789abcdef";

}  // namespace

TEST(RepriseLot, ToutesLesSortesDAppels) {
    // What the tests below disturb is all that the runner does with files.
    const depotEssai s;
    s.deposer(troisEntrees());
    lancerAvec(s, "1:noter");
    verifierDepot(s, troisEntrees());
    std::istringstream flux(s.d.lire("temoin"));
    std::set<std::string> vus;
    for (std::string appel; std::getline(flux, appel);)
        vus.insert(appel);
    EXPECT_EQ(vus, (std::set<std::string>{"fdopendir", "flock", "fork", "fstat", "fstatat", "fsync", "linkat",
                                          "mkdirat", "openat", "pipe2", "pread", "read", "readdir",
                                          "renameat", "renameat2", "unlinkat", "write"}));
}

TEST(RepriseLot, TueAvantChaqueAppel) { derangerPartout("tuer"); }

TEST(RepriseLot, ChaqueAppelRefuse) { derangerPartout("refuser"); }

TEST(RepriseLot, SansRenommageExclusif) {
    // Names are then given by a link, and the old ones removed.
    const depotEssai s;
    s.deposer(troisEntrees());
    EXPECT_EQ(lancerAvec(s, "100000:tuer", true).statut, 1);
    verifierDepot(s, troisEntrees());
    for (int n = 1; derangerPuisFinir(n, "tuer", true) && !HasFailure(); n += pas())
        ASSERT_LT(n, ASSEZ);
}

TEST(RepriseLot, TueEncoreEtEncore) {
    const depotEssai s;
    s.deposer(troisEntrees());
    for (int n = 1; n < 150; n += 7)
        lancerAvec(s, std::to_string(n) + ":tuer");
    s.lancerLot();
    verifierDepot(s, troisEntrees());
}

TEST(RepriseLot, CasierTenu) {
    const depotEssai s;
    const std::string casier = std::string("depot/encours/") + ID;
    s.d.creerDossier(casier + "/entree");
    s.d.ecrire(casier + "/entree/a", accepte());
    s.d.ecrire(casier + "/verrou", "");
    const int fd = open(s.d.nom(casier + "/verrou").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(fd, LOCK_EX), 0);
    EXPECT_EQ(s.lancerLot().statut, 0);
    EXPECT_TRUE(s.d.existe(casier + "/entree/a"));
    close(fd);
    EXPECT_EQ(s.lancerLot().statut, 0);
    verifierDepot(s, {{"a", {accepte(), "emis"}}});
    EXPECT_TRUE(s.est("archive/2024/03/16/a"));  // the day on which it was taken
    EXPECT_NE(s.journal()[0].find("\"repris\":true"), std::string::npos);
}

TEST(RepriseLot, CasiersVidesEtEtrangers) {
    const depotEssai s;
    s.d.creerDossier(std::string("depot/encours/") + ID);
    s.d.creerDossier("depot/encours/20240316-112233-0123456789abcde0/entree");
    s.d.creerDossier("depot/encours/a-moi");
    s.d.ecrire("depot/encours/20240316-112233-0123456789abcde1", "not a folder");
    const resultat r = s.lancerLot();
    EXPECT_EQ(r.statut, 0);
    EXPECT_EQ(r.erreur, "quilvane-lot: encours/a-moi is not a folder of this program: it is left alone\n");
    EXPECT_EQ(s.noms("encours"), (std::vector<std::string>{"20240316-112233-0123456789abcde1", "a-moi"}));
}

TEST(RepriseLot, CasierSansFichierOrdinaire) {
    // A folder that took the file's place when it was moved goes back.
    const depotEssai s;
    s.d.creerDossier(std::string("depot/encours/") + ID + "/entree/dossier/sous");
    EXPECT_EQ(s.lancerLot().statut, 0);
    EXPECT_TRUE(s.est("arrivee/dossier/sous"));
    EXPECT_EQ(s.noms("encours"), std::vector<std::string>{});
}

TEST(RepriseLot, VerdictAbime) {
    const depotEssai s;
    const std::string casier = std::string("depot/encours/") + ID;
    s.d.creerDossier(casier + "/entree");
    s.d.ecrire(casier + "/entree/a", accepte());
    s.d.ecrire(casier + "/verdict", "???");
    EXPECT_EQ(s.lancerLot().statut, 1);  // left for somebody to look at
    EXPECT_EQ(s.d.lire(casier + "/entree/a"), accepte());
}

TEST(RepriseLot, LigneDuJournalCoupee) {
    const depotEssai s;
    s.d.ecrire("depot/journal.jsonl", "{\"format\":\"quil");
    s.deposer("a", accepte());
    EXPECT_EQ(s.lancerLot().statut, 0);
    ASSERT_EQ(s.journal().size(), 2U);
    EXPECT_EQ(s.journal()[0], "{\"format\":\"quil");
    verifierDepot(s, {{"a", {accepte(), "emis"}}});
}

TEST(RepriseLot, JournalInaccessible) {
    const depotEssai s;
    s.d.creerDossier("depot/journal.jsonl");
    s.deposer("a", accepte());
    EXPECT_EQ(s.lancerLot().statut, 1);
    EXPECT_EQ(s.noms("encours").size(), 1U);
    fs::remove(s.d.nom("depot/journal.jsonl"));
    EXPECT_EQ(s.lancerLot().statut, 0);
    verifierDepot(s, {{"a", {accepte(), "emis"}}});
}
