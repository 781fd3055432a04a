#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "checks/conformite.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "support/champ.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string DOUZE_BLANCS(12, ' ');
const std::string DOUZE_ETOILES(12, '*');
const std::string HUIT_BLANCS(8, ' ');
const std::vector<std::string> CODES_SPECIAUX = {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "};

// Numbers that tell the forms apart.
const std::string FRANCAIS8 = "35123456    ";
const std::string FRANCAIS10 = "3512345678  ";
const std::string ETRANGER = "AB12345     ";
const std::string MALFORME = "a b/c       ";

struct cas {
    std::string dependance;
    std::string champ;
    bool attendu;
};

/** Compares the check's verdict on each row with the expected one. */
void verdicts(const char* nom, fVerif* verif, const liste& sverif, const std::vector<cas>& table) {
    for (const cas& c : table)
        EXPECT_EQ(accepte(verif, c.dependance, c.champ, sverif), c.attendu)
            << nom << " dependance \"" << c.dependance << "\" champ \"" << c.champ << "\"";
}

/** `texte` with `c` at column `col`. */
std::string avec(std::string texte, int col, char c) {
    texte[static_cast<std::size_t>(col) - 1] = c;
    return texte;
}

std::set<std::string> mots(const std::string& texte) {
    std::istringstream flux(texte);
    std::set<std::string> r;
    for (std::string mot; flux >> mot;)
        r.insert(mot);
    return r;
}

const std::set<std::string> PAYS_UE =
    mots("AT BE BG CY CZ DE DK EE EL ES FI FR HR HU IE IT LU LV LT MT NL PL PT RO SE SI UK SK XI");
const std::set<std::string> PAYS_ECHA =
    mots("AT BE BG CH CY CZ DE DK EE EL ES FI FR HR HU IE IT LU LV LT MT NL PL PT RO SE SI UK SK XI");

/** Two-letter texts from "AA" to "ZZ": every country code and many that are none. */
std::vector<std::string> deuxLettres() {
    std::vector<std::string> r;
    for (char a = 'A'; a <= 'Z'; ++a)
        for (char b = 'A'; b <= 'Z'; ++b)
            r.push_back({a, b});
    return r;
}

/** Texts that look like a country but are not exactly one. */
const std::vector<std::string> FAUX_PAYS = {"", "F", "FR ", "fr", "F ", " F", "FRA", "*", "F\xD2"};

struct numeroFr {
    const char* nom;
    fVerif* verif;
    int nbChiffres;
    bool suiteLibre;
};

const numeroFr NUMEROS_FR[] = {
    {"fConform8", fConform8, 8, false},
    {"fConform10", fConform10, 10, false},
    {"fConform8C", fConform8C, 8, true},
    {"fConform", fConform, 10, true},
};

/** Digits behind a prefix, then blanks up to column 12. */
std::string numero(const std::string& prefixe, int nbChiffres) {
    std::string r = prefixe;
    while (r.size() < static_cast<std::size_t>(nbChiffres))
        r += static_cast<char>('0' + r.size() % 10);
    r.resize(12, ' ');
    return r;
}

/** Puts a text into a body slot for the length of a scope. */
struct slotTenu {
    valeurVSE& slot;
    slotTenu(numCorpsVSE champ, const std::string& texte) : slot(valCorpsVSE[champ]) { remplir(slot, texte); }
    ~slotTenu() { remplir(slot, ""); }
    slotTenu(const slotTenu&) = delete;
    slotTenu& operator=(const slotTenu&) = delete;
};

}  // namespace

// ------------------------------------------------------- French numbers

TEST(ConformiteNumeroFrancais, ChaquePrefixeDeTroisChiffres) {
    for (const numeroFr& n : NUMEROS_FR) {
        for (int i = 0; i <= 999; ++i) {
            const std::string prefixe = std::to_string(1000 + i).substr(1);
            const int departement = i / 10;
            const bool attendu = departement == 97
                                     ? std::string("12346").find(prefixe[2]) != std::string::npos
                                     : (departement >= 1 && departement <= 95) || departement == 98;
            EXPECT_EQ(accepte(n.verif, "", numero(prefixe, n.nbChiffres), TD), attendu)
                << n.nom << " " << prefixe;
        }
    }
}

