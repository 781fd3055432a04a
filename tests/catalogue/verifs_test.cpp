// The sentences of the checks: one for each, none too many, and each names the
// dependency and the list exactly when its check looks at them.
#include "catalogue/verifs.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "catalogue/listes.h"
#include "catalogue/textes.h"
#include "checks/abattage.h"
#include "checks/identifiants.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "support/regles.h"
#include "vocabulaire/store.h"

using namespace quilvane;
using essai::regle;

namespace {

bool contient(std::string_view phrase, std::string_view mot) {
    return phrase.find(mot) != std::string_view::npos;
}
bool nomme(const sVerif& v, std::string_view mot) { return contient(v.phrase.fr, mot); }

/** The rows that name a check. */
std::vector<regle> reglesDe(fVerif* verif) {
    std::vector<regle> siennes;
    for (const regle& r : essai::reglesAvecVerif())
        if (r.ligne->pfVerif == verif) siennes.push_back(r);
    return siennes;
}

// ---------------------------------------------- what a check looks at

std::string enLargeur(std::string texte, int largeur) {
    texte.resize(static_cast<std::size_t>(largeur), ' ');
    return texte;
}

/** Values of a row's width, among them some that each kind of check accepts. */
std::vector<std::string> valeursPour(const regle& r) {
    std::vector<std::string> textes = {
        "",        "FR",         "CH",          "US",         "DE12345",  "ZZ",          "0",      "1",
        "E",       "01061990",   "01062000",    "01062012",   "01061998", "000001",      "010001", "999999",
        "2000",    "1990",       "35123456",    "3512345678", "100001",   "10000100000", "AAA12",  "02A12",
        "974",     "098",        "20123456",    "974123",     "235959",   "AZE123",      "ABE123", "L",
        "AZC123",  "001IPG",     "004IPG",      "OFFICE",     "POINTFOC", "NAIS",        "FICH",   "PASS",
        "3512345", "1000019999", "100001R0001",
    };
    if (r.ligne->sverif != &sansListe) textes.push_back((*r.ligne->sverif)[0].valeur);
    for (std::string& t : textes)
        t = enLargeur(t, r.largeur());
    return textes;
}

/** Dependencies as the fields of each kind hold them. */
const std::vector<std::string> DEPENDANCES = {
    "",
    "FR",
    "CH",
    "US",
    "DE",
    "  ",
    "0",
    "1",
    "V",
    "P",
    "M",
    " ",
    "CRE",
    "INV",
    "INF",
    "ECQ",
    "FICH",
    "NAIS",
    "2000",
    "1990",
    "01061990",
    "01062000",
    "01062012",
    "        ",
    "001IPG  ",
    "02AIPG  ",
    "974IPG  ",
    "035IPG  ",
    "POINTFOC",
    "013ARS  ",
    "AZE123  ",
    "AZC123  ",
    "3512345678  ",
    "3599999999  ",
    "100000R9999 ",
    "100000199999",
    std::string(12, ' '),
    std::string(30, ' '),
};

/** States of the body slots that some checks read by themselves. */
const std::vector<std::vector<std::pair<numCorpsVSE, const char*>>> ETATS = {
    {{C4, "V"}, {C5, "AGRSA"}, {C9, "I0"}, {C10, "US"}, {C13, "DE12345     "}},
    {{C4, "P"}, {C5, "J"}, {C9, "PR"}, {C10, "FR"}, {C13, "            "}, {C12, "D"}},
    {{C4, "E"}, {C5, "SIREN"}, {C9, "            "}, {C10, "DE"}, {C12, "FR"}, {C8, "FR"}},
    {{C4, "01061998"}, {C5, "F"}, {C8, "  "}, {C12, "  "}, {C13, "            "}, {C15, "  "}},
};

bool accepte(const sCorps& l, const std::string& dep, const std::string& champ, const liste& valeurs) {
    char tampon[LARGEUR_VSE + 1];
    std::memcpy(tampon, champ.c_str(), champ.size() + 1);
    return l.pfVerif(dep.c_str(), tampon, valeurs) != 0;
}

/** Whether `change` holds for some value of the row in some state. */
template <typename Change>
bool pourQuelqueValeur(const regle& r, Change change) {
    const std::vector<std::string> valeurs = valeursPour(r);
    retenirVSE(std::string(LARGEUR_VSE, ' ').c_str());
    for (const auto& etat : ETATS) {
        for (valeurVSE& v : valCorpsVSE)
            v.valeur[0] = '\0';
        for (const auto& [champ, texte] : etat)
            std::strcpy(valCorpsVSE[champ].valeur, texte);
        for (const std::string& valeur : valeurs)
            if (change(valeur)) return true;
    }
    return false;
}

/** Whether the verdict on some value changes with the dependency. */
bool regardeDependance(const regle& r) {
    const sCorps& l = *r.ligne;
    return pourQuelqueValeur(r, [&](const std::string& valeur) {
        const bool premier = accepte(l, DEPENDANCES[0], valeur, *l.sverif);
        for (const std::string& dep : DEPENDANCES)
            if (accepte(l, dep, valeur, *l.sverif) != premier) return true;
        return false;
    });
}

/** Whether the verdict on some value changes when the list is emptied. */
bool regardeListe(const regle& r) {
    const sCorps& l = *r.ligne;
    return pourQuelqueValeur(r, [&](const std::string& valeur) {
        for (const std::string& dep : DEPENDANCES)
            if (accepte(l, dep, valeur, *l.sverif) != accepte(l, dep, valeur, sansListe)) return true;
        return false;
    });
}

std::string jour(const liste& date) {
    const std::string d = date[0].valeur;
    return d.substr(0, 2) + "/" + d.substr(2, 2) + "/" + d.substr(4);
}

}  // namespace

