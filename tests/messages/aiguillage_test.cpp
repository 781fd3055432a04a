#include "messages/aiguillage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "catalogue/exemples.h"
#include "rules/entete.h"
#include "support/champ.h"
#include "support/lignes.h"
#include "support/passage.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;
using namespace essai;

namespace {

/** What is known of a type for good. A new type needs no entry: what holds for
 *  every type is asked of the routing table below. */
struct routeAttendue {
    const char* type;
    const sCorps* table;
    unsigned code;
    unsigned champErrC7;
    unsigned champErrC8;
};

constexpr unsigned SANS = 100;  // no field
// clang-format off
const std::vector<routeAttendue> ROUTES = {
    {"ABAT", tAbat,   0, SANS, SANS},
    {"ACTI", tActi,   1,    0,    1},
    {"ASSO", tAsso,   2,    0,    1},
    {"DETE", tDete,   4,    0,    1},
    {"DETI", tDeti,   5,    0,    1},
    {"ECBO", tEcbo,   6, SANS, SANS},
    {"ECHA", tEcha,   7,   17,   18},
    {"EGET", tEget,   8, SANS, SANS},
    {"ENTR", tEntr,   9,    5,    6},
    {"ERRE", tErre,   11, SANS, SANS},
    {"ERTI", tErti,   10, SANS, SANS},
    {"EXP1", tExp1,   12,    0,    1},
    {"EXP2", tExp2,   13,    0,    1},
    {"GROC", tGroc,   15,    3,    4},
    {"IMOC", tImoc,   16,    3,    4},
    {"IMPO", tImpo,   17,   17,   18},
    {"INFO", tInfo,    18, SANS, SANS},
    {"JALO", tJalo,   19,    3,    4},
    {"NAIS", tNais,   21,   15,   16},
    {"NUMA", tNuma,   22,    0,    1},
    {"NVMN", tNvmn,   23,   15,   16},
    {"PASS", tPass,   24,    3,    4},
    {"PICO", tPico,   25,    0,    1},
    {"RACO", tRaco,   26,    0,    1},
    {"RATA", tRata,   27, SANS, SANS},
    {"REBO", tRebo,   28,    4,    5},
    {"SORT", tSort,   29,    5,    6},
    {"ZZZZ", nullptr,  0xFFFFFFFFU, SANS, SANS},
};
// clang-format on

bool contient(const std::vector<int>& codes, int code) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

/** Rows of a type that have a check. */
std::size_t lignesAvecVerif(const char* type) {
    const sAiguillage& route = tAiguillage[aiguiller(type)];
    return static_cast<std::size_t>(std::count_if(route.tabVerif, route.tabVerif + *route.pLenTabVerif,
                                                  [](const sCorps& l) { return l.pfVerif != nullptr; }));
}

}  // namespace

TEST(Aiguillage, LesRoutesConnuesRestent) {
    for (const routeAttendue& attendue : ROUTES) {
        SCOPED_TRACE(attendue.type);
        const sAiguillage& route = tAiguillage[aiguiller(attendue.type)];
        EXPECT_STREQ(route.nomVSE, attendue.type);
        EXPECT_EQ(route.tabVerif, attendue.table);
        EXPECT_EQ(route.pLenTabVerif == nullptr, attendue.table == nullptr);
        EXPECT_EQ(static_cast<unsigned>(route.code), attendue.code);
        EXPECT_EQ(static_cast<unsigned>(route.champErrC7), attendue.champErrC7);
        EXPECT_EQ(static_cast<unsigned>(route.champErrC8), attendue.champErrC8);
    }
}

