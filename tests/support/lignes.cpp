#include "support/lignes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "messages/aiguillage.h"
#include "support/passage.h"

namespace essai {

using namespace quilvane;

namespace {

std::vector<std::string> mots(const std::string& texte) {
    std::istringstream flux(texte);
    std::vector<std::string> r;
    for (std::string m; flux >> m;)
        r.push_back(m);
    return r;
}

int presence(const sCorps& ligne, const std::string& genre) {
    if (genre == "CRE" || genre == "ECQ") return ligne.typeCRE;
    if (genre == "DEM") return ligne.typeDEM;
    if (genre == "INV") return ligne.typeINV;
    if (genre == "EDI") return ligne.typeEDI;
    if (genre == "MOD") return ligne.typeMOD;
    return -1;
}

}  // namespace

std::vector<int> codesDe(const std::string& record, const std::string& emetteur) {
    passage p;
    EXPECT_EQ(p.traiter(fich(1, emetteur)), std::vector<int>{}) << "FICH record in error";
    return p.traiter(record, 0);
}

void prouverLignes(const preuveType& p) {
    const int route = aiguiller(p.type.c_str());
    ASSERT_NE(route, ERR_AIGUILLAGE) << p.type;
    const sCorps* const table = tAiguillage[route].tabVerif;
    const int lignes = *tAiguillage[route].pLenTabVerif;

    for (const std::string& genre : mots(p.genres))
        EXPECT_EQ(codesDe(p.modele(genre), p.emetteur), std::vector<int>{})
            << p.type << " " << genre << " model";

    std::set<std::pair<int, std::string>> couvertes;
    for (const casLigne& c : p.cas) {
        ASSERT_TRUE(c.ligne >= 0 && c.ligne < lignes) << p.type << " row " << c.ligne;
        const sCorps& ligne = table[c.ligne];
        EXPECT_NE(std::find(c.codes.begin(), c.codes.end(), ligne.noErr), c.codes.end())
            << p.type << " row " << c.ligne << " has error " << ligne.noErr;
        EXPECT_TRUE(c.codes.size() == 1 || !c.raison.empty())
            << p.type << " row " << c.ligne << " needs a reason";
        for (const std::string& genre : mots(c.genres)) {
            EXPECT_EQ(presence(ligne, genre), 0)
                << p.type << " row " << c.ligne << " does not run in " << genre;
            std::string record = p.modele(genre);
            for (const pose& q : c.poses)
                poser(record, q.col, q.texte);
            EXPECT_EQ(codesDe(record, p.emetteur), c.codes) << p.type << " " << genre << " row " << c.ligne;
            couvertes.insert({c.ligne, genre});
        }
    }
    for (const ligneSansEchec& s : p.sansEchec) {
        EXPECT_FALSE(s.raison.empty());
        for (const std::string& genre : mots(s.genres)) {
            EXPECT_TRUE(couvertes.insert({s.ligne, genre}).second)
                << p.type << " row " << s.ligne << " " << genre << " has a case after all";
        }
    }
    for (int i = 0; i < lignes; ++i) {
        if (table[i].pfVerif == nullptr) continue;
        for (const std::string& genre : mots(p.genres)) {
            EXPECT_TRUE(presence(table[i], genre) != 0 || couvertes.count({i, genre}) == 1)
                << p.type << " row " << i << " (C" << table[i].numChamp + 1 << ", error " << table[i].noErr
                << ") has no failing record in " << genre;
        }
    }
}

}  // namespace essai
