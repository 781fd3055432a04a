// The examples are what they claim to be: files that the program accepts, on
// any day, and no longer when a column is changed.
#include "catalogue/exemples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "support/attendu.h"
#include "support/banc.h"
#include "support/champ.h"

using namespace quilvane;
using essai::dossier;
using essai::lancer;

namespace {

constexpr std::size_t LIGNE = 257;  // a record and its LF

/** The types, as the routing table has them. */
std::vector<std::string> types() {
    std::vector<std::string> noms;
    for (int i = 0; i < ERR_AIGUILLAGE; ++i)
        noms.emplace_back(tAiguillage[i].nomVSE);
    return noms;
}

/** A file as the program publishes it when it accepts it. */
std::string publie(std::string fichier) {
    for (std::size_t ligne = LIGNE; ligne < fichier.size(); ligne += LIGNE)
        if (fichier.compare(ligne + 21, 4, "ERRE") != 0) fichier.replace(ligne + 76, 2, "40");
    fichier.replace(112, 6, essai::sixChiffres(static_cast<int>(fichier.size() / LIGNE) - 1));
    return fichier;
}

/** What the program leaves of an input at a time: its status and files. */
std::pair<int, std::map<std::string, std::string>> traiter(const std::string& fichier,
                                                           const std::string& horloge) {
    const dossier d;
    d.ecrire("recu", fichier);
    essai::options o;
    o.horloge = horloge;
    const int statut = lancer(d, {"recu", "emis", "log"}, o).statut;
    return {statut, d.contenu()};
}

void verifierAccepte(const std::string& fichier, const std::string& horloge) {
    const auto [statut, restent] = traiter(fichier, horloge);
    EXPECT_EQ(statut, 0);
    const std::map<std::string, std::string> attendus = {{"emis", publie(fichier)}, {"log", ""}};
    EXPECT_EQ(restent, attendus);
}

/** The file with one column of its first message record changed. */
std::string change(std::string fichier, std::size_t colonne, char c) {
    fichier[LIGNE + colonne - 1] = c;
    return fichier;
}

}  // namespace

struct ExemplesDuCatalogue : testing::TestWithParam<std::string> {};

TEST_P(ExemplesDuCatalogue, SontAcceptesTousLesJours) {
    for (const std::string_view genre : genresDe(GetParam())) {
        SCOPED_TRACE(genre);
        const std::string fichier = exemple(GetParam(), genre);
        verifierAccepte(fichier, essai::HORLOGE);
        verifierAccepte(fichier, "1999-12-31 23:59:59");
        verifierAccepte(fichier, "2037-06-01 00:00:00");
    }
}

TEST_P(ExemplesDuCatalogue, SontRefusesQuandUneColonneChange) {
    for (const std::string_view genre : genresDe(GetParam())) {
        const std::string fichier = exemple(GetParam(), genre);
        EXPECT_EQ(traiter(change(fichier, 65, '?'), essai::HORLOGE).first, 2) << genre;
        EXPECT_EQ(traiter(change(fichier, 256, '#'), essai::HORLOGE).first, 2) << genre;
    }
}

TEST_P(ExemplesDuCatalogue, ExistentPourToutGenreAdmis) {
    std::set<std::string> admis;
    for (const char* genre : {"CRE", "DEM", "EDI", "INF", "INV", "MOD"})
        if (essai::accepte(fVerifDepE6, genre, GetParam())) admis.insert(genre);
    // ECQ admits every type; it is meant for ERRE.
    if (GetParam() == "ERRE") admis.insert("ECQ");
    const std::vector<std::string_view> genres = genresDe(GetParam());
    EXPECT_EQ(std::set<std::string>(genres.begin(), genres.end()), admis);
    EXPECT_EQ(genres.size(), admis.size());
}

TEST_P(ExemplesDuCatalogue, SontFaitsDeRecordsEntiers) {
    for (const std::string_view genre : genresDe(GetParam())) {
        const std::string fichier = exemple(GetParam(), genre);
        ASSERT_EQ(fichier.size() % LIGNE, 0U);
        for (std::size_t ligne = 0; ligne < fichier.size(); ligne += LIGNE)
            EXPECT_EQ(fichier.find('\n', ligne), ligne + LIGNE - 1);
        EXPECT_EQ(fichier.substr(18, 7), "INFFICH");
        EXPECT_EQ(fichier.substr(LIGNE + 18, 7), std::string(genre) + GetParam());
        const std::string_view emetteur = modeleDe(GetParam())->emetteur;
        for (std::size_t ligne = 0; ligne < fichier.size(); ligne += LIGNE)
            EXPECT_EQ(fichier.substr(ligne + 2, 8), emetteur);
        EXPECT_EQ(fichier.substr(94, 6), essai::sixChiffres(static_cast<int>(fichier.size() / LIGNE) - 1));
    }
}

TEST_P(ExemplesDuCatalogue, PosentDesZonesQuiNeSeTouchentPas) {
    std::size_t libre = 63;
    for (const sZone& zone : modeleDe(GetParam())->corps) {
        const auto debut = static_cast<std::size_t>(zone.debut);
        EXPECT_GE(debut, libre) << zone.debut;
        libre = debut + std::max(std::strlen(zone.valeur), std::strlen(zone.forme ? zone.forme : ""));
    }
    EXPECT_LE(libre, 231U);
}

INSTANTIATE_TEST_SUITE_P(Tous, ExemplesDuCatalogue, testing::ValuesIn(types()),
                         [](const testing::TestParamInfo<std::string>& p) { return p.param; });

TEST(ModelesDuCatalogue, SontCeuxDesTypesDeMessage) {
    std::vector<std::string> noms;
    for (const sModele& modele : modeles)
        noms.emplace_back(modele.type);
    EXPECT_EQ(noms, types());
    EXPECT_EQ(modeleDe("FICH"), nullptr);
    EXPECT_EQ(modeleDe("nais"), nullptr);
}

TEST(ExempleDuCatalogue, AccompagneLesCreationsQuiVontParDeux) {
    for (const auto& [type, compagnon] : {std::pair("EXP1", "EXP2"), std::pair("EGET", "RATA")}) {
        const std::string fichier = exemple(type, "CRE");
        ASSERT_EQ(fichier.size(), 3 * LIGNE);
        EXPECT_EQ(fichier.substr(2 * LIGNE + 18, 7), std::string("CRE") + compagnon);
        EXPECT_EQ(fichier.substr(2 * LIGNE + 64, 12), fichier.substr(LIGNE + 64, 12));
        EXPECT_EQ(exemple(type, "MOD").size(), 2 * LIGNE);
        EXPECT_EQ(exemple(compagnon, "CRE").size(), 2 * LIGNE);
    }
}

TEST(ExempleDuCatalogue, NExistePasPourUnTypeOuUnGenreInconnu) {
    EXPECT_EQ(exemple("FICH", "INF"), "");
    EXPECT_EQ(exemple("ZZZZ", "CRE"), "");
    EXPECT_EQ(exemple("", ""), "");
    EXPECT_EQ(exemple("NAIS", "EDI"), "");
    EXPECT_EQ(exemple("NAIS", "CR"), "");
    EXPECT_EQ(exemple("NAIS", ""), "");
    EXPECT_TRUE(genresDe("ZZZZ").empty());
    EXPECT_TRUE(genresDe("FICH").empty());
}
