// What types, kinds and fields are called: nothing without a label, no label
// for nothing, and labels that can be read.
#include "catalogue/champs.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "catalogue/exemples.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/entete.h"

using namespace quilvane;

namespace {

/** "NAIS C24": a field as people name it. */
std::string nomDe(std::string_view table, int numChamp) {
    const std::string lettre = table == "E" || table == "F" ? std::string(table) : std::string(table) + " C";
    return lettre + std::to_string(numChamp + 1);
}

/** The fields that a rule table cuts. */
void ajouterChamps(std::set<std::string>& noms, const char* nom, const sCorps* lignes, int longueur) {
    for (int i = 0; i < longueur; ++i)
        if (lignes[i].debut > 0) noms.insert(nomDe(nom, lignes[i].numChamp));
}

std::set<std::string> champsDesTables() {
    std::set<std::string> noms;
    ajouterChamps(noms, "E", tEntete, lEntete);
    ajouterChamps(noms, "F", tFin, lFin);
    ajouterChamps(noms, "FICH", tFich, lFich);
    for (int i = 0; i < ERR_AIGUILLAGE; ++i)
        ajouterChamps(noms, tAiguillage[i].nomVSE, tAiguillage[i].tabVerif, *tAiguillage[i].pLenTabVerif);
    return noms;
}

std::set<std::string> champsDuCatalogue() {
    std::set<std::string> noms;
    for (const sChamp& champ : champs)
        noms.insert(nomDe(champ.table, champ.numChamp));
    return noms;
}

std::set<std::string> codesDe(std::span<const sNom> noms) {
    std::set<std::string> codes;
    for (const sNom& nom : noms)
        codes.insert(nom.code);
    return codes;
}

std::set<std::string> codesDe(const liste& valeurs) {
    std::set<std::string> codes;
    for (const tValAutorise& v : valeurs)
        codes.insert(v.valeur);
    return codes;
}

/** What stands in one set and not in the other, in a sentence. */
std::string difference(const std::set<std::string>& attendus, const std::set<std::string>& presents) {
    std::string phrase;
    for (const std::string& nom : attendus)
        if (!presents.contains(nom)) phrase += nom + " has no label. ";
    for (const std::string& nom : presents)
        if (!attendus.contains(nom)) phrase += "The label of " + nom + " is for nothing. ";
    return phrase;
}

/** Bytes that continue a UTF-8 character of this first byte; -1 when no
 *  character begins so. */
int suite(unsigned char premier) {
    if (premier < 0x80) return 0;
    if (premier >= 0xC2 && premier <= 0xDF) return 1;
    if (premier >= 0xE0 && premier <= 0xEF) return 2;
    if (premier >= 0xF0 && premier <= 0xF4) return 3;
    return -1;
}

/** Characters of a UTF-8 text; -1 when it is none, or holds a control. */
int caracteres(std::string_view texte) {
    int compte = 0;
    for (std::size_t i = 0; i < texte.size(); ++i, ++compte) {
        const auto premier = static_cast<unsigned char>(texte[i]);
        if (premier < 0x20 || premier == 0x7F) return -1;
        int reste = suite(premier);
        if (reste < 0) return -1;
        for (; reste > 0; --reste)
            if (++i >= texte.size() || (texte[i] & 0xC0) != 0x80) return -1;
    }
    return compte;
}

/** What is wrong with a label, in a sentence; empty for a good one. */
std::string defaut(const char* libelle) {
    if (libelle == nullptr) return "It is missing.";
    const std::string_view texte = libelle;
    const int largeur = caracteres(texte);
    if (largeur < 0) return "It is not readable UTF-8.";
    if (largeur == 0 || largeur > 60) return "It has " + std::to_string(largeur) + " characters.";
    if (texte.front() == ' ' || texte.back() == ' ' || texte.find("  ") != std::string_view::npos)
        return "It has a blank too many.";
    if (texte.back() == '.') return "It ends in a stop.";
    return "";
}

void verifierLibelle(const texte& libelle, const std::string& nom) {
    EXPECT_EQ(defaut(libelle.en_langue(FRANCAIS)), "") << nom << ", in French: " << libelle.fr;
    EXPECT_EQ(defaut(libelle.en_langue(ANGLAIS)), "") << nom << ", in English: " << libelle.en;
}

/** The kinds that a label names in parentheses. */
std::set<std::string> genresDits(const std::string& libelle) {
    std::set<std::string> dits;
    bool dedans = false;
    for (std::size_t i = 0; i < libelle.size(); ++i) {
        if (libelle[i] == '(' || libelle[i] == ')') dedans = libelle[i] == '(';
        if (dedans && genreDe(libelle.substr(i, 3)) != nullptr) dits.insert(libelle.substr(i, 3));
    }
    return dits;
}

/** Whether a row checks a field of a body. */
bool estControle(const sChamp& champ) {
    const sAiguillage& aiguillage = tAiguillage[aiguiller(champ.table)];
    for (int i = 0; i < *aiguillage.pLenTabVerif; ++i)
        if (aiguillage.tabVerif[i].numChamp == champ.numChamp && aiguillage.tabVerif[i].pfVerif != nullptr)
            return true;
    return false;
}

/** The kinds for which a field of a body is checked, among those for which its
 *  type has an example. */
std::set<std::string> genresControles(const sChamp& champ) {
    const sAiguillage& aiguillage = tAiguillage[aiguiller(champ.table)];
    std::set<std::string> controles;
    for (int i = 0; i < *aiguillage.pLenTabVerif; ++i) {
        const sCorps& ligne = aiguillage.tabVerif[i];
        if (ligne.numChamp != champ.numChamp || ligne.pfVerif == nullptr) continue;
        const std::pair<const char*, int> presences[] = {{"CRE", ligne.typeCRE},
                                                         {"DEM", ligne.typeDEM},
                                                         {"INV", ligne.typeINV},
                                                         {"EDI", ligne.typeEDI},
                                                         {"MOD", ligne.typeMOD}};
        for (const auto& [genre, presence] : presences)
            if (presence == 0) controles.insert(genre);
    }
    std::set<std::string> admis;
    for (const std::string_view genre : genresDe(champ.table))
        if (controles.contains(std::string(genre))) admis.insert(std::string(genre));
    return admis;
}

}  // namespace

