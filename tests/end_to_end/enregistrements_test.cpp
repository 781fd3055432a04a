#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/modeles.h"

using namespace essai;

namespace {

const char* const LES_DEUX[] = {"\n", "\r\n"};

/** An ACTI record with exactly ten errors, and one with an eleventh. */
std::string actiDixErreurs() {
    return avec(acti(), {{27, "020IPG  "},
                         {35, "        "},
                         {43, "        "},
                         {63, "ZZ"},
                         {65, "            "},
                         {79, "9"},
                         {80, "00000000"}});
}
const std::vector<int> DIX_ERREURS = {135, 87, 89, 88, 31, 31, 68, 50, 81, 36};

/** A correct error return. */
std::string erreECQ() {
    return vse("ERRE", "ECQ",
               {{63, "ABATCRE"},
                {70, "FR"},
                {72, "7812345678  "},
                {84, "FR"},
                {86, "78123456    "},
                {98, "FR"},
                {100, "78123456    "},
                {112, "I031"},
                {116, "1"},
                {214, "01022024"}});
}

}  // namespace

TEST(Enregistrements, FichierAccepte) {
    const std::string f = avec(fich(4), {{1, "AB"}, {26, "G"}, {51, "K123456789"}, {248, "F4F4F4F4"}});
    const std::vector<std::string> messages = {acti(), avec(acti(), {{77, "  "}}),
                                               avec(acti(), {{19, "INV"}, {88, "01022024"}}),
                                               avec(acti(), {{77, "40"}, {245, "024"}})};
    for (const char* fin : LES_DEUX) {
        std::vector<std::string> entree = {f};
        std::vector<std::string> sortie = {fichEmise(f, 4)};
        for (const std::string& m : messages) {
            entree.push_back(m);
            sortie.push_back(emise(m));
        }
        verifierPublie("accepted", fichier(entree, fin), 0, sortie, fin);
        // What stands behind the last line end, or behind Ctrl-Z, is no record.
        verifierPublie("partial last line", fichier(entree, fin) + acti(), 0, sortie, fin);
        verifierPublie("Ctrl-Z", fichier(entree, fin) + "\x1A" + fichier({acti()}, fin), 0, sortie, fin);
    }
}

TEST(Enregistrements, LaFICHEmiseNeReprendPasSesCompteurs) {
    // C6 becomes the count and C9 is blanked; C1 to C5, C7, C8 and the footer stay.
    const std::string f = avec(fich(1), {{113, "ABCDEF"},
                                         {119, "C7C7C7"},
                                         {125, "8"},
                                         {126, std::string(105, '9')},
                                         {231, "ZZZZZZZZ"},
                                         {239, "ZZZZZZ"},
                                         {245, "ZZZ"},
                                         {256, "Z"}});
    verifierPublie("FICH record", fichier({f, acti()}), 0,
                   {avec(f, {{113, "000001"}, {126, blancs(105)}}), emise(acti())});
}

TEST(Enregistrements, TroisDontUneEnErreur) {
    const std::string fausse = avec(acti(), {{79, "9"}});
    for (const char* fin : LES_DEUX) {
        const std::string fichOut = fichErreur(fich(3), 1, 3, 2);
        EXPECT_EQ(colonnes(fichOut, 63, 125),
                  "FICHIER000000001FICHIER000000001"
                  "0000010000030000010000020000041");
        verifierPublie("1 of 3", fichier({fich(3), acti(), fausse, acti()}, fin), 2,
                       {fichOut, vseErreurC1C2(fausse, {81})}, fin);
    }
}

TEST(Enregistrements, ErreursDansLOrdreDesMessages) {
    const std::string a = avec(acti(), {{79, "9"}});
    const std::string b = avec(acti(), {{65, "75123456    "}});
    const std::string c = avec(acti(), {{65, "7812345A    "}});
    const std::string e = avec(acti(), {{96, "?"}, {256, "?"}});
    const std::string g = avec(acti(), {{19, "DEM"}});
    verifierPublie(
        "all in error", fichier({fich(5), a, b, c, e, g}), 2,
        {fichErreur(fich(5), 5, 5, 0), vseErreurC1C2(a, {81}), vseErreurC1C2(b, {50}), vseErreurC1C2(c, {68}),
         vseErreurC1C2(e, {131, 94}), vseErreurC1C2(g, std::vector<int>(10, 86))});
}

