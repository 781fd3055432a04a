#include "driver/sorties.h"

#include <gtest/gtest.h>
#include <stdio_ext.h>

#include <cstring>
#include <string>
#include <vector>

#include "calendar/horloge.h"
#include "driver/etat.h"
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

class Sorties : public testing::Test {
protected:
    Sorties() {
        initialiserEtat();
        fp_emis = std::tmpfile();
        fp_erre = std::tmpfile();
        std::strcpy(VSEDate, ESTAMPILLE);
        remplir(valFichEnteteVSE[E3], "089ARS  ");
    }
    ~Sorties() override {
        std::fclose(fp_emis);
        std::fclose(fp_erre);
        initialiserEtat();
    }

    static std::string contenu(std::FILE* fp) {
        std::string r;
        std::rewind(fp);
        for (int c; (c = std::getc(fp)) != EOF;)
            r += static_cast<char>(c);
        return r;
    }

    /** Cuts the record's header and, by its type's table, its body. */
    static int couper(const std::string& record) {
        getvseChamps(tEntete, lEntete, record.c_str(), valEnteteVSE, VISU_AUCUNE);
        const int ligne = aiguiller(valEnteteVSE[E6].valeur);
        if (ligne != ERR_AIGUILLAGE)
            getvseChamps(tAiguillage[ligne].tabVerif, *tAiguillage[ligne].pLenTabVerif, record.c_str(),
                         valCorpsVSE, VISU_AUCUNE);
        return ligne;
    }

    static void couperFich(const std::string& record) {
        const int bornes[9][2] = {{63, 78},   {79, 94},   {95, 100},  {101, 106}, {107, 112},
                                  {113, 118}, {119, 124}, {125, 125}, {126, 230}};
        getvseChamps(tEntete, lEntete, record.c_str(), valFichEnteteVSE, VISU_AUCUNE);
        getvseChamps(tFin, lFin, record.c_str(), valFichFinVSE, VISU_AUCUNE);
        for (int i = 0; i < 9; ++i)
            remplir(valFichCorpsVSE[i], colonnes(record, bornes[i][0], bornes[i][1]));
    }

    static std::string erreurs(const char* c7, const char* c8, const std::vector<int>& codes) {
        std::fclose(fp_erre);
        fp_erre = std::tmpfile();
        int liste[MAX_ERREURS + 2] = {};
        for (std::size_t i = 0; i < codes.size(); ++i)
            liste[i] = codes[i];
        faireVSEERR(c7, c8, static_cast<int>(codes.size()), valEnteteVSE, valCorpsVSE, liste);
        return contenu(fp_erre);
    }
};

/** Whether the text is the stamp of some second between two times. */
bool estampilleEntre(const std::string& texte, std::time_t avant, std::time_t apres) {
    for (std::time_t t = avant; t <= apres; ++t) {
        char attendu[64];
        if (std::strftime(attendu, sizeof attendu, "%d%m%Y%H%M%S025        *", std::localtime(&t)) > 0 &&
            texte == attendu)
            return true;
    }
    return false;
}

}  // namespace

