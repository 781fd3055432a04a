/**
 * The text of the progress bar: what it says, and that it fits.
 */
#include "lot/affichage.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "lot/noms.h"

using namespace quilvane;
using namespace quilvane::lot;

namespace {

long largeur(const std::string& s) {
    return std::count_if(s.begin(), s.end(),
                         [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
}

total faits(long emis, long rejets, long echecs) {
    total t;
    t.emis = emis;
    t.rejets = rejets;
    t.echecs = echecs;
    return t;
}

}  // namespace

TEST(AffichageLot, Barre) {
    EXPECT_EQ(texteBarre(faits(0, 0, 0), {0, 8, 0}, ANGLAIS, 79),
              "[                   ] 0/8; 0 accepted, 0 refused, 0 failed");
    EXPECT_EQ(texteBarre(faits(2, 1, 1), {4, 8, 2}, ANGLAIS, 79),
              "[========>          ] 4/8; 2 accepted, 1 refused, 1 failed; 2.0/s; 0:02 left");
    EXPECT_EQ(texteBarre(faits(6, 1, 1), {8, 8, 4}, ANGLAIS, 79),
              "[===================] 8/8; 6 accepted, 1 refused, 1 failed; 2.0/s; 0:00 left");
    EXPECT_EQ(texteBarre(faits(2, 1, 1), {4, 7204, 2}, FRANCAIS, 90),
              "[           ] 4/7204 ; acceptés 2, refusés 1, échecs 1 ; 2,0/s ; reste 1:00:00");
}

TEST(AffichageLot, BarreEtroite) {
    // First the time left goes, then the rate, then the bar; then the text is cut.
    const total t = faits(2, 1, 1);
    const std::string comptes = "4/8; 2 accepted, 1 refused, 1 failed";
    EXPECT_EQ(texteBarre(t, {4, 8, 2}, ANGLAIS, 50), comptes + "; 2.0/s");
    EXPECT_EQ(texteBarre(t, {4, 8, 2}, ANGLAIS, 40), comptes);
    EXPECT_EQ(texteBarre(t, {4, 8, 2}, ANGLAIS, 12), comptes.substr(0, 12));
    EXPECT_EQ(texteBarre(t, {4, 8, 2}, ANGLAIS, 0), "");
}

TEST(AffichageLot, BarreDeToutesLesLargeurs) {
    for (const eLangue langue : {FRANCAIS, ANGLAIS}) {
        for (int colonnes = 0; colonnes < 200; ++colonnes) {
            std::size_t fermeture = 0;
            for (long finis = 0; finis <= 120; ++finis) {
                const avancement a = {finis, 120, static_cast<double>(finis)};
                const std::string b = texteBarre(faits(finis / 2, finis / 4, finis - finis / 2 - finis / 4),
                                                 a, langue, colonnes);
                ASSERT_LE(largeur(b), colonnes) << b;
                ASSERT_TRUE(estUtf8(b)) << b;
                // It keeps its length while the numbers grow.
                if (finis == 0) fermeture = b.find(']');
                ASSERT_EQ(b.find(']'), fermeture) << b;
            }
        }
    }
}