TEST(Verifs, ChaqueVerifDUneRegleAUneEntree) {
    for (const regle& r : essai::reglesAvecVerif())
        EXPECT_NE(verifDe(r.ligne->pfVerif), nullptr)
            << r.nom() << ", error " << r.ligne->noErr << ": its check has no words in catalogue/verifs.def";
}

TEST(Verifs, ChaqueEntreeSertAUneRegle) {
    std::set<fVerif*> vues;
    std::set<std::string> noms;
    for (const sVerif& v : verifs) {
        EXPECT_FALSE(reglesDe(v.verif).empty()) << v.nom;
        EXPECT_TRUE(vues.insert(v.verif).second) << v.nom;
        EXPECT_TRUE(noms.insert(v.nom).second) << v.nom;
    }
    EXPECT_EQ(verifDe(return_true), nullptr);
}

TEST(Verifs, SeTrouventParFonctionEtParNom) {
    ASSERT_NE(verifNommee("fConform10"), nullptr);
    EXPECT_EQ(verifNommee("fConform10"), verifDe(fConform10));
    EXPECT_STREQ(verifDe(fConform10)->nom, "fConform10");
    EXPECT_EQ(verifNommee("fconform10"), nullptr);
    EXPECT_EQ(verifNommee(""), nullptr);
    EXPECT_EQ(verifDe(nullptr), nullptr);
}

TEST(Verifs, TextesSontDesPhrases) {
    const std::regex marque(R"(\{[^}]*\}?|\})");
    for (const sVerif& v : verifs) {
        essai::attendrePhrase(v.phrase, v.nom);
        std::map<std::string, int> compte[2];
        for (const eLangue langue : {FRANCAIS, ANGLAIS}) {
            const std::string phrase = v.phrase.en_langue(langue);
            for (std::sregex_iterator i(phrase.begin(), phrase.end(), marque), bout; i != bout; ++i) {
                EXPECT_TRUE(i->str() == "{dep}" || i->str() == "{liste}") << v.nom << ": " << i->str();
                ++compte[langue][i->str()];
            }
            EXPECT_LE(compte[langue]["{dep}"], 1) << v.nom;
            EXPECT_LE(compte[langue]["{liste}"], 1) << v.nom;
        }
        EXPECT_EQ(compte[FRANCAIS], compte[ANGLAIS]) << v.nom;
        for (const char* contraction : {" de {dep}", " à {dep}", "'{dep}", "'{liste}"})
            EXPECT_FALSE(contient(v.phrase.fr, contraction)) << v.nom;
    }
}

