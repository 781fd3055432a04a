#include "vocabulaire/store.h"
#include "support/magasin.h"
#include "support/vse.h"
#include "vocabulaire/regle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>

using namespace quilvane;
using namespace essai;

namespace {

/** The store as the program finds it, before any test has run. */
const std::string ETAT_INITIAL = etatMagasin();

/** A record in which the bytes of neighbouring columns differ. */
std::string recordVarie(std::size_t longueur = LARGEUR_VSE) {
    std::string r;
    for (std::size_t i = 0; i < longueur; ++i)
        r.push_back(static_cast<char>('!' + i % 89));
    return r;
}

struct membre {
    const char* nom;
    char* texte;
    std::size_t taille;
    std::size_t premiere, derniere;  // columns; 0: filled from none
};

#define MEMBRE(m, de, a) \
    { #m, cp.m, sizeof cp.m, de, a }
const membre MEMBRES[] = {
    MEMBRE(CODE_PAYS_BOV, 0, 0),
    MEMBRE(NUME_NATI_BOV, 65, 76),
    MEMBRE(CODE_RESULTAT, 77, 78),
    MEMBRE(CODE_EXPLOIT_PROVENANCE, 79, 80),
    MEMBRE(NUME_EXPLOIT_PROVENANCE, 81, 92),
    MEMBRE(DATE_ENTREE_ABAT, 93, 100),
    MEMBRE(DATE_ABATTAGE, 101, 108),
    MEMBRE(NUME_TUERIE, 109, 116),
    MEMBRE(POIDS_CARCASSE, 117, 123),
    MEMBRE(CODE_PAYS_ABAT_NOTIF, 124, 125),
    MEMBRE(NUME_IDENT_ABAT_NOTIF, 126, 137),
    MEMBRE(INDIC_CREA_INVA_ABATT, 138, 138),
};
#undef MEMBRE

/** What a member must hold after a cut of `record`. */
std::string attendu(const membre& m, const std::string& record) {
    if (m.premiere == 0 || record.size() < m.premiere) return "";
    return record.substr(m.premiere - 1, m.derniere - m.premiere + 1);
}

}  // namespace

// ------------------------------------------------------------ the store

TEST(Pack, MagasinVideAuDepart) {
    EXPECT_GT(ETAT_INITIAL.size(), 145U * 257U);
    EXPECT_EQ(ETAT_INITIAL.find_first_not_of('\0'), std::string::npos);
}

TEST(Pack, TaillesDuMagasin) {
    EXPECT_EQ(std::size(valEnteteVSE), 13U);
    EXPECT_EQ(std::size(valCorpsVSE), 100U);
    EXPECT_EQ(std::size(valFinVSE), 5U);
    EXPECT_EQ(std::size(valFichEnteteVSE), 13U);
    EXPECT_EQ(std::size(valFichCorpsVSE), 9U);
    EXPECT_EQ(std::size(valFichFinVSE), 5U);
    EXPECT_EQ(sizeof(valeurVSE), 257U);
    EXPECT_EQ(sizeof xdebug, 4096U);
    EXPECT_EQ(std::size(codeErreur), 11U);
    EXPECT_EQ(sizeof bufC11, 32U);
    for (const membre& m : MEMBRES)
        EXPECT_EQ(m.taille, m.premiere != 0 ? 64U : 3U) << m.nom;
}

TEST(Pack, NumerosDeChamps) {
    EXPECT_EQ(E1, 0U);
    EXPECT_EQ(E13, 12U);
    EXPECT_EQ(F1, 0U);
    EXPECT_EQ(F5, 4U);
    EXPECT_EQ(C1, 0U);
    EXPECT_EQ(C21, 20U);
    EXPECT_EQ(C50, 49U);
    EXPECT_EQ(C100, 99U);
    EXPECT_EQ(CINC, 100U);
    EXPECT_EQ(SUP, 0);
    EXPECT_EQ(INF, 1);
    EXPECT_EQ(COMPLETE, 0);
    EXPECT_EQ(INCOMPLETE, 1);
}

TEST(Pack, DependancesParChamp) {
    for (unsigned i = 0; i < 13; ++i) {
        EXPECT_EQ(entete(numEnteteVSE{i}), valEnteteVSE[i].valeur);
        EXPECT_EQ(fichEntete(numEnteteVSE{i}), valFichEnteteVSE[i].valeur);
    }
    for (unsigned i = 0; i < 100; ++i)
        EXPECT_EQ(corps(numCorpsVSE{i}), valCorpsVSE[i].valeur);
    for (unsigned i = 0; i < 5; ++i)
        EXPECT_EQ(fin(numFinVSE{i}), valFinVSE[i].valeur);
    EXPECT_STREQ(aucune, "");
}

// ----------------------------------------------------- the start of a file

TEST(Pack, ViderMagasinNeGardeQueLeJetonDuNom) {
    remplirMagasin("ancien");
    std::fill(std::begin(codeErreur), std::end(codeErreur), 31);
    nbErreur = codCaract = codLong = 2;
    leStore = {};
    EXPECT_STREQ(bufC11, "ancien") << "it belongs to the run, not to the file";
    std::memset(bufC11, 0, sizeof bufC11);
    EXPECT_TRUE(etatMagasin() == ETAT_INITIAL);
}

// ------------------------------------------------------- the record kept

TEST(Pack, LesColonnesQuiManquentSontDesZeros) {
    for (const std::size_t n : {0U, 1U, 15U, 16U, 17U, 137U, 255U, 256U, 300U, 4095U, 5000U}) {
        std::memset(xdebug, '~', sizeof xdebug);
        const std::string r(n, 'r');
        retenirVSE(r.c_str());
        const std::size_t garde = std::min<std::size_t>(n, sizeof xdebug - 1);
        EXPECT_EQ(std::string(xdebug), r.substr(0, garde)) << n;
        for (std::size_t i = garde; i < 256; ++i)
            EXPECT_EQ(xdebug[i], '\0') << n << " column " << i + 1;
    }
    retenirVSE("ancien");
    retenirVSE(xdebug + 2);  // also out of itself
    EXPECT_STREQ(xdebug, "cien");
    retenirVSE("");
}

// ---------------------------------------- the second cut of slaughter notices

TEST(Pack, ExtraitParColonnes) {
    for (std::size_t longueur : {std::size_t{256}, std::size_t{255}, std::size_t{138}, std::size_t{400}}) {
        const std::string record = recordVarie(longueur);
        for (const char* ancien : {"", "X", "ANCIEN TEXTE PLUS LONG QUE TOUT MEMBRE DE L'EXTRAIT"}) {
            remplirMagasin(ancien, {{xdebug, record}});
            getVseCorps();
            for (const membre& m : MEMBRES)
                EXPECT_EQ(std::string(m.texte), attendu(m, record)) << m.nom << " of " << longueur;
        }
    }
}

TEST(Pack, ExtraitDUnRecordCourt) {
    for (std::size_t longueur = 0; longueur <= 140; ++longueur) {
        const std::string record = recordVarie(longueur);
        remplirMagasin("ANCIEN TEXTE PLUS LONG QUE TOUT MEMBRE DE L'EXTRAIT");
        // Bytes behind the record's end are of an older one.
        std::memset(xdebug, '~', sizeof xdebug - 1);
        std::memcpy(xdebug, record.c_str(), record.size() + 1);
        getVseCorps();
        for (const membre& m : MEMBRES)
            EXPECT_EQ(std::string(m.texte), attendu(m, record)) << m.nom << " of " << longueur;
    }
}

TEST(Pack, ExtraitNiRogneNiComplete) {
    remplirMagasin("X", {{xdebug, std::string(256, ' ')}});
    getVseCorps();
    for (const membre& m : MEMBRES)
        EXPECT_EQ(std::string(m.texte), m.premiere == 0 ? "" : std::string(m.derniere - m.premiere + 1, ' '))
            << m.nom;
}

TEST(Pack, ExtraitDuRecordEtNonDesChamps) {
    remplirMagasin("CHAMP", {{xdebug, recordVarie()}});
    const std::string avant = etatMagasin();
    getVseCorps();
    const std::string apres = etatMagasin();
    for (const zone& z : zones()) {
        const bool dansExtrait = std::any_of(std::begin(MEMBRES), std::end(MEMBRES),
                                             [&z](const membre& m) { return m.texte == z.debut; });
        if (!dansExtrait && z.debut != xdebug) {
            EXPECT_STREQ(z.debut, "CHAMP");
        }
    }
    EXPECT_EQ(std::string(xdebug), recordVarie());
    EXPECT_FALSE(avant == apres);
}

// -------------------------------------------------------- list entries

TEST(Pack, CleDesHuitPremiersCaracteres) {
    const auto cle = [](const char* t) { return tValAutorise::cle(t); };
    EXPECT_EQ(cle(nullptr), 0U);
    EXPECT_EQ(cle(""), 0U);
    EXPECT_EQ(cle("A"), 0x41U);
    EXPECT_EQ(cle("FR"), 0x5246U);
    EXPECT_EQ(cle("ABCDEFGH"), 0x4847464544434241U);
    EXPECT_EQ(cle("ABCDEFGHI"), cle("ABCDEFGH"));
    EXPECT_EQ(cle("\377\200"), 0x80FFU);  // unsigned bytes
    EXPECT_EQ(cle("\377\377\377\377\377\377\377\377"), ~std::uint64_t{0});
    // What ends early has zeros behind it, which no character equals.
    const char* const DIFFERENTS[] = {"",         "A",        "A ",       " A",       "AA",
                                      "B",        "ABCDEFG",  "ABCDEFG ", "ABCDEFGH", "ABCDEFGI",
                                      "BBCDEFGH", "abcdefgh", "\301",     "\301\301"};
    for (const char* a : DIFFERENTS)
        for (const char* b : DIFFERENTS)
            EXPECT_EQ(cle(a) == cle(b), a == b) << a << " / " << b;
}

TEST(Pack, EntreeDeListe) {
    constexpr tValAutorise ENTREE = "BDN     ";
    EXPECT_STREQ(ENTREE.valeur, "BDN     ");
    EXPECT_EQ(ENTREE.debut, tValAutorise::cle("BDN     "));
    EXPECT_NE(ENTREE.debut, tValAutorise::cle("BDN"));
    constexpr tValAutorise FIN_DE_LISTE = nullptr;
    EXPECT_EQ(FIN_DE_LISTE.valeur, nullptr);
    EXPECT_EQ(FIN_DE_LISTE.debut, 0U);
}
