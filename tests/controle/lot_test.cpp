#include "controle/lot.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "controle/traitement.h"
#include "messages/aiguillage.h"
#include "support/memoire.h"
#include "support/modeles.h"

using namespace quilvane;
using namespace essai;

namespace {

/** A step as short text: "v2" a record judged with two errors, "v0+105" one
 *  whose forerunner waited in vain, "s" skipped, "fin", or the fatal condition. */
std::string pas(eSuite suite, const verdict& v) {
    switch (suite) {
        case SUITE_VERDICT:
            return "v" + std::to_string(v.erreurs) +
                   (v.sansCompagnon != 0 ? "+" + std::to_string(v.sansCompagnon) : "");
        case SUITE_SAUTE: return "s";
        case SUITE_FIN: return "fin";
        default: break;
    }
    constexpr const char* NOMS[] = {"?", "IG003", "IG008", "IG011", "IG014", "IG015", "I073", "I099"};
    return NOMS[static_cast<int>(v.fatal)];
}

/** A file from its first line to its end. */
struct Lot : testing::Test {
    lot l;
    lecteur source;
    verdict v = {};

    /** The steps, blank-separated. Places and counts are those of the steps. */
    std::string parcourir(memoire fichier) {
        commencer(l);
        fichier.ouvrir(source);
        std::string pris;
        for (int rang = 1;; ++rang) {
            const eSuite suite = suivant(l, source, v);
            pris += (pris.empty() ? "" : " ") + pas(suite, v);
            EXPECT_EQ(v.rang, rang);
            EXPECT_EQ(suite == SUITE_ARRET, v.fatal != eFatal::AUCUN);
            if (suite == SUITE_FIN || suite == SUITE_ARRET) return pris;
            EXPECT_EQ(l.nombreDeVSE, rang + 1);
        }
    }
    std::string parcourir(const std::string& octets) { return parcourir(memoire(octets)); }

    /** The steps' number, when they are too many to be looked at. */
    int compter(const std::string& octets, std::string& dernier) {
        commencer(l);
        memoire fichier(octets);
        fichier.ouvrir(source);
        for (int n = 0;; ++n) {
            const eSuite suite = suivant(l, source, v);
            dernier = pas(suite, v);
            if (suite == SUITE_FIN || suite == SUITE_ARRET) return n;
        }
    }
};

std::string lignes(int n) {
    std::vector<std::string> r(static_cast<std::size_t>(n), acti());
    r.insert(r.begin(), fich(n));
    return fichier(r);
}

const std::string FAUSSE = avec(acti(), {{79, "9"}});

}  // namespace

// ------------------------------------------------------ the start of a file

TEST_F(Lot, CommencerRemetTout) {
    static const lot neuf;
    const char* const VARIANTE_ESSAYEE = "QUILVANED ";
    VARIANTE = VARIANTE_ESSAYEE;
    parcourir(fichier({avec(fich(1), {{3, "ZZZZZZZZ"}}), exp1(), acti()}));
    std::memset(l.VSEDate, '1', sizeof l.VSEDate - 1);
    const temoin t = {};
    l.vu = &t;
    l.err_aux = 51;
    std::strcpy(bufC11, "JETON");
    commencer(l);
    EXPECT_EQ(l.vu, nullptr);
    EXPECT_STREQ(l.VSEDate, "");
    EXPECT_EQ(l.nombreDeVSE, 1);
    EXPECT_EQ(l.nbVSE_Err, 0);
    EXPECT_EQ(l.formatDuFichier, -1);
    EXPECT_STREQ(l.sauvEmetteur, "XXXXXXXX");
    EXPECT_STREQ(l.sauvRecepteur, "XXXXXXXX");
    EXPECT_EQ(l.errFich, 0);
    EXPECT_EQ(std::memcmp(l.codeFichErreur, neuf.codeFichErreur, sizeof l.codeFichErreur), 0);
    EXPECT_EQ(l.constatsFich[0].numero, 0);
    EXPECT_STREQ(l.sauvCodeVSE, "");
    EXPECT_STREQ(l.sauvTypeVSE, "");
    EXPECT_EQ(l.sauvCodeVSEerr, 0);
    EXPECT_STREQ(l.sauvLienVSE, "");
    EXPECT_STREQ(l.sauvTamponVSE, "");
    EXPECT_STREQ(l.tamponSansCompagnon, "");
    EXPECT_EQ(l.existDependanceVSEerr, 0);
    EXPECT_EQ(l.err_aux, 0);
    EXPECT_STREQ(l.ligne.texte, "");
    // The field store too, but for what belongs to the run.
    for (const valeurVSE* slots : {valEnteteVSE, valFichEnteteVSE})
        EXPECT_STREQ(slots[E6].valeur, "");
    EXPECT_STREQ(valCorpsVSE[C1].valeur, "");
    EXPECT_STREQ(xdebug, "");
    EXPECT_EQ(codeErreur[0], 0);
    EXPECT_STREQ(bufC11, "JETON");
    EXPECT_EQ(VARIANTE, VARIANTE_ESSAYEE);
    bufC11[0] = '\0';
    VARIANTE = "QUILVANE  ";
}

