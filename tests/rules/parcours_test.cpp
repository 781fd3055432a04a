/**
 * The ways through a table find what walking it row by row finds: the same
 * slots, the same calls in the same order, the same errors.
 */
#include "rules/parcours.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "messages/aiguillage.h"
#include "rules/constat.h"
#include "rules/entete.h"
#include "rules/moteur.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;

namespace {

constexpr int EMPLACEMENTS = 12;

/** What the checks were called with, call by call. */
std::vector<std::string> appels;

int noter(const char* dependance, const char* champ, int verdict) {
    appels.push_back(std::string(dependance) + "|" + champ);
    return verdict;
}
int accepter(const char* d, char* c, const liste&) { return noter(d, c, 1); }
int refuser(const char* d, char* c, const liste&) { return noter(d, c, 0); }
int reecrire(const char* d, char* c, const liste&) {
    const int verdict = noter(d, c, c[0] < 'M');
    c[0] = '#';
    return verdict;
}

/** All that a walk leaves behind. */
struct trace {
    int compte;
    std::vector<int> codes;
    std::vector<const sCorps*> lignes;
    std::vector<std::string> appels;
    std::vector<std::string> slots;
    int codCaract, codLong;
    bool operator==(const trace&) const = default;
};

/** A table with extra rows, rows without check and all presence codes. */
std::vector<sCorps> tableAuHasard(std::mt19937& hasard) {
    const auto tirer = [&hasard](int n) { return static_cast<int>(hasard() % static_cast<unsigned>(n)); };
    constexpr fVerif* VERIFS[] = {nullptr, accepter, accepter, refuser, reecrire};
    std::vector<sCorps> table;
    int debut = 1 + tirer(40);
    for (int champ = 0; champ < 1 + tirer(EMPLACEMENTS); ++champ) {
        const int fin = debut + tirer(20);
        for (int rang = 0; rang < 1 + tirer(4); ++rang) {
            sCorps l = {champ,
                        rang == 0 ? debut : 0,
                        rang == 0 ? fin : 0,
                        0,
                        0,
                        0,
                        0,
                        0,
                        VERIFS[tirer(5)],
                        &sansListe,
                        tirer(2) == 0 ? aucune : entete(E6),
                        1 + tirer(199)};
            for (int sCorps::*presence : PRESENCES)
                l.*presence = tirer(4) == 0 ? tirer(4) : 0;
            table.push_back(l);
        }
        debut = fin + 1 + tirer(3);
    }
    return table;
}

template <typename Marche>
trace suivre(const std::string& record, int deja, int caract, int longueur, Marche marche) {
    valeurVSE slots[EMPLACEMENTS] = {};
    appels.clear();
    std::memset(codeErreur, 0, sizeof codeErreur);
    std::memset(constats, 0, sizeof constats);
    for (int i = 0; i < deja; ++i)
        ajouterErreur(i, 900 + i, ORIGINE_ADMISSION);
    codCaract = caract;
    codLong = longueur;
    retenirVSE(record.c_str());
    const int compte = marche(slots);
    trace t = {compte, {codeErreur, codeErreur + MAX_ERREURS}, {}, appels, {}, codCaract, codLong};
    for (const constat& c : constats)
        t.lignes.push_back(c.ligne);
    for (const valeurVSE& slot : slots)
        t.slots.emplace_back(slot.valeur);
    codCaract = codLong = 0;
    return t;
}

}  // namespace

