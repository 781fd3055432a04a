// The lists in words: every list that a row names, and the others that the
// checks of the rows look up.
#include "catalogue/listes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "catalogue/textes.h"
#include "checks/valautorise.h"
#include "support/regles.h"

using namespace quilvane;
using essai::regle;

namespace {

/** Lists that checks look up by themselves and no row names. */
const std::set<std::string> CONSULTEES = {
    "tE6CRE",     "tE6DEM", "tE6INV", "tE6MOD", "tE6EDI", "tE6INF", "ET4",      "ET12",
    "deuxBlancs", "P5",     "P6",     "P7",     "P8",     "P17",    "TCPNOCEE", "TEDC",
};

}  // namespace

TEST(Listes, ChaqueListeDUneRegleAUneEntree) {
    std::set<std::string> nommees;
    for (const regle& r : essai::reglesAvecVerif()) {
        if (r.ligne->sverif == &sansListe) continue;
        const sListe* const liste = listeEnMots(r.ligne->sverif);
        ASSERT_NE(liste, nullptr) << r.nom() << ", error " << r.ligne->noErr;
        EXPECT_EQ(liste->nombre, r.ligne->sverif->nombre()) << liste->nom;
        nommees.insert(liste->nom);
    }
    for (const sListe& l : listes)
        EXPECT_NE(nommees.count(l.nom) == 1, CONSULTEES.count(l.nom) == 1) << l.nom;
    EXPECT_EQ(listes.size(), nommees.size() + CONSULTEES.size());
}

TEST(Listes, EntreesSontEntieres) {
    std::set<const void*> vues;
    for (const sListe& l : listes) {
        EXPECT_TRUE(vues.insert(l.entrees).second) << l.nom;
        EXPECT_GT(l.nombre, 0) << l.nom;
        ASSERT_GT(l.colonnes, 0) << l.nom;
        EXPECT_EQ(l.nombre % l.colonnes, 0) << l.nom;
        for (int i = 0; i < l.nombre; ++i)
            ASSERT_NE(l.entrees[i].valeur, nullptr) << l.nom << " " << i;
    }
    // Read by pairs and triples.
    for (const auto& [nom, colonnes] :
         {std::pair("TCME", 2), {"TCMS", 2}, {"NEV", 2}, {"TEDC", 2}, {"IND_M", 3}})
        EXPECT_EQ(listeNommee(nom)->colonnes, colonnes) << nom;
    EXPECT_STREQ(listeNommee("TEDC")->entrees[listeNommee("TEDC")->nombre - 2].valeur, "OVINFOS ");
}

TEST(Listes, TextesSontCourtsEtDansLesDeuxLangues) {
    for (const sListe& l : listes) {
        essai::attendreTexte(l.titre, l.nom);
        essai::attendrePhrase(l.contenu, l.nom);
        for (const std::string titre : {l.titre.fr, l.titre.en}) {
            EXPECT_LE(essai::caracteresUTF8(titre), 60) << l.nom;
            EXPECT_NE(titre.back(), '.') << l.nom;
        }
    }
}

// A title that says how many blanks or asterisks a field holds counts them right.
TEST(Listes, BlancsSontComptes) {
    const char* const nombres[] = {"",      "one",  "two", "three",  "four",   "five",     "six",     "seven",
                                   "eight", "nine", "ten", "eleven", "twelve", "thirteen", "fourteen"};
    for (const sListe& l : listes) {
        const std::string valeur = l.entrees[0].valeur;
        if (l.nombre != 1 || valeur.find_first_not_of(valeur[0]) != std::string::npos) continue;
        if (valeur[0] != ' ' && valeur[0] != '*') continue;
        const std::size_t n = valeur.size();
        const std::string mot = n <= 14 ? nombres[n] : n == 20 ? "twenty" : n == 30 ? "thirty" : "sixty";
        EXPECT_EQ(std::string(l.titre.en), mot + (valeur[0] == ' ' ? " blanks"
                                                  : n == 1         ? " asterisk"
                                                                   : " asterisks"))
            << l.nom;
    }
}

TEST(Listes, SeTrouventParPointeurEtParNom) {
    ASSERT_NE(listeNommee("TD"), nullptr);
    EXPECT_EQ(listeNommee("TD"), listeEnMots(&TD));
    EXPECT_EQ(listeNommee("TEDC"), listeEnMots(&TEDC));
    EXPECT_EQ(listeNommee("td"), nullptr);
    EXPECT_EQ(listeNommee(""), nullptr);
    EXPECT_EQ(listeEnMots(nullptr), nullptr);
    EXPECT_EQ(listeEnMots(&sansListe), nullptr);
}