TEST(ConformiteNumeroFrancais, PrefixesQuiNeSontPasDesDepartements) {
    for (const numeroFr& n : NUMEROS_FR)
        for (const char* prefixe :
             {"2A1", "2B1", "97A", "97/", "97:", "97 ", "9 1", " 11", "  1", "\26351", "3\2651", "97\xB1"})
            EXPECT_FALSE(accepte(n.verif, "", numero(prefixe, n.nbChiffres), TD)) << n.nom << " " << prefixe;
}

TEST(ConformiteNumeroFrancais, ChaqueColonneDesChiffres) {
    for (const numeroFr& n : NUMEROS_FR) {
        const std::string bon = numero("35", n.nbChiffres);
        ASSERT_TRUE(accepte(n.verif, "", bon, TD)) << n.nom;
        for (int col = 1; col <= n.nbChiffres; ++col)
            for (const char c : {'/', ':', ' ', 'A', '-', '\x7F', '\xB2', '\xFF'})
                EXPECT_FALSE(accepte(n.verif, "", avec(bon, col, c), TD))
                    << n.nom << " colonne " << col << " \"" << c << "\"";
    }
}

TEST(ConformiteNumeroFrancais, ChaqueColonneQuiSuitLesChiffres) {
    for (const numeroFr& n : NUMEROS_FR) {
        const std::string bon = numero("35", n.nbChiffres);
        for (int col = n.nbChiffres + 1; col <= 12; ++col)
            for (const char c : {'0', '9', 'A', '*', '!', '\x1F', '\xA0'})
                EXPECT_EQ(accepte(n.verif, "", avec(bon, col, c), TD), n.suiteLibre)
                    << n.nom << " colonne " << col << " \"" << c << "\"";
    }
}

TEST(ConformiteNumeroFrancais, ChaqueLongueur) {
    for (const numeroFr& n : NUMEROS_FR) {
        const std::string bon = numero("35", n.nbChiffres) + "  ";
        for (int longueur = 0; longueur <= 14; ++longueur)
            EXPECT_EQ(accepte(n.verif, "", bon.substr(0, static_cast<std::size_t>(longueur)), TD),
                      n.suiteLibre ? longueur >= n.nbChiffres : longueur == 12)
                << n.nom << " longueur " << longueur;
    }
}

TEST(ConformiteNumeroFrancais, ListeDesDepartements) {
    const liste une = {{"01"}};
    const liste deux = {{"01", "02"}};
    const liste sansReunion = {{"972"}};
    const liste longue = {{"35X", "971", "AB", "99"}};
    struct ligne {
        const char* prefixe;
        const liste& departements;
        bool attendu;
    };
    const ligne table[] = {
        {"01", sansListe, false},
        {"01", une, true},
        {"02", une, false},
        {"02", deux, true},
        {"98", TD, true},
        {"98", deux, false},
        {"972", TD, true},
        {"972", sansReunion, true},
        {"972", deux, false},
        // Only the first two characters of an entry count.
        {"354", longue, true},
        {"972", longue, true},
        {"975", longue, false},
        {"36", longue, false},
        {"AB", longue, false},
        {"99", longue, true},
        {"99", deux, false},
    };
    for (const numeroFr& n : NUMEROS_FR)
        for (const ligne& l : table)
            EXPECT_EQ(accepte(n.verif, "", numero(l.prefixe, n.nbChiffres), l.departements), l.attendu)
                << n.nom << " " << l.prefixe << " list of " << l.departements.nombre();
}

TEST(ConformiteNumeroFrancais, NiCodesSpeciauxNiDependance) {
    for (const numeroFr& n : NUMEROS_FR) {
        for (const std::string& code : CODES_SPECIAUX)
            EXPECT_FALSE(accepte(n.verif, "", code, TD)) << n.nom << " " << code;
        for (const char* pays : {"FR", "BE", "  ", "NORM01  "}) {
            EXPECT_TRUE(accepte(n.verif, pays, numero("35", n.nbChiffres), TD)) << n.nom << pays;
            EXPECT_FALSE(accepte(n.verif, pays, MALFORME, TD)) << n.nom << pays;
        }
    }
}