TEST(CatalogueDesChamps, DitDeQuelsGenresIlParle) {
    int compte = 0;
    for (const sChamp& champ : champs) {
        const std::set<std::string> dits = genresDits(champ.libelle.fr);
        EXPECT_EQ(genresDits(champ.libelle.en), dits) << champ.libelle.en;
        if (dits.empty()) continue;
        ++compte;
        EXPECT_EQ(dits, genresControles(champ))
            << nomDe(champ.table, champ.numChamp) << ": " << champ.libelle.fr;
    }
    EXPECT_GT(compte, 30);
}

// A field that no rule looks at says so, or what the run makes of it.
TEST(CatalogueDesChamps, DitCeQuiNEstPasControle) {
    for (const sChamp& champ : champs) {
        const bool libre = std::string_view(champ.libelle.en) == "Not checked";
        EXPECT_EQ(std::string_view(champ.libelle.fr) == "Zone non contrôlée", libre) << champ.libelle.fr;
        if (aiguiller(champ.table) == ERR_AIGUILLAGE) continue;
        const bool controle = estControle(champ);
        const bool resultat = std::string_view(champ.libelle.en) == "Result code, set to 40 on acceptance";
        EXPECT_NE(controle, libre || resultat)
            << nomDe(champ.table, champ.numChamp) << ": " << champ.libelle.en;
    }
}

TEST(CatalogueDesChamps, NommeToutChampEtRienDAutre) {
    EXPECT_EQ(difference(champsDesTables(), champsDuCatalogue()), "");
    EXPECT_EQ(champs.size(), champsDuCatalogue().size());
}

