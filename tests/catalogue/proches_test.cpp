// What somebody who wrote a wrong value may have meant.
#include "catalogue/proches.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace quilvane;

namespace {

using textes = std::vector<std::string>;

textes proches(std::string_view valeur, const sListe& liste) {
    const sProches p = prochesDe(valeur, liste);
    return textes(p.valeurs, p.valeurs + p.nombre);
}

template <int N>
sListe listeDe(const tValAutorise (&entrees)[N], int colonnes = 1) {
    return {"essai", nullptr, entrees, N, colonnes, {"", ""}, {"", ""}};
}

constexpr tValAutorise FORMES[] = {"SARL", "SA  ", "GAEC", "EARL", "M   "};
constexpr tValAutorise NUMEROS[] = {"01", "10", "11", "71", "1I"};
constexpr tValAutorise LETTRES[] = {"A", "B", "0", "1"};

}  // namespace

TEST(Proches, UnSeulEcart) {
    const sListe formes = listeDe(FORMES);
    EXPECT_EQ(proches("gaec", formes), textes{"GAEC"});  // capitals
    EXPECT_EQ(proches("  SA", formes), textes{"SA  "});  // shifted
    EXPECT_EQ(proches("GACE", formes), textes{"GAEC"});  // swapped
    EXPECT_EQ(proches("GAEX", formes), textes{"GAEC"});  // one wrong
    EXPECT_EQ(proches("GEC ", formes), textes{"GAEC"});  // one missing
    EXPECT_EQ(proches("SAX ", formes), textes{"SA  "});  // one too many
    EXPECT_EQ(proches("GAE", formes), textes{"GAEC"});   // cut by the record's end
    EXPECT_EQ(proches("MX  ", formes), textes{"M   "});
}

TEST(Proches, DeuxEcartsSontTropLoin) {
    const sListe formes = listeDe(FORMES);
    EXPECT_EQ(proches("GXXC", formes), textes{});
    EXPECT_EQ(proches("CEAG", formes), textes{});
    EXPECT_EQ(proches("G   ", formes), textes{"M   "});
    EXPECT_EQ(proches("GAECGAEC", formes), textes{});
}

TEST(Proches, LaConfusionLaPlusCourantePasseAvant) {
    const sListe numeros = listeDe(NUMEROS);
    EXPECT_EQ(proches("O1", numeros), (textes{"01", "11", "71"}));  // O for 0, then one character wrong
    EXPECT_EQ(proches("1O", numeros), (textes{"10", "11", "1I"}));
    EXPECT_EQ(proches("I1", numeros), (textes{"11", "1I", "01"}));  // both read the same, in the list's order
    EXPECT_EQ(proches("1i", numeros), (textes{"1I", "11", "10"}));  // capitals before look-alikes
    EXPECT_EQ(proches("17", numeros), (textes{"71", "10", "11"}));  // swapped before one wrong
}

TEST(Proches, TroisAuPlusDansLOrdreDeLaListe) {
    constexpr tValAutorise PAYS[] = {"AA", "BA", "CA", "DA", "XA"};
    EXPECT_EQ(proches("ZA", listeDe(PAYS)), (textes{"AA", "BA", "CA"}));
    EXPECT_EQ(proches("AX", listeDe(PAYS)), (textes{"XA", "AA"}));
    EXPECT_EQ(proches("XA", listeDe(PAYS)), textes{});
}

TEST(Proches, CodesDUnCaractere) {
    const sListe lettres = listeDe(LETTRES);
    EXPECT_EQ(proches("a", lettres), textes{"A"});
    EXPECT_EQ(proches("O", lettres), textes{"0"});
    EXPECT_EQ(proches("I", lettres), textes{"1"});
    EXPECT_EQ(proches("Z", lettres), textes{});
}

TEST(Proches, RienPourUnChampBlancNiPourUneValeurDeLaListe) {
    const sListe formes = listeDe(FORMES);
    EXPECT_EQ(proches("    ", formes), textes{});
    EXPECT_EQ(proches("", formes), textes{});
    EXPECT_EQ(proches("SARL", formes), textes{});  // though EARL is one character away
    constexpr tValAutorise OUVERTS[] = {"  ", "**"};
    EXPECT_EQ(proches(" X", listeDe(OUVERTS)), textes{});  // blanks are no code to be meant
}

TEST(Proches, SeulLePremierTexteDeChaqueLigne) {
    constexpr tValAutorise PAIRES[] = {"AB", "XY", "CD", "XZ"};
    EXPECT_EQ(proches("XW", listeDe(PAIRES, 2)), textes{});
    EXPECT_EQ(proches("AW", listeDe(PAIRES, 2)), textes{"AB"});
}

TEST(Proches, SurLesVraiesListes) {
    EXPECT_EQ(proches("fr", *listeNommee("FR")), textes{"FR"});
    EXPECT_EQ(proches("O1", *listeNommee("TD"))[0], "01");
    EXPECT_EQ(proches("SIERT", *listeNommee("TYP_NUMERO")), textes{"SIRET"});
    EXPECT_EQ(proches("ZZ", *listeNommee("TP")).size(), 3U);
    // Whatever the value, each list answers within its bounds.
    for (const sListe& l : listes)
        for (const std::string valeur :
             {"X", "ZZ", "XX X", "É\x80\xff", "01071999x", "                   x"}) {
            const sProches p = prochesDe(valeur, l);
            EXPECT_GE(p.nombre, 0);
            EXPECT_LE(p.nombre, MAX_PROCHES);
        }
}

TEST(Proches, UneValeurRepeteeDonneLaMemeReponse) {
    const sListe formes = listeDe(FORMES);
    const std::vector<std::string> attendus = proches("SRAL", formes);
    EXPECT_EQ(attendus, std::vector<std::string>{"SARL"});
    // More values than are remembered, among them the first ones again.
    for (int i = 0; i < 1000; ++i) {
        const std::string autre =
            std::string(2, static_cast<char>('A' + i % 26)) + std::to_string(10 + i / 26);
        const auto premiere = proches(autre, formes);
        EXPECT_EQ(proches(autre, formes), premiere) << autre;
        EXPECT_EQ(proches("SRAL", formes), attendus) << autre;
    }
    EXPECT_EQ(proches("SA1 ", formes), std::vector<std::string>{"SA  "});
}