TEST(Aiguillage, ChaqueTypeASaTableSonCodeEtSonTest) {
    EXPECT_EQ(ERR_AIGUILLAGE, LEN_AIGUILLAGE - 1);
    EXPECT_STREQ(tAiguillage[ERR_AIGUILLAGE].nomVSE, "ZZZZ");
    std::set<unsigned> codes;
    std::set<const sCorps*> tables;
    for (const sAiguillage& route : tAiguillage) {
        EXPECT_TRUE(codes.insert(route.code).second) << route.nomVSE << ": its code is another type's";
        EXPECT_TRUE(tables.insert(route.tabVerif).second) << route.nomVSE << ": its table is another type's";
        if (route.tabVerif == nullptr) continue;
        EXPECT_GT(*route.pLenTabVerif, 0) << route.nomVSE;
        std::string test = route.nomVSE;
        std::transform(test.begin(), test.end(), test.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        test = QUILVANE_RACINE "/tests/messages/" + test + "_test.cpp";
        std::ifstream flot(test);
        ASSERT_TRUE(flot.is_open()) << test << " is missing";
        const std::string source{std::istreambuf_iterator<char>(flot), {}};
        EXPECT_NE(source.find(".type = \"" + std::string(route.nomVSE) + "\""), std::string::npos)
            << test << " does not prove the rows of " << route.nomVSE
            << ": it lacks its call of prouverLignes";
    }
}

TEST(Aiguillage, CodesDesTypes) {
    const std::vector<std::pair<codeVSE, unsigned>> CODES = {
        {ABAT, 0},  {ACTI, 1},  {ASSO, 2},  {AVER, 3},  {DETE, 4},  {DETI, 5},  {ECBO, 6},  {ECHA, 7},
        {EGET, 8},  {ENTR, 9},  {ERTI, 10}, {ERRE, 11}, {EXP1, 12}, {EXP2, 13}, {FICH, 14}, {GROC, 15},
        {IMOC, 16}, {IMPO, 17}, {INFO, 18}, {JALO, 19}, {LIST, 20}, {NAIS, 21}, {NUMA, 22}, {NVMN, 23},
        {PASS, 24}, {PICO, 25}, {RACO, 26}, {RATA, 27}, {REBO, 28}, {SORT, 29},
    };
    for (const auto& [code, valeur] : CODES)
        EXPECT_EQ(static_cast<unsigned>(code), valeur);
    EXPECT_EQ(static_cast<int>(CODE_INCONNU), -1);
}

TEST(Aiguillage, NumerosDesChamps) {
    EXPECT_EQ(static_cast<unsigned>(C1), 0U);
    EXPECT_EQ(static_cast<unsigned>(C50), 49U);
    EXPECT_EQ(static_cast<unsigned>(C100), 99U);
    EXPECT_EQ(static_cast<unsigned>(CINC), 100U);
}

TEST(Aiguillage, ChaqueTypeTrouveSaLigne) {
    for (int i = 0; i < LEN_AIGUILLAGE; ++i)
        EXPECT_EQ(aiguiller(tAiguillage[i].nomVSE), i) << tAiguillage[i].nomVSE;
}

TEST(Aiguillage, ToutAutreTexteFinitSurLaDerniereLigne) {
    for (const char* type : {"AVER", "LIST", "FICH", "entr", "Entr", "ENT", "ENTR ", " ENTR", "ENTRE", "",
                             "    ", "ZZZ", "ENTR    ", "ENTRENTR", "ENTRENTRE"})
        EXPECT_EQ(aiguiller(type), ERR_AIGUILLAGE) << "'" << type << "'";
}

TEST(Aiguillage, LEnteteAdmetLesGenresDuType) {
    // Exactly the kinds for which the type has a correct example; "ECQ" allows every type.
    for (const sAiguillage& r : tAiguillage) {
        const sModele* const modele = modeleDe(r.nomVSE);
        ASSERT_EQ(modele == nullptr, r.tabVerif == nullptr) << r.nomVSE;
        const std::string genres = modele == nullptr ? "" : modele->genres;
        for (const char* genre : {"CRE", "DEM", "INV", "EDI", "MOD", "INF"}) {
            const bool permis = genres.find(genre) != std::string::npos;
            EXPECT_EQ(accepte(fVerifDepE6, genre, r.nomVSE), permis)
                << r.nomVSE << " " << genre << ": catalogue/exemples.cpp and tE6" << genre
                << " of checks/valautorise.h differ";
        }
        EXPECT_TRUE(accepte(fVerifDepE6, "ECQ", r.nomVSE)) << r.nomVSE;
    }
    EXPECT_TRUE(accepte(fVerifDepE6, "INF", "FICH"));
}

TEST(Aiguillage, UnTypeInconnuNEstPasVerifie) {
    // The body and the footer of such a record draw no error: only the header does.
    for (const char* type : {"AVER", "LIST", "ZZZZ", "acti"}) {
        std::string record = acti();
        poser(record, 22, type);
        poser(record, 63, "??");
        poser(record, 256, "#");
        EXPECT_EQ(codesDe(record), (std::vector<int>{85, 86})) << type;
    }
    std::string record = acti();
    poser(record, 22, "FICH");
    poser(record, 19, "INF");
    poser(record, 256, "#");
    EXPECT_EQ(codesDe(record), std::vector<int>{109});
}

TEST(Aiguillage, UnGenreRefuseDonne86DeLEnteteEtDeChaqueLigne) {
    struct cas {
        const char* type;
        const char* genre;
    };
    // Above nine rows the tenth error ends the record.
    for (const cas& c : {cas{"DETI", "DEM"}, cas{"ACTI", "EDI"}, cas{"IMOC", "MOD"}, cas{"INFO", "CRE"},
                         cas{"RATA", "DEM"}, cas{"JALO", "INV"}}) {
        std::vector<int> codes = codesDe(vse(c.type, c.genre));
        EXPECT_EQ(codes, std::vector<int>(std::min<std::size_t>(lignesAvecVerif(c.type) + 1, 10), 86))
            << c.type << " " << c.genre;
    }
    // The rows of this type skip the kind: the header alone refuses it.
    EXPECT_EQ(codesDe(vse("RATA", "INV")), std::vector<int>{86});
}

TEST(Aiguillage, UneEnqueteEstVerifieeCommeUneCreation) {
    std::string record = acti();
    poser(record, 19, "ECQ");
    EXPECT_EQ(codesDe(record), std::vector<int>{});
    poser(record, 79, "2");
    EXPECT_EQ(codesDe(record), std::vector<int>{81});
    // A type without creation: every row with a check refuses the kind.
    EXPECT_EQ(codesDe(vse("INFO", "ECQ")), std::vector<int>(lignesAvecVerif("INFO"), 86));
    EXPECT_FALSE(contient(codesDe(vse("NAIS", "ECQ")), 86));
}

namespace {

/** The error record that `record` draws, without the line end in front. */
std::string enregistrementEnErreur(const std::string& record) {
    passage p;
    p.traiter(fich(1));
    EXPECT_FALSE(p.traiter(record).empty());
    return p.erre.substr(1);
}

/** A body in which no two columns of a type look alike. */
std::string corpsBariole() {
    std::string corps;
    for (int col = 63; col <= 230; ++col)
        corps += static_cast<char>('!' + col * 7 % 90);
    return corps;
}

}  // namespace

TEST(Aiguillage, LErreurNommeLExploitationConcernee) {
    struct cas {
        const char* type;
        const char* genre;
        int pays;    // first column, 0 for none
        int numero;  // first column, 0 for none
    };
    const std::string corps = corpsBariole();
    for (const cas& c : {
             cas{"ABAT", "CRE", 0, 0},     cas{"ACTI", "CRE", 63, 65},   cas{"ASSO", "CRE", 63, 65},
             cas{"DETE", "CRE", 63, 65},   cas{"DETI", "CRE", 63, 65},   cas{"ECBO", "CRE", 0, 0},
             cas{"ECHA", "CRE", 151, 153}, cas{"EGET", "CRE", 0, 0},     cas{"ENTR", "CRE", 88, 90},
             cas{"ERTI", "CRE", 0, 0},     cas{"EXP1", "CRE", 63, 65},   cas{"EXP2", "CRE", 63, 65},
             cas{"GROC", "CRE", 79, 81},   cas{"IMOC", "CRE", 79, 81},   cas{"IMPO", "CRE", 151, 153},
             cas{"INFO", "DEM", 0, 0},     cas{"JALO", "CRE", 79, 81},   cas{"NAIS", "CRE", 137, 139},
             cas{"NUMA", "CRE", 63, 65},   cas{"NVMN", "CRE", 137, 139}, cas{"PASS", "INV", 79, 81},
             cas{"PICO", "CRE", 63, 65},   cas{"RACO", "CRE", 63, 65},   cas{"RATA", "CRE", 0, 0},
             cas{"REBO", "CRE", 87, 89},   cas{"SORT", "CRE", 88, 90},   cas{"ERRE", "ECQ", 0, 0},
             cas{"AVER", "CRE", 0, 0},
         }) {
        const std::string erreur = enregistrementEnErreur(vse(c.type, c.genre, {{63, corps}}));
        const auto colonnes = [&](int col, std::size_t n) {
            return col == 0 ? std::string(n, ' ') : corps.substr(static_cast<std::size_t>(col - 63), n);
        };
        ASSERT_EQ(erreur.size(), 256U) << c.type;
        EXPECT_EQ(erreur.substr(97, 2), colonnes(c.pays, 2)) << c.type;
        EXPECT_EQ(erreur.substr(99, 12), colonnes(c.numero, 12)) << c.type;
    }
}
