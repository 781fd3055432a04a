#include "rules/entete.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <set>
#include <string>
#include <vector>

#include "checks/dates.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "rules/moteur.h"
#include "support/champ.h"
#include "support/vse.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;
using namespace essai;

namespace {

/** Error numbers that the header and footer rules give a record. */
std::vector<int> controler(const std::string& record) {
    leStore = {};
    getvseChamps(tEntete, lEntete, record.c_str(), valEnteteVSE);
    getvseChamps(tFin, lFin, record.c_str(), valFinVSE);
    int n = verifChamps(nullptr, 0, tEntete, lEntete, valEnteteVSE, nullptr, "E");
    n = verifChamps(nullptr, n, tFin, lFin, valFinVSE, nullptr, "F");
    return {codeErreur, codeErreur + n};
}

/** A change to the correct FICH or ACTI record and the errors that it brings. */
struct cas {
    std::vector<pose> poses;
    std::vector<int> codes;
};

void essayer(const std::string& modele, const std::vector<cas>& liste) {
    EXPECT_EQ(controler(modele), std::vector<int>{}) << "model";
    for (const cas& c : liste) {
        std::string record = modele;
        std::string nom;
        for (const pose& p : c.poses) {
            poser(record, p.col, p.texte);
            nom += " col " + std::to_string(p.col) + " \"" + p.texte + "\"";
        }
        EXPECT_EQ(controler(record), c.codes) << nom;
    }
}

/** A check called on its own. */
struct appel {
    std::string typeVSE;
    std::string champ;
    bool accepte;
};

void appeler(const char* nom, fVerif* verif, const liste& sverif, const std::vector<appel>& appels) {
    for (const appel& a : appels)
        EXPECT_EQ(accepte(verif, a.typeVSE, a.champ, sverif), a.accepte)
            << nom << " on " << a.typeVSE << " \"" << a.champ << "\"";
}

std::string codeDep(int numero) {
    char texte[16];
    std::snprintf(texte, sizeof texte, "%03dIPG  ", numero);
    return texte;
}

}  // namespace

TEST(Entete, LignesDansLeurOrdre) {
    struct ligne {
        int numChamp, debut, fin;
        fVerif* verif;
        const liste* sverif;
        const char* dependance;  // null: no other field
        int noErr;
    };
    const auto comparer = [](const sCorps* table, int n, const std::vector<ligne>& attendues) {
        ASSERT_EQ(static_cast<std::size_t>(n), attendues.size());
        for (int i = 0; i < n; ++i) {
            const ligne& a = attendues[static_cast<std::size_t>(i)];
            const sCorps& l = table[i];
            EXPECT_EQ(l.numChamp, a.numChamp) << i;
            EXPECT_EQ(l.debut, a.debut) << i;
            EXPECT_EQ(l.fin, a.fin) << i;
            EXPECT_EQ(l.pfVerif, a.verif) << i;
            EXPECT_EQ(l.sverif, a.sverif) << i;
            if (a.dependance != nullptr) {
                EXPECT_EQ(l.dependance, a.dependance) << i;
            } else {
                EXPECT_TRUE(l.dependance != entete(E5) && l.dependance != entete(E6)) << i;
            }
            EXPECT_EQ(l.noErr, a.noErr) << i;
            for (const int presence : {l.typeCRE, l.typeDEM, l.typeINV, l.typeEDI, l.typeMOD})
                EXPECT_EQ(presence, 1) << i;
        }
    };
    const char* const e5 = entete(E5);
    const char* const e6 = entete(E6);
    comparer(tEntete, lEntete,
             {{0, 1, 1, nullptr, &sansListe, nullptr, 0},
              {1, 2, 2, nullptr, &sansListe, nullptr, 0},
              {2, 3, 10, enteteE3, &TEC, e6, 95},
              {3, 11, 18, enteteE4, &BDN031, e6, 96},
              {4, 19, 21, fVerifValAut, &tE5, nullptr, 84},
              {5, 22, 25, fVerifValAut, &tE6, nullptr, 85},
              {5, 0, 0, fVerifDepE6, &sansListe, e5, 86},
              {6, 26, 26, nullptr, &sansListe, nullptr, 0},
              {7, 27, 34, enteteE8, &TDC, e6, 87},
              {8, 35, 42, enteteE9, &HuitBlancs, e6, 89},
              {9, 43, 50, enteteE10, &BDN8, e6, 88},
              {10, 51, 60, nullptr, &sansListe, nullptr, 0},
              {11, 61, 61, enteteE12, &TOUQ, e6, 97},
              {12, 62, 62, enteteE13, &NOUU, e6, 98}});
    comparer(tFin, lFin,
             {{0, 231, 238, fDATEC, &sansListe, nullptr, 90},
              {1, 239, 244, fHEUREC, &sansListe, nullptr, 91},
              {1, 0, 0, nullptr, &sansListe, nullptr, 0},
              {2, 245, 247, finF3, &versionVSE, e6, 93},
              {3, 248, 255, nullptr, &sansListe, nullptr, 0},
              {4, 256, 256, fVerifValAut, &ET1, nullptr, 94}});
}

