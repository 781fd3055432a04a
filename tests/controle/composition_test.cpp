#include "controle/composition.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "rules/moteur.h"
#include "support/champ.h"
#include "support/modeles.h"

using namespace quilvane;
using namespace essai;

namespace {

/** A record whose every column can be told from its neighbours. */
std::string recordDistinct(std::string_view type, std::string_view genre) {
    std::string r(256, ' ');
    for (int i = 0; i < 256; ++i)
        r[static_cast<std::size_t>(i)] = static_cast<char>('!' + (i * 7) % 90);
    poser(r, 19, genre);
    poser(r, 22, type);
    return r;
}

class Composition : public testing::Test {
protected:
    Composition() {
        commencer(l);
        std::strcpy(l.VSEDate, ESTAMPILLE);
        remplir(valFichEnteteVSE[E3], "089ARS  ");
    }

    static std::string contenu(const ligneVSE& r) { return {r.tampon, r.longueur}; }

    /** What a function puts together. */
    template <typename Faire>
    static std::string fait(Faire faire) {
        ligneVSE r;
        faire(r);
        return contenu(r);
    }

    /** Cuts the record's header and, by its type's table, its body. */
    static int couper(const std::string& record) {
        getvseChamps(tEntete, lEntete, record.c_str(), valEnteteVSE);
        const int ligne = aiguiller(valEnteteVSE[E6].valeur);
        if (ligne != ERR_AIGUILLAGE)
            getvseChamps(tAiguillage[ligne].tabVerif, *tAiguillage[ligne].pLenTabVerif, record.c_str(),
                         valCorpsVSE);
        return ligne;
    }

    static void couperFich(const std::string& record) {
        const int bornes[9][2] = {{63, 78},   {79, 94},   {95, 100},  {101, 106}, {107, 112},
                                  {113, 118}, {119, 124}, {125, 125}, {126, 230}};
        getvseChamps(tEntete, lEntete, record.c_str(), valFichEnteteVSE);
        getvseChamps(tFin, lFin, record.c_str(), valFichFinVSE);
        for (int i = 0; i < 9; ++i)
            remplir(valFichCorpsVSE[i], colonnes(record, bornes[i][0], bornes[i][1]));
    }

    static std::string erreurs(const char* c7, const char* c8, const std::vector<int>& codes) {
        int liste[MAX_ERREURS + 2] = {};
        for (std::size_t i = 0; i < codes.size(); ++i)
            liste[i] = codes[i];
        return fait([&](ligneVSE& r) {
            faireVSEERR(r, c7, c8, static_cast<int>(codes.size()), valEnteteVSE, valCorpsVSE, liste,
                        ESTAMPILLE);
        });
    }

    lot l;
};

}  // namespace

TEST_F(Composition, VSEERRColonneParColonne) {
    const std::string record = recordDistinct("ACTI", "CRE");
    couper(record);
    const std::string e = erreurs("c7", "cle-numero-8", {31});
    ASSERT_EQ(e.size(), 256U);
    const struct {
        int de, a;
        std::string texte;
    } attendues[] = {
        {1, 1, colonnes(record, 1, 1)},
        {2, 2, colonnes(record, 2, 2)},
        {3, 10, colonnes(record, 11, 18)},
        {11, 18, colonnes(record, 3, 10)},
        {19, 21, "ERR"},
        {22, 25, "ERRE"},
        {26, 26, colonnes(record, 26, 26)},
        {27, 34, "INTERFAC"},
        {35, 42, colonnes(record, 35, 42)},
        {43, 50, "089ARS  "},
        {51, 60, colonnes(record, 51, 60)},
        {61, 61, colonnes(record, 61, 61)},
        {62, 62, colonnes(record, 62, 62)},
        {63, 66, "ACTI"},
        {67, 69, "CRE"},
        {70, 71, colonnes(record, 63, 64)},
        {72, 83, colonnes(record, 65, 76)},
        {84, 85, blancs(2)},
        {86, 97, blancs(12)},
        {98, 99, "c7"},
        {100, 111, "cle-numero-8"},
        {112, 116, "I0311"},
        {117, 230, blancs(114)},
        {231, 256, ESTAMPILLE},
    };
    for (const auto& c : attendues)
        EXPECT_EQ(colonnes(e, c.de, c.a), c.texte) << "columns " << c.de << "-" << c.a;
    EXPECT_EQ(e, vseErreur(record, {31}, "c7", "cle-numero-8", colonnes(record, 63, 76)));
}