TEST(Parcours, TrouveCeQueTrouveLaMarche) {
    std::mt19937 hasard(20);
    int refus = 0;
    int interdits = 0;
    for (int essai = 0; essai < 3000; ++essai) {
        const std::vector<sCorps> table = tableAuHasard(hasard);
        const auto lignes = static_cast<int>(table.size());
        const parcours p(table.data(), lignes);
        std::string record;
        for (unsigned i = 0; i < hasard() % 257; ++i)
            record += static_cast<char>('A' + hasard() % 26);
        constexpr const char* GENRES[] = {"CRE", "ECQ", "DEM", "INV", "EDI", "MOD", "INF", "", nullptr};
        const char* const genre = GENRES[hasard() % std::size(GENRES)];
        const int deja = hasard() % 3 == 0 ? static_cast<int>(hasard() % 11) : 0;
        const int caract = static_cast<int>(hasard() % 2);
        const int longueur = static_cast<int>(hasard() % 3);
        const trace marche = suivre(record, deja, caract, longueur, [&](valeurVSE* slots) {
            getvseChamps(table.data(), lignes, xdebug, slots);
            return verifChamps(nullptr, deja, table.data(), lignes, slots, genre, "C");
        });
        const trace parLesVoies = suivre(record, deja, caract, longueur, [&](valeurVSE* slots) {
            couperChamps(p, slots);
            return suivreChamps(p, deja, slots, genre);
        });
        ASSERT_EQ(parLesVoies, marche)
            << "table " << essai << ", kind " << (genre != nullptr ? genre : "none");
        refus += marche.compte - deja;
        for (const int code : marche.codes)
            interdits += code == 86;
    }
    EXPECT_GT(refus, 3000);
    EXPECT_GT(interdits, 300);
}

TEST(Parcours, ChaqueTableALeSien) {
    const auto verifier = [](const parcours& p, const sCorps* table, int lignes) {
        EXPECT_EQ(p.lignes, table);
        EXPECT_EQ(p.nombre, lignes);
        int verifiees = 0;
        int champs = 0;
        for (int i = 0; i < lignes; ++i) {
            verifiees += table[i].pfVerif != nullptr;
            champs += table[i].fin != 0;
        }
        EXPECT_EQ(p.champs, champs);
        EXPECT_EQ(p.pas[parcours::SANS_GENRE], verifiees);
    };
    verifier(pEntete, tEntete, lEntete);
    verifier(pFin, tFin, lFin);
    for (const sAiguillage& route : tAiguillage) {
        SCOPED_TRACE(route.nomVSE);
        ASSERT_EQ(route.pParcours == nullptr, route.tabVerif == nullptr);
        if (route.tabVerif != nullptr) verifier(*route.pParcours, route.tabVerif, *route.pLenTabVerif);
    }
}

TEST(Parcours, PorteLesLignesQuiOntAVoir) {
    const sCorps ignoree = {1, 3, 4, 1, 2, 0, 0, 0, refuser, &sansListe, aucune, 7};
    const sCorps sansVerif = {0, 1, 2, 0, 0, 0, 0, 0, nullptr, &sansListe, aucune, 0};
    const sCorps enPlus = {1, 0, 0, 0, 1, 1, 1, 3, refuser, &sansListe, aucune, 8};
    const sCorps table[] = {sansVerif, ignoree, enPlus};
    const parcours p(table);
    EXPECT_EQ(p.champs, 2);
    EXPECT_EQ(p.coupes[1].debut, 2);
    EXPECT_EQ(p.coupes[1].largeur, 2);
    ASSERT_EQ(p.pas[GENRE_CRE], 1);
    EXPECT_EQ(p.etapes[GENRE_CRE][0].ligne, 2);
    EXPECT_EQ(p.etapes[GENRE_CRE][0].emplacement, 1);
    EXPECT_FALSE(p.etapes[GENRE_CRE][0].interdit);
    ASSERT_EQ(p.pas[GENRE_DEM], 1);
    EXPECT_TRUE(p.etapes[GENRE_DEM][0].interdit);
    ASSERT_EQ(p.pas[GENRE_MOD], 2);
    EXPECT_FALSE(p.etapes[GENRE_MOD][0].interdit);
    EXPECT_TRUE(p.etapes[GENRE_MOD][1].interdit);
    EXPECT_EQ(p.pas[parcours::SANS_GENRE], 2);
}
