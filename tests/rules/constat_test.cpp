#include "rules/constat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "checks/dates.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "rules/moteur.h"
#include "support/vse.h"

using namespace quilvane;

namespace {

int refuser(const char*, char*, const liste&) { return 0; }

/** A row whose check refuses everything. */
constexpr sCorps ligne(int champ, int debut, int dernier, int erreur, fVerif* verif = refuser) {
    return {champ, debut, dernier, 0, 0, 0, 0, 0, verif, &sansListe, "", erreur};
}

std::string texte(const constat& c) {
    const extrait e = texteDe(c);
    return {e.debut, static_cast<std::size_t>(e.longueur)};
}

}  // namespace

TEST(Constat, DixErreursAuPlus) {
    const sCorps l = ligne(0, 1, 1, 31);
    for (int depart = 0; depart <= 12; ++depart) {
        std::fill(std::begin(codeErreur), std::end(codeErreur), -1);
        for (constat& c : constats)
            c = {-1, ORIGINE_COMPTE, nullptr};
        nbErreur = 7;
        const int compte = ajouterErreur(depart, 500 + depart, ORIGINE_TABLE, &l);
        EXPECT_EQ(compte, depart < 10 ? depart + 1 : depart);
        for (int i = 0; i < 11; ++i)
            EXPECT_EQ(codeErreur[i], i == depart && depart < 10 ? 500 + depart : -1) << depart << " at " << i;
        for (int i = 0; i < 10; ++i) {
            EXPECT_EQ(constats[i].numero, i == depart ? 500 + depart : -1) << depart << " at " << i;
            EXPECT_EQ(constats[i].origine, i == depart ? ORIGINE_TABLE : ORIGINE_COMPTE);
            EXPECT_EQ(constats[i].ligne, i == depart ? &l : nullptr);
        }
        EXPECT_EQ(nbErreur, 7) << "the count is its caller's";
    }
    int compte = 0;
    for (int i = 1; i <= 12; ++i)
        compte = ajouterErreur(compte, i, ORIGINE_ADMISSION);
    EXPECT_EQ(compte, 10);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(codeErreur[i], i + 1);
        EXPECT_EQ(constats[i].numero, i + 1);
        EXPECT_EQ(constats[i].origine, ORIGINE_ADMISSION);
        EXPECT_EQ(constats[i].ligne, nullptr) << "only a row has one";
    }
    leStore = {};
}

TEST(Constat, LeChampEstCeluiDeLaLigneOuDeCelleAuDessus) {
    const sCorps table[] = {ligne(0, 1, 2, 1), ligne(0, 0, 0, 2), ligne(0, 0, 0, 3), ligne(7, 3, 4, 4),
                            ligne(7, 0, 0, 5)};
    const int champs[] = {0, 0, 0, 3, 3};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(champDe(table + i), table + champs[i]) << i;
}

// Walking up from any row of any table ends inside that table.
TEST(Constat, TouteLigneAUnChamp) {
    const auto verifier = [](const char* nom, const sCorps* table, int lignes) {
        ASSERT_GT(lignes, 0);
        EXPECT_NE(table[0].debut, 0) << nom << " begins with a row without columns";
        for (int i = 0; i < lignes; ++i) {
            const sCorps* const champ = champDe(table + i);
            EXPECT_TRUE(champ >= table && champ <= table + i) << nom << " row " << i;
            EXPECT_EQ(champ->numChamp, table[i].numChamp) << nom << " row " << i;
        }
    };
    verifier("header", tEntete, lEntete);
    verifier("footer", tFin, lFin);
    for (const sAiguillage& route : tAiguillage)
        if (route.tabVerif != nullptr) verifier(route.nomVSE, route.tabVerif, *route.pLenTabVerif);
}

TEST(Constat, LeTexteEstCeluiDesColonnes) {
    std::string r(256, ' ');
    for (std::size_t i = 0; i < r.size(); ++i)
        r[i] = static_cast<char>('!' + i * 7 % 90);
    const sCorps table[] = {ligne(0, 1, 4, 1), ligne(1, 63, 64, 2), ligne(1, 0, 0, 3), ligne(2, 1, 256, 4),
                            ligne(3, 256, 256, 5)};
    valeurVSE slots[4] = {};
    getvseChamps(table, 5, r.c_str(), slots);
    ASSERT_EQ(verifChamps(nullptr, 0, table, 5, slots, nullptr, "C"), 5);
    for (valeurVSE& s : slots)
        std::strcpy(s.valeur, "rewritten");
    const std::string attendus[] = {r.substr(0, 4), r.substr(62, 2), r.substr(62, 2), r, r.substr(255)};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(texte(constats[i]), attendus[i]) << i;
}

// Dates that may be incomplete are rewritten in their slot: a blank first, or a
// day "00" for a blank one. The text stays what was sent.
TEST(Constat, LeTexteRecuResteMalgreUneDateReecrite) {
    const sCorps table[] = {ligne(0, 80, 87, 36, fDATEI), ligne(0, 0, 0, 52)};
    for (const char* date : {"15001998", "00001998", "  001998"}) {
        std::string r(256, 'x');
        essai::poser(r, 80, date);
        valeurVSE slot[1] = {};
        getvseChamps(table, 2, r.c_str(), slot);
        const int n = verifChamps(nullptr, 0, table, 2, slot, nullptr, "C");
        ASSERT_GE(n, 1);
        EXPECT_STRNE(slot[0].valeur, date) << "the check no longer rewrites it";
        for (int i = 0; i < n; ++i)
            EXPECT_EQ(texte(constats[i]), date);
    }
}

TEST(Constat, LeTexteFinitAvecLeRecord) {
    const sCorps table[] = {ligne(0, 10, 20, 1), ligne(1, 21, 256, 2), ligne(1, 0, 0, 3)};
    valeurVSE slots[2] = {};
    // Longer records before: nothing of them is shown.
    for (const std::size_t n : {256U, 100U, 21U, 20U, 15U, 10U, 9U, 1U, 0U}) {
        const std::string r(n, static_cast<char>('a' + n % 26));
        getvseChamps(table, 3, r.c_str(), slots);
        ASSERT_EQ(verifChamps(nullptr, 0, table, 3, slots, nullptr, "C"), 3);
        EXPECT_EQ(texte(constats[0]), n < 10 ? "" : r.substr(9, 11)) << n;
        EXPECT_EQ(texte(constats[1]), n < 21 ? "" : r.substr(20)) << n;
        EXPECT_EQ(texte(constats[2]), texte(constats[1])) << n;
    }
    // A zero byte ends the record.
    std::string r(256, 'y');
    r[14] = '\0';
    getvseChamps(table, 3, r.c_str(), slots);
    EXPECT_EQ(texte(constats[0]), "yyyyy");
    EXPECT_EQ(texte(constats[1]), "");
}

TEST(Constat, UneErreurSansLigneNAPasDeTexte) {
    retenirVSE(std::string(256, 'x').c_str());
    for (const eOrigine o :
         {ORIGINE_CADRAGE, ORIGINE_ADMISSION, ORIGINE_PARTENAIRE, ORIGINE_COMPAGNON, ORIGINE_COMPTE})
        EXPECT_EQ(texte({106, o, nullptr}), "");
}