TEST(Entete, LesLignesSansColonnesNeDecalentRien) {
    std::string record(256, '.');
    for (int i = 0; i < 256; ++i)
        record[static_cast<std::size_t>(i)] = static_cast<char>('0' + i % 75);
    getvseChamps(tEntete, lEntete, record.c_str(), valEnteteVSE);
    getvseChamps(tFin, lFin, record.c_str(), valFinVSE);
    const int e[13][2] = {{1, 1},   {2, 2},   {3, 10},  {11, 18}, {19, 21}, {22, 25}, {26, 26},
                          {27, 34}, {35, 42}, {43, 50}, {51, 60}, {61, 61}, {62, 62}};
    const int f[5][2] = {{231, 238}, {239, 244}, {245, 247}, {248, 255}, {256, 256}};
    const auto texte = [&](const int(&c)[2]) {
        return record.substr(static_cast<std::size_t>(c[0] - 1), static_cast<std::size_t>(c[1] - c[0] + 1));
    };
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(valEnteteVSE[i].valeur, texte(e[i])) << "E" << i + 1;
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(valFinVSE[i].valeur, texte(f[i])) << "F" << i + 1;
}

TEST(Entete, LignesDeLaVSEFICH) {
    essayer(fich(1), {
                         {{{3, "013ARS  "}}, {}},
                         {{{3, "976IPG  "}}, {}},
                         {{{3, "OFFICEAB"}}, {}},
                         {{{3, "013IPG  "}}, {95}},
                         {{{3, "ZZZZZZZZ"}}, {95}},
                         {{{11, "031BDN  "}}, {}},
                         {{{11, "031BDN 1"}}, {96}},
                         {{{19, "CRE"}}, {86}},
                         {{{19, "ECQ"}}, {}},
                         {{{19, "XXX"}}, {84, 86}},
                         {{{1, "zz"}, {26, "~"}, {51, "??????????"}, {248, "inconnus"}}, {}},
                         {{{27, "ZZZZZZZZ"}}, {}},
                         {{{35, "A B C D "}}, {}},
                         {{{35, "        "}}, {}},
                         {{{43, "        "}}, {}},
                         {{{61, "4"}}, {}},
                         {{{61, "5"}}, {97}},
                         {{{61, " "}}, {97}},
                         {{{62, "U"}}, {}},
                         {{{62, "n"}}, {98}},
                         {{{231, "31042024"}}, {90}},
                         {{{231, "        "}}, {90}},
                         {{{239, "240000"}}, {91}},
                         {{{245, "024"}}, {93}},
                         {{{256, " "}}, {94}},
                     });
}

TEST(Entete, LignesDUnMessage) {
    essayer(acti(), {
                        {{{3, "ZZZZZZZZ"}}, {}},
                        {{{11, "ZZZZZZZZ"}}, {}},
                        {{{1, "zz"}, {26, "~"}, {51, "??????????"}, {248, "inconnus"}}, {}},
                        {{{19, "INV"}}, {}},
                        {{{19, "DEM"}}, {86}},
                        {{{19, "XXX"}}, {84, 86}},
                        {{{19, "cre"}}, {84, 86}},
                        {{{22, "AVER"}}, {85, 86}},
                        {{{22, "LIST"}}, {85, 86}},
                        {{{22, "acti"}}, {85, 86}},
                        {{{22, "AVER"}, {19, "ECQ"}}, {85}},
                        {{{22, "SORT"}, {19, "ECQ"}}, {}},
                        {{{22, "NAIS"}, {19, "EDI"}}, {86}},
                        {{{27, "020IPG  "}}, {87}},
                        {{{27, "02AIPG  "}}, {}},
                        {{{35, "AB CD EF"}}, {89}},
                        {{{35, "        "}}, {89}},
                        {{{35, "        "}, {27, "NORMABEV"}}, {}},
                        {{{43, "        "}}, {88}},
                        {{{43, "BDN    1"}}, {88}},
                        {{{61, "9"}}, {}},
                        {{{62, "9"}}, {}},
                        {{{231, "30022024"}}, {90}},
                        {{{231, "29022024"}}, {}},
                        {{{231, "  022024"}}, {90}},
                        {{{239, "235959"}}, {}},
                        {{{239, "235960"}}, {91}},
                        {{{239, "      "}}, {91}},
                        {{{245, "024"}}, {}},
                        {{{245, "   "}}, {}},
                        {{{256, "x"}}, {94}},
                    });
}