TEST(Verifs, DependanceEstNommeeQuandElleEstRegardee) {
    for (const sVerif& v : verifs)
        for (const regle& r : reglesDe(v.verif)) {
            const bool regardee = regardeDependance(r);
            EXPECT_EQ(nomme(v, "{dep}"), regardee) << v.nom << " in " << r.nom();
            if (regardee) {
                EXPECT_NE(r.ligne->dependance, aucune) << v.nom << " in " << r.nom();
            }
        }
}

TEST(Verifs, ListeEstNommeeQuandElleEstRegardee) {
    for (const sVerif& v : verifs)
        for (const regle& r : reglesDe(v.verif)) {
            const bool regardee = r.ligne->sverif != &sansListe && regardeListe(r);
            EXPECT_EQ(nomme(v, "{liste}"), regardee) << v.nom << " in " << r.nom();
        }
}

TEST(Verifs, ChampNonRempliVeutDireListeDeBlancs) {
    for (const regle& r : reglesDe(fVerifDiffNull)) {
        const liste& blancs = *r.ligne->sverif;
        EXPECT_EQ(blancs.nombre(), 1) << r.nom();
        EXPECT_EQ(std::string(blancs[0].valeur), std::string(static_cast<std::size_t>(r.largeur()), ' '))
            << r.nom();
    }
}

// A field that is named with its columns stands there, in every table whose
// rows name the check.
TEST(Verifs, ChampsNommesOntCesColonnes) {
    const std::regex francais(R"(([EC])(\d+) \(colonnes? (\d+)(?: à (\d+))?\))");
    const std::regex anglais(R"(([EC])(\d+) \(columns? (\d+)(?: to (\d+))?\))");
    int vus = 0;
    for (const sVerif& v : verifs) {
        std::multiset<std::string> nommes[2];
        for (const eLangue langue : {FRANCAIS, ANGLAIS}) {
            const std::string phrase = v.phrase.en_langue(langue);
            const std::regex& forme = langue == FRANCAIS ? francais : anglais;
            for (std::sregex_iterator i(phrase.begin(), phrase.end(), forme), bout; i != bout; ++i) {
                const int champ = std::stoi((*i)[2]) - 1;
                const int debut = std::stoi((*i)[3]);
                const int fin = (*i)[4].matched ? std::stoi((*i)[4]) : debut;
                nommes[langue].insert((*i)[1].str() + std::to_string(champ));
                std::set<std::string> tables;
                for (const regle& r : reglesDe(v.verif))
                    tables.insert((*i)[1] == "E" ? "E" : r.table);
                for (const essai::tableDeRegles& t : essai::tablesDeRegles()) {
                    if (tables.count(t.nom) == 0) continue;
                    bool trouve = false;
                    for (const sCorps* l = t.lignes; l != t.lignes + t.nombre; ++l)
                        trouve = trouve || (l->numChamp == champ && l->debut == debut && l->fin == fin);
                    EXPECT_TRUE(trouve) << v.nom << " in " << t.nom << ": " << i->str();
                    ++vus;
                }
            }
        }
        EXPECT_EQ(nommes[FRANCAIS], nommes[ANGLAIS]) << v.nom;
    }
    EXPECT_GT(vus, 100);
}