TEST(CatalogueDesChamps, NommeToutTypeEtRienDAutre) {
    std::set<std::string> aiguilles = {"FICH"};
    for (int i = 0; i < ERR_AIGUILLAGE; ++i)
        aiguilles.insert(tAiguillage[i].nomVSE);
    EXPECT_EQ(difference(aiguilles, codesDe(typesDeVSE)), "");
    EXPECT_EQ(difference(codesDe(tE6), codesDe(typesDeVSE)), "");
    EXPECT_EQ(typesDeVSE.size(), aiguilles.size());
}

TEST(CatalogueDesChamps, NommeToutGenreEtRienDAutre) {
    EXPECT_EQ(difference(codesDe(tE5), codesDe(genres)), "");
    EXPECT_EQ(genres.size(), 7U);
}

TEST(CatalogueDesChamps, SeLitDansLesDeuxLangues) {
    for (const sChamp& champ : champs)
        verifierLibelle(champ.libelle, nomDe(champ.table, champ.numChamp));
    for (const sNom& type : typesDeVSE)
        verifierLibelle(type.libelle, type.code);
    for (const sNom& genre : genres)
        verifierLibelle(genre.libelle, genre.code);
}

TEST(CatalogueDesChamps, RetrouveUnChampParSaTableEtSonNumero) {
    for (const sChamp& champ : champs)
        EXPECT_EQ(libelleDe(champ.table, champ.numChamp), &champ);
    EXPECT_STREQ(libelleDe("NAIS", C6)->libelle.en, "Date of birth");
    EXPECT_STREQ(libelleDe("E", E6)->libelle.fr, "Type de message");
    EXPECT_STREQ(libelleDe("F", F1)->libelle.fr, "Date de l'enregistrement");
    EXPECT_EQ(libelleDe("NAIS", C18), nullptr);  // not cut
    EXPECT_EQ(libelleDe("F", 5), nullptr);
    EXPECT_EQ(libelleDe("F", -1), nullptr);
    EXPECT_EQ(libelleDe("nais", C6), nullptr);
    EXPECT_EQ(libelleDe("", C1), nullptr);
}

TEST(CatalogueDesChamps, RetrouveUnTypeEtUnGenre) {
    for (const sNom& type : typesDeVSE)
        EXPECT_EQ(typeDe(type.code), &type);
    for (const sNom& genre : genres)
        EXPECT_EQ(genreDe(genre.code), &genre);
    for (const char* inconnu : {"", "ZZZZ", "NAI", "NAISS", "nais", "CRE"})
        EXPECT_EQ(typeDe(inconnu), nullptr) << inconnu;
    for (const char* inconnu : {"", "cre", "CR", "ERR", "NAIS"})
        EXPECT_EQ(genreDe(inconnu), nullptr) << inconnu;
}

TEST(PreuveDesLibelles, VoitChaqueDefaut) {
    EXPECT_EQ(defaut("Numéro de l'animal"), "");
    EXPECT_EQ(defaut(nullptr), "It is missing.");
    EXPECT_EQ(defaut("Num\xE9ro"), "It is not readable UTF-8.");
    EXPECT_EQ(defaut("Num\xC3"), "It is not readable UTF-8.");
    EXPECT_EQ(defaut("\xC0\xB1"), "It is not readable UTF-8.");
    EXPECT_EQ(defaut("a\tb"), "It is not readable UTF-8.");
    EXPECT_EQ(defaut(""), "It has 0 characters.");
    std::string accents;
    for (int i = 0; i < 60; ++i)
        accents += "é";
    EXPECT_EQ(defaut(accents.c_str()), "");
    EXPECT_EQ(defaut((accents + "x").c_str()), "It has 61 characters.");
    EXPECT_EQ(defaut("Date "), "It has a blank too many.");
    EXPECT_EQ(defaut("Date  du"), "It has a blank too many.");
    EXPECT_EQ(defaut("Date."), "It ends in a stop.");
    EXPECT_EQ(genresDits("Date CRE (INV, EDI si C11) ou (MOD)"),
              (std::set<std::string>{"EDI", "INV", "MOD"}));
    EXPECT_TRUE(genresDits("Date CRE").empty());
    EXPECT_EQ(difference({"E1", "E2"}, {"E2", "E3"}), "E1 has no label. The label of E3 is for nothing. ");
}
