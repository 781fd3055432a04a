/**
 * The console modes: what they print of each thing seen, and of whole records.
 */
#include "driver/console.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "support/modeles.h"
#include "support/passage.h"

using namespace quilvane;
using namespace essai;

namespace {

std::string imprime(const std::function<void()>& action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}

std::string imprime(int mode, const sVu& vu) {
    return imprime([&] { dire(affichageVSE(mode), vu); });
}

constexpr sCorps LIGNE = {22, 3, 3, 0, 0, 0, 0, 0, nullptr, &sansListe, "", 31};

/** A row event of field 23 in the fifth slot. */
sVu vu(eVu quoi, const char* valeur = "v", int presence = 0, int numero = 0) {
    return {quoi, &LIGNE, "C", 4, valeur, presence, numero};
}

}  // namespace

TEST(Console, UnTemoinParMode) {
    EXPECT_EQ(affichageVSE(VISU_AUCUNE), nullptr);
    ASSERT_NE(affichageVSE(VISU_INFORMATIQUE), nullptr);
    ASSERT_NE(affichageVSE(VISU_DECRIPTEE), nullptr);
    EXPECT_NE(affichageVSE(VISU_INFORMATIQUE), affichageVSE(VISU_DECRIPTEE));
    EXPECT_EQ(affichageVSE(3), nullptr);
    EXPECT_EQ(VISU_INFORMATIQUE, 1);
    EXPECT_EQ(VISU_DECRIPTEE, 2);
}

TEST(Console, ChaqueEvenement) {
    retenirVSE("le record");
    const struct {
        sVu vu;
        std::string informatique;  // UTF-8
        std::string decriptee;
    } cas[] = {
        {{.quoi = VU_RECORD}, "", "VSE=|le record|\n"},
        {{.quoi = VU_COUPE}, "", "\n"},
        {{.quoi = VU_CADRAGE, .numero = 106}, "VSE  cars non autorisés \n", ""},
        {{.quoi = VU_CADRAGE, .numero = 107}, "VSE trop long ", ""},
        {{.quoi = VU_CADRAGE, .numero = 108}, "VSE trop court ", ""},
        {vu(VU_LIGNE), "", "champ: 23  "},
        {vu(VU_IGNOREE), "", "verif ignoree! 'v'\n"},
        {vu(VU_VERIFIEE), "", "'v'\n"},
        {vu(VU_REFUSEE, "v", 0, 31), "C5.31;", "! erreurChamp sur [v]\n"},
        {vu(VU_INTERDITE, "v", 2, 86), "C5.86;", "verifOblg = [2]\n"},
        {vu(VU_INTERDITE, "v", -1, 86), "C5.86;", "verifOblg = [-1]\n"},
        {{.quoi = VU_TERMINE}, "\n", ""},
        // Texts are no formats.
        {vu(VU_VERIFIEE, "%s%n%d"), "", "'%s%n%d'\n"},
        {vu(VU_REFUSEE, "%s%n%d", 0, 1), "C5.1;", "! erreurChamp sur [%s%n%d]\n"},
        {vu(VU_IGNOREE, "%s%n%d"), "", "verif ignoree! '%s%n%d'\n"},
    };
    for (const auto& c : cas) {
        EXPECT_EQ(imprime(VISU_INFORMATIQUE, c.vu), latin1(c.informatique)) << c.vu.quoi;
        EXPECT_EQ(imprime(VISU_DECRIPTEE, c.vu), c.decriptee) << c.vu.quoi;
        EXPECT_EQ(imprime(VISU_AUCUNE, c.vu), "") << c.vu.quoi;
    }
    retenirVSE("%s%n%d");
    EXPECT_EQ(imprime(VISU_DECRIPTEE, {.quoi = VU_RECORD}), "VSE=|%s%n%d|\n");
    retenirVSE("");
}

TEST(Console, TraceDUneVSE) {
    passage p;
    p.traiter(fich(1));
    const std::string fausse = avec(acti(), {{43, "        "}, {79, "9"}, {256, " "}});
    const auto trace = [&p](const std::string& record, int mode, int longueur = 0, int caractere = 0) {
        p.l.vu = affichageVSE(mode);
        return imprime([&] { p.traiter(record, longueur, caractere); });
    };
    EXPECT_EQ(trace(fausse, VISU_AUCUNE), "");
    EXPECT_EQ(trace(acti(), VISU_INFORMATIQUE), "\n");
    EXPECT_EQ(trace(fausse, VISU_INFORMATIQUE), "E10.88;C4.81;F5.94;\n");
    EXPECT_EQ(trace(fausse, VISU_INFORMATIQUE, 1, 1),
              latin1("VSE  cars non autorisés \n") + "VSE trop long E10.88;C4.81;F5.94;\n");
    const std::string decriptee = trace(fausse, VISU_DECRIPTEE, 1, 1);
    EXPECT_TRUE(decriptee.starts_with("VSE=|" + fausse + "|\n\n\nchamp: 1  champ: 2  champ: 3  '089ARS  '\n"))
        << decriptee;
    EXPECT_EQ(decriptee.find("VSE=|", 1), std::string::npos) << "printed once";
    // Errors of admission and pairing are not shown.
    EXPECT_EQ(trace(avec(acti(), {{27, "004IPG  "}, {65, "04123456    "}}), VISU_INFORMATIQUE), "\n");
    EXPECT_EQ(p.v.erreurs, 1);
    EXPECT_EQ(trace(exp1(), VISU_INFORMATIQUE), "\n");
    EXPECT_EQ(trace(acti(), VISU_INFORMATIQUE), "\n");
    EXPECT_EQ(p.v.sansCompagnon, 105);
}

TEST(Console, LaTraceDUnFICHRefuseResteOuverte) {
    passage p;
    for (const std::string& premiere : {acti(), avec(fich(1), {{63, blancs(16)}})}) {
        p.recommencer();
        p.l.vu = affichageVSE(VISU_INFORMATIQUE);
        EXPECT_EQ(imprime([&] { p.traiter(premiere); }), "");
    }
}

TEST(Console, Tracer) {
    EXPECT_EQ(imprime([] {
                  tracer("un texte");
                  tracer("");
              }),
              "    [****] xdebug message:\"un texte\" [****]\n    [****] xdebug message:\"\" [****]\n");
}