TEST_F(Composition, VSEERRNombreDeCodes) {
    const std::string record = acti();
    couper(record);
    std::vector<int> codes;
    for (int n = 0; n <= 11; ++n) {
        const std::vector<int> ecrits(codes.begin(), codes.begin() + (n > 10 ? 10 : n));
        EXPECT_EQ(erreurs("FR", "78123456    ", codes), vseErreurC1C2(record, ecrits)) << n << " codes";
        codes.push_back(n == 0 ? 1 : n == 1 ? 50 : n == 2 ? 806 : 100 + n);
    }
    // Ten codes fill columns 112 to 161 and leave 69 blanks.
    codes.resize(10);
    EXPECT_EQ(colonnes(erreurs("FR", "78123456    ", codes), 112, 230),
              "I0011I0501I8061I1031I1041I1051I1061I1071I1081I1091" + blancs(69));
}

TEST_F(Composition, VSEERREcritToutNumeroDeTroisChiffres) {
    couper(acti());
    for (int n = 0; n < 1000; ++n) {
        char code[16];
        std::snprintf(code, sizeof code, "I%03d1", n);
        EXPECT_EQ(colonnes(erreurs("FR", "78123456    ", {n}), 112, 116), code);
    }
}

TEST_F(Composition, VSEERRDUnCompteNegatifNAPasDeCode) {
    couper(acti());
    const int codes[] = {31};
    ligneVSE r;
    faireVSEERR(r, "FR", "78123456    ", -1, valEnteteVSE, valCorpsVSE, codes, ESTAMPILLE);
    EXPECT_EQ(contenu(r), vseErreurC1C2(acti(), {}));
}

TEST_F(Composition, VSEERRDUneERRE) {
    const std::string ecq = recordDistinct("ERRE", "ECQ");
    couper(ecq);
    // C1 and C2 are 4 and 3 columns wide; seven blanks fill their place.
    EXPECT_EQ(erreurs("  ", "            ", {84, 85}),
              vseErreur(ecq, {84, 85}, blancs(2), blancs(12), colonnes(ecq, 63, 69) + blancs(7)));

    for (const char* genre : {"CRE", "INV", "ecq", "EC "}) {
        const std::string autre = recordDistinct("ERRE", genre);
        couper(autre);
        std::string attendue =
            vseErreur(autre, {84, 85}, blancs(2), blancs(12), colonnes(autre, 63, 69) + blancs(7));
        attendue.erase(76, 7);
        EXPECT_EQ(erreurs("  ", "            ", {84, 85}), attendue) << genre;
        EXPECT_EQ(attendue.size(), 249U);
    }
    // The kind ECQ of another type adds nothing.
    const std::string sort = recordDistinct("SORT", "ECQ");
    couper(sort);
    EXPECT_EQ(erreurs("c7", "cle-numero-8", {86}),
              vseErreur(sort, {86}, "c7", "cle-numero-8", colonnes(sort, 63, 76)));
}

TEST_F(Composition, VSEERRDeChampsCourts) {
    // The record ends in column 70: C2 has six characters, written as they are.
    const std::string record = acti().substr(0, 70);
    couper(record);
    std::string attendue = vseErreur(acti(), {108}, "FR", "781234", "FR781234");
    attendue.erase(105, 6);  // second key
    attendue.erase(77, 6);   // C2
    EXPECT_EQ(erreurs("FR", "781234", {108}), attendue);
    faireTamponVSEERR(l, 105, aiguiller("ACTI"));
    attendue.replace(attendue.find("I1081"), 5, "I1051");
    EXPECT_EQ(l.sauvTamponVSE, attendue);
}