TEST(Enregistrements, DixErreurs) {
    const std::string dix = actiDixErreurs();
    const std::string onze = avec(dix, {{96, "?"}, {231, blancs(26)}});
    const std::string e = vseErreurC1C2(dix, DIX_ERREURS);
    EXPECT_EQ(colonnes(e, 162, 230), blancs(69));
    verifierPublie("ten and more", fichier({fich(2), dix, onze}), 2,
                   {fichErreur(fich(2), 2, 2, 0), e, vseErreurC1C2(onze, DIX_ERREURS)});
}

TEST(Enregistrements, PremierEnregistrementSansFICH) {
    const std::string message = "IG011: Données incorrectes ou absentes : VSE FICH n'existe pas";
    for (const char* fin : LES_DEUX) {
        verifierAnnule("ACTI first", fichier({acti(), fich(1)}, fin), message);
        verifierAnnule("FICH in lower case", fichier({avec(fich(1), {{22, "fich"}}), acti()}, fin), message);
        verifierAnnule("one letter", fichier({"X"}, fin), message);
    }
}

TEST(Enregistrements, NumeroDeFichierAbsent) {
    const std::string message = "I099 : Donnée absente : numéro du fichier émis";
    verifierAnnule("blank", fichier({avec(fich(1), {{63, blancs(16)}}), acti()}), message);
    const std::string presque = avec(fich(1), {{63, blancs(15) + "."}});
    verifierPublie("not quite blank", fichier({presque, acti()}), 0, {fichEmise(presque, 1), emise(acti())});
}

TEST(Enregistrements, NombreAnnonce) {
    const struct {
        const char* c3;
        bool juste;  // reads as 2
    } cas[] = {{"000002", true},  {"2     ", true},  {"     2", true},  {"    +2", true},  {"2ABCDE", true},
               {"000003", false}, {"000000", false}, {"    -2", false}, {"      ", false}, {"ABCDE2", false},
               {"+ 2   ", false}, {"++2   ", false}, {"20    ", false}};
    for (const auto& c : cas) {
        const std::string f = avec(fich(2), {{95, c.c3}});
        const std::string entree = fichier({f, acti(), acti()});
        if (c.juste)
            verifierPublie(c.c3, entree, 0, {fichEmise(f, 2), emise(acti()), emise(acti())});
        else
            verifierPublie(c.c3, entree, 2, {fichErreur(f, 1, 2, 2), vseErreurInconnue(f, {100})});
    }
}

TEST(Enregistrements, VSEFICHEnErreur) {
    const std::string fausse = avec(acti(), {{79, "9"}});
    const std::string f = avec(fich(1), {{61, "5"}});
    verifierPublie("FICH only", fichier({f, acti()}), 2,
                   {fichErreur(f, 1, 1, 1), vseErreurInconnue(f, {97})});
    const std::string f3 = avec(fich(3), {{61, "5"}});
    verifierPublie("FICH and a message", fichier({f3, acti(), fausse, acti()}), 2,
                   {fichErreur(f3, 2, 3, 2), vseErreurC1C2(fausse, {81}), vseErreurInconnue(f3, {97})});
    // The count adds an error to the record, not a record to the count.
    verifierPublie("FICH twice wrong", fichier({f3, acti(), fausse}), 2,
                   {fichErreur(f3, 2, 2, 1), vseErreurC1C2(fausse, {81}), vseErreurInconnue(f3, {97, 100})});
    // All the errors that it can have; the messages then have another emitter.
    const std::string pire = avec(fich(9), {{3, "Z\x7FZZZZZZ"}, {11, "ZZZZZZZZ"}, {19, "XXX"}, {61, "ZZ"}});
    const std::vector<int> codes = {106, 107, 95, 96, 84, 86, 97, 98, 100};
    for (const char* fin : LES_DEUX)
        verifierPublie(
            "FICH wrong throughout", fichier({pire + "de trop", acti()}, fin), 2,
            {fichErreur(pire, 2, 1, 0),
             vseErreur(acti(), {135}, "FR", "78123456    ", "FR78123456    ", colonnes(pire, 3, 10)),
             vseErreur(pire, codes, blancs(2), blancs(12), blancs(14), colonnes(pire, 3, 10))},
            fin);
}