// A file gives the same whatever was read before it.
TEST_F(Lot, UnFichierNeDependPasDuPrecedent) {
    const std::string octets = fichier({fich(2), acti(), exp1()});
    const std::string attendu = "v0 v0 v0 fin";
    EXPECT_EQ(parcourir(octets), attendu);
    const bilan b = conclure(l);
    EXPECT_EQ(b.sansCompagnon, 105);
    for (const std::string& avant :
         {fichier({acti()}), std::string("\n"), fichier({fich(1), exp1(), FAUSSE})}) {
        parcourir(avant);
        EXPECT_EQ(parcourir(octets), attendu);
        EXPECT_EQ(l.nbVSE_Err, 0);
    }
}

// ------------------------------------------------------- step after step

TEST_F(Lot, UnPasParLigne) {
    EXPECT_EQ(parcourir(fichier({fich(3), acti(), FAUSSE, acti()})), "v0 v0 v1 v0 fin");
    EXPECT_EQ(l.nbVSE_Err, 1);
    EXPECT_EQ(l.formatDuFichier, CVERSE_UNIX);
    EXPECT_EQ(parcourir(fichier({fich(1), acti()}, "\r\n") + "\x1A" + acti() + "\n"), "v0 v0 fin");
    EXPECT_EQ(l.formatDuFichier, CVERSE_DOS);
    EXPECT_EQ(parcourir(fichier({fich(1), acti()}) + acti()), "v0 v0 fin") << "no line end, no record";
    EXPECT_EQ(parcourir(fichier({avec(fich(1), {{245, "024"}}), acti()})), "v1 v0 fin");
    EXPECT_EQ(l.nbVSE_Err, 1);
    EXPECT_EQ(parcourir(""), "fin");
    EXPECT_EQ(l.formatDuFichier, -1);
}

TEST_F(Lot, LaLigneJugeeResteALAppelant) {
    commencer(l);
    memoire octets(fichier({fich(1), acti() + "\x01" + "xyz"}));
    octets.ouvrir(source);
    ASSERT_EQ(suivant(l, source, v), SUITE_VERDICT);
    EXPECT_EQ(l.ligne.texte, fich(1));
    ASSERT_EQ(suivant(l, source, v), SUITE_VERDICT);
    EXPECT_EQ(l.ligne.texte, acti());
    EXPECT_EQ(l.ligne.numero, 2);
    EXPECT_EQ(l.ligne.debut, 257);
    EXPECT_EQ(l.ligne.longueur, 260);
    EXPECT_EQ(l.ligne.colonneInterdite, 257);
    EXPECT_EQ(v.erreurs, 2);
    EXPECT_EQ(codeErreur[0], 106);
    EXPECT_EQ(codeErreur[1], 107);
}

// A line that has no message type is given none, whatever came before it.
TEST_F(Lot, LigneDAiguillage) {
    commencer(l);
    memoire octets(fichier({fich(4), acti(), avec(acti(), {{22, "XXXX"}})}) + "x\r" + exp1() + "\n\n");
    octets.ouvrir(source);
    const int lignes[] = {ERR_AIGUILLAGE, aiguiller("ACTI"), ERR_AIGUILLAGE,
                          ERR_AIGUILLAGE, aiguiller("EXP1"), ERR_AIGUILLAGE};
    for (const int ligne : lignes) {
        v.itAiguil = -1;
        suivant(l, source, v);
        EXPECT_EQ(v.itAiguil, ligne) << v.rang;
    }
    EXPECT_EQ(v.fatal, eFatal::IG015);
}

TEST_F(Lot, LesLignesCRSontComptees) {
    EXPECT_EQ(parcourir("x\r" + acti() + "\n"), "s v1 fin") << "no FICH record: nobody may send";
    EXPECT_EQ(parcourir(fich(2) + "\nx\r" + acti() + "\r\n"), "v0 s IG008")
        << "the format is that of records";
    EXPECT_EQ(parcourir(fich(2) + "\nx\r" + acti() + "\n"), "v0 s v0 fin");
    EXPECT_EQ(l.nombreDeVSE, 4);
    EXPECT_EQ(parcourir("x\r"), "s fin");
    EXPECT_EQ(parcourir("x\r\x1A"), "s fin");
    EXPECT_EQ(parcourir("\r"), "IG015");
    EXPECT_EQ(l.formatDuFichier, -1);
}