// No record holds fields that wide; what would not fit is left out.
TEST_F(Composition, VSEERRDeChampsTropLarges) {
    for (std::size_t large = 200; large <= 256; ++large) {
        SCOPED_TRACE(large);
        for (const numEnteteVSE champ : {E1, E2, E4})
            remplir(valEnteteVSE[champ], std::string(256, 'x'));
        remplir(valEnteteVSE[E3], std::string(large, 'y'));
        remplir(valEnteteVSE[E7], std::string(large % 18, '7'));
        remplir(valEnteteVSE[E9], "99999999");
        const std::string debut = std::string(768, 'x') + std::string(large, 'y') + "ERRERRE" +
                                  std::string(large % 18, '7') + "INTERFAC99999999089ARS  ";
        EXPECT_EQ(erreurs("FR", "78123456    ", {31}).substr(0, debut.size()), debut);
        // What does not fit behind the records before it is dropped.
        constexpr std::size_t PLACE = 1024;
        constexpr int CODE = 31;
        ligneVSE r;
        r.blancs(sizeof r.tampon - PLACE);
        faireVSEERR(r, "FR", "78123456    ", 1, valEnteteVSE, valCorpsVSE, &CODE, ESTAMPILLE);
        ASSERT_EQ(r.longueur, sizeof r.tampon);
        EXPECT_EQ(std::string(r.tampon + sizeof r.tampon - PLACE, PLACE).substr(0, debut.size()),
                  debut.substr(0, PLACE));
    }
}

TEST_F(Composition, PleinsQuandUnVerdictPeutNePasTenir) {
    // An accepted record, an error record and a missing companion's, each behind a line end.
    constexpr std::size_t LE_PLUS = 2 * (2 + 256);
    for (ligneVSE ajouts::*fichier : {&ajouts::emis, &ajouts::erre}) {
        ajouts a;
        EXPECT_FALSE(a.pleins());
        ligneVSE& lg = a.*fichier;
        for (int verdicts = 0; !a.pleins(); ++verdicts) {
            ASSERT_LT(lg.longueur + LE_PLUS, sizeof lg.tampon) << verdicts;
            lg.blancs(LE_PLUS);
        }
        EXPECT_GT(lg.longueur, sizeof lg.tampon / 2);
    }
}

// What is known of a type for good; a new one needs no entry.
TEST_F(Composition, ClesParLigneDAiguillage) {
    const struct {
        const char* typeVSE;
        int c7, c8;  // first columns of the key fields, 0 for none
    } cles[] = {
        {"ABAT", 0, 0},     {"ACTI", 63, 65},   {"ASSO", 63, 65}, {"DETE", 63, 65},   {"DETI", 63, 65},
        {"ECBO", 0, 0},     {"ECHA", 151, 153}, {"EGET", 0, 0},   {"ENTR", 88, 90},   {"ERRE", 0, 0},
        {"ERTI", 0, 0},     {"EXP1", 63, 65},   {"EXP2", 63, 65}, {"GROC", 79, 81},   {"IMOC", 79, 81},
        {"IMPO", 151, 153}, {"INFO", 0, 0},     {"JALO", 79, 81}, {"NAIS", 137, 139}, {"NUMA", 63, 65},
        {"NVMN", 137, 139}, {"PASS", 79, 81},   {"PICO", 63, 65}, {"RACO", 63, 65},   {"RATA", 0, 0},
        {"REBO", 87, 89},   {"SORT", 88, 90},
    };
    for (const auto& c : cles) {
        const std::string record = recordDistinct(c.typeVSE, "ECQ");
        const int ligne = couper(record);
        ASSERT_NE(ligne, ERR_AIGUILLAGE) << c.typeVSE;
        const std::string c1c2 = std::string(valCorpsVSE[C1].valeur) + valCorpsVSE[C2].valeur +
                                 (std::string(c.typeVSE) == "ERRE" ? blancs(7) : "");
        const std::string c7 = c.c7 == 0 ? blancs(2) : colonnes(record, c.c7, c.c7 + 1);
        const std::string c8 = c.c8 == 0 ? blancs(12) : colonnes(record, c.c8, c.c8 + 11);
        codeErreur[0] = 21;
        codeErreur[1] = 22;
        EXPECT_EQ(fait([&](ligneVSE& r) { faireVSEERRCourante(r, ligne, 2, codeErreur, ESTAMPILLE); }),
                  vseErreur(record, {21, 22}, c7, c8, c1c2))
            << c.typeVSE;
        faireTamponVSEERR(l, 138, ligne);
        EXPECT_EQ(l.sauvTamponVSE, vseErreur(record, {138}, c7, c8, c1c2)) << c.typeVSE;
    }
}