TEST(ConformiteNumeroFrancais, HuitEtDixChiffresSeDistinguent) {
    verdicts("fConform8", fConform8, TD,
             {{"", FRANCAIS8, true},
              {"", "12345678    ", true},
              {"", "97612345    ", true},
              {"", "97512345    ", false},
              {"", "97012345    ", false},
              {"", "97712345    ", false},
              {"", "99123456    ", false},
              {"", "35123456   7", false},
              {"", FRANCAIS10, false}});
    verdicts("fConform10", fConform10, TD,
             {{"", FRANCAIS10, true}, {"", FRANCAIS8, false}, {"", "3512345678 ", false}});
    verdicts("fConform8C", fConform8C, TD, {{"", FRANCAIS10, true}, {"", "35123456*XYZ", true}});
    verdicts("fConform", fConform, TD, {{"", "3512345678YZ", true}, {"", FRANCAIS8, false}});
}

// ------------------------------------------------------ wrappers by country

TEST(ConformitePays, FormeFrancaisePourFRSeulement) {
    for (const bool dix : {false, true}) {
        fVerif* const verif = dix ? fConform10FR : fConform8FR;
        const char* const nom = dix ? "fConform10FR" : "fConform8FR";
        verdicts(nom, verif, TD,
                 {{"FR", FRANCAIS8, !dix},
                  {"FR", FRANCAIS10, dix},
                  {"FR", MALFORME, false},
                  {"FR", "", false},
                  {"FR", DOUZE_BLANCS, false},
                  {"FR", DOUZE_ETOILES, false},
                  {"FR", "NORM01  ", false}});
        EXPECT_FALSE(accepte(verif, "FR", dix ? FRANCAIS10 : FRANCAIS8, sansListe)) << nom;
        for (const std::string& pays : deuxLettres())
            EXPECT_EQ(accepte(verif, pays, MALFORME, TD), pays != "FR") << nom << " " << pays;
        for (const std::string& pays : FAUX_PAYS)
            EXPECT_TRUE(accepte(verif, pays, MALFORME, TD)) << nom << " \"" << pays << "\"";
        for (const std::string& pays : CODES_SPECIAUX)
            EXPECT_TRUE(accepte(verif, pays, MALFORME, TD)) << nom << " " << pays;
    }
}

TEST(ConformitePays, SansBlancInterieurHorsFR) {
    verdicts("fConform8FRnon", fConform8FRnon, TD,
             {{"FR", MALFORME, true},
              {"FR", DOUZE_BLANCS, true},
              {"  ", MALFORME, true},
              {"  ", DOUZE_BLANCS, true},
              {"BE", MALFORME, false},
              {"BE", ETRANGER, true},
              {"BE", "a/\351*        ", true},
              {"BE", "AB", true},
              {"BE", " AB", false},
              {"BE", "A B", false},
              {"BE", "ABCDEFGHIJKL", true},
              {"BE", "ABCDEFGHIJ L", false},
              {"BE", DOUZE_BLANCS, false},
              {"BE", " ", false},
              {"BE", "", true}});
    for (const std::string& pays : FAUX_PAYS)
        EXPECT_FALSE(accepte(fConform8FRnon, pays, MALFORME)) << "\"" << pays << "\"";
    // Two blanks exactly, and not the list test of blanks.
    for (const char* pays : {" ", "   ", "NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "})
        EXPECT_FALSE(accepte(fConform8FRnon, pays, MALFORME)) << "\"" << pays << "\"";
}

TEST(ConformitePays, NumeroOuvertOuFormeFrancaise) {
    for (const bool dix : {false, true}) {
        fVerif* const verif = dix ? fCONFORM10FRNULL : fCONFORM8FRNULL;
        const char* const nom = dix ? "fCONFORM10FRNULL" : "fCONFORM8FRNULL";
        verdicts(nom, verif, TD,
                 {{"FR", DOUZE_BLANCS, true},
                  {"FR", DOUZE_ETOILES, true},
                  {"FR", std::string(11, ' '), false},
                  {"FR", std::string(13, ' '), false},
                  {"FR", std::string(11, '*'), false},
                  {"FR", std::string(11, '*') + " ", false},
                  {"FR", std::string(13, '*'), false},
                  {"FR", "", false},
                  {"FR", FRANCAIS8, !dix},
                  {"FR", FRANCAIS10, dix},
                  {"FR", MALFORME, false},
                  {"BE", MALFORME, true},
                  {"FR ", MALFORME, true},
                  {"", MALFORME, true}});
        // Both blank forms are list tests, which the special codes pass.
        for (const std::string& code : CODES_SPECIAUX) {
            EXPECT_TRUE(accepte(verif, "FR", code, TD)) << nom << " " << code;
            EXPECT_FALSE(accepte(verif, "FR", code + " ", TD)) << nom << " " << code;
            EXPECT_FALSE(accepte(verif, "FR", code.substr(0, 7), TD)) << nom << " " << code;
        }
    }
}

