/**
 * The example files, run end to end: the published file, the log and the exit
 * status of each, and what exemples/README.md says of it.
 */
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "support/banc.h"
#include "support/generateur.h"

using namespace essai;

namespace {

const std::string EXEMPLES = QUILVANE_RACINE "/exemples/";
const std::string ATTENDUS = QUILVANE_RACINE "/tests/end_to_end/attendus/";

std::string lire(const std::string& nom) {
    std::ifstream f(nom, std::ios::binary);
    EXPECT_TRUE(f) << nom;
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

/** The names of the files of a folder with that ending. */
std::set<std::string> nomsDans(const std::string& dossier, const std::string& fin) {
    std::set<std::string> r;
    for (const auto& e : std::filesystem::directory_iterator(dossier))
        if (e.path().extension() == fin) r.insert(e.path().stem().string());
    return r;
}

/** "(31, 131)" for every error record of a published file, in order. */
std::vector<std::string> codesPublies(const std::string& emis) {
    std::vector<std::string> r;
    std::size_t debut = emis.find('\n') + 1;
    for (std::size_t fin; (fin = emis.find('\n', debut)) != std::string::npos; debut = fin + 1) {
        std::string codes;
        for (std::size_t c = debut + 111; emis[c] == 'I'; c += 5)
            codes += (codes.empty() ? "" : ", ") + std::to_string(std::stoi(emis.substr(c + 1, 3)));
        if (!codes.empty()) r.push_back("(" + codes + ")");
    }
    return r;
}

/** The line of exemples/README.md about a file. */
std::string ligneDuGuide(const std::string& guide, const std::string& nom) {
    const std::size_t debut = guide.find("| `" + nom + ".vse` |");
    return debut == std::string::npos ? "" : guide.substr(debut, guide.find('\n', debut) - debut);
}

}  // namespace

struct Exemples : testing::TestWithParam<std::string> {};

TEST_P(Exemples, PublieCeQuiEstAttendu) {
    const std::string& nom = GetParam();
    const dossier d;
    d.ecrire("recu", lire(EXEMPLES + nom + ".vse"));
    const resultat r = lancer(d, {"recu", "emis", "log"});
    EXPECT_EQ(r.statut, nom.ends_with("_accepte") ? 0 : 2);
    EXPECT_EQ(r.sortie, "");
    EXPECT_EQ(r.erreur, "");
    const std::map<std::string, std::string> restent = {{"emis", lire(ATTENDUS + nom + ".attendu")},
                                                        {"log", ""}};
    EXPECT_EQ(d.contenu(), restent);
}

TEST_P(Exemples, SontDecritsDansLeGuide) {
    const std::string& nom = GetParam();
    const std::string ligne = ligneDuGuide(lire(EXEMPLES + "README.md"), nom);
    ASSERT_NE(ligne, "");
    if (nom.ends_with("_accepte")) {
        EXPECT_TRUE(ligne.ends_with("| 0 |")) << ligne;
        return;
    }
    EXPECT_TRUE(ligne.ends_with("| 2 |")) << ligne;
    std::size_t depuis = 0;
    for (const std::string& codes : codesPublies(lire(ATTENDUS + nom + ".attendu"))) {
        const std::size_t ici = ligne.find(codes, depuis);
        ASSERT_NE(ici, std::string::npos) << codes << " in " << ligne;
        depuis = ici + codes.size();
    }
}

INSTANTIATE_TEST_SUITE_P(Tous, Exemples, testing::ValuesIn(nomsDans(EXEMPLES, ".vse")),
                         [](const testing::TestParamInfo<std::string>& p) { return p.param; });

TEST(ExemplesTous, OntChacunLeurAttendu) {
    EXPECT_EQ(nomsDans(EXEMPLES, ".vse"), nomsDans(ATTENDUS, ".attendu"));
}

TEST(FichierMelange, DixMilleRecordsDeTousTypesSontAcceptes) {
    // Every type but INFO, which no emitter may send together with ABAT.
    const std::string entree = fichierGenere({.graine = 2024});
    const dossier d;
    d.ecrire("recu", entree);
    const resultat r = lancer(d, {"recu", "emis", "log"});
    EXPECT_EQ(r.statut, 0);
    std::string attendu = entree;
    attendu.replace(112, 6, "010000");
    std::set<std::string> types;
    for (std::size_t ligne = 257; ligne < attendu.size(); ligne += 257) {
        const std::string type = attendu.substr(ligne + 21, 4);
        types.insert(type);
        if (type != "ERRE") attendu.replace(ligne + 76, 2, "40");
    }
    EXPECT_EQ(types.size(), typesDeMessage().size() - 1);
    EXPECT_TRUE(d.lire("emis") == attendu);
    EXPECT_EQ(d.contenu().size(), 2U);
}

TEST(FichierMelange, DemandesDeDonneesDansLeurPropreFichier) {
    const std::string entree = fichierGenere({.graine = 5, .nombre = 100, .types = {"INFO", "ENTR", "NAIS"}});
    const dossier d;
    d.ecrire("recu", entree);
    EXPECT_EQ(lancer(d, {"recu", "emis", "log"}).statut, 0);
}

TEST(Guide, MontreLaSortieReelle) {
    const dossier d;
    d.ecrire("acti_rejete.vse", lire(EXEMPLES + "acti_rejete.vse"));
    const resultat r = lancer(d, {"-i", "acti_rejete.vse", "acti.out", "acti.log"});
    std::string texte = "$ quilvane -i acti_rejete.vse acti.out acti.log\n" + r.sortie + "$ echo $?\n" +
                        std::to_string(r.statut) + "\n$ cut -c 63-121 acti.out\n";
    const std::string emis = d.lire("acti.out");
    for (std::size_t ligne = 0; ligne < emis.size(); ligne += 257)
        texte += emis.substr(ligne + 62, 59) + "\n";
    EXPECT_NE(lire(QUILVANE_RACINE "/README.md").find(texte), std::string::npos) << texte;
}

TEST(Guide, NommeTousLesTypesDeMessage) {
    const std::string guide = lire(QUILVANE_RACINE "/README.md");
    for (const std::string& type : typesDeMessage()) {
        std::string genres;
        for (const std::string& genre : genresDe(type))
            genres += (genres.empty() ? "" : ", ") + genre;
        const std::size_t ligne = guide.find("| " + type + " | ");
        ASSERT_NE(ligne, std::string::npos) << type;
        EXPECT_NE(guide.substr(ligne, guide.find('\n', ligne) - ligne).find("| " + genres + " |"),
                  std::string::npos)
            << type << " " << genres;
    }
}