TEST_F(Composition, TypeInconnuSansCles) {
    const std::string record = recordDistinct("XXXX", "CRE");
    couper(record);
    // Record processing blanks the first two fields of such a record.
    remplir(valCorpsVSE[C1], blancs(2));
    remplir(valCorpsVSE[C2], blancs(12));
    const int codes[] = {85};
    EXPECT_EQ(fait([&](ligneVSE& r) { faireVSEERRCourante(r, ERR_AIGUILLAGE, 1, codes, ESTAMPILLE); }),
              vseErreurInconnue(record, {85}));
    faireTamponVSEERR(l, 105, ERR_AIGUILLAGE);
    EXPECT_EQ(l.sauvTamponVSE, vseErreurInconnue(record, {105}));
}

// What does not fit behind the record's room is left out.
TEST_F(Composition, TamponVSEERRTropLong) {
    couper(acti());
    remplir(valCorpsVSE[C2], std::string(200, 'x'));
    const std::string entier = fait([&](ligneVSE& r) {
        const int codes[] = {105};
        faireVSEERRCourante(r, aiguiller("ACTI"), 1, codes, ESTAMPILLE);
    });
    faireTamponVSEERR(l, 105, aiguiller("ACTI"));
    EXPECT_EQ(l.sauvTamponVSE, entier.substr(0, 256));
}

TEST_F(Composition, VSEERRDeLaVSEFICH) {
    const std::string f = recordDistinct("FICH", "INF");
    couperFich(f);
    const std::vector<int> codes = {95, 96, 84, 100};
    for (std::size_t i = 0; i < codes.size(); ++i)
        l.codeFichErreur[i] = codes[i];
    l.errFich = 4;
    EXPECT_EQ(fait([&](ligneVSE& r) { faireVSEERRFich(r, l); }),
              vseErreur(f, codes, blancs(2), blancs(12), blancs(14), colonnes(f, 3, 10)));
    EXPECT_EQ(valFichCorpsVSE[C1].valeur, colonnes(f, 63, 78));
    EXPECT_EQ(valFichCorpsVSE[C2].valeur, colonnes(f, 79, 94));
}

TEST_F(Composition, VSEFICHDUnFichierValide) {
    const std::string f = recordDistinct("FICH", "ECQ");
    couperFich(f);
    for (const auto& [n, texte] :
         std::vector<std::pair<int, std::string>>{{1, "000001"}, {10000, "010000"}}) {
        l.nombreDeVSE = n;
        EXPECT_EQ(fait([&](ligneVSE& r) { faireVSEFICHOk(r, l); }),
                  avec(f, {{19, "INF"}, {113, texte}, {126, blancs(105)}}));
    }
}

TEST_F(Composition, VSEFICHDUnFichierEnErreur) {
    const std::string f = recordDistinct("FICH", "ECQ");
    couperFich(f);
    const struct {
        int messages, enErreur, errFich;
        const char* compteurs;  // columns 95 to 118
    } cas[] = {
        {3, 1, 0, "000001000003000001000002"},
        // The FICH record in error counts among the records in error only.
        {3, 1, 1, "000001000003000001000003"},
        {3, 2, 4, "000002000003000002000002"},
        {2, 3, 0, "000003000002000003-00001"},
        {-1, 1, 1, "000001-00001000001-00001"},
        {10000, 10000, 0, "010000010000010000000000"},
    };
    const std::string moment = "17042025235959025        *";  // its own stamp, not that of the run
    for (const auto& c : cas) {
        l.nombreDeVSE = c.messages;
        l.nbVSE_Err = c.enErreur;
        l.errFich = c.errFich;
        const std::string attendue = fichErreur(f, 0, 0, 0, moment);
        EXPECT_EQ(fait([&](ligneVSE& r) { faireVSEFICHNok(r, l, moment.c_str()); }),
                  avec(attendue, {{95, c.compteurs}}));
    }
}

TEST_F(Composition, EnteteEtFinDeLaVSEFICHEnErreur) {
    const std::string f = recordDistinct("FICH", "MOD");
    couperFich(f);
    EXPECT_EQ(fait([](ligneVSE& r) { faireEnteteVSEFICHNok(r); }),
              colonnes(f, 1, 2) + colonnes(f, 11, 18) + colonnes(f, 3, 10) + "INFFICH" + colonnes(f, 26, 62));
    EXPECT_EQ(fait([](ligneVSE& r) { finVSENok(r, "une estampille"); }), blancs(105) + "une estampille");
}

