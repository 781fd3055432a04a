#include "driver/noms.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "controle/lot.h"
#include "support/banc.h"

namespace {

/** A result of the functions under test, freed. */
std::string texte(char* alloue) {
    const std::string s = alloue != nullptr ? alloue : "<null>";
    std::free(alloue);
    return s;
}

/** TMPDIR for the time of a scope; null takes it away. */
struct tmpdir {
    std::string avant;
    bool present;
    explicit tmpdir(const char* valeur) {
        const char* const v = std::getenv("TMPDIR");
        present = v != nullptr;
        if (present) avant = v;
        poser(valeur);
    }
    ~tmpdir() { poser(present ? avant.c_str() : nullptr); }
    tmpdir(const tmpdir&) = delete;
    tmpdir& operator=(const tmpdir&) = delete;
    static void poser(const char* valeur) {
        if (valeur != nullptr)
            setenv("TMPDIR", valeur, 1);
        else
            unsetenv("TMPDIR");
    }
};

std::string travail(const std::string& dossier, const std::string& fichier, const char* suffixe = "_r") {
    return texte(quilvane::nomDeTravail(dossier.c_str(), fichier.c_str(), suffixe));
}

}  // namespace

TEST(Noms, PartiesDUnChemin) {
    struct cas {
        const char* chemin;
        const char* rep;
        const char* rep2;
        const char* fic;
    };
    // clang-format off
    const std::vector<cas> CAS = {
        {"f",              ".",        ".",         "f"},
        {"",               ".",        ".",         ""},
        {".",              ".",        ".",         "."},
        {"a/f",            "a",        "a/",        "f"},
        {"a/b/f",          "a/b",      "a/b/",      "f"},
        {"/a/f",           "/a",       "/a/",       "f"},
        {"/f",             "",         "/",         "f"},
        {"/",              "",         "/",         ""},
        {"//f",            "",         "/",         "f"},
        {"///",            "",         "/",         ""},
        {"a//f",           "a",        "a/",        "f"},
        {"a///b//f",       "a///b",    "a///b/",    "f"},
        {"a/",             "a",        "a/",        ""},
        {"a//",            "a",        "a/",        ""},
        {"./f",            ".",        "./",        "f"},
        {"../f",           "..",       "../",       "f"},
        {"a.b/c.d",        "a.b",      "a.b/",      "c.d"},
        {"mon dossier/f ", "mon dossier", "mon dossier/", "f "},
        // Without a '/' the last '\' separates.
        {"a\\f",           "a",        "a\\",       "f"},
        {"C:\\a\\f",       "C:\\a",    "C:\\a\\",   "f"},
        {"\\f",            "",         "\\",        "f"},
        {"a\\\\f",         "a",        "a\\",       "f"},
        {"a\\",            "a",        "a\\",       ""},
        // With one it is a letter of the name,
        {"a/b\\f",         "a",        "a/",        "b\\f"},
        {"a\\b/f",         "a\\b",     "a\\b/",     "f"},
        {"a\\b/c\\d/e\\f", "a\\b/c\\d", "a\\b/c\\d/", "e\\f"},
        // but counts in a run of separators.
        {"a\\/f",          "a",        "a\\",       "f"},
        {"a/\\/f",         "a",        "a/",        "f"},
        {"\\/f",           "",         "\\",        "f"},
        {"a/\\f",          "a",        "a/",        "\\f"},
    };
    // clang-format on
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.chemin);
        EXPECT_EQ(texte(quilvane::nomDuRep(c.chemin)), c.rep);
        EXPECT_EQ(texte(quilvane::nomDuRep2(c.chemin)), c.rep2);
        EXPECT_EQ(texte(quilvane::nomDuFic(c.chemin)), c.fic);
    }
}

TEST(Noms, DesNomsDeTouteLongueur) {
    for (const std::size_t n : {31U, 255U, 256U, 4096U, 100000U}) {
        const std::string d(n, 'd');
        const std::string f(n, 'f');
        EXPECT_EQ(texte(quilvane::nomDuRep((d + "/" + f).c_str())), d);
        EXPECT_EQ(texte(quilvane::nomDuRep2((d + "/" + f).c_str())), d + "/");
        EXPECT_EQ(texte(quilvane::nomDuFic((d + "/" + f).c_str())), f);
        EXPECT_EQ(texte(quilvane::nomDuFic(f.c_str())), f);
        const tmpdir aucun(nullptr);
        EXPECT_EQ(travail(".", f), "./" + f + "_r");
    }
}