TEST(Enregistrements, SecondeVSEFICH) {
    verifierPublie("in the middle", fichier({fich(3), acti(), fich(3), acti()}), 2,
                   {fichErreur(fich(3), 1, 3, 2), vseErreurInconnue(fich(3), {109})});
    verifierAnnule("at the end", fichier({fich(2), acti(), fich(2)}), "IG014: Pas de VSE de base");
    const std::string pleine = avec(
        fich(1), {{3, "ZZZZZZZZ"}, {11, "Z\tZZZZZZ"}, {19, "XXX"}, {27, "ZZZZZZZZ"}, {61, "ZZ"}, {256, "Z"}});
    verifierPublie("with ten errors", fichier({fich(2), pleine + "Z", acti()}), 2,
                   {fichErreur(fich(2), 1, 2, 1),
                    vseErreurInconnue(pleine, {135, 109, 106, 107, 95, 96, 84, 86, 97, 98})});
}

TEST(Enregistrements, TypeInconnu) {
    for (const char* type : {"XXXX", "AVER", "LIST", "acti", "ZZZZ", "    "}) {
        const std::string r = avec(acti(), {{22, type}, {256, " "}});
        verifierPublie(type, fichier({fich(2), acti(), r}), 2,
                       {fichErreur(fich(2), 1, 2, 1), vseErreurInconnue(r, {85, 86})});
    }
}

TEST(Enregistrements, VSETropLongue) {
    const std::string longue = acti() + std::string(44, '#');
    for (const char* fin : LES_DEUX) {
        verifierPublie("300 characters", fichier({fich(2), longue, acti()}, fin), 2,
                       {fichErreur(fich(2), 1, 2, 1), vseErreurC1C2(acti(), {107})}, fin);
        verifierPublie("a tab inside", fichier({fich(1), avec(acti(), {{51, "\t"}})}, fin), 2,
                       {fichErreur(fich(1), 1, 1, 0), vseErreurC1C2(avec(acti(), {{51, "\t"}}), {106})}, fin);
    }
}

TEST(Enregistrements, VSECourte) {
    // The slots that the record does not fill are written as they are.
    const std::string f = fich(1);
    const auto raccourcie = [](std::string e, std::size_t position, std::size_t n) {
        return e.erase(position, n);
    };
    const struct {
        std::size_t longueur;
        std::string erreur;
    } cas[] = {
        {255, vseErreurC1C2(acti(), {108, 94})},
        {250, vseErreurC1C2(acti(), {108, 94})},
        {230, vseErreurC1C2(acti(), {108, 52, 90, 91, 94})},
        {76, vseErreurC1C2(acti(), {108, 81, 36, 131, 90, 91, 94})},
        // In the middle of C2, which stands twice.
        {70, raccourcie(
                 raccourcie(vseErreur(acti(), {108, 68, 81, 36, 131, 90, 91, 94}, "FR", "781234", "FR781234"),
                            105, 6),
                 77, 6)},
        // No header field behind E8, no body.
        {34, colonnes(acti(), 1, 2) + "031BDN  089ARS  ERRERRE1INTERFAC" + "089ARS  " + "ACTICRE" +
                 blancs(14) + codesErreur({108, 88, 31, 68, 50, 81, 36, 131, 90, 91}) + blancs(69) +
                 ESTAMPILLE},
    };
    for (const auto& c : cas) {
        verifierPublie(std::to_string(c.longueur), fichier({f, acti().substr(0, c.longueur)}), 2,
                       {fichErreur(f, 1, 1, 0), c.erreur});
    }
}

TEST(Enregistrements, OctetNul) {
    // The record's text ends at the zero byte; its length counts the rest.
    std::string r = acti();
    r[99] = '\0';
    verifierPublie("zero byte", fichier({fich(1), r}), 2,
                   {fichErreur(fich(1), 1, 1, 0), vseErreurC1C2(acti(), {106, 52, 90, 91, 94})});
}