TEST_F(Lot, UneLigneCRCompteEncoreLOrphelin) {
    const std::string octets = fichier({fich(2), exp1(), acti()});
    EXPECT_EQ(parcourir(octets), "v0 v0 v0+105 fin");
    EXPECT_EQ(l.nbVSE_Err, 1);
    EXPECT_EQ(parcourir(octets + "x\ry\r"), "v0 v0 v0+105 s s fin");
    EXPECT_EQ(l.nbVSE_Err, 3);
    EXPECT_EQ(parcourir(octets + "x\r" + acti() + "\ny\r"), "v0 v0 v0+105 s v0 s fin");
    EXPECT_EQ(l.nbVSE_Err, 2);
    // The orphan and the record that showed it are two.
    EXPECT_EQ(parcourir(fichier({fich(2), exp1(), FAUSSE})), "v0 v0 v1+105 fin");
    EXPECT_EQ(l.nbVSE_Err, 2);
    // A line that is skipped is no companion and is not taken for one.
    EXPECT_EQ(parcourir(fichier({fich(2), exp1()}) + "x\r" + exp2() + "\n"), "v0 v0 s v0 fin");
    EXPECT_EQ(l.nbVSE_Err, 0);
}

// ---------------------------------------------------- fatal conditions

TEST_F(Lot, ConditionsFatales) {
    const struct {
        std::string octets, pas;
    } cas[] = {
        {fichier({acti()}), "IG011"},
        {"x\n", "IG011"},
        {fichier({avec(fich(1), {{63, blancs(16)}})}), "I099"},
        {"\n", "IG015"},
        {fichier({fich(1), acti()}) + "\n", "v0 v0 IG015"},
        {fichier({fich(1), acti()}) + "\r\n", "v0 v0 IG015"},
        {fichier({fich(1), acti()}) + "\r" + acti(), "v0 v0 IG015"},
        {fichier({fich(1)}) + fichier({acti()}, "\r\n"), "v0 IG008"},
        {fichier({fich(1), acti()}, "\r\n") + "x\n", "v0 v0 IG008"},
        // A record is looked at before nothing but its line end.
        {fichier({acti()}, "\r\n") + "\n", "IG011"},
        {fichier({fich(1)}) + "x\x1A\r\n", "v0 fin"},
    };
    for (const auto& c : cas)
        EXPECT_EQ(parcourir(c.octets), c.pas) << c.octets.substr(0, 40);
    // The record with the other line end is not judged.
    parcourir(fichier({fich(1)}) + fichier({FAUSSE}, "\r\n"));
    EXPECT_STREQ(valEnteteVSE[E6].valeur, "FICH");
    EXPECT_EQ(l.nbVSE_Err, 0);
}

TEST_F(Lot, ErreurDeLecture) {
    const std::string octets = fichier({fich(2), acti(), acti()});
    EXPECT_EQ(parcourir(memoire(octets, 0)), "IG003");
    EXPECT_EQ(parcourir(memoire(octets, 514)), "v0 v0 IG003");
    EXPECT_EQ(parcourir(memoire(octets, 600)), "v0 v0 IG003") << "what was read of the line is no record";
    EXPECT_EQ(parcourir(memoire(octets, octets.size())), "v0 v0 v0 IG003");
    EXPECT_EQ(parcourir(memoire(octets + "\x1A" + "x", octets.size() + 1)), "v0 v0 v0 fin");
    EXPECT_EQ(parcourir(memoire(octets + "\n", octets.size() + 1)), "v0 v0 v0 IG015");
}

TEST_F(Lot, DixMilleMessages) {
    const std::string permis = lignes(10000);
    std::string dernier;
    EXPECT_EQ(compter(permis, dernier), 10001);
    EXPECT_EQ(dernier, "fin");
    EXPECT_EQ(conclure(l).fatal, eFatal::AUCUN);
    EXPECT_EQ(l.nombreDeVSE, 10000);
    EXPECT_TRUE(fichierValide(l));
    // One more is judged, then the run ends, whatever follows it.
    for (const std::string& suite : {std::string(), std::string("\n"), std::string("x\r\n"), acti() + "\n",
                                     std::string("\x1A"), std::string("x")}) {
        EXPECT_EQ(compter(permis + FAUSSE + "\n" + suite, dernier), 10002);
        EXPECT_EQ(dernier, "I073") << suite.substr(0, 4);
        EXPECT_EQ(l.nbVSE_Err, 1);
        if (suite == "\n") continue;  // would make CR LF of the CR below
        // A line that ends in CR alone counts like any other.
        EXPECT_EQ(compter(permis + "x\r" + suite, dernier), 10002);
        EXPECT_EQ(dernier, "I073") << suite.substr(0, 4);
        EXPECT_EQ(l.nbVSE_Err, 0);
    }
    EXPECT_EQ(maxAutoVSE(), 1);
}