TEST(Noms, NomDeTravail) {
    const tmpdir aucun(nullptr);
    const essai::dossier d;
    d.creerDossier("a b");
    EXPECT_EQ(travail(d.chemin, "in"), d.chemin + "/in_r");
    EXPECT_EQ(travail(d.chemin, "in", "_e"), d.chemin + "/in_e");
    EXPECT_EQ(travail(d.chemin, "in.txt", "_o"), d.chemin + "/in.txt_o");
    EXPECT_EQ(travail(d.chemin + "/", "in"), d.chemin + "/in_r");
    EXPECT_EQ(travail(d.nom("a b"), "mon fichier"), d.nom("a b/mon fichier_r"));
    EXPECT_EQ(travail(".", "in"), "./in_r");
    EXPECT_EQ(travail("/", "in"), "/in_r");
    EXPECT_EQ(travail(d.chemin, ""), d.chemin + "/_r");
    EXPECT_EQ(travail(d.chemin, "x\\y"), d.chemin + "/x\\y_r");
    // A folder that does not exist, or has no name.
    EXPECT_EQ(travail(d.nom("nulle"), "in"), "/tmp/in_r");
    EXPECT_EQ(travail("", "in"), "/tmp/in_r");
    // A name that is taken is given all the same.
    d.ecrire("in_r", "x");
    EXPECT_EQ(travail(d.chemin, "in"), d.chemin + "/in_r");
    EXPECT_EQ(d.contenu().size(), 2U);  // nothing is created
}

TEST(Noms, NomDeTravailDansTMPDIR) {
    const essai::dossier d;
    d.creerDossier("t");
    d.ecrire("fichier", "x");
    {
        const tmpdir t(d.nom("t").c_str());
        EXPECT_EQ(travail(d.chemin, "in"), d.nom("t/in_r"));
        EXPECT_EQ(travail(d.nom("nulle"), "in", "_e"), d.nom("t/in_e"));
    }
    for (const std::string& inutilisable : {d.nom("nulle"), d.nom("fichier"), std::string()}) {
        const tmpdir t(inutilisable.c_str());
        EXPECT_EQ(travail(d.chemin, "in"), d.nom("in_r")) << inutilisable;
        EXPECT_EQ(travail(d.nom("nulle"), "in"), "/tmp/in_r") << inutilisable;
    }
}

TEST(Noms, NomDeTravailIntrouvable) {
    // The platform finds no name in a folder whose own name has no room left.
    const tmpdir aucun(nullptr);
    std::string points = ".";
    while (points.size() < 4090)
        points += "/.";
    EXPECT_EQ(travail(points, "in"), "<null>");
}

TEST(Noms, NomDeTravailDesVariantes) {
    const tmpdir aucun(nullptr);
    const char* const construite = quilvane::VARIANTE;
    EXPECT_STREQ(construite, "QUILVANE  ");
    quilvane::VARIANTE = "QUILVANEPF";
    EXPECT_EQ(travail(".", "in"), "./in_r_pf");
    EXPECT_EQ(travail(".", "in", "_e"), "./in_e_pf");
    for (const char* autre : {"QUILVANE  ", "QUILVANED ", "QUILVANEL ", "QUILVANEPF ", "QUILVANEP"}) {
        quilvane::VARIANTE = autre;
        EXPECT_EQ(travail(".", "in"), "./in_r") << autre;
    }
    quilvane::VARIANTE = construite;
}

TEST(Noms, JetonDuNom) {
    const std::string x30(30, 'x');
    const std::string x31(31, 'x');
    const std::string x32(32, 'x');
    const std::vector<std::pair<std::string, std::string>> CAS = {
        {"AB_123_x.txt", "123"},
        {"dir/AB_123_x.txt", "123"},
        {"AB_123", "123"},
        {"AB_123.txt", "123.txt"},
        {"_1_2_3", "1"},
        {"-D_9_", "9"},
        {"d_r/AB_123_", "r/AB"},
        {"AB_ 1 _", " 1 "},
        {"AB", ""},
        {"", ""},
        {"_", ""},
        {"__", ""},
        {"__1_", ""},
        {"AB_", ""},
        {"a_" + x30 + "_b", x30},
        {"a_" + x31 + "_b", x31},
        {"a_" + x32 + "_b", x31},
        {"a_" + std::string(5000, 'x'), x31},
        {"a_" + x31 + "_", x31},
    };
    for (const auto& [argument, attendu] : CAS) {
        char jeton[34];
        std::memset(jeton, '?', sizeof jeton);
        quilvane::jetonDuNom(argument.c_str(), jeton, 32);
        EXPECT_EQ(jeton, attendu) << argument;
        EXPECT_EQ(std::string(jeton + 32, 2), "??") << argument;
    }
}