TEST(ConformitePays, FormeFrancaiseHorsDeLaListe) {
    struct ligne {
        const char* nom;
        fVerif* verif;
        const std::set<std::string>& liste;
    };
    const ligne table[] = {
        {"fConform10FRnonUEnon", fConform10FRnonUEnon, PAYS_UE},
        {"fConform10FRnonECHAnon", fConform10FRnonECHAnon, PAYS_ECHA},
    };
    for (const ligne& l : table) {
        for (const std::string& pays : deuxLettres()) {
            EXPECT_EQ(accepte(l.verif, pays, MALFORME, TD), l.liste.count(pays) == 1) << l.nom << " " << pays;
            EXPECT_TRUE(accepte(l.verif, pays, FRANCAIS10, TD)) << l.nom << " " << pays;
        }
        for (const std::string& pays : FAUX_PAYS) {
            EXPECT_FALSE(accepte(l.verif, pays, MALFORME, TD)) << l.nom << " \"" << pays << "\"";
            EXPECT_FALSE(accepte(l.verif, pays, FRANCAIS8, TD)) << l.nom << " \"" << pays << "\"";
            EXPECT_TRUE(accepte(l.verif, pays, FRANCAIS10, TD)) << l.nom << " \"" << pays << "\"";
        }
        for (const std::string& code : CODES_SPECIAUX)
            EXPECT_TRUE(accepte(l.verif, code, MALFORME, TD)) << l.nom << " " << code;
        EXPECT_FALSE(accepte(l.verif, "US", FRANCAIS10, sansListe)) << l.nom;
    }
}

TEST(ConformitePays, NumeroEtrangerDansLaListe) {
    struct ligne {
        const char* nom;
        fVerif* verif;
        const std::set<std::string>& liste;
    };
    const ligne table[] = {
        {"fConform10FRnonUEoui", fConform10FRnonUEoui, PAYS_UE},
        {"fConform10FRnonECHAoui", fConform10FRnonECHAoui, PAYS_ECHA},
    };
    for (const ligne& l : table) {
        for (const std::string& pays : deuxLettres()) {
            const bool soumis = l.liste.count(pays) == 1 && pays != "FR";
            EXPECT_EQ(accepte(l.verif, pays, MALFORME, TD), !soumis) << l.nom << " " << pays;
            EXPECT_EQ(accepte(l.verif, pays, pays + "1234567890", TD), !soumis) << l.nom << " " << pays;
            EXPECT_TRUE(accepte(l.verif, pays, "1" + pays + "456789   ", TD)) << l.nom << " " << pays;
        }
        for (const std::string& pays : FAUX_PAYS)
            EXPECT_TRUE(accepte(l.verif, pays, MALFORME, TD)) << l.nom << " \"" << pays << "\"";
        // A special code counts as listed.
        for (const std::string& code : CODES_SPECIAUX) {
            EXPECT_FALSE(accepte(l.verif, code, MALFORME, TD)) << l.nom << " " << code;
            EXPECT_FALSE(accepte(l.verif, code, code.substr(0, 2) + "123", TD)) << l.nom << code;
            EXPECT_TRUE(accepte(l.verif, code, ETRANGER, TD)) << l.nom << " " << code;
        }
    }
}