// --------------------------------------------------------------- the end

TEST_F(Lot, SansMessage) {
    for (const std::string& octets :
         {fichier({fich(0)}), fichier({fich(0)}) + "x\ry\r", fichier({fich(1), fich(1)}),
          fichier({fich(2), acti(), fich(2)}), fichier({fich(2), acti(), fich(2)}) + "x\r"}) {
        parcourir(octets);
        EXPECT_EQ(conclure(l).fatal, eFatal::IG014);
    }
    parcourir(fichier({fich(2), fich(2), acti()}));
    EXPECT_EQ(conclure(l).fatal, eFatal::AUCUN);
}

TEST_F(Lot, CompteDuFICH) {
    const struct {
        std::string octets;
        bool faux;
        int messages, enErreur;
        std::vector<int> codes;  // of the FICH record
    } cas[] = {
        {fichier({fich(1), acti()}), false, 1, 0, {}},
        {fichier({fich(2), acti()}), true, 1, 1, {100}},
        {fichier({fich(1), acti()}) + "x\r", true, 2, 1, {100}},
        {fichier({avec(fich(3), {{61, "9"}}), FAUSSE}), true, 1, 2, {97, 100}},
        {fichier({avec(fich(1), {{61, "9"}}), FAUSSE}), false, 1, 2, {97}},
        {"", true, -1, 1, {100}},
        {"x\r", false, 0, 0, {}},
        // Ten errors leave no room, and the FICH record counts once all the same.
        {fichier({avec(fich(3), {{3, "ZZZZZZZZ"},
                                 {11, "ZZZZZZZZ"},
                                 {19, "XXX"},
                                 {61, "99"},
                                 {130, "\t"},
                                 {231, blancs(26)}}) +
                      "x",
                  acti()}),
         true,
         1,
         2,
         {106, 107, 95, 96, 84, 86, 97, 98, 90, 91}},
    };
    for (const auto& c : cas) {
        parcourir(c.octets);
        const bilan b = conclure(l);
        EXPECT_EQ(b.fatal, eFatal::AUCUN);
        EXPECT_EQ(b.compteFaux, c.faux);
        EXPECT_EQ(b.sansCompagnon, 0);
        EXPECT_EQ(l.nombreDeVSE, c.messages);
        EXPECT_EQ(std::vector<int>(l.codeFichErreur, l.codeFichErreur + l.errFich), c.codes);
        EXPECT_EQ(l.nbVSE_Err, c.enErreur) << testing::PrintToString(c.codes);
        EXPECT_EQ(fichierValide(l), c.enErreur == 0);
        if (!c.codes.empty() && c.codes.back() == 100) {
            EXPECT_EQ(l.constatsFich[l.errFich - 1].numero, 100);
            EXPECT_EQ(l.constatsFich[l.errFich - 1].origine, ORIGINE_COMPTE);
            EXPECT_EQ(l.constatsFich[l.errFich - 1].ligne, nullptr);
        }
    }
}

TEST_F(Lot, DernierSansCompagnon) {
    parcourir(fichier({fich(2), acti(), exp1()}));
    bilan b = conclure(l);
    EXPECT_EQ(b.sansCompagnon, 105);
    EXPECT_STREQ(l.tamponSansCompagnon, l.sauvTamponVSE);
    EXPECT_EQ(l.existDependanceVSEerr, 1);
    EXPECT_EQ(l.nbVSE_Err, 1);
    EXPECT_EQ(l.errFich, 0);
    EXPECT_FALSE(fichierValide(l));
    parcourir(fichier({fich(1), eget()}) + "x\r");
    b = conclure(l);
    EXPECT_EQ(b.sansCompagnon, 138);
    EXPECT_EQ(l.nbVSE_Err, 2);  // the skipped line is not announced either
    EXPECT_EQ(l.errFich, 1);
    parcourir(fichier({fich(2), exp1(), exp2()}));
    b = conclure(l);
    EXPECT_EQ(b.sansCompagnon, 0);
    EXPECT_TRUE(fichierValide(l));
}
