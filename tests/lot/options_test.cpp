/**
 * The command line: every option of the table, and what is wrong.
 */
#include "lot/options.h"

#include <cstdlib>

#include "lot/depot_essai.h"

using namespace essai;
using namespace quilvane::lot;
using quilvane::ANGLAIS;
using quilvane::FRANCAIS;

namespace {

struct lecture {
    eLecture verdict;
    reglages r;
    std::string probleme;
};

lecture lire(std::vector<std::string> mots) {
    mots.insert(mots.begin(), "quilvane-lot");
    std::vector<char*> argv;
    for (std::string& m : mots)
        argv.push_back(m.data());
    argv.push_back(nullptr);
    lecture l;
    l.verdict = lireOptions(static_cast<int>(mots.size()), argv.data(), l.r, l.probleme);
    return l;
}

}  // namespace

TEST(OptionsLot, Toutes) {
    const lecture l = lire({"-j", "3", "--suivre", "--repos", "0.5", "--delai", "7", "--metriques", "m",
                            "--garder", "9", "--langue", "fr", "--couleur", "jamais", "depot"});
    EXPECT_EQ(l.verdict, TRAVAILLER);
    EXPECT_EQ(l.r.depot, "depot");
    EXPECT_EQ(l.r.travaux, 3);
    EXPECT_TRUE(l.r.suivre);
    EXPECT_EQ(l.r.repos, 0.5);
    EXPECT_EQ(l.r.delai, 7);
    EXPECT_EQ(l.r.metriques, "m");
    EXPECT_EQ(l.r.garder, 9);
    EXPECT_EQ(l.r.langue, FRANCAIS);
    EXPECT_EQ(l.r.couleur, COULEUR_JAMAIS);
}

TEST(OptionsLot, ParDefaut) {
    const lecture l = lire({"depot"});
    EXPECT_EQ(l.verdict, TRAVAILLER);
    EXPECT_GE(l.r.travaux, 1);
    EXPECT_FALSE(l.r.suivre);
    EXPECT_EQ(l.r.repos, 2);
    EXPECT_EQ(l.r.garder, -1);
    EXPECT_EQ(l.r.metriques, "");
}

TEST(OptionsLot, Fausses) {
    for (const std::vector<std::string>& mots :
         std::vector<std::vector<std::string>>{{},
                                               {"a", "b"},
                                               {"--rien", "a"},
                                               {"-x", "a"},
                                               {"a", "-j"},
                                               {"-j", "0", "a"},
                                               {"-j", "x", "a"},
                                               {"-j", "1x", "a"},
                                               {"--repos", "-1", "a"},
                                               {"--repos", "nan", "a"},
                                               {"--repos", "", "a"},
                                               {"--delai", "-1", "a"},
                                               {"--garder", "-1", "a"},
                                               {"--langue", "de", "a"},
                                               {"--couleur", "oui", "a"},
                                               {"--metriques", "", "a"},
                                               {"--suivre=1", "a"}}) {
        const lecture l = lire(mots);
        EXPECT_EQ(l.verdict, USAGE_FAUX) << (mots.empty() ? "" : mots[0]);
        EXPECT_NE(l.probleme, "");
    }
}

TEST(OptionsLot, TableEtAide) {
    for (const quilvane::eLangue langue : {FRANCAIS, ANGLAIS}) {
        const std::string texteAide = aide(langue);
        for (const ligneOption* o = OPTIONS; o->longue != nullptr; ++o) {
            EXPECT_NE(texteAide.find(std::string("--") + o->longue), std::string::npos);
            EXPECT_NE(texteAide.find(o->aide.en_langue(langue)), std::string::npos);
            EXPECT_STRNE(o->aide.en_langue(langue), "");
        }
    }
    for (const char* mot : {"-h", "--help", "--aide"})
        EXPECT_EQ(lire({mot}).verdict, MONTRER_AIDE) << mot;
    EXPECT_EQ(lire({"--version"}).verdict, MONTRER_VERSION);
}

TEST(OptionsLot, LangueDuMilieu) {
    const depotEssai s;
    const auto usage = [&s](const std::map<std::string, std::string>& milieu) {
        options o;
        o.horloge = "";
        o.milieu = milieu;
        return lancerProgramme(s.d.nom("bin/quilvane-lot"), s.d, {}, o);
    };
    EXPECT_EQ(usage({}).statut, 3);
    EXPECT_NE(usage({{"LANG", "fr_FR.UTF-8"}}).erreur.find("il manque"), std::string::npos);
    EXPECT_NE(usage({{"LC_ALL", "en_GB"}, {"LANG", "fr_FR"}}).erreur.find("is missing"), std::string::npos);
    EXPECT_NE(usage({{"LC_MESSAGES", "fr"}, {"LANG", "C"}}).erreur.find("il manque"), std::string::npos);
    EXPECT_NE(usage({{"LC_ALL", ""}, {"LANG", "fr"}}).erreur.find("il manque"), std::string::npos);
}
