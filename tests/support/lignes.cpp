#include "support/lignes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <sstream>

#include "messages/aiguillage.h"
#include "support/passage.h"
#include "vocabulaire/store.h"

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

std::string phrase(const std::string& type, const nomDeLigne& l) {
    return type + " C" + std::to_string(l.champ + 1) + " " + l.nomVerif + " " + std::to_string(l.erreur);
}

/** The one row of that name that runs in the kind, -1 after a failure that says
 *  what is wrong with the name. */
int rangDe(const std::string& type, const sAiguillage& route, const nomDeLigne& nom,
           const std::string& genre) {
    int trouve = -1;
    int nombre = 0;
    for (int i = 0; i < *route.pLenTabVerif; ++i) {
        const sCorps& l = route.tabVerif[i];
        if (l.numChamp != nom.champ || l.pfVerif != nom.verif || l.noErr != nom.erreur) continue;
        if (nom.sverif != nullptr && l.sverif != nom.sverif) continue;
        if (presence(l, genre) != 0) continue;
        trouve = i;
        ++nombre;
    }
    EXPECT_EQ(nombre, 1) << phrase(type, nom) << ": " << nombre << " such rows run in " << genre
                         << (nombre > 1 ? "; name the list too" : "");
    return nombre == 1 ? trouve : -1;
}

/** Whether `texte` lies in the slots: then `nom` is their letter with the number of
 *  the slot, or "?" when it is not the start of one. */
template <int N>
bool dansSlots(const valeurVSE (&slots)[N], const char* texte, const char* lettre, std::string& nom) {
    const auto adresse = reinterpret_cast<std::uintptr_t>(texte);
    const auto premiere = reinterpret_cast<std::uintptr_t>(slots);
    if (adresse < premiere || adresse >= premiere + sizeof slots) return false;
    const std::uintptr_t ecart = adresse - premiere;
    nom = lettre + (ecart % sizeof(valeurVSE) == 0 ? std::to_string(ecart / sizeof(valeurVSE) + 1) : "?");
    return true;
}

/** "C1", "F1", "FICH E3": the field that a dependency is the slot of. */
std::string champDe(const char* dependance) {
    std::string nom;
    if (dansSlots(valEnteteVSE, dependance, "E", nom) || dansSlots(valCorpsVSE, dependance, "C", nom) ||
        dansSlots(valFinVSE, dependance, "F", nom) || dansSlots(valFichEnteteVSE, dependance, "FICH E", nom))
        return nom;
    return "?";
}

}  // namespace

std::string dependancesDe(const sCorps* table, int lignes, char lettre) {
    std::string r;
    for (const sCorps* l = table; l != table + lignes; ++l) {
        if (l->dependance == aucune) continue;
        r += (r.empty() ? "" : " ") + (lettre + std::to_string(l->numChamp + 1)) + "/" +
             std::to_string(l->noErr) + ":" + champDe(l->dependance);
    }
    return r;
}

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
    if (testing::Test::HasFailure()) return;  // what follows changes a correct record

    EXPECT_EQ(dependancesDe(table, lignes, 'C'), p.dependances) << p.type << ": the dependencies of its rows";

    std::set<std::pair<int, std::string>> couvertes;
    for (const casLigne& c : p.cas) {
        const std::string nom = phrase(p.type, c.ligne);
        EXPECT_NE(std::find(c.codes.begin(), c.codes.end(), c.ligne.erreur), c.codes.end())
            << nom << ": its own error is not among those of the case";
        EXPECT_TRUE(c.codes.size() == 1 || !c.raison.empty()) << nom << ": several errors need a reason";
        for (const std::string& genre : mots(c.genres)) {
            const int rang = rangDe(p.type, tAiguillage[route], c.ligne, genre);
            std::string record = p.modele(genre);
            for (const pose& q : c.poses)
                poser(record, q.col, q.texte);
            EXPECT_EQ(codesDe(record, p.emetteur), c.codes) << nom << " in " << genre;
            couvertes.insert({rang, genre});
        }
    }
    for (const ligneSansEchec& s : p.sansEchec) {
        EXPECT_FALSE(s.raison.empty()) << phrase(p.type, s.ligne) << ": no reason is given";
        for (const std::string& genre : mots(s.genres))
            EXPECT_TRUE(couvertes.insert({rangDe(p.type, tAiguillage[route], s.ligne, genre), genre}).second)
                << phrase(p.type, s.ligne) << " has a failing record in " << genre << " after all";
    }
    for (int i = 0; i < lignes; ++i) {
        if (table[i].pfVerif == nullptr) continue;
        for (const std::string& genre : mots(p.genres))
            EXPECT_TRUE(presence(table[i], genre) != 0 || couvertes.count({i, genre}) == 1)
                << p.type << " C" << table[i].numChamp + 1 << ", error " << table[i].noErr
                << ": its row has no failing record in " << genre;
    }
}

}  // namespace essai