TEST(ConformitePays, NumeroEtrangerHorsFR) {
    struct ligne {
        const char* nom;
        fVerif* verif;
    };
    for (const ligne& l : {ligne{"fConform10FRnon", fConform10FRnon}, {"fConform_OC_UE", fConform_OC_UE}}) {
        verdicts(l.nom, l.verif, sansListe,
                 {{"FR", MALFORME, true},
                  {"FR", DOUZE_BLANCS, true},
                  {"FR", "", true},
                  {"FR", "FR1234567890", true},
                  {"DE", ETRANGER, true},
                  {"DE", "DE1234567890", false},
                  {"DE", "DE", false},
                  {"DE", "D", true},
                  {"DE", "DF1234567890", true},
                  {"DE", "0123456789AZ", true},
                  {"DE", "1", true},
                  {"DE", "aB12        ", false},
                  {"DE", "AB1z        ", false},
                  {"DE", "AB/2        ", false},
                  {"DE", "AB:2        ", false},
                  {"DE", "AB@2        ", false},
                  {"DE", "AB[2        ", false},
                  {"DE", "AB-2        ", false},
                  {"DE", "AB\3112        ", false},
                  {"DE", "A B2        ", false},
                  {"DE", " AB2        ", false},
                  {"DE", DOUZE_BLANCS, false},
                  {"DE", DOUZE_ETOILES, false},
                  {"DE", "", false},
                  {"DE", "NORMABEV", true},
                  {"DE", "NORM01  ", true},
                  {"NO", "NORM01  ", false},
                  {"US", MALFORME, false},
                  {"", MALFORME, false},
                  {"", ETRANGER, true},
                  {"FR ", "FR123", false},
                  {"fr", MALFORME, false},
                  {"NORM01  ", MALFORME, false}});
    }
}

// --------------------------------------------- ovine and caprine numbers

namespace {

/** Prefixes on both sides of the bounds of the ovine and caprine numbers. */
const std::pair<const char*, bool> INDICATIFS[] = {
    {"000000", false}, {"099999", false}, {"100000", true},  {"100001", true},  {"250001", true},
    {"683498", true},  {"683499", true},  {"683500", false}, {"700000", false}, {"999999", false},
};

}  // namespace

TEST(ConformiteOvin, NumeroDeOnzeChiffres) {
    for (const auto& [indicatif, attendu] : INDICATIFS)
        for (const char* suite : {"00000 ", "99999 "})
            EXPECT_EQ(accepte(fConform_OC_FR, "FR", indicatif + std::string(suite), IND_M), attendu)
                << indicatif << suite;
    const std::string bon = "25000112345 ";
    EXPECT_TRUE(accepte(fConform_OC_FR, "FR", bon)) << "the list is not consulted";
    for (int col = 1; col <= 11; ++col)
        for (const char c : {'/', ':', ' ', 'A', '\xB2'})
            EXPECT_FALSE(accepte(fConform_OC_FR, "FR", avec(bon, col, c), IND_M))
                << "colonne " << col << " \"" << c << "\"";
    for (const char c : {'0', 'A', '*', '\xA0'})
        EXPECT_FALSE(accepte(fConform_OC_FR, "FR", avec(bon, 12, c), IND_M)) << c;
    for (std::size_t longueur = 0; longueur <= 13; ++longueur)
        EXPECT_EQ(accepte(fConform_OC_FR, "FR", (bon + " ").substr(0, longueur), IND_M), longueur == 12)
            << "longueur " << longueur;
    for (const std::string& code : CODES_SPECIAUX)
        EXPECT_FALSE(accepte(fConform_OC_FR, "FR", code, IND_M)) << code;
    EXPECT_FALSE(accepte(fConform_OC_FR, "FR", DOUZE_BLANCS, IND_M));
}

TEST(ConformiteOvin, AutresPaysPassent) {
    const slotTenu commande(C9, "I0");
    for (fVerif* verif : {fConform_OC_FR, fConform_OC_TP}) {
        for (const std::string& pays : deuxLettres())
            EXPECT_EQ(accepte(verif, pays, MALFORME, IND_M), pays != "FR") << pays;
        for (const std::string& pays : FAUX_PAYS)
            EXPECT_TRUE(accepte(verif, pays, "", IND_M)) << "\"" << pays << "\"";
        EXPECT_FALSE(accepte(verif, "FR", "", IND_M));
    }
}