TEST(Entete, OrdreDesErreurs) {
    std::vector<int> ordre;
    for (int i = 0; i < lEntete; ++i)
        if (tEntete[i].pfVerif != nullptr) ordre.push_back(tEntete[i].noErr);
    EXPECT_EQ(ordre, (std::vector<int>{95, 96, 84, 85, 86, 87, 89, 88, 97, 98}));

    const std::vector<pose> toutFaux = {{3, "ZZZZZZZZ"},  {11, "ZZZZZZZZ"}, {19, "XXX"}, {27, "ZZZZZZZZ"},
                                        {35, "        "}, {43, "ZZZZZZZZ"}, {61, "ZZ"},  {231, "ZZZZZZZZ"},
                                        {239, "ZZZZZZ"},  {245, "ZZZ"},     {256, "Z"}};
    essayer(fich(1), {{toutFaux, {95, 96, 84, 86, 97, 98, 90, 91, 93, 94}}});
    std::vector<pose> inconnue = toutFaux;
    inconnue.push_back({22, "ZZZZ"});
    essayer(acti(),
            {{toutFaux, {84, 86, 87, 89, 88, 90, 91, 94}}, {inconnue, {84, 85, 86, 87, 89, 88, 90, 91, 94}}});
}

TEST(Entete, LesQuatreCodesSpeciauxPassentLesListes) {
    for (const char* code : {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "}) {
        essayer(fich(1), {{{{3, code}, {11, code}}, {}}});
        essayer(acti(), {{{{27, code}, {43, code}}, {}}});
    }
    // "NORMABEV" is an emitter by the list test only.
    EXPECT_TRUE(accepte(enteteE3, "FICH", "NORMABEV", TEC));
    EXPECT_FALSE(accepte(enteteE3, "FICH", "NORMABEX", TEC));
}

TEST(Entete, E3Emetteur) {
    appeler("E3", enteteE3, TEC,
            {{"ACTI", "ZZZZZZZZ", true},  {"FIC", "ZZZZZZZZ", true},   {"FICHE", "ZZZZZZZZ", true},
             {"", "ZZZZZZZZ", true},      {"FICH", "ZZZZZZZZ", false}, {"FICH", "OVINFOS ", true},
             {"FICH", "OVINFOSX", false}, {"FICH", "OFFICE12", true},  {"FICH", "ONICABXY", true},
             {"FICH", "NORM01XY", true},  {"FICH", "NORM02XY", true},  {"FICH", "PFOC01XY", true},
             {"FICH", "PFOC02  ", false}, {"FICH", "NORM03  ", false}, {"FICH", "POINTFOC", false},
             {"FICH", "OFFIC   ", false}, {"FICH", "office12", false}, {"FICH", "089ARS", false},
             {"FICH", "089ARS  ", true},  {"FICH", "", false},         {"FICH", "OFFICE", true},
             {"FICH", "OVINFOS", false}});
    const std::set<std::string> emetteurs = {
        "001IPG  ", "003IPG  ", "013ARS  ", "018IPG  ", "021IPG  ", "023IPG  ", "025ARS  ",
        "02BIPG  ", "036IPG  ", "038IPG  ", "042ARS  ", "043IPG  ", "054ARS  ", "058IPG  ",
        "059ARS  ", "063IPG  ", "071IPG  ", "074ARS  ", "081ARS  ", "089ARS  ", "350ARS  ",
        "971IPG  ", "972IPG  ", "973IPG  ", "974IPG  ", "976IPG  "};
    ASSERT_EQ(emetteurs.size(), 26U);
    for (int n = 0; n < 1000; ++n) {
        const std::string ipg = codeDep(n);
        const std::string ars = ipg.substr(0, 3) + "ARS  ";
        EXPECT_EQ(accepte(enteteE3, "FICH", ipg, TEC), emetteurs.count(ipg) == 1) << ipg;
        EXPECT_EQ(accepte(enteteE3, "FICH", ars, TEC), emetteurs.count(ars) == 1) << ars;
    }
    EXPECT_TRUE(accepte(enteteE3, "FICH", "02BIPG  ", TEC));
    EXPECT_FALSE(accepte(enteteE3, "FICH", "02AIPG  ", TEC));
}

TEST(Entete, E8CorpsDepartemental) {
    appeler("E8", enteteE8, TDC,
            {{"FICH", "ZZZZZZZZ", true},  {"ACTI", "ZZZZZZZZ", false}, {"FICHE", "ZZZZZZZZ", false},
             {"ACTI", "POINTFOC", true},  {"ACTI", "NORMABEV", true},  {"ACTI", "OVINFOS ", true},
             {"ACTI", "OVINFOSX", false}, {"ACTI", "POINTFOX", false}, {"ACTI", "OFFICE12", true},
             {"ACTI", "ONICABXY", true},  {"ACTI", "ONICA   ", false}, {"ACTI", "NORM01XY", false},
             {"ACTI", "NORM01  ", true},  {"ACTI", "078IPG", false},   {"ACTI", "078IPG X", false},
             {"ACTI", "078ARS  ", false}, {"ACTI", "02AIPG  ", true},  {"ACTI", "02BIPG  ", true},
             {"ACTI", "02CIPG  ", false}, {"ACTI", "", false},         {"ACTI", "        ", false},
             {"ACTI", "OVINFOS", false},  {"ACTI", "OFFICE", true}});
    int acceptes = 2;  // 02A and 02B
    for (int n = 0; n < 1000; ++n) {
        const bool existe = (n >= 1 && n <= 95 && n != 20) || (n >= 971 && n <= 974) || n == 976;
        EXPECT_EQ(accepte(enteteE8, "ACTI", codeDep(n), TDC), existe) << n;
        acceptes += existe ? 1 : 0;
    }
    EXPECT_EQ(acceptes, 101);
    EXPECT_EQ(TDC.nombre(), 101);
}

TEST(Entete, E9SansBlancSaufOrganismeNational) {
    struct casE9 {
        const char* typeVSE;
        const char* e8;
        const char* champ;
        bool accepte;
    };
    const casE9 liste[] = {
        {"FICH", "078IPG  ", "        ", true},
        {"FICH", "078IPG  ", "A B", true},
        {"ACTI", "078IPG  ", "EMETTEUR", true},
        {"ACTI", "078IPG  ", "AB CD EF", false},
        {"ACTI", "078IPG  ", "EMETTEU ", false},
        {"ACTI", "078IPG  ", " EMETTEU", false},
        {"ACTI", "078IPG  ", "        ", false},
        {"ACTI", "NORMABEV", "        ", true},
        {"ACTI", "OFFICE12", "        ", true},
        {"ACTI", "ONICAB  ", "        ", true},
        {"ACTI", "NORMABEV", "A       ", false},
        {"ACTI", "OFFICE12", "       A", false},
        {"ACTI", "NORMABE ", "        ", false},
        {"ACTI", "POINTFOC", "        ", false},
        {"ACTI", "OVINFOS ", "        ", false},
        {"ACTI", "NORM01  ", "        ", false},
        // Cut short by the end of the record: seven blanks are not eight.
        {"ACTI", "NORMABEV", "       ", false},
        {"ACTI", "078IPG  ", "EMET", true},
        {"ACTI", "078IPG  ", "", true},
    };
    for (const casE9& c : liste) {
        remplir(valEnteteVSE[E8], c.e8);
        EXPECT_EQ(accepte(enteteE9, c.typeVSE, c.champ, HuitBlancs), c.accepte)
            << c.typeVSE << " E8 \"" << c.e8 << "\" E9 \"" << c.champ << "\"";
    }
}

TEST(Entete, ReglesDUnSeulCote) {
    appeler("E4", enteteE4, BDN031,
            {{"FICH", "031BDN  ", true},
             {"FICH", "031BDN", false},
             {"FICH", "BDN     ", false},
             {"FICH", "", false},
             {"ACTI", "BDN     ", true},
             {"FICHE", "", true}});
    appeler("E10", enteteE10, BDN8,
            {{"ACTI", "BDN     ", true},
             {"ACTI", "BDN", false},
             {"ACTI", "031BDN  ", false},
             {"ACTI", "", false},
             {"FICH", "", true},
             {"FICH", "ZZZZZZZZ", true},
             {"FIC", "", false}});
    appeler("E12", enteteE12, TOUQ,
            {{"FICH", "3", true},
             {"FICH", "4", true},
             {"FICH", "2", false},
             {"FICH", "", false},
             {"ACTI", "2", true}});
    appeler("E13", enteteE13, NOUU,
            {{"FICH", "N", true},
             {"FICH", "U", true},
             {"FICH", "O", false},
             {"FICH", "", false},
             {"ACTI", "O", true}});
    appeler("F3", finF3, versionVSE,
            {{"FICH", "025", true},
             {"FICH", "024", false},
             {"FICH", "02", false},
             {"FICH", "", false},
             {"ACTI", "", true}});
}

// What is known of a type for good; of every type its own kinds are asked in
// messages/aiguillage_test.cpp.
TEST(Entete, TypesPermisParGenre) {
    const struct {
        const char* typeVSE;
        const char* genres;
    } matrice[] = {
        {"ABAT", "CRE INV MOD"},
        {"ACTI", "CRE INV MOD"},
        {"ASSO", "CRE INV MOD"},
        {"DETE", "CRE DEM INV MOD"},
        {"DETI", "CRE INV MOD"},
        {"ECBO", "CRE INV"},
        {"ECHA", "CRE INV MOD"},
        {"EGET", "CRE INV MOD"},
        {"ENTR", "CRE INV MOD"},
        {"ERRE", ""},
        {"ERTI", "CRE INV MOD"},
        {"EXP1", "CRE INV MOD"},
        {"EXP2", "CRE INV MOD"},
        {"FICH", "INF"},
        {"GROC", "CRE DEM"},
        {"IMOC", "CRE INV"},
        {"IMPO", "CRE INV MOD"},
        {"INFO", "DEM"},
        {"JALO", "CRE"},
        {"NAIS", "CRE DEM INV MOD"},
        {"NUMA", "CRE MOD"},
        {"NVMN", "CRE INV MOD"},
        {"PASS", "DEM INV EDI"},
        {"PICO", "CRE"},
        {"RACO", "CRE INV MOD"},
        {"RATA", "CRE MOD"},
        {"REBO", "CRE INV MOD"},
        {"SORT", "CRE INV MOD"},
        {"AVER", ""},
        {"LIST", ""},
        {"ZZZZ", ""},
        {"entr", ""},
        {"SOR", ""},
        {"", ""},
    };
    for (const auto& m : matrice) {
        const std::string genres = std::string(" ") + m.genres + " ";
        for (const char* genre : {"CRE", "DEM", "INV", "EDI", "MOD", "INF"}) {
            const bool attendu = genres.find(std::string(" ") + genre + " ") != std::string::npos;
            EXPECT_EQ(accepte(fVerifDepE6, genre, m.typeVSE), attendu) << genre << " " << m.typeVSE;
        }
        EXPECT_TRUE(accepte(fVerifDepE6, "ECQ", m.typeVSE)) << m.typeVSE;
        for (const char* genre : {"XXX", "cre", "CR", "CREE", "   ", ""})
            EXPECT_FALSE(accepte(fVerifDepE6, genre, m.typeVSE)) << genre << " " << m.typeVSE;
    }
    for (const char* genre : {"CRE", "DEM", "INV", "EDI", "MOD", "INF"})
        EXPECT_TRUE(accepte(fVerifDepE6, genre, "NORMABEV")) << genre;
}

TEST(Entete, UneVSECourteADesChampsCourts) {
    // Cut inside E8, then before E9, then inside the footer.
    EXPECT_EQ(controler(acti().substr(0, 32)), (std::vector<int>{87, 88, 90, 91, 94}));
    EXPECT_EQ(controler(acti().substr(0, 24)), (std::vector<int>{85, 86, 87, 88, 90, 91, 94}));
    EXPECT_EQ(controler(acti().substr(0, 255)), (std::vector<int>{94}));
    EXPECT_EQ(controler(acti().substr(0, 243)), (std::vector<int>{91, 94}));
    EXPECT_EQ(controler(acti().substr(0, 237)), (std::vector<int>{90, 91, 94}));
    EXPECT_EQ(controler(fich(1).substr(0, 246)), (std::vector<int>{93, 94}));
    EXPECT_EQ(controler(fich(1).substr(0, 60)), (std::vector<int>{97, 98, 90, 91, 93, 94}));
}
