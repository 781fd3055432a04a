/**
 * mouvement - the rules about the other party of a movement, which ENTR and
 * SORT share; the two types differ in the cause letters that relax them.
 */
#include "support/mouvement.h"

#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"

using namespace essai;
using namespace quilvane;

namespace {

/** A type's checks on causes (C5) and on the other party (C8, C9, C10), for
 *  creation and for modification, and what its letters change. */
struct typeDeMouvement {
    const char* type;
    fVerif* c5;
    fVerif *c8Cre, *c8Mod;
    fVerif *c9Cre, *c9Mod;
    fVerif *formeCre, *formeMod;
    fVerif *c10Cre, *c10Mod;
    const char* exigentPays;
    const char* dispensentNumero;
    const char* dispensentTexte;
    std::vector<const char*> causesDePays;  // of each sort, whatever they ask of a blank
};

class Mouvement : public testing::TestWithParam<typeDeMouvement> {
protected:
    static const typeDeMouvement& m() { return GetParam(); }
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Types, Mouvement,
                         testing::Values(typeDeMouvement{"ENTR",
                                                         entr_fC5,
                                                         entr_fC8_cre,
                                                         entr_fC8_mod,
                                                         entr_fC9_1_cre,
                                                         entr_fC9_1_mod,
                                                         entr_fC9_2_cre,
                                                         entr_fC9_2_mod,
                                                         entr_fC10_cre,
                                                         entr_fC10_mod,
                                                         "FG",
                                                         "FG",
                                                         "N",
                                                         {"A", "F", "N"}},
                                         typeDeMouvement{"SORT",
                                                         sort_fC5,
                                                         sort_fC8_cre,
                                                         sort_fC8_mod,
                                                         sort_fC9_1_cre,
                                                         sort_fC9_1_mod,
                                                         sort_fC9_2_cre,
                                                         sort_fC9_2_mod,
                                                         sort_fC10_cre,
                                                         sort_fC10_mod,
                                                         "ST",
                                                         "MST",
                                                         "",
                                                         {"B", "S", "M"}}),
                         [](const auto& p) { return std::string(p.param.type); });

TEST_P(Mouvement, CausesReserveesALaCreation) {
    const fiche f;
    EXPECT_EQ(causesRefusees(m().c5, f, "X", "CRE"), "");
    EXPECT_EQ(causesRefusees(m().c5, f, "X", "CREX"), "");
    for (const char* genre : {"MOD", "INV", "DEM", "EDI", "ECQ", "INF", "cre", "CR", "CR ", ""})
        EXPECT_EQ(causesRefusees(m().c5, f, "X", genre), "FGST") << genre;
    // The cause is read from the field store, not from the field handed over.
    fiche{.c5 = ""}.placer();
    EXPECT_TRUE(accepte(m().c5, "MOD", "F"));
    fiche{.c5 = "XF"}.placer();
    EXPECT_TRUE(accepte(m().c5, "MOD", "X"));
    fiche{.c5 = "FX"}.placer();
    EXPECT_FALSE(accepte(m().c5, "MOD", "X"));
}

TEST_P(Mouvement, PaysBlancExigeParCauses) {
    EXPECT_EQ(causesRefusees(m().c8Cre, {}, SANS_PAYS), m().exigentPays);
    for (const dateMouvement& d : AUTOUR_DE_P8) {
        const fiche f{.c4 = d.c4};
        EXPECT_EQ(causesRefusees(m().c8Cre, f, SANS_PAYS), m().exigentPays) << d.c4;
        EXPECT_EQ(causesRefusees(m().c8Mod, f, SANS_PAYS), d.avantP8 ? "" : m().exigentPays) << d.c4;
    }
}

TEST_P(Mouvement, PaysDonneVientDeLaListe) {
    // clang-format off
    const std::vector<verdict> cas = {
        {"FR", true},  {"BE", true},  {"US", true},  {"EL", true},   {"NORM01  ", true}, {"ZZ", false},
        {"F ", false}, {" F", false}, {"fr", false}, {"FR ", false}, {"**", false},      {"GR", false},
        // cut by the end of the record: neither blank nor a country
        {"", false},   {" ", false},  {"F", false},
    };
    // clang-format on
    for (const char* cause : m().causesDePays) {
        for (const char* c4 : {"31121998", "15032024"}) {
            SCOPED_TRACE(std::string(cause) + " " + c4);
            fiche{.c4 = c4, .c5 = cause}.placer();
            prouverChamps(m().c8Cre, "", cas);
            prouverChamps(m().c8Mod, "", cas);
        }
    }
}

TEST_P(Mouvement, NumeroSansPaysRefusePourTouteCause) {
    for (const char* c9 : {"35123456    ", "X           ", "           X", "", "           "}) {
        for (const dateMouvement& d : AUTOUR_DE_P8) {
            fiche f{.c4 = d.c4, .c8 = SANS_PAYS};
            EXPECT_EQ(causesAcceptees(m().c9Cre, f, c9), "") << "'" << c9 << "' " << d.c4;
            EXPECT_EQ(causesAcceptees(m().c9Mod, f, c9), "") << "'" << c9 << "' " << d.c4;
            // Any country will do; its value is another rule's business.
            for (const char* pays : {"FR", "ZZ", "F ", " "}) {
                f.c8 = pays;
                EXPECT_EQ(causesRefusees(m().c9Cre, f, c9), "") << "'" << c9 << "' " << d.c4 << pays;
                EXPECT_EQ(causesRefusees(m().c9Mod, f, c9), "") << "'" << c9 << "' " << d.c4 << pays;
            }
        }
    }
}

TEST_P(Mouvement, NumeroBlancSelonPaysCauseEtDate) {
    for (const dateMouvement& d : AUTOUR_DE_P8) {
        const fiche sansPays{.c4 = d.c4, .c8 = SANS_PAYS};
        EXPECT_EQ(causesRefusees(m().c9Cre, sansPays, SANS_NUMERO), "") << d.c4;
        EXPECT_EQ(causesRefusees(m().c9Mod, sansPays, SANS_NUMERO), "") << d.c4;
        const fiche avecPays{.c4 = d.c4, .c8 = "BE"};
        EXPECT_EQ(causesAcceptees(m().c9Cre, avecPays, SANS_NUMERO), m().dispensentNumero) << d.c4;
        if (d.avantP8) {
            EXPECT_EQ(causesRefusees(m().c9Mod, avecPays, SANS_NUMERO), "") << d.c4;
        } else {
            EXPECT_EQ(causesAcceptees(m().c9Mod, avecPays, SANS_NUMERO), m().dispensentNumero) << d.c4;
        }
    }
}

TEST_P(Mouvement, NumeroDeLaFormeDeSonPays) {
    const struct {
        const char* c8;
        const char* c9;
        bool passe;
    } cas[] = {
        // clang-format off
        {"FR", "35123456    ", true},  {"FR", "97612345    ", true},  {"FR", "20123456    ", true},
        {"FR", "97512345    ", false}, {"FR", "99123456    ", false}, {"FR", "3512345     ", false},
        {"FR", "351234567   ", false}, {"FR", "2A123456    ", false}, {"FR", "            ", true},
        {"BE", "X           ", true},  {"BE", "BE123456    ", true},  {"  ", "X           ", true},
        {"BE", "            ", true},  {"  ", "            ", true},  {"FR ", "X           ", true},
        {"fr", "X           ", true},
        // cut by the end of the record: not twelve blanks, not twelve columns
        {"FR", "", false}, {"FR", "           ", false}, {"FR", "35123456   ", false}, {"BE", "", true},
        // clang-format on
    };
    for (const auto& c : cas) {
        fiche{.c8 = c.c8, .c9 = "unread"}.placer();
        // The departments are the check's own: the row gives no list.
        EXPECT_EQ(accepte(m().formeCre, "", c.c9), c.passe) << c.c8 << " '" << c.c9 << "'";
        EXPECT_EQ(accepte(m().formeMod, "", c.c9), c.passe) << c.c8 << " '" << c.c9 << "'";
    }
}

TEST_P(Mouvement, TexteExigeSansNumero) {
    for (const dateMouvement& d : AUTOUR_DE_P8) {
        const fiche sansNumero{.c4 = d.c4, .c9 = SANS_NUMERO};
        EXPECT_EQ(causesAcceptees(m().c10Cre, sansNumero, SANS_TEXTE), m().dispensentTexte) << d.c4;
        if (d.avantP8) {
            EXPECT_EQ(causesRefusees(m().c10Mod, sansNumero, SANS_TEXTE), "") << d.c4;
        } else {
            EXPECT_EQ(causesAcceptees(m().c10Mod, sansNumero, SANS_TEXTE), m().dispensentTexte) << d.c4;
        }
        const fiche avecNumero{.c4 = d.c4, .c9 = "           X"};
        EXPECT_EQ(causesRefusees(m().c10Cre, avecNumero, SANS_TEXTE), "") << d.c4;
        EXPECT_EQ(causesRefusees(m().c10Mod, avecNumero, SANS_TEXTE), "") << d.c4;
        // Text in any column, and text cut by the end of the record.
        for (const std::string& texte :
             {"X" + std::string(59, ' '), std::string(59, ' ') + "X", std::string(59, ' '), std::string()}) {
            EXPECT_EQ(causesRefusees(m().c10Cre, sansNumero, texte), "") << d.c4 << " '" << texte << "'";
            EXPECT_EQ(causesRefusees(m().c10Mod, sansNumero, texte), "") << d.c4 << " '" << texte << "'";
        }
    }
}