TEST(ConformiteOvin, ColonneSeptSelonLaCommande) {
    const char* const commandes[] = {"I0", "I1", "I2", "I3", "I4",  "I5",  "PR",
                                     "PC", "",   "  ", "P",  "PR ", "PCR", "pr"};
    for (const std::string commande : commandes) {
        const slotTenu c9(C9, commande);
        for (int octet = 1; octet <= 255; ++octet) {
            const char c = static_cast<char>(octet);
            const bool attendu = commande == "PR"   ? c == 'R'
                                 : commande == "PC" ? c == 'C'
                                                    : c >= '0' && c <= '9';
            EXPECT_EQ(accepte(fConform_OC_TP, "FR", avec("250001R     ", 7, c), IND_M), attendu)
                << "commande \"" << commande << "\" colonne 7 octet " << octet;
        }
    }
}

TEST(ConformiteOvin, NumeroDeCommande) {
    for (const auto& [commande, septieme] : {std::pair{"PR", 'R'}, {"PC", 'C'}, {"I0", '5'}}) {
        const slotTenu c9(C9, commande);
        const std::string blanc = avec("250001?     ", 7, septieme);
        const std::string plein = avec("250001?0189 ", 7, septieme);
        for (const auto& [indicatif, attendu] : INDICATIFS)
            for (const std::string& modele : {blanc, plein})
                EXPECT_EQ(accepte(fConform_OC_TP, "FR", indicatif + modele.substr(6), IND_M), attendu)
                    << indicatif << " " << commande;
        EXPECT_TRUE(accepte(fConform_OC_TP, "FR", plein)) << "the list is not consulted";
        for (int col = 1; col <= 6; ++col)
            for (const char c : {'/', ':', ' ', 'A', '\xB2'})
                EXPECT_FALSE(accepte(fConform_OC_TP, "FR", avec(blanc, col, c), IND_M))
                    << commande << " colonne " << col;
        for (int col = 8; col <= 11; ++col) {
            EXPECT_FALSE(accepte(fConform_OC_TP, "FR", avec(blanc, col, '0'), IND_M))
                << commande << " chiffre parmi les blancs, colonne " << col;
            for (const char c : {' ', '/', ':', 'A', '\xB9'})
                EXPECT_FALSE(accepte(fConform_OC_TP, "FR", avec(plein, col, c), IND_M))
                    << commande << " \"" << c << "\" parmi les chiffres, colonne " << col;
        }
        for (const std::string& modele : {blanc, plein}) {
            for (const char c : {'0', 'A', '\xA0'})
                EXPECT_FALSE(accepte(fConform_OC_TP, "FR", avec(modele, 12, c), IND_M))
                    << commande << " colonne 12 \"" << c << "\"";
            for (std::size_t longueur = 0; longueur <= 13; ++longueur)
                EXPECT_EQ(accepte(fConform_OC_TP, "FR", (modele + " ").substr(0, longueur), IND_M),
                          longueur == 12)
                    << commande << " longueur " << longueur;
        }
    }
}

TEST(ConformiteOvin, Indicatif) {
    for (const auto& [indicatif, attendu] : INDICATIFS)
        EXPECT_EQ(accepte(fConform_OC_IND_M, "", indicatif + std::string(6, ' '), IND_M), attendu)
            << indicatif;
    const std::string bon = "250001      ";
    EXPECT_TRUE(accepte(fConform_OC_IND_M, "BE", bon)) << "neither list nor country is consulted";
    EXPECT_FALSE(accepte(fConform_OC_IND_M, "BE", MALFORME));
    for (int col = 1; col <= 12; ++col)
        for (const char c : {'/', ':', 'A', '\xB2', col <= 6 ? ' ' : '0'})
            EXPECT_FALSE(accepte(fConform_OC_IND_M, "", avec(bon, col, c), IND_M))
                << "colonne " << col << " \"" << c << "\"";
    for (std::size_t longueur = 0; longueur <= 13; ++longueur)
        EXPECT_EQ(accepte(fConform_OC_IND_M, "", (bon + " ").substr(0, longueur), IND_M), longueur == 12)
            << "longueur " << longueur;
}

// ----------------------------------------------------------- tag models