TEST(Enregistrements, VSEFICHCourte) {
    const std::string f = fich(1);
    verifierPublie("200 columns", fichier({f.substr(0, 200), acti()}), 2,
                   {fichErreur(f, 1, 1, 1), vseErreurInconnue(f, {108})});
    // Cut in C7: its summary is shorter and blanks stand behind it.
    verifierPublie("121 columns", fichier({f.substr(0, 121), acti()}), 2,
                   {fichErreur(f, 1, 1, 1).erase(121, 3) + blancs(3), vseErreurInconnue(f, {108})});
    // Cut before its last header fields and its whole body.
    const std::string entete = fichErreur(f, 0, 0, 0).substr(0, 60);
    verifierPublie("60 columns", fichier({f.substr(0, 60), acti()}), 2,
                   {entete + "0000010000010000010000011" + blancs(105) + ESTAMPILLE + blancs(40),
                    vseErreurInconnue(f, {108, 97, 98, 100}).erase(60, 2)});
}

TEST(Enregistrements, PremiereLigneEnCRSeul) {
    // The FICH record is missed: the next record is the second of the file.
    const std::string sansFich = "ERRERREINTERFAC" + blancs(42) + "I1001" + blancs(114) + ESTAMPILLE;
    verifierPublie("CR-only line first", "x\r" + fichier({acti()}), 2,
                   {"INF0000020000010000020000001" + (blancs(105) + ESTAMPILLE) + blancs(97),
                    vseErreur(acti(), {135}, "FR", "78123456    ", "FR78123456    ").erase(42, 8), sansFich});
}

TEST(Enregistrements, LigneEnCRSeulAvantLaFICH) {
    // The FICH record is then the second of the file, and one too many.
    const std::string sansFich = "ERRERREINTERFAC" + blancs(42) + "I1001" + blancs(114) + ESTAMPILLE;
    const std::string f = fich(3);
    verifierPublie("CR-only line, then FICH", "x\r" + fichier({f, acti()}), 2,
                   {"INF0000030000020000030000001" + (blancs(105) + ESTAMPILLE) + blancs(97),
                    vseErreurInconnue(f, {135, 109}).erase(42, 8),
                    vseErreur(acti(), {135}, "FR", "78123456    ", "FR78123456    ").erase(42, 8), sansFich});
}

TEST(Enregistrements, RetourDErreur) {
    const std::string ecq = erreECQ();
    for (const char* fin : LES_DEUX)
        verifierPublie("accepted unchanged", fichier({fich(2), ecq, acti()}, fin), 0,
                       {fichEmise(fich(2), 2), ecq, emise(acti())}, fin);

    const std::string faux = avec(ecq, {{116, " "}});
    verifierPublie(
        "in error", fichier({fich(1), faux}), 2,
        {fichErreur(fich(1), 1, 1, 0), vseErreur(faux, {188}, blancs(2), blancs(12), "ABATCRE" + blancs(7))});
    // Of another kind: the blanks that keep the columns in place are missing.
    for (const char* genre : {"CRE", "INV", "MOD"}) {
        const std::string autre = avec(ecq, {{19, genre}});
        const std::string attendue =
            vseErreur(autre, {86}, blancs(2), blancs(12), "ABATCRE" + blancs(7)).erase(76, 7);
        EXPECT_EQ(attendue.size(), 249U);
        verifierPublie(genre, fichier({fich(1), autre}), 2, {fichErreur(fich(1), 1, 1, 0), attendue});
    }
}