TEST_F(Composition, FICHCourteSansRemplissage) {
    // FICH header as it stands in a file whose first line ended in CR alone.
    for (valeurVSE& v : valFichEnteteVSE)
        v.valeur[0] = '\0';
    l.nombreDeVSE = 1;
    l.nbVSE_Err = 2;
    l.errFich = 1;
    EXPECT_EQ(fait([&](ligneVSE& r) { faireVSEFICHNok(r, l, ESTAMPILLE); }),
              "INF0000020000010000020000001" + blancs(105) + ESTAMPILLE);
}

TEST_F(Composition, VSEValide) {
    const struct {
        const char* typeVSE;
        const char* genre;
        bool estampee;
    } cas[] = {{"ACTI", "CRE", true}, {"ABAT", "INV", true},  {"ACTI", "ECQ", true},
               {"ERRE", "CRE", true}, {"ERRE", "ECQ", false}, {"erre", "ECQ", true}};
    for (const auto& c : cas) {
        const std::string record = recordDistinct(c.typeVSE, c.genre);
        couper(record);
        // Behind what is there already.
        EXPECT_EQ(fait([&](ligneVSE& r) {
                      r.texte("avant");
                      faireVSEValide(r, record.c_str(), record.size());
                  }),
                  "avant" + (c.estampee ? emise(record) : record))
            << c.typeVSE << c.genre;
    }
    EXPECT_EQ(quilvaneRES()[0], '4');
}

TEST_F(Composition, FinDeLigneParFormat) {
    const std::vector<std::pair<int, std::string>> formats = {
        {CVERSE_DOS, "\r\n"}, {CVERSE_UNIX, "\n"},      {CVERSE_MAC, "\r"},   {-1, "\n"},
        {CVERSE_EOF, "\n"},   {CVERSE_LONGNULLE, "\n"}, {CVERSE_CTRLZ, "\n"}, {99, "\n"}};
    for (const auto& [format, octets] : formats)
        EXPECT_EQ(fait([&, f = format](ligneVSE& r) { faireFinDeLigne(r, f); }), octets) << format;
    EXPECT_EQ(CVERSE_DOS, 1);
    EXPECT_EQ(CVERSE_UNIX, 2);
    EXPECT_EQ(CVERSE_MAC, 3);
}

// Numbers look as the C library writes them with "%0*d".
TEST_F(Composition, NombresCommePrintf) {
    constexpr int MIN = std::numeric_limits<int>::min();
    constexpr int MAX = std::numeric_limits<int>::max();
    for (const int n :
         {0,  1,  9,   10,  99,    2024,   10000,  99999,   100000,  999999,   1000000, 1234567, MAX,
          -1, -9, -10, -99, -9999, -10000, -99999, -100000, -999999, -1000000, MIN,     MIN + 1}) {
        for (int largeur = 1; largeur <= 15; ++largeur) {
            char attendu[32];
            std::snprintf(attendu, sizeof attendu, "%0*d", largeur, n);
            EXPECT_EQ(fait([&](ligneVSE& r) { r.nombre(n, largeur); }), attendu) << n << " in " << largeur;
        }
    }
}

TEST_F(Composition, CeQuiNeTientPasEstLaisse) {
    constexpr std::size_t place = sizeof ligneVSE::tampon;
    for (std::size_t libre = 0; libre <= 20; ++libre) {
        const auto restes = [libre](auto&& ajouter) {
            return fait([&](ligneVSE& r) {
                       r.blancs(place - libre);
                       ajouter(r);
                   })
                .substr(place - libre);
        };
        const std::string attendu = std::string("0123456789abcdefghij").substr(0, libre);
        valeurVSE v = {};
        std::strcpy(v.valeur, "0123456789abcdefghij");
        EXPECT_EQ(restes([&](ligneVSE& r) { r.champ(v); }), attendu);
        EXPECT_EQ(restes([&](ligneVSE& r) { r.texte(v.valeur); }), attendu);
        EXPECT_EQ(restes([&](ligneVSE& r) { r.octets(v.valeur, 20); }), attendu);
        EXPECT_EQ(restes([&](ligneVSE& r) { r.blancs(25); }), blancs(static_cast<int>(libre)));
        EXPECT_EQ(restes([&](ligneVSE& r) { r.nombre(7, 25); }), std::string(libre, '0').substr(0, libre));
        std::strcpy(v.valeur, "court");
        EXPECT_EQ(restes([&](ligneVSE& r) { r.champ(v); }), std::string("court").substr(0, libre));
    }
}