TEST(ConformiteModele, SansBlancPuisDeuxBlancs) {
    const std::string bon = "AZE123  ";
    verdicts("fConform_OC_model1", fConform_OC_model1, sansListe,
             {{"", bon, true},
              {"", "\xE9/*-.a  ", true},
              {"", "\xA0ZE123  ", true},
              {"", HUIT_BLANCS, false},
              {"", "AZE123\xA0 ", false},
              {"", "AZE123**", false},
              {"", "AZE12345", false},
              {"", "NORM01  ", true},
              {"", "NORMABEV", false}});
    for (int col = 1; col <= 6; ++col)
        EXPECT_FALSE(accepte(fConform_OC_model1, "", avec(bon, col, ' '))) << "colonne " << col;
    for (int col = 7; col <= 8; ++col)
        EXPECT_FALSE(accepte(fConform_OC_model1, "", avec(bon, col, '0'))) << "colonne " << col;
    for (std::size_t longueur = 0; longueur <= 9; ++longueur)
        EXPECT_EQ(accepte(fConform_OC_model1, "", (bon + " ").substr(0, longueur)), longueur == 8)
            << "longueur " << longueur;
}

TEST(ConformiteModele, CaractereDansLaListe) {
    struct ligne {
        const char* nom;
        fVerif* verif;
        int col;
        const liste& caracteres;
        const char* lettres;
        bool bovin;
    };
    const ligne table[] = {
        {"fConform_OC_model2", fConform_OC_model2, 1, FAB_REP, "ABCDEFGHIJKLMN", false},
        {"fConform_OC_model3", fConform_OC_model3, 2, C2_MODEL, "ZCO", false},
        {"fConform_OC_model4", fConform_OC_model4, 3, C3_MODEL, "EC", false},
        {"fConform_BV_model2", fConform_BV_model2, 1, FAB_REP, "ABCDEFGHIJKLMN", true},
        {"fConform_BV_model3", fConform_BV_model3, 2, C2_MODEL_BV, "B", true},
        {"fConform_BV_model4", fConform_BV_model4, 3, C3_MODEL_BV, "EC", true},
    };
    for (const ligne& l : table) {
        for (const std::string fond : {"??????  ", "        ", "ABE123  "})
            for (int octet = 1; octet <= 255; ++octet) {
                const char c = static_cast<char>(octet);
                const std::string modele = avec(fond, l.col, c);
                const bool attendu =
                    std::string(l.lettres).find(c) != std::string::npos || (l.bovin && modele == HUIT_BLANCS);
                EXPECT_EQ(accepte(l.verif, "", modele, l.caracteres), attendu)
                    << l.nom << " \"" << modele << "\"";
            }
        // The model ends with its tested character, or just before it.
        std::string court(static_cast<std::size_t>(l.col), l.lettres[0]);
        EXPECT_TRUE(accepte(l.verif, "", court, l.caracteres)) << l.nom << " " << court;
        court.pop_back();
        EXPECT_FALSE(accepte(l.verif, "", court, l.caracteres)) << l.nom << " " << court;
        EXPECT_FALSE(accepte(l.verif, "", "", l.caracteres)) << l.nom;
        EXPECT_FALSE(accepte(l.verif, "", std::string(7, ' '), l.caracteres)) << l.nom;
        EXPECT_FALSE(accepte(l.verif, "", std::string(9, ' '), l.caracteres)) << l.nom;
        // List ends.
        const std::string dernier(8, l.lettres[std::string(l.lettres).size() - 1]);
        EXPECT_TRUE(accepte(l.verif, "", dernier, l.caracteres)) << l.nom;
        EXPECT_FALSE(accepte(l.verif, "", dernier, sansListe)) << l.nom;
        EXPECT_EQ(accepte(l.verif, "", HUIT_BLANCS, sansListe), l.bovin) << l.nom;
        // A special code stands or falls with its own letter.
        for (const std::string& code : CODES_SPECIAUX)
            EXPECT_EQ(
                accepte(l.verif, "", code, l.caracteres),
                std::string(l.lettres).find(code[static_cast<std::size_t>(l.col) - 1]) != std::string::npos)
                << l.nom << " " << code;
    }
}

