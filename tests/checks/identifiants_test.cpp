/**
 * identifiants - Luhn keys, company numbers, member states, French approval,
 * holding and bovine numbers, complete dates, EGET holding codes, departments.
 */
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "checks/identifiants.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "support/champ.h"
#include "vocabulaire/store.h"

namespace {

using namespace quilvane;
using essai::accepte;
using essai::remplir;

const std::vector<std::string> CODES_SPECIAUX = {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "};

/** A verdict expected of one text. */
struct cas {
    const char* texte;
    bool attendu;
};

/** Calls a check of one text, held in a buffer of its exact length. */
bool accepteTexte(int (*verif)(const char*), const std::string& texte) {
    const std::vector<char> exact(texte.c_str(), texte.c_str() + texte.size() + 1);
    return verif(exact.data()) != 0;
}

/** The decimal digits of `n`, at least `largeur`. */
std::string chiffresDe(int n, int largeur) {
    char tampon[16];
    std::snprintf(tampon, sizeof tampon, "%0*d", largeur, n);
    return tampon;
}

/** Puts every byte at every column of `base`: accepted are those in the column's text of `admis`. */
void chaqueOctet(const std::function<bool(const std::string&)>& verdict, const std::string& base,
                 const std::vector<std::string>& admis) {
    ASSERT_EQ(base.size(), admis.size());
    ASSERT_TRUE(verdict(base)) << base;
    for (std::size_t col = 0; col < base.size(); ++col)
        for (int octet = 1; octet < 256; ++octet) {
            const char c = static_cast<char>(static_cast<unsigned char>(octet));
            std::string texte = base;
            texte[col] = c;
            EXPECT_EQ(verdict(texte), admis[col].find(c) != std::string::npos)
                << base << " colonne " << col + 1 << " octet " << octet;
        }
}

/** Whether `dep` is a two-digit department: 01 to 95, 97, 98, 20 included. */
bool departementTD(int dep) { return (dep >= 1 && dep <= 95) || dep == 97 || dep == 98; }

const std::string CHIFFRES = "0123456789";
const std::string MAJUSCULES = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string BLANC = " ";

// ------------------------------------------------------------------- Luhn

/** Luhn total worked out from the left: double every digit that stands before
 *  an odd number of digits, and add the digits of the doubles. */
int totalLuhn(const std::string& chiffres) {
    int total = 0;
    for (std::size_t i = 0; i < chiffres.size(); ++i) {
        const int d = chiffres[i] - '0';
        const int valeur = (chiffres.size() - i) % 2 == 0 ? 2 * d : d;
        total += valeur / 10 + valeur % 10;
    }
    return total;
}

TEST(IdentifiantsLuhn, Exemples) {
    const cas rows[] = {
        {"123456782", true},
        {"123456781", false},
        {"", true},
        {"0", true},
        {"1", false},
        {"9", false},
        {"18", true},
        {"81", false},
        {"00", true},
        {"91", true},
        {"4539578763621486", true},
        {"4539578763621487", false},
        {"73282932000074", true},
        {"73282932000075", false},
        {"000000000", true},
    };
    for (const cas& c : rows)
        EXPECT_EQ(accepteTexte(fVerifLuhn, c.texte), c.attendu) << c.texte;
}

TEST(IdentifiantsLuhn, TousLesNombresCourts) {
    for (int largeur = 1; largeur <= 5; ++largeur) {
        int bons = 0, borne = 1;
        for (int i = 0; i < largeur; ++i)
            borne *= 10;
        for (int n = 0; n < borne; ++n) {
            const std::string texte = chiffresDe(n, largeur);
            const bool verdict = fVerifLuhn(texte.c_str()) != 0;
            ASSERT_EQ(verdict, totalLuhn(texte) % 10 == 0) << texte;
            bons += verdict;
        }
        EXPECT_EQ(bons, borne / 10) << largeur;  // one last digit in ten
    }
}

TEST(IdentifiantsLuhn, ToutChiffreFauxEstVu) {
    std::mt19937 tirage(20240316);
    for (const std::size_t largeur : {9U, 14U, 1U, 2U, 19U})
        for (int tour = 0; tour < 200; ++tour) {
            std::string texte(largeur, '0');
            for (char& c : texte)
                c = static_cast<char>('0' + tirage() % 10);
            while (!accepteTexte(fVerifLuhn, texte))
                texte.back() = texte.back() == '9' ? '0' : static_cast<char>(texte.back() + 1);
            for (std::size_t col = 0; col < largeur; ++col)
                for (char c = '0'; c <= '9'; ++c) {
                    std::string faux = texte;
                    faux[col] = c;
                    ASSERT_EQ(accepteTexte(fVerifLuhn, faux), c == texte[col]) << texte << ' ' << faux;
                }
        }
}

TEST(IdentifiantsLuhn, NonChiffreRefuse) {
    chaqueOctet([](const std::string& t) { return accepteTexte(fVerifLuhn, t); }, "123456782",
                {"1", "2", "3", "4", "5", "6", "7", "8", "2"});
    for (const char* texte : {" ", "A", "-18", "18 ", " 18", "1 8", "\xB9", "\xE9", ":"})
        EXPECT_FALSE(accepteTexte(fVerifLuhn, texte)) << texte;
}

// ------------------------------------------------------- company numbers

TEST(IdentifiantsSirenSiret, Formes) {
    struct {
        const char* champ;
        bool siren, siret;
    } const rows[] = {
        {"              ", true, true},   // fourteen blanks
        {"             ", false, false},  // thirteen
        {"               ", false, false},
        {"732829320     ", true, false},
        {"73282932000074", false, true},
        {"ABCDEFGHI     ", true, false},  // neither digits nor key are asked
        {"ABCDEFGHIJKLMN", false, true},
        {"73282932      ", false, false},
        {"7328 9320     ", false, false},
        {" 32829320     ", false, false},
        {"732829320    ", false, false},  // four blanks
        {"732829320      ", false, false},
        {"732829320    1", false, false},
        {"7328293201    ", false, false},
        {"732829320", false, true},  // a character that is not there is no blank
        {"", false, true},
        {"7328293200007 ", false, false},
        {"732829320000 4", false, false},
        {" 3282932000074", false, false},
        {"73282932000074 ", false, true},  // what stands behind column 14 does not count
        {"73282932000074X", false, true},
        {"\xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9     ", true, false},
        {"**************", false, true},
        {"NORMABEV", false, true},
        {"NORM01  ", false, false},  // no favour for the special codes
        {"NORM02  ", false, false},
        {"PFOC01  ", false, false},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(accepte(fConformSiren, "", r.champ), r.siren) << '"' << r.champ << '"';
        EXPECT_EQ(accepte(fConformSiret, "", r.champ), r.siret) << '"' << r.champ << '"';
    }
}

TEST(IdentifiantsSirenSiret, BlancAChaqueColonne) {
    for (std::size_t col = 0; col < 14; ++col) {
        std::string siret = "73282932000074";
        siret[col] = ' ';
        EXPECT_FALSE(accepte(fConformSiret, "", siret)) << siret;
        std::string siren = "732829320     ";
        siren[col] = col < 9 ? ' ' : 'A';
        EXPECT_FALSE(accepte(fConformSiren, "", siren)) << siren;
    }
}

// --------------------------------------------------------- member states

TEST(IdentifiantsMembres, ExactementQuinze) {
    const std::set<std::string> membres = {"DE", "AT", "BE", "DK", "ES", "FI", "FR", "EL",
                                           "IE", "LU", "NL", "PT", "UK", "SE", "IT"};
    ASSERT_EQ(membres.size(), 15U);
    for (char a = ' '; a <= '~'; ++a)
        for (char b = ' '; b <= '~'; ++b) {
            const std::string pays = {a, b};
            EXPECT_EQ(accepteTexte(appartient_UE, pays), membres.count(pays) == 1) << pays;
        }
    for (const char* pays : {"", " ", "D", "DE ", " DE", "DEU", "\xE9\xE9", "D\xC5"})
        EXPECT_FALSE(accepteTexte(appartient_UE, pays)) << pays;
    for (const std::string& code : CODES_SPECIAUX)
        EXPECT_FALSE(accepteTexte(appartient_UE, code)) << code;
}

// ------------------------------------------------------- French numbers

/** The three checks of French numbers on one text. */
struct numerosFr {
    bool agrement, exploit, bovin;
};

TEST(IdentifiantsNumerosFr, Exemples) {
    struct {
        const char* texte;
        numerosFr attendu;
    } const rows[] = {
        {"2A12345     ", {true, false, false}},
        {"2B12345     ", {true, false, false}},
        {"2C12345     ", {false, false, false}},
        {"2a12345     ", {false, false, false}},
        {"1A12345     ", {false, false, false}},
        {"3B12345     ", {false, false, false}},
        {"2A123456    ", {true, false, false}},
        {"9761234     ", {true, false, false}},
        {"9751234     ", {false, false, false}},
        {"9701234     ", {false, false, false}},
        {"2012345     ", {false, false, false}},
        {"9812345     ", {false, false, false}},
        {"7512345     ", {true, false, false}},
        {"75123456    ", {true, true, false}},
        {"20123456    ", {false, true, false}},
        {"98123456    ", {false, true, false}},
        {"97523456    ", {false, true, false}},
        {"97623456    ", {true, true, false}},
        {"00123456    ", {false, false, false}},
        {"96123456    ", {false, false, false}},
        {"99123456    ", {false, false, false}},
        {"7512345678  ", {false, false, true}},
        {"2012345678  ", {false, false, true}},
        {"9812345678  ", {false, false, true}},
        {"9712345678  ", {false, false, true}},
        {"9742345678  ", {false, false, true}},
        {"9752345678  ", {false, false, false}},
        {"9762345678  ", {false, false, false}},
        {"9702345678  ", {false, false, false}},
        {"9612345678  ", {false, false, false}},
        {"2A12345678  ", {false, false, false}},
        {"            ", {false, false, false}},
        {"************", {false, false, false}},
        {"", {false, false, false}},
        {"NORMABEV", {false, false, false}},
        {"NORM01  ", {false, false, false}},
        // the text cut short, one column at a time
        {"7512345    ", {false, false, false}},
        {"75123456   ", {false, false, false}},
        {"75123456", {false, false, false}},
        {"7512345678 ", {false, false, false}},
        {"7512345678", {false, false, false}},
        {"7", {false, false, false}},
        {"2A", {false, false, false}},
        {"97", {false, false, false}},
        // columns behind the twelfth do not count
        {"7512345     X", {true, false, false}},
        {"75123456    X", {true, true, false}},
        {"7512345678  X", {false, false, true}},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message() << '"' << r.texte << '"');
        EXPECT_EQ(accepteTexte(verifNumAgrementSanitaireFr, r.texte), r.attendu.agrement);
        EXPECT_EQ(accepteTexte(verifNumExploitFr, r.texte), r.attendu.exploit);
        EXPECT_EQ(accepteTexte(verifNumBovinFrOuImporte, r.texte), r.attendu.bovin);
    }
}

// The thousand beginnings of three digits.
TEST(IdentifiantsNumerosFr, ChaqueDepartement) {
    for (int debut = 0; debut < 1000; ++debut) {
        const int dep = debut / 10;
        const int suite = debut % 10;
        const std::string n = chiffresDe(debut, 3);
        const bool outreMer = suite >= 1 && suite <= 4;
        const bool agrement =
            dep == 97 ? outreMer || suite == 6 : departementTD(dep) && dep != 20 && dep != 98;
        EXPECT_EQ(accepteTexte(verifNumAgrementSanitaireFr, n + "1234     "), agrement) << n;
        EXPECT_EQ(accepteTexte(verifNumAgrementSanitaireFr, n + "12345    "), agrement) << n;
        EXPECT_EQ(accepteTexte(verifNumExploitFr, n + "12345    "), departementTD(dep)) << n;
        EXPECT_EQ(accepteTexte(verifNumBovinFrOuImporte, n + "1234567  "),
                  dep == 97 ? outreMer : departementTD(dep))
            << n;
    }
}

TEST(IdentifiantsNumerosFr, ChaqueOctetAChaqueColonne) {
    const auto verdict = [](int (*verif)(const char*)) {
        return [verif](const std::string& t) { return accepteTexte(verif, t); };
    };
    // Where column 1 or 2 is limited, the departments left out are 00, 20, 96 to 99.
    chaqueOctet(verdict(verifNumAgrementSanitaireFr), "7512345     ",
                {CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES + BLANC,
                 BLANC, BLANC, BLANC, BLANC});
    chaqueOctet(verdict(verifNumAgrementSanitaireFr), "2A12345     ",
                {"2", "123456789AB", CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES + BLANC,
                 BLANC, BLANC, BLANC, BLANC});
    chaqueOctet(verdict(verifNumAgrementSanitaireFr), "9711234     ",
                {CHIFFRES, "0123457", "12346", CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES + BLANC,
                 BLANC, BLANC, BLANC, BLANC});
    chaqueOctet(verdict(verifNumExploitFr), "70123456    ",
                {"123456789", CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, BLANC,
                 BLANC, BLANC, BLANC});
    chaqueOctet(verdict(verifNumBovinFrOuImporte), "7012345678  ",
                {"123456789", CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES,
                 CHIFFRES, BLANC, BLANC});
    chaqueOctet(verdict(verifNumBovinFrOuImporte), "9711234567  ",
                {CHIFFRES, "01234578", "1234", CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES, CHIFFRES,
                 CHIFFRES, BLANC, BLANC});
}

// ---------------------------------------------------------- complete dates

TEST(IdentifiantsDateComplete, Exemples) {
    const cas rows[] = {
        {"29022000", true},
        {"29022024", true},
        {"29021900", false},
        {"29022023", false},
        {"29022100", false},
        {"28021900", true},
        {"30022024", false},
        {"31022024", false},
        {"31042024", false},
        {"30042024", true},
        {"31062024", false},
        {"31092024", false},
        {"31112024", false},
        {"31122024", true},
        {"00012024", false},
        {"01002024", false},
        {"01132024", false},
        {"32012024", false},
        {"01011900", true},
        {"31121899", false},
        {"01010000", false},
        {"31129999", true},
        {"99992024", false},
        {"", false},
        {"1", false},
        {"1503202", false},
        {"150320244", false},
        {"15032024 ", false},
        {" 5032024", false},
        {"  032024", false},
        {"15 32024", false},
        {"1503 024", false},
        {"1503202 ", false},
        {"+5032024", false},
        {"15/03/24", false},
        {"        ", false},
        {"********", false},
        {"1503202\xB4", false},
        {"\xE9"
         "5032024",
         false},
        {"NORMABEV", false},
        {"NORM01  ", false},
        {"PFOC01  ", false},
    };
    for (const cas& c : rows)
        EXPECT_EQ(accepteTexte(verifDateCompleteEtCorrecte, c.texte), c.attendu) << '"' << c.texte << '"';
}

// Every day and near-day from 1890 to 2110.
TEST(IdentifiantsDateComplete, ChaqueJour) {
    using namespace std::chrono;
    for (int annee = 1890; annee <= 2110; ++annee)
        for (unsigned mois = 0; mois <= 13; ++mois)
            for (unsigned jour = 0; jour <= 32; ++jour) {
                const bool reel = annee >= 1900 && year_month_day(year(annee), month(mois), day(jour)).ok();
                const std::string texte = chiffresDe(static_cast<int>(jour), 2) +
                                          chiffresDe(static_cast<int>(mois), 2) + chiffresDe(annee, 4);
                ASSERT_EQ(verifDateCompleteEtCorrecte(texte.c_str()) != 0, reel) << texte;
            }
}

TEST(IdentifiantsDateComplete, ChaqueOctetAChaqueColonne) {
    chaqueOctet([](const std::string& t) { return accepteTexte(verifDateCompleteEtCorrecte, t); }, "11102222",
                {"0123", CHIFFRES, "1", "012", "23456789", CHIFFRES, CHIFFRES, CHIFFRES});
}

// ------------------------------------------------------ EGET holding codes

/** The holding code check under a production kind. */
bool eget(const std::string& production, const std::string& champ, const liste& series = NEV) {
    remplir(valCorpsVSE[C4], production);
    return accepte(fConformEget, "", champ, series);
}

TEST(IdentifiantsEget, Volailles) {
    const cas rows[] = {
        {"AAB12       ", true},
        {"HLZ00       ", true},  // last series of the first body
        {"XPA99       ", true},  // series of the last one
        {"FQM45       ", true},
        {"A,B12       ", true},  // a prefix that straddles a comma
        {",BB12       ", true},
        {",,B12       ", true},   // an empty item
        {"00B12       ", false},  // the bodies' own codes are no series
        {"01B12       ", false},
        {"ZZB12       ", false},
        {"aaB12       ", false},
        {"AAb12       ", false},  // column 3: a capital
        {"AA112       ", false},
        {"AA@12       ", false},
        {"AA[12       ", false},
        {"AA 12       ", false},
        {"AA\xC9"
         "12       ",
         false},
        {"AABA2       ", false},  // columns 4 and 5: digits
        {"AAB1A       ", false},
        {"AAB 2       ", false},
        {"AAB1        ", false},
        {"AAB123      ", false},  // then exactly seven blanks
        {"AAB12      X", false},
        {"AAB12      ", false},
        {"AAB12        ", false},
        {"AAB12", false},
        {"AAB1", false},
        {"AAB", false},
        {"AA", false},
        {"A", false},
        {"", false},
        {"            ", false},
        {"************", false},
        {"NORMABEV", false},
        {"97112       ", false},
    };
    for (const cas& c : rows)
        EXPECT_EQ(eget("V", c.texte), c.attendu) << '"' << c.texte << '"';
}

// Every pair of characters: accepted when it stands anywhere in some body's series.
TEST(IdentifiantsEget, VolaillesChaquePrefixe) {
    std::set<std::string> paires;
    for (int i = 1; i < NEV.nombre(); i += 2) {
        const std::string series = NEV[i].valeur;
        for (std::size_t p = 0; p + 1 < series.size(); ++p)
            paires.insert(series.substr(p, 2));
    }
    for (int a = 1; a < 256; ++a)
        for (int b = 1; b < 256; ++b) {
            const std::string prefixe = {static_cast<char>(static_cast<unsigned char>(a)),
                                         static_cast<char>(static_cast<unsigned char>(b))};
            ASSERT_EQ(eget("V", prefixe + "B12       "), paires.count(prefixe) == 1) << a << ' ' << b;
        }
}

TEST(IdentifiantsEget, VolaillesCompteDeLaListe) {
    const liste une = {{"001IPG", "AA,BA"}, 2};
    const liste deux = {{"001IPG", "AA,BA", "002IPG", "CA,DA"}, 2};
    EXPECT_TRUE(eget("V", "AAB12       ", une));
    EXPECT_FALSE(eget("V", "CAB12       ", une));
    EXPECT_TRUE(eget("V", "AAB12       ", deux));
    EXPECT_TRUE(eget("V", "CAB12       ", deux));
    // A list of another shape has no series, and no list none.
    EXPECT_FALSE(eget("V", "AAB12       ", liste{{"001IPG", "AA"}}));
    EXPECT_FALSE(eget("V", "AAB12       ", sansListe));
    // The list has no part in the other kind.
    EXPECT_TRUE(eget("P", "75AB1       ", sansListe));
}

TEST(IdentifiantsEget, Porcins) {
    const cas rows[] = {
        {"97112       ", true},
        {"75AB1       ", true},
        {"75123       ", true},
        {"75ZZZ       ", true},
        {"20A12       ", true},
        {"98A12       ", true},
        {"2AA12       ", true},
        {"2BA12       ", true},
        {"2A012       ", true},
        {"2CA12       ", false},
        {"2aA12       ", false},
        {"AAB12       ", false},  // a series is no department
        {"00A12       ", false},
        {"96A12       ", false},
        {"99A12       ", false},
        {"75aB1       ", false},  // columns 3 to 5: digits or capitals
        {"75Ab1       ", false},
        {"75ABc       ", false},
        {"75 B1       ", false},
        {"75A 1       ", false},
        {"75AB        ", false},
        {"97 12       ", false},
        {"971 2       ", false},
        {"9711        ", false},
        {"971AZ       ", true},
        {"971az       ", false},
        {"75AB12      ", false},  // then exactly seven blanks
        {"75AB1      X", false},
        {"75AB1      ", false},
        {"75AB1        ", false},
        {"75AB1", false},
        {"75AB", false},
        {"75A", false},
        {"75", false},
        {"97", false},
        {"971", false},
        {"7", false},
        {"", false},
        {"            ", false},
        {"************", false},
        {"\xE9"
         "5AB1       ",
         false},
        {"75\xC9"
         "B1       ",
         false},
        {"NORM01  ", false},
        {"PFOC01  ", false},
    };
    for (const cas& c : rows)
        EXPECT_EQ(eget("P", c.texte), c.attendu) << '"' << c.texte << '"';
}

// All beginnings of two digits, with every third character.
TEST(IdentifiantsEget, PorcinsChaqueDepartement) {
    const std::set<std::string> outreMer = {"971", "97A", "97C", "97D", "972", "97B", "973", "976"};
    for (int dep = 0; dep < 100; ++dep)
        for (int octet = 1; octet < 256; ++octet) {
            const char c = static_cast<char>(static_cast<unsigned char>(octet));
            const std::string debut = chiffresDe(dep, 2) + c;
            const bool alphanumerique = (CHIFFRES + MAJUSCULES).find(c) != std::string::npos;
            const bool attendu =
                dep == 97 ? outreMer.count(debut) == 1 : departementTD(dep) && alphanumerique;
            ASSERT_EQ(eget("P", debut + "12       "), attendu) << debut << ' ' << octet;
        }
}

TEST(IdentifiantsEget, ChaqueOctetAChaqueColonne) {
    const std::string alnum = CHIFFRES + MAJUSCULES;
    chaqueOctet([](const std::string& t) { return eget("P", t); }, "75AB1       ",
                {CHIFFRES, CHIFFRES, alnum, alnum, alnum, BLANC, BLANC, BLANC, BLANC, BLANC, BLANC, BLANC});
    chaqueOctet([](const std::string& t) { return eget("P", t); }, "2A123       ",
                {"2", CHIFFRES + "AB", alnum, alnum, alnum, BLANC, BLANC, BLANC, BLANC, BLANC, BLANC, BLANC});
}

TEST(IdentifiantsEget, GenreDeProduction) {
    // "PA" is a series and "75" a department: each is accepted under its own kind only.
    for (const char* production :
         {"", " ", "v", "p", "V ", " V", "VV", "P ", "PV", "B", "*", "\xD6", "NORM01  "}) {
        EXPECT_FALSE(eget(production, "PAB12       ")) << production;
        EXPECT_FALSE(eget(production, "75AB1       ")) << production;
    }
    EXPECT_TRUE(eget("V", "PAB12       "));
    EXPECT_FALSE(eget("V", "75AB1       "));
    EXPECT_FALSE(eget("P", "PAB12       "));
    EXPECT_TRUE(eget("P", "75AB1       "));
    // The dependency is not looked at.
    remplir(valCorpsVSE[C4], "P");
    EXPECT_TRUE(accepte(fConformEget, "V", "75AB1       ", NEV));
    EXPECT_FALSE(accepte(fConformEget, "V", "PAB12       ", NEV));
}

// ----------------------------------------------------------- departments

TEST(IdentifiantsConform3, ChaqueDebut) {
    for (int n = 0; n < 1000; ++n) {
        const bool attendu = (n >= 1 && n <= 95 && n != 20) || n == 98 || (n >= 971 && n <= 974) || n == 976;
        const std::string debut = chiffresDe(n, 3);
        EXPECT_EQ(accepte(fConform3, "", debut, TDD), attendu) << debut;
        EXPECT_EQ(accepte(fConform3, "", debut + "A1234\xE9   ", TDD), attendu) << debut;
    }
}

TEST(IdentifiantsConform3, Bords) {
    const cas rows[] = {
        {"02A", true},
        {"02B", true},
        {"02AIPG  ", true},
        {"02B 9", true},
        {"02C", false},
        {"02a", false},
        {"020", false},
        {"020IPG", false},
        {"975", false},
        {"975IPG", false},
        {"02", false},
        {"0", false},
        {"", false},
        {" 01", false},
        {"01 ", false},
        {"   ", false},
        {"***", false},
        {"\xE9"
         "01",
         false},
        {"0\xB2"
         "1",
         false},
    };
    for (const cas& c : rows)
        EXPECT_EQ(accepte(fConform3, "", c.texte, TDD), c.attendu) << c.texte;
    // No favour for the special codes.
    for (const std::string& code : CODES_SPECIAUX)
        EXPECT_FALSE(accepte(fConform3, "", code, TDD)) << code;
}

TEST(IdentifiantsConform3, CompteDeLaListe) {
    EXPECT_FALSE(accepte(fConform3, "", "001", sansListe));
    const liste une = {{"001"}};
    EXPECT_TRUE(accepte(fConform3, "", "001", une));
    EXPECT_FALSE(accepte(fConform3, "", "002", une));
    EXPECT_TRUE(accepte(fConform3, "001", "098", TDD));
    // Only three characters of an entry count.
    const liste longue = {{"02AIPG  "}};
    EXPECT_TRUE(accepte(fConform3, "", "02AXYZ", longue));
    EXPECT_FALSE(accepte(fConform3, "", "02BIPG  ", longue));
}

}  // namespace