TEST_F(Composition, EstampilleDUneHeure) {
    char date[sizeof l.VSEDate];
    const struct {
        int jour, mois, annee, heure, minute, seconde;
        const char* estampille;
    } cas[] = {
        {16, 3, 2024, 11, 22, 33, "16032024112233025        *"},
        {1, 1, 1970, 0, 0, 0, "01011970000000025        *"},
        {31, 12, 9999, 23, 59, 60, "31129999235960025        *"},
        {9, 9, 987, 1, 2, 3, "09090987010203025        *"},
        {29, 2, 12024, 4, 5, 6, "290212024040506025        *"},
        // No clock shows such a time; what does not fit is left out.
        {1000000000, 1000000001, 2000000002, 3, 4, 5, "10000000001000000001200000000203040"},
    };
    for (const auto& c : cas) {
        std::tm t = {};
        t.tm_mday = c.jour;
        t.tm_mon = c.mois - 1;
        t.tm_year = c.annee - 1900;
        t.tm_hour = c.heure;
        t.tm_min = c.minute;
        t.tm_sec = c.seconde;
        std::memset(date, '?', sizeof date);
        faireVSEDate(date, t);
        EXPECT_STREQ(date, c.estampille);
    }
}

// ------------------------------------------- what the two files grow by

namespace {

verdict jugement(int rang, int erreurs, int itAiguil, int sansCompagnon = 0) {
    return {eFatal::AUCUN, rang, erreurs, itAiguil, sansCompagnon};
}

}  // namespace

TEST_F(Composition, CeQuUnVerdictAjoute) {
    const std::string record = acti();
    const int ligne = couper(record);
    std::strcpy(l.ligne.texte, record.c_str());
    std::strcpy(l.tamponSansCompagnon, "l'orphelin");
    codeErreur[0] = 81;
    codeErreur[1] = 94;
    const std::string rejete = vseErreurC1C2(record, {81, 94});
    for (const std::string& fin : {std::string("\n"), std::string("\r\n")}) {
        l.formatDuFichier = fin.size() == 1 ? CVERSE_UNIX : CVERSE_DOS;
        const struct {
            verdict v;
            std::string emis, erre;
        } cas[] = {
            {jugement(1, 0, 0), "", ""},  // the FICH record is written at the end
            {jugement(1, 2, 0), "", ""},
            {jugement(2, 0, ligne), fin + emise(record), ""},
            {jugement(2, 2, ligne), "", fin + rejete},
            {jugement(3, 0, ligne, 105), fin + emise(record), fin + "l'orphelin"},
            {jugement(3, 2, ligne, 105), "", fin + rejete + fin + "l'orphelin"},
        };
        for (const auto& c : cas) {
            ajouts a;
            ajouterVerdict(a, l, c.v);
            EXPECT_EQ(contenu(a.emis), c.emis) << c.v.rang << " " << c.v.erreurs;
            EXPECT_EQ(contenu(a.erre), c.erre) << c.v.rang << " " << c.v.erreurs;
        }
    }
}

TEST_F(Composition, CeQueLaFinAjoute) {
    const std::string f = fich(1);
    couperFich(f);
    std::strcpy(l.tamponSansCompagnon, "l'orphelin");
    l.codeFichErreur[0] = 100;
    const std::string deFich = vseErreurInconnue(f, {100});
    const struct {
        int format, enErreur, sansCompagnon, errFich;
        std::string emis, erre;
    } cas[] = {
        // Only the file that is published grows.
        {CVERSE_UNIX, 0, 0, 0, "\n", ""},
        {CVERSE_DOS, 0, 0, 0, "\r\n", ""},
        {CVERSE_UNIX, 1, 0, 0, "", "\n"},
        {-1, 1, 0, 1, "", "\n" + deFich + "\n"},
        {CVERSE_UNIX, 1, 138, 0, "", "\nl'orphelin\n"},
        {CVERSE_DOS, 2, 138, 1, "", "\r\nl'orphelin\r\n" + deFich + "\r\n"},
    };
    for (const auto& c : cas) {
        l.formatDuFichier = c.format;
        l.nbVSE_Err = c.enErreur;
        l.errFich = c.errFich;
        ajouts a;
        ajouterFin(a, l, {eFatal::AUCUN, c.sansCompagnon, false});
        EXPECT_EQ(contenu(a.emis), c.emis);
        EXPECT_EQ(contenu(a.erre), c.erre);
    }
}