TEST(ConformiteModele, TroisChiffres) {
    for (const bool bovin : {false, true}) {
        fVerif* const verif = bovin ? fConform_BV_model5 : fConform_OC_model5;
        const char* const nom = bovin ? "fConform_BV_model5" : "fConform_OC_model5";
        verdicts(nom, verif, sansListe,
                 {{"", "AZE123  ", true},
                  {"", "   000**", true},
                  {"", "999999", true},
                  {"", HUIT_BLANCS, bovin},
                  {"", std::string(7, ' '), false},
                  {"", std::string(9, ' '), false},
                  {"", "", false},
                  {"", "AZE", false},
                  {"", "AZE1", false},
                  {"", "AZE12", false},
                  {"", "NORMABEV", false},
                  {"", "NORM01  ", false},
                  {"", "PFOC01  ", false}});
        for (int col = 4; col <= 6; ++col)
            for (int octet = 1; octet <= 255; ++octet) {
                const char c = static_cast<char>(octet);
                EXPECT_EQ(accepte(verif, "", avec("AZE123  ", col, c)), c >= '0' && c <= '9')
                    << nom << " colonne " << col << " octet " << octet;
            }
    }
}

// ------------------------------------ country of origin, counter, witness

TEST(ConformiteOrigine, PaysListePourFRBlancsAilleurs) {
    for (int i = 0; i < TP.nombre(); ++i) {
        EXPECT_TRUE(accepte(fConform_OC_pays_orig, "FR", TP[i].valeur, TP)) << TP[i].valeur;
        EXPECT_FALSE(accepte(fConform_OC_pays_orig, "DE", TP[i].valeur, TP)) << TP[i].valeur;
    }
    verdicts(
        "fConform_OC_pays_orig", fConform_OC_pays_orig, TP,
        {{"FR", "DE", true},       {"FR", "FR", true},  {"FR", "AF", true},        {"FR", "XI", true},
         {"FR", "GR", false},      {"FR", "XX", false}, {"FR", "de", false},       {"FR", "DE ", false},
         {"FR", "D", false},       {"FR", "", false},   {"FR", "  ", false},       {"FR", "**", false},
         {"FR", "D\xC9", false},   {"DE", "  ", true},  {"DE", "", false},         {"DE", " ", false},
         {"DE", "   ", false},     {"DE", "**", false}, {"DE", "\xA0\xA0", false}, {"NORM01  ", "  ", true},
         {"NORM01  ", "DE", false}});
    for (const std::string& pays : FAUX_PAYS) {
        EXPECT_TRUE(accepte(fConform_OC_pays_orig, pays, "  ", TP)) << "\"" << pays << "\"";
        EXPECT_FALSE(accepte(fConform_OC_pays_orig, pays, "DE", TP)) << "\"" << pays << "\"";
    }
    for (const std::string& code : CODES_SPECIAUX) {
        EXPECT_TRUE(accepte(fConform_OC_pays_orig, "FR", code, TP)) << code;
        EXPECT_FALSE(accepte(fConform_OC_pays_orig, "DE", code, TP)) << code;
    }
}

TEST(ConformiteCompteur, ChaqueOctetSelonLeModele) {
    struct ligne {
        const char* modele;
        bool compte;  // third character "E"
    };
    const ligne table[] = {
        {"AZE123  ", true},  {"  E     ", true},  {"AZE", true},       {"AZC123  ", false},
        {"AZe123  ", false}, {"EZA123  ", false}, {"AEZE23  ", false}, {"        ", false},
        {"AZ", false},       {"E", false},        {"", false},         {"AZ\305123  ", false},
    };
    for (const ligne& l : table) {
        for (int octet = 1; octet <= 255; ++octet) {
            const char c = static_cast<char>(octet);
            EXPECT_EQ(accepte(fConform_OC_compteur, l.modele, std::string(1, c)),
                      l.compte ? c >= '0' && c <= '7' : c == ' ')
                << "modele \"" << l.modele << "\" compteur octet " << octet;
        }
        EXPECT_FALSE(accepte(fConform_OC_compteur, l.modele, "")) << l.modele;
        EXPECT_FALSE(accepte(fConform_OC_compteur, l.modele, "  ")) << l.modele;
        EXPECT_FALSE(accepte(fConform_OC_compteur, l.modele, "NORM01  ")) << l.modele;
    }
}

TEST(ConformiteTemoin, ZeroSeulEstRefuse) {
    for (int octet = 1; octet <= 255; ++octet) {
        const char c = static_cast<char>(octet);
        EXPECT_EQ(accepte(fConform_temoin_bouc2, "", std::string(1, c)), c != '0') << "octet " << octet;
    }
    for (const char* champ : {"", "00", "0 ", " 0"})
        EXPECT_TRUE(accepte(fConform_temoin_bouc2, "0", champ)) << "\"" << champ << "\"";
}