// Every reference date that a sentence gives is the one its check compares with.
TEST(Verifs, DatesDeReferenceSontCellesDesListes) {
    const std::map<std::string, std::vector<const liste*>> dates = {
        {"fDATEP6", {&P6}},
        {"fDATEP6P7", {&P6, &P7}},
        {"fVTABP5", {&P5}},
        {"fVTABP6", {&P6}},
        {"fVTABP8", {&P8}},
        {"fVDIFFNULLP5", {&P5}},
        {"fVDIFFNULLP6", {&P6}},
        {"fConform_BV_model1", {&P17}},
        {"fConform_temoin_bouc1", {&P17}},
        {"entr_fC8_mod", {&P8}},
        {"entr_fC9_1_mod", {&P8}},
        {"entr_fC10_mod", {&P8}},
        {"sort_fC8_mod", {&P8}},
        {"sort_fC9_1_mod", {&P8}},
        {"sort_fC10_mod", {&P8}},
        {"nais_C11FRnonUEnon", {&P5}},
        {"nais_C17", {&P6}},
    };
    const std::regex forme(R"(\d\d/\d\d/\d{4})");
    for (const sVerif& v : verifs)
        for (const std::string phrase : {v.phrase.fr, v.phrase.en}) {
            std::set<std::string> ecrites, attendues;
            for (std::sregex_iterator i(phrase.begin(), phrase.end(), forme), bout; i != bout; ++i)
                ecrites.insert(i->str());
            if (const auto d = dates.find(v.nom); d != dates.end())
                for (const liste* date : d->second)
                    attendues.insert(jour(*date));
            EXPECT_EQ(ecrites, attendues) << v.nom;
        }
}

TEST(Verifs, ListesNommeesExistent) {
    const std::regex forme(R"(\b(?:liste|list) (\w+)|\b(tE6[A-Z]+))");
    for (const sVerif& v : verifs)
        for (const std::string phrase : {v.phrase.fr, v.phrase.en})
            for (std::sregex_iterator i(phrase.begin(), phrase.end(), forme), bout; i != bout; ++i)
                EXPECT_NE(listeNommee((*i)[1].matched ? (*i)[1].str() : (*i)[2].str()), nullptr)
                    << v.nom << ": " << i->str();
}

// The countries whose numbers have a foreign form are spelled out.
TEST(Verifs, PaysPartenairesSontTousNommes) {
    const std::regex nomDeListe("liste? TD");
    for (int i = 0; i < TP.nombre(); ++i) {
        const std::string pays = TP[i].valeur;
        const bool partenaire = pays == "CH" || appartient_UE(pays.c_str());
        const std::regex mot("\\b" + pays + "\\b");
        for (const char* nom : {"vErre_C32_2", "vErre_C32_3", "vAbat_C2_2"}) {
            const bool attendu = partenaire && (pays != "FR" || std::string(nom) == "vErre_C32_2");
            for (std::string phrase : {verifNommee(nom)->phrase.fr, verifNommee(nom)->phrase.en}) {
                phrase = std::regex_replace(phrase, nomDeListe, "");
                EXPECT_EQ(std::regex_search(phrase, mot), attendu) << nom << ": " << pays;
            }
        }
    }
}

TEST(Verifs, PhraseRemplieMetLesMotsALeurPlace) {
    const sVerif deux = {nullptr, "essai", {"{dep} puis {liste}, {dep}.", "{liste} then {dep}."}};
    EXPECT_EQ(phraseDe(deux, FRANCAIS, "la liste", "le champ"), "le champ puis la liste, le champ.");
    EXPECT_EQ(phraseDe(deux, ANGLAIS, "the list", "the field"), "the list then the field.");
    // A value that looks like a placeholder is a value.
    EXPECT_EQ(phraseDe(deux, ANGLAIS, "{dep}", "{liste}"), "{dep} then {liste}.");
    const sVerif sans = {nullptr, "essai", {"Rien.", "A {brace} and {"}};
    EXPECT_EQ(phraseDe(sans, FRANCAIS, "x", "y"), "Rien.");
    EXPECT_EQ(phraseDe(sans, ANGLAIS, "x", "y"), "A {brace} and {");
}

TEST(Verifs, PhraseRemplieNAPlusDeMarque) {
    for (const sVerif& v : verifs)
        for (const eLangue langue : {FRANCAIS, ANGLAIS})
            EXPECT_EQ(phraseDe(v, langue, "la liste", "le champ").find('{'), std::string::npos) << v.nom;
    EXPECT_EQ(
        phraseDe(*verifNommee("fConform3"), ANGLAIS, "the list TDD (three-character department codes)", ""),
        "The value must begin with the three characters of a code of the list TDD (three-character "
        "department codes); what follows is free.");
}