TEST_F(Sorties, VSEERRColonneParColonne) {
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

TEST_F(Sorties, VSEERRNombreDeCodes) {
    const std::string record = acti();
    couper(record);
    std::vector<int> codes;
    for (int n = 0; n <= 11; ++n) {
        nbErreur = n;
        const std::vector<int> ecrits(codes.begin(), codes.begin() + (n > 10 ? 10 : n));
        EXPECT_EQ(erreurs("FR", "78123456    ", codes), vseErreurC1C2(record, ecrits)) << n << " codes";
        EXPECT_EQ(nbErreur, n > 10 ? 10 : n) << n << " codes";
        codes.push_back(n == 0 ? 1 : n == 1 ? 50 : n == 2 ? 806 : 100 + n);
    }
    // Ten codes fill columns 112 to 161 and leave 69 blanks.
    codes.resize(10);
    nbErreur = 7;  // only a count that is cut is written back
    EXPECT_EQ(colonnes(erreurs("FR", "78123456    ", codes), 112, 230),
              "I0011I0501I8061I1031I1041I1051I1061I1071I1081I1091" + blancs(69));
    EXPECT_EQ(nbErreur, 7);
}

TEST_F(Sorties, VSEERREcritToutNumeroDeTroisChiffres) {
    couper(acti());
    for (int n = 0; n < 1000; ++n) {
        char code[16];
        std::snprintf(code, sizeof code, "I%03d1", n);
        EXPECT_EQ(colonnes(erreurs("FR", "78123456    ", {n}), 112, 116), code);
    }
}

TEST_F(Sorties, VSEERRDUnCompteNegatifNAPasDeCode) {
    couper(acti());
    const int codes[] = {31};
    faireVSEERR("FR", "78123456    ", -1, valEnteteVSE, valCorpsVSE, codes);
    EXPECT_EQ(contenu(fp_erre), vseErreurC1C2(acti(), {}));
}

TEST_F(Sorties, VSEERRDUneERRE) {
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

TEST_F(Sorties, VSEERRDeChampsCourts) {
    // The record ends in column 70: C2 has six characters, written as they are.
    const std::string record = acti().substr(0, 70);
    couper(record);
    std::string attendue = vseErreur(acti(), {108}, "FR", "781234", "FR781234");
    attendue.erase(105, 6);  // second key
    attendue.erase(77, 6);   // C2
    EXPECT_EQ(erreurs("FR", "781234", {108}), attendue);
    faireTamponVSEERR(105, aiguiller("ACTI"));
    attendue.replace(attendue.find("I1081"), 5, "I1051");
    EXPECT_EQ(sauvTamponVSE, attendue);
}

// No record holds fields that wide; what would not fit is left out.
TEST_F(Sorties, VSEERRDeChampsTropLarges) {
    for (std::size_t large = 200; large <= 256; ++large) {
        SCOPED_TRACE(large);
        for (const numEnteteVSE champ : {E1, E2, E4})
            remplir(valEnteteVSE[champ], std::string(256, 'x'));
        remplir(valEnteteVSE[E3], std::string(large, 'y'));
        remplir(valEnteteVSE[E7], std::string(large % 18, '7'));
        remplir(valEnteteVSE[E9], "99999999");
        const std::string debut = std::string(768, 'x') + std::string(large, 'y') + "ERRERRE" +
                                  std::string(large % 18, '7') + "INTERFAC99999999089ARS  ";
        const std::string e = erreurs("FR", "78123456    ", {31});
        EXPECT_EQ(e.size(), 1024U);
        EXPECT_EQ(e.substr(0, debut.size()), debut.substr(0, e.size()));
    }
}

TEST_F(Sorties, ClesParLigneDAiguillage) {
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
    ASSERT_EQ(std::size(cles) + 1, static_cast<std::size_t>(LEN_AIGUILLAGE));
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
        std::fclose(fp_erre);
        fp_erre = std::tmpfile();
        faireVSEERRCourante(ligne, 2);
        EXPECT_EQ(contenu(fp_erre), vseErreur(record, {21, 22}, c7, c8, c1c2)) << c.typeVSE;
        faireTamponVSEERR(138, ligne);
        EXPECT_EQ(sauvTamponVSE, vseErreur(record, {138}, c7, c8, c1c2)) << c.typeVSE;
    }
}

TEST_F(Sorties, TypeInconnuEffaceC1EtC2) {
    const auto salir = [] {
        for (int i = 0; i < 100; ++i)
            remplir(valCorpsVSE[i], "reste du message d'avant");
    };
    const std::string record = recordDistinct("XXXX", "CRE");
    couper(record);
    salir();
    codeErreur[0] = 85;
    faireVSEERRCourante(ERR_AIGUILLAGE, 1);
    EXPECT_EQ(contenu(fp_erre), vseErreurInconnue(record, {85}));
    EXPECT_STREQ(valCorpsVSE[C1].valeur, "  ");
    EXPECT_STREQ(valCorpsVSE[C2].valeur, "            ");
    salir();
    faireTamponVSEERR(105, ERR_AIGUILLAGE);
    EXPECT_EQ(sauvTamponVSE, vseErreurInconnue(record, {105}));
}

TEST_F(Sorties, VSEERRDeLaVSEFICH) {
    const std::string f = recordDistinct("FICH", "INF");
    couperFich(f);
    const std::vector<int> codes = {95, 96, 84, 100};
    for (std::size_t i = 0; i < codes.size(); ++i)
        codeFichErreur[i] = codes[i];
    errFich = 4;
    faireVSEERRFich();
    EXPECT_EQ(contenu(fp_erre), vseErreur(f, codes, blancs(2), blancs(12), blancs(14), colonnes(f, 3, 10)));
    EXPECT_EQ(valFichCorpsVSE[C1].valeur, colonnes(f, 63, 78));
    EXPECT_EQ(valFichCorpsVSE[C2].valeur, colonnes(f, 79, 94));
}

TEST_F(Sorties, VSEFICHDUnFichierValide) {
    const std::string f = recordDistinct("FICH", "ECQ");
    couperFich(f);
    for (const auto& [n, texte] :
         std::vector<std::pair<int, std::string>>{{1, "000001"}, {10000, "010000"}}) {
        std::fclose(fp_emis);
        fp_emis = std::tmpfile();
        reserverVSEFICH(fp_emis);
        EXPECT_EQ(contenu(fp_emis), blancs(256));
        std::fputs("\nsuite", fp_emis);
        faireVSEFICHOk(n);
        EXPECT_EQ(contenu(fp_emis), avec(f, {{19, "INF"}, {113, texte}, {126, blancs(105)}}) + "\nsuite");
    }
}

TEST_F(Sorties, VSEFICHDUnFichierEnErreur) {
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
    for (const auto& c : cas) {
        std::fclose(fp_erre);
        fp_erre = std::tmpfile();
        reserverVSEFICH(fp_erre);
        std::fputs("\nsuite", fp_erre);
        errFich = c.errFich;
        const std::time_t avant = maintenant();
        faireVSEFICHNok(c.messages, c.enErreur);
        const std::time_t apres = maintenant();
        const std::string e = contenu(fp_erre);
        ASSERT_EQ(e.size(), 262U) << c.compteurs;
        // The stamp is the time of writing, not that of the run.
        EXPECT_TRUE(estampilleEntre(colonnes(e, 231, 256), avant, apres)) << e;
        const std::string attendue = fichErreur(f, 0, 0, 0, colonnes(e, 231, 256));
        EXPECT_EQ(e, avec(attendue, {{95, c.compteurs}}) + "\nsuite");
    }
}

TEST_F(Sorties, EnteteEtFinDeLaVSEFICHEnErreur) {
    const std::string f = recordDistinct("FICH", "MOD");
    couperFich(f);
    faireEnteteVSEFICHNok(fp_erre);
    EXPECT_EQ(contenu(fp_erre),
              colonnes(f, 1, 2) + colonnes(f, 11, 18) + colonnes(f, 3, 10) + "INFFICH" + colonnes(f, 26, 62));
    const std::time_t avant = maintenant();
    finVSENok(fp_emis);
    const std::time_t apres = maintenant();
    const std::string fin = contenu(fp_emis);
    ASSERT_EQ(fin.size(), 131U);
    EXPECT_EQ(fin.substr(0, 105), blancs(105));
    EXPECT_TRUE(estampilleEntre(fin.substr(105), avant, apres)) << fin;
}

TEST_F(Sorties, FICHCourteSansRemplissage) {
    // FICH header as it stands in a file whose first line ended in CR alone.
    for (valeurVSE& v : valFichEnteteVSE)
        v.valeur[0] = '\0';
    reserverVSEFICH(fp_erre);
    errFich = 1;
    faireVSEFICHNok(1, 2);
    const std::string e = contenu(fp_erre);
    // The shorter record stands over the placeholder, whose rest stays blank.
    ASSERT_EQ(e.size(), 256U);
    EXPECT_EQ(e.substr(0, 28), "INF0000020000010000020000001");
    EXPECT_EQ(e.substr(28, 105), blancs(105));
    EXPECT_EQ(e.substr(159), blancs(97));
}

TEST_F(Sorties, VSEValide) {
    const struct {
        const char* typeVSE;
        const char* genre;
        bool estampee;
    } cas[] = {{"ACTI", "CRE", true}, {"ABAT", "INV", true},  {"ACTI", "ECQ", true},
               {"ERRE", "CRE", true}, {"ERRE", "ECQ", false}, {"erre", "ECQ", true}};
    for (const auto& c : cas) {
        std::fclose(fp_emis);
        fp_emis = std::tmpfile();
        const std::string record = recordDistinct(c.typeVSE, c.genre);
        couper(record);
        faireVSEValide(record.c_str(), CVERSE_DOS);
        EXPECT_EQ(contenu(fp_emis), "\r\n" + (c.estampee ? emise(record) : record)) << c.typeVSE << c.genre;
    }
    EXPECT_EQ(quilvaneRES()[0], '4');
}

TEST_F(Sorties, FinDeLigneParFormat) {
    const std::vector<std::pair<int, std::string>> formats = {
        {CVERSE_DOS, "\r\n"}, {CVERSE_UNIX, "\n"},      {CVERSE_MAC, "\r"},   {-1, "\n"},
        {CVERSE_EOF, "\n"},   {CVERSE_LONGNULLE, "\n"}, {CVERSE_CTRLZ, "\n"}, {99, "\n"}};
    for (const auto& [format, octets] : formats) {
        std::fclose(fp_emis);
        fp_emis = std::tmpfile();
        faireFinDeLigne(fp_emis, format);
        EXPECT_EQ(contenu(fp_emis), octets) << format;
    }
    EXPECT_EQ(CVERSE_DOS, 1);
    EXPECT_EQ(CVERSE_UNIX, 2);
    EXPECT_EQ(CVERSE_MAC, 3);
}

TEST_F(Sorties, GrandsBlocsSansVerrou) {
    preparerSorties();
    for (std::FILE* const fp : {fp_emis, fp_erre}) {
        EXPECT_EQ(__fbufsize(fp), 65536U);
        EXPECT_EQ(__fsetlocking(fp, FSETLOCKING_QUERY), FSETLOCKING_BYCALLER);
    }
    // Each its own block: what one writes is not the other's.
    std::fputs("emis", fp_emis);
    std::fputs("erre", fp_erre);
    EXPECT_EQ(contenu(fp_emis), "emis");
    EXPECT_EQ(contenu(fp_erre), "erre");
}

TEST_F(Sorties, EstampilleDuMoment) {
    char date[sizeof VSEDate];
    const std::time_t avant = maintenant();
    faireVSEDate(date);
    EXPECT_TRUE(estampilleEntre(date, avant, maintenant())) << date;
    EXPECT_EQ(std::strlen(date), 26U);
}

TEST_F(Sorties, Console) {
    const std::string record = acti();
    const struct {
        int mode;
        std::string sortie;
    } modes[] = {{VISU_AUCUNE, ""}, {VISU_INFORMATIQUE, ""}, {VISU_DECRIPTEE, "VSE=|" + record + "|\n"}};
    for (const auto& m : modes) {
        xdebug[0] = '\0';
        testing::internal::CaptureStdout();
        affichageVSE(record.c_str(), m.mode);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), m.sortie) << m.mode;
        EXPECT_EQ(xdebug, record) << m.mode;
    }
    testing::internal::CaptureStdout();
    tracer("un texte");
    tracer("");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "    [****] xdebug message:\"un texte\" [****]\n    [****] xdebug message:\"\" [****]\n");
}
