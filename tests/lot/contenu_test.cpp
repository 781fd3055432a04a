/**
 * What is read in inputs and results, with quilvane itself as the measure.
 */
#include "lot/contenu.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/attendu.h"

using namespace essai;
using namespace quilvane::lot;

namespace {

mesure mesurer(const std::string& octets, std::size_t bloc = 1U << 20U) {
    mesureur m;
    commencer(m);
    for (std::size_t i = 0; i < octets.size(); i += bloc)
        ajouter(m, std::string_view(octets).substr(i, bloc));
    return terminer(m);
}

/** quilvane's status and result for an input; -1 when it logs a fault. */
int passer(const std::string& entree, std::string& resultat) {
    const dossier d;
    d.ecrire("in", entree);
    const int statut = lancer(d, {"in", "out", "log"}).statut;
    resultat = d.existe("out") ? d.lire("out") : "";
    return d.lire("log").empty() ? statut : -1;
}

std::string fausse() {
    std::string r = acti();
    poser(r, 256, "#");
    return r;
}

}  // namespace

TEST(ContenuLot, Mesure) {
    const mesure m = mesurer(fichier({fich(2), acti(), acti()}));
    EXPECT_EQ(m.taille, 3 * 257);
    EXPECT_EQ(m.enregistrements, 2);
    EXPECT_EQ(m.longueurFich, 256);
    EXPECT_FALSE(m.lignesSautees);
    EXPECT_EQ(mesurer("").enregistrements, -1);
    EXPECT_EQ(mesurer("").sha256, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(mesurer("abc").sha256, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(mesurer("abc").enregistrements, -1);  // no line end
    EXPECT_EQ(mesurer("a\nb\n\x1a"
                      "c\n")
                  .enregistrements,
              1);  // Ctrl-Z ends the file
    EXPECT_EQ(mesurer("a\r\nb\r\n").enregistrements, 1);
    EXPECT_EQ(mesurer("a\rb\r").enregistrements, 1);
    EXPECT_TRUE(mesurer("a\nb\r").lignesSautees);
    EXPECT_EQ(mesurer(std::string("ab\0cd\n", 6)).longueurFich, 2);
}

TEST(ContenuLot, MesureParBlocs) {
    const std::string octets = fichier({fich(2), acti(), acti()}, "\r\n") + "x\r";
    for (const std::size_t bloc : {std::size_t{1}, std::size_t{2}, std::size_t{257}, std::size_t{258}}) {
        EXPECT_EQ(mesurer(octets, bloc).sha256, mesurer(octets).sha256);
        EXPECT_EQ(mesurer(octets, bloc).enregistrements, 3);
    }
}

TEST(ContenuLot, ToutResultatDeQuilvaneConcorde) {
    std::vector<std::string> entrees = {
        "",
        fichier({fich(2), acti(), acti()}),
        fichier({fich(3), acti(), acti()}),
        fichier({fich(2), fausse(), acti()}, "\r\n"),
        fichier({fich(2, "        "), fausse(), acti()}),
        fichier({fich(2), acti(), acti()}) + "sans fin de ligne",
        fichier({fich(3), acti()}) + "perdue\r" + fichier({fausse()}),
        fichier({fich(1), fausse()}) + "\x1a" + fichier({acti()}),
    };
    for (std::size_t n = 25; n < 256; ++n)  // a FICH record that is cut anywhere
        entrees.push_back(fichier({fich(1).substr(0, n), fausse()}));
    for (const auto& e : std::filesystem::directory_iterator(QUILVANE_RACINE "/exemples")) {
        if (e.path().extension() != ".vse") continue;
        const dossier d;
        std::filesystem::copy_file(e.path(), d.nom("in"));
        entrees.push_back(d.lire("in"));
    }
    int lus = 0;
    for (const std::string& entree : entrees) {
        std::string resultat;
        const int statut = passer(entree, resultat);
        if (statut < 0) continue;
        ++lus;
        quilvane::lot::comptes c;
        EXPECT_TRUE(statut == 0 ? lireEmis(resultat, mesurer(entree), c)
                                : lireErreurs(resultat, mesurer(entree), c))
            << "status " << statut << "\n"
            << entree << "\n"
            << resultat;
        // Neither is taken for the other, and a byte less is no result.
        EXPECT_FALSE(statut != 0 ? lireEmis(resultat, mesurer(entree), c)
                                 : lireErreurs(resultat, mesurer(entree), c));
        resultat.pop_back();
        EXPECT_FALSE(statut == 0 ? lireEmis(resultat, mesurer(entree), c)
                                 : lireErreurs(resultat, mesurer(entree), c));
    }
    EXPECT_GT(lus, 200);
}

TEST(ContenuLot, EmisFaux) {
    const mesure m = mesurer(fichier({fich(2), acti(), acti()}));
    quilvane::lot::comptes c;
    const std::string bon = fichierEmis(fich(2), 2, {acti(), acti()});
    EXPECT_TRUE(lireEmis(bon, m, c));
    EXPECT_EQ(c.acceptes, 2);
    EXPECT_FALSE(lireEmis("", m, c));
    EXPECT_FALSE(lireEmis(fichierEmis(fich(2), 1, {acti(), acti()}), m, c));
    EXPECT_FALSE(lireEmis(fichierEmis(fich(2), 1, {acti()}), m, c));
    EXPECT_FALSE(lireEmis(fichierEmis(fich(2), 3, {acti(), acti(), acti()}), m, c));
    EXPECT_FALSE(lireEmis(bon + acti() + "\n", m, c));
    EXPECT_FALSE(lireEmis(std::string(bon).replace(112, 6, "00000x"), m, c));
}

TEST(ContenuLot, ErreursFausses) {
    const mesure m = mesurer(fichier({fich(2), fausse(), acti()}));
    const std::string erreur = erre(fausse(), {94, 7, 94}, clesExploitation(fausse()), fich(2));
    quilvane::lot::comptes c;
    EXPECT_TRUE(lireErreurs(fichierErreurs(fich(2), {1, 2, 1}, {erreur}), m, c));
    EXPECT_EQ(c.refuses, 1);
    EXPECT_EQ(c.acceptes, 1);
    EXPECT_EQ(c.erreurs, (std::map<int, long>{{7, 1}, {94, 2}}));
    for (const essai::comptes& n : std::vector<essai::comptes>{{2, 2, 0}, {1, 3, 2}, {1, 2, 0}, {0, 2, 2}})
        EXPECT_FALSE(lireErreurs(fichierErreurs(fich(2), n, {erreur}), m, c));
    EXPECT_FALSE(lireErreurs(fichierErreurs(fich(2), {1, 2, 1}, {}), m, c));
    EXPECT_FALSE(lireErreurs(fichierErreurs(fich(2), {1, 2, 1}, {erreur, erreur}), m, c));
    EXPECT_FALSE(lireErreurs(fichierErreurs(fich(2), {1, 2, 1}, {acti()}), m, c));
    EXPECT_FALSE(lireErreurs("", m, c));
}