TEST(Enregistrements, DixMilleActivites) {
    const auto exploitation = [](int i) { return "78" + compteur(i) + "    "; };
    const int n = 10000;
    for (const bool avecErreurs : {false, true}) {
        for (const char* fin : LES_DEUX) {
            std::vector<std::string> entree = {fich(n)};
            std::vector<std::string> acceptes;
            std::vector<std::string> erreurs;
            for (int i = 1; i <= n; ++i) {
                std::string r = avec(acti(), {{65, exploitation(i)}});
                std::vector<int> codes;
                if (avecErreurs && i % 7 == 0) {
                    poser(r, 79, "9");
                    codes.push_back(81);
                }
                if (avecErreurs && (i % 11 == 0 || i == n)) {
                    poser(r, 256, " ");
                    codes.push_back(94);
                }
                entree.push_back(r);
                acceptes.push_back(emise(r));
                if (!codes.empty()) erreurs.push_back(vseErreurC1C2(r, codes));
            }
            const int e = static_cast<int>(erreurs.size());
            std::vector<std::string>& publies = avecErreurs ? erreurs : acceptes;
            publies.insert(publies.begin(),
                           avecErreurs ? fichErreur(fich(n), e, n, n - e) : fichEmise(fich(n), n));
            const dossier d;
            d.ecrire("recu", fichier(entree, fin));
            EXPECT_EQ(lancer(d, {"recu", "emis", "log"}).statut, avecErreurs ? 2 : 0);
            // Not compared by the framework, which would print a megabyte.
            EXPECT_TRUE(d.lire("emis") == fichier(publies, fin)) << avecErreurs;
            EXPECT_FALSE(d.existe("recu") || d.existe("recu_r") || d.existe("recu_e") || d.existe("recu_o"));
        }
    }
}

TEST(Enregistrements, RetourDErreurDUnPartenaire) {
    // A partner sends no error returns; only its own few records pass.
    const std::string f = avec(fich(1), {{3, "NORMABEV"}});
    const std::string ecq = avec(erreECQ(), {{27, "NORMABEV"}});
    verifierPublie("ERRE of a partner", fichier({f, ecq}), 2,
                   {fichErreur(f, 1, 1, 0),
                    vseErreur(ecq, {182}, blancs(2), blancs(12), "ABATCRE" + blancs(7), "NORMABEV")});
    const std::string faux = avec(ecq, {{256, " "}});
    verifierPublie("and wrong besides", fichier({f, faux}), 2,
                   {fichErreur(f, 1, 1, 0),
                    vseErreur(faux, {182, 94}, blancs(2), blancs(12), "ABATCRE" + blancs(7), "NORMABEV")});
}

TEST(Enregistrements, SansAucunEnregistrement) {
    const auto sommaire = [](const char* compteurs) {
        return std::string("INF") + compteurs + "1" + blancs(105) + ESTAMPILLE + blancs(97);
    };
    const std::string sansFich = "ERRERREINTERFAC" + blancs(42) + "I1001" + blancs(114) + ESTAMPILLE;
    for (const char* entree : {"", "X", "\x1A", "sans fin de ligne\x1A\r\n"})
        verifierPublie(entree, entree, 2, {sommaire("000001-00001000001-00001"), sansFich});
    // Lines in CR alone are counted: one takes the place of the FICH record.
    verifierPublie("one CR-only line", "X\r", 0, {"INF000000" + blancs(247)});
    verifierPublie("two CR-only lines", "X\rX\r", 2, {sommaire("000001000001000001000001"), sansFich});
    verifierAnnule("FICH alone", fichier({fich(0)}), "IG014: Pas de VSE de base");
    verifierAnnule("FICH and CR-only lines", fichier({fich(2)}) + "X\rX\r", "IG014: Pas de VSE de base");
}

TEST(Enregistrements, Estampilles) {
    // A clock that runs 20000 times as fast as the true one is read at the start
    // of the run, and again when the FICH record of the error file is written.
    options o;
    o.horloge = "@2024-03-16 11:22:33 x20000";
    const dossier d;
    const std::string fausse = avec(acti(), {{79, "9"}});
    d.ecrire("recu", fichier({fich(5), fausse, exp1()}));
    EXPECT_EQ(lancer(d, {"recu", "emis", "log"}, o).statut, 2);
    const std::string emis = d.lire("emis");
    ASSERT_EQ(emis.size(), 4 * 257U);
    const auto estampille = [&](std::size_t i) { return emis.substr(257 * i + 230, 26); };
    EXPECT_NE(estampille(0), estampille(1));
    for (std::size_t i = 1; i < 4; ++i)
        EXPECT_EQ(estampille(i), estampille(1)) << i;
    EXPECT_GT(estampille(0), estampille(1)) << "same day, later time";
}
