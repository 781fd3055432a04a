#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "checks/abattage.h"
#include "checks/dates.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "support/magasin.h"
#include "support/vse.h"
#include "vocabulaire/store.h"

using namespace quilvane;
using namespace essai;

namespace {

std::string blancs(std::size_t n) { return std::string(n, ' '); }

/** Extract members that a check reads, with their contents. */
std::vector<texteLu> notifiant(const std::string& n) { return {{cp.NUME_IDENT_ABAT_NOTIF, n}}; }

/** The verdicts of a check that looks at one member of the extract only,
 *  whatever its own field holds. */
struct casMembre {
    std::string membre;
    bool accepte;
};
void prouverMembre(const sujet& s, char* membre, const std::vector<casMembre>& cas) {
    for (const casMembre& c : cas)
        s.prouver({{"", "", c.accepte},
                   {"FR", "ABCD", c.accepte},
                   {"", blancs(8), c.accepte},
                   {"", blancs(12), c.accepte},
                   {"", "12345678    ", c.accepte}},
                  {{membre, c.membre}});
}

/** A slaughter notice in which every body column is filled. */
std::string avis() {
    return vse("ABAT", "DEM",
               {{63, "FR"},
                {65, "3512345678  "},
                {77, "20"},
                {79, "FR"},
                {81, "35123456    "},
                {93, "10052010"},
                {101, "11052010"},
                {109, "A1B2C3D4"},
                {117, "0450,50"},
                {124, "FR"},
                {126, "35123456    "},
                {138, "C"}});
}

}  // namespace

// -------------------------------------------------------------- presence

TEST(Abattage, PresenceC2RafraichitLExtrait) {
    struct ligne {
        std::string numero;
        bool accepte;
    };
    const std::vector<ligne> LIGNES = {
        {"3512345678  ", true},   {blancs(12), false},    {blancs(11) + "X", true},
        {"X" + blancs(11), true}, {"************", true}, {blancs(11) + "\xA0", true},
    };
    for (const ligne& l : LIGNES) {
        std::string record = avis();
        poser(record, 65, l.numero);
        for (const char* ancien : {"", "ANCIEN", "            "}) {
            remplirMagasin(ancien, {{xdebug, record}});
            EXPECT_EQ(accepte(presence_C2, "", ancien), l.accepte) << "'" << l.numero << "' after " << ancien;
            EXPECT_EQ(cp.NUME_NATI_BOV, l.numero);
            EXPECT_STREQ(cp.CODE_PAYS_BOV, "");
            EXPECT_STREQ(cp.CODE_RESULTAT, "20");
            EXPECT_STREQ(cp.CODE_EXPLOIT_PROVENANCE, "FR");
            EXPECT_STREQ(cp.NUME_EXPLOIT_PROVENANCE, "35123456    ");
            EXPECT_STREQ(cp.DATE_ENTREE_ABAT, "10052010");
            EXPECT_STREQ(cp.DATE_ABATTAGE, "11052010");
            EXPECT_STREQ(cp.NUME_TUERIE, "A1B2C3D4");
            EXPECT_STREQ(cp.POIDS_CARCASSE, "0450,50");
            EXPECT_STREQ(cp.CODE_PAYS_ABAT_NOTIF, "FR");
            EXPECT_STREQ(cp.NUME_IDENT_ABAT_NOTIF, "35123456    ");
            EXPECT_STREQ(cp.INDIC_CREA_INVA_ABATT, "C");
            EXPECT_STREQ(corps(C2), ancien) << "the slots are not the extract's business";
        }
    }
}

TEST(Abattage, PresenceC2SurUnRecordCourt) {
    // A cut number is not twelve blanks; one that is not there is absent.
    for (const std::size_t longueur : {std::size_t{0}, std::size_t{64}, std::size_t{65}, std::size_t{75}}) {
        std::string record = avis().substr(0, longueur);
        if (longueur > 64) record.replace(64, longueur - 64, blancs(longueur - 64));
        remplirMagasin("            ", {{xdebug, record}});
        EXPECT_EQ(accepte(presence_C2, "", "            "), longueur > 64) << longueur;
        EXPECT_EQ(std::string(cp.NUME_NATI_BOV), longueur > 64 ? blancs(longueur - 64) : "") << longueur;
        EXPECT_STREQ(cp.INDIC_CREA_INVA_ABATT, "") << longueur;
    }
    remplirMagasin("", {{xdebug, avis().substr(0, 64) + blancs(12)}});
    EXPECT_FALSE(accepte(presence_C2, "", "3512345678  "));
}

TEST(Abattage, SeulePresenceC2RafraichitLExtrait) {
    const std::vector<sujet> AUTRES = {
        SUJET(presence_C5, FR),
        SUJET(presence_C8),
        SUJET(presence_C11),
        SUJET(fVerif_ASDA),
        SUJET(fVerif_NUM_ASDA, FR),
        SUJET(fVerif_NUM_TUE),
        SUJET(fVerif_chaine_POIDS),
        SUJET(fVerif_POIDS),
        SUJET(fVerif_CODEPE_ABATNOT, FR),
        SUJET(fVerif_NUMID_ABATNOT_CONF),
        SUJET(fVerif_NUMID_ABATNOT_COHER),
        SUJET(fVerif_NUMID_ABATNOT_TABREF),
        SUJET(fVerif_INDIC_ABAT, FR),
        SUJET(fVerifDateInputPost),
        SUJET(fVerifDateAbatPost),
        SUJET(fVerifDateAbatPostEntr),
        SUJET(return_true),
        SUJET(fichier_C11),
        SUJET(verifSpace),
    };
    for (const char* ancien : {"", "ANCIEN"}) {
        remplirMagasin(ancien, {{xdebug, avis()}});
        const std::string avant = etatMagasin();
        for (const sujet& s : AUTRES) {
            accepte(s.verif, "", "35123456    ", *s.sverif);
            EXPECT_TRUE(etatMagasin() == avant) << s.nom;
        }
        accepte(presence_C2, "", "");
        EXPECT_FALSE(etatMagasin() == avant);
    }
}

TEST(Abattage, PresenceC5) {
    prouverMembre(SUJET(presence_C5, FR), cp.NUME_EXPLOIT_PROVENANCE,
                  {{"35123456    ", true},
                   {"X" + blancs(11), true},
                   {" X" + blancs(10), true},
                   {blancs(11) + "X", true},
                   {blancs(11) + "\xA0", true},
                   {"************", true},
                   {"X", true},
                   {"  X", true},
                   {blancs(12), false},
                   {" ", false},
                   {blancs(11), false},
                   {"", false}});
}

TEST(Abattage, PresenceC8) {
    prouverMembre(
        SUJET(presence_C8), cp.NUME_TUERIE,
        {{blancs(8), true},   {"A1B2C3D4", true},     {"12345678", true},     {"abcdwxyz", true},
         {"AZaz09  ", true},  {"A B C D ", true},     {"1       ", true},     {" 1234567", false},
         {"       1", false}, {"12-45678", false},    {"-2345678", false},    {"1234567-", false},
         {"1234567.", false}, {"@2345678", false},  // neighbours of the letters and digits
         {"1[345678", false}, {"12`45678", false},    {"123{5678", false},    {"1234/678", false},
         {"12345:78", false}, {"\3112345678", false}, {"1234567\xE9", false}, {"123456\xA0 ", false},
         {"1234567", false},  {blancs(7), false},     {"A", false},           {"", false}});
}

TEST(Abattage, PresenceC11) {
    prouverMembre(SUJET(presence_C11), cp.NUME_IDENT_ABAT_NOTIF,
                  {{"35123456    ", true},
                   {"OFFICEFR    ", true},
                   {"X" + blancs(11), true},
                   {blancs(11) + "X", true},
                   {blancs(11) + "\xA0", true},
                   {blancs(11), true},  // only twelve blanks are none
                   {" ", true},
                   {"X", true},
                   {blancs(12), false},
                   {"", false}});
}

// ------------------------------------------------------------- provenance

TEST(Abattage, PaysDeProvenance) {
    std::vector<casChamp> cas;
    int acceptes = 0;
    for (char a = 'A'; a <= 'Z'; ++a)
        for (char b = 'A'; b <= 'Z'; ++b) {
            const std::string pays = {a, b};
            const auto est = [&pays](const tValAutorise& v) { return pays == v.valeur; };
            const bool bon =
                std::any_of(TP.begin(), TP.end(), est) || std::any_of(TCPNOCEE.begin(), TCPNOCEE.end(), est);
            acceptes += bon;
            EXPECT_EQ(accepte(fVerif_ASDA, "", pays), bon) << pays;
        }
    EXPECT_EQ(acceptes, TP.nombre() + 1);  // all of TP, and "XS"
    SUJET(fVerif_ASDA)
        .prouver({
            {"", "US", true},
            {"", "FR", true},
            {"", "AF", true},
            {"", "XI", true},  // TP alone, its last
            {"", "RS", true},  // TP alone
            {"", "XS", true},  // TCPNOCEE alone
            {"", "GB", true},  // the last of TCPNOCEE
            {"", "XX", false},
            {"", "GR", false},
            {"", "us", false},
            {"", "", false},
            {"", "U", false},
            {"", "  ", false},
            {"", "**", false},
            {"", "US ", false},
            {"", "USA", false},
            {"", " US", false},
            {"", "U\323", false},
            // The codes that belong to every list do not here.
            {"", "NORMABEV", false},
            {"", "NORM01  ", false},
            {"", "NORM02  ", false},
            {"", "PFOC01  ", false},
            {"XX", "US", true},
            {"US", "XX", false},
        });
}

TEST(Abattage, NumeroDeProvenance) {
    struct ligne {
        std::string pays, indicateur, notifiant;
        bool bon, mauvais;  // with a French number, with another
    };
    const std::vector<ligne> LIGNES = {
        // Foreign holdings are not checked, whatever else the notice says.
        {"DE", "C", "35123456    ", true, true},
        {"DE", "", "35123456    ", true, true},
        {"", "", "", true, true},
        {"  ", "C", "35123456    ", true, true},
        {"fr", "C", "35123456    ", true, true},
        {"F", "C", "35123456    ", true, true},
        // No indicator: the notice is cut.
        {"FR", "", "35123456    ", false, false},
        {"FR", "", "OFFICEFR    ", false, false},
        {"FR", "", "ONICABFR    ", false, false},
        // National notifiers.
        {"FR", "C", "OFFICEFR    ", true, true},
        {"FR", "C", "OFFICE      ", true, true},
        {"FR", "C", "OFFICE", true, true},
        {"FR", " ", "ONICABFR    ", true, true},
        {"FR", "I", "ONICABDE    ", true, true},
        // All others.
        {"FR", "C", "35123456    ", true, false},
        {"FR", " ", "35123456    ", true, false},
        {"FR", "I", "            ", true, false},
        {"FR", "C", "", true, false},
        {"FR", "C", "OFFIC FR    ", true, false},
        {"FR", "C", "OFFIC", true, false},
        {"FR", "C", "ONICA FR    ", true, false},
        {"FR", "C", "office      ", true, false},
        {"FR", "C", " OFFICE     ", true, false},
    };
    const sujet s = SUJET(fVerif_NUM_ASDA, FR);
    for (const ligne& l : LIGNES)
        s.prouver(
            {
                {"", "35123456    ", l.bon},
                {"", "20123456    ", l.bon},
                {"", "98123456    ", l.bon},
                {"", "97523456    ", l.bon},  // no overseas rule
                {"DE", "95123456    ", l.bon},
                {"", "96123456    ", l.mauvais},
                {"", "00123456    ", l.mauvais},
                {"", "2A123456    ", l.mauvais},
                {"", "3512345     ", l.mauvais},
                {"", "351234567   ", l.mauvais},
                {"", "35123456   X", l.mauvais},
                {"", "35123456", l.mauvais},
                {"", "            ", l.mauvais},
                {"", "", l.mauvais},
                {"FR", "NORMABEV    ", l.mauvais},
            },
            {{cp.CODE_EXPLOIT_PROVENANCE, l.pays},
             {cp.INDIC_CREA_INVA_ABATT, l.indicateur},
             {cp.NUME_IDENT_ABAT_NOTIF, l.notifiant}});
}

// ---------------------------------------------------------- slaughterhouse

TEST(Abattage, NumeroDeTuerie) {
    // Also a body that is national but no OFFICE.
    for (const char* n : {"12345678    ", "ONICABFR    ", "OFFIC FR    ", "", "            "})
        SUJET(fVerif_NUM_TUE)
            .prouver(
                {
                    {"", blancs(8), true},   {"", "A2345678", true},  {"", "12345678", true},
                    {"", "z-------", true},  // only the first is looked at
                    {"", "0       ", true},  {"", "A23456789", true}, {"", "Z2345678", true},
                    {"", "a2345678", true},  {"", "92345678", true},  {"", "FRFR    ", true},
                    {"", "-2345678", false}, {"", " 2345678", false}, {"", "@2345678", false},
                    {"", "[2345678", false}, {"", "`2345678", false}, {"", "{2345678", false},
                    {"", "/2345678", false}, {"", ":2345678", false}, {"", "\3112345678", false},
                    {"", "A234567", false},  {"", "FRFR", false},     {"", "", false},
                    {"", blancs(7), false},  {"", blancs(9), false},
                },
                notifiant(n));
}

TEST(Abattage, NumeroDeTuerieDeLOffice) {
    struct ligne {
        std::string provenance, notifiant, bon;
        std::vector<std::string> mauvais;
    };
    const std::vector<ligne> LIGNES = {
        {"FR", "FR", "FRFR", {"FR", "FRF", "FRFRF", "FRDE", "DEFR", "FRFRFRFR", "frfr", "A2345678"}},
        {"DE", "FR", "DEFR", {"FRDE", "DE", "FR", "DEDE", "FRFR", "12345678"}},
        {"FR", "DE", "FRDE", {"DEFR", "FRFR"}},
        // A record without the codes, or with one cut.
        {"FR", "", "FR", {"FRFR", "F", "A2345678"}},
        {"FR", "F", "FRF", {"FR", "FRFR"}},
    };
    for (const ligne& l : LIGNES)
        for (const char* n : {"OFFICEFR    ", "OFFICE", "OFFICEXX1234"}) {
            std::vector<casChamp> cas = {
                {"", blancs(8), true}, {"", " " + l.bon, false}, {"", "", false}, {"", blancs(7), false}};
            const std::string rempli = l.bon + blancs(8 - l.bon.size());
            cas.push_back({"", rempli, true});
            cas.push_back({"", l.bon, true});
            cas.push_back({"", l.bon + " -------", true});  // up to the first blank
            cas.push_back({"", l.bon + "\xA0", false});
            for (const std::string& m : l.mauvais)
                cas.push_back({"", m + blancs(8 - m.size()), false});
            SUJET(fVerif_NUM_TUE)
                .prouver(cas, {{cp.NUME_IDENT_ABAT_NOTIF, n},
                               {cp.CODE_EXPLOIT_PROVENANCE, l.provenance},
                               {cp.CODE_PAYS_ABAT_NOTIF, l.notifiant}});
        }
    // A blank code can never be in a text that ends at its first blank.
    for (const char* champ : {"FR      ", "FR  FR  ", "FRFR    "})
        SUJET(fVerif_NUM_TUE)
            .prouver({{"", champ, false}}, {{cp.NUME_IDENT_ABAT_NOTIF, "OFFICEFR    "},
                                            {cp.CODE_EXPLOIT_PROVENANCE, "FR"},
                                            {cp.CODE_PAYS_ABAT_NOTIF, "  "}});
}

// ----------------------------------------------------------------- weight

TEST(Abattage, FormeEtValeurDuPoids) {
    struct ligne {
        std::string champ;
        bool forme, valeur;
    };
    const std::vector<ligne> LIGNES = {
        {"0450,50", true, true},
        {"0000,00", true, true},
        {"0999,99", true, true},
        {"1000,00", true, true},
        {"1000,01", true, false},
        {"1000,10", true, false},
        {"1000,99", true, false},
        {"1001,00", true, false},
        {"9999,99", true, false},
        {blancs(7), true, true},
        {"0450.50", false, true},
        {"0450 50", false, true},
        {"0450;50", false, true},
        {"1000.01", false, false},
        {"X450,50", false, true},
        {"0X50,50", false, true},
        {"04X0,50", false, true},
        {"045X,50", false, true},
        {"0450,X0", false, true},
        {"0450,5X", false, true},
        {" 450,50", false, true},
        {"0450,5 ", false, true},
        {"0450,\2620", false, true},
        {"-450,50", false, true},
        {"+450,50", false, true},
        {"450,50", false, true},
        {"0450,5", false, true},
        {"0450,500", false, true},
        {"1001,000", false, false},
        {"      0", false, true},
        {blancs(6), false, true},
        {blancs(8), false, true},
        {"", false, true},
        // Numbers end at the first non-digit and with the text.
        {"1000", false, true},
        {"1001", false, false},
        {"1000,", false, true},
        {"1000,0", false, true},
        {"1000,1", false, false},
        {"1000,X9", false, true},
        {"1000, 1", false, false},
        {"1000,001", false, true},  // two hundredths' digits
        {"100,011", false, true},
        {"99999", false, false},
        {"0999500", false, true},  // four digits of kilograms
        {"XXXXXXX", false, true},
    };
    for (const ligne& l : LIGNES) {
        SUJET(fVerif_chaine_POIDS).prouver({{"", l.champ, l.forme}, {"0450,50", l.champ, l.forme}});
        SUJET(fVerif_POIDS).prouver({{"", l.champ, l.valeur}, {"0450,50", l.champ, l.valeur}});
    }
}

// --------------------------------------------------------------- notifier

TEST(Abattage, PaysDuNotifiant) {
    const sujet s = SUJET(fVerif_CODEPE_ABATNOT, FR);
    const auto avec = [](const std::string& n, const std::string& pays) {
        return std::vector<texteLu>{{cp.NUME_IDENT_ABAT_NOTIF, n}, {cp.CODE_PAYS_ABAT_NOTIF, pays}};
    };
    // Not a national body: the field itself must be "FR".
    for (const char* n : {"01234567    ", "ONICA DE    ", "OFFIC DE    ", "onicabDE    ", "            ", ""})
        for (const char* pays : {"DE", "FR", ""})
            s.prouver({{"", "FR", true},
                       {"", "DE", false},
                       {"", "FR ", false},
                       {"", "F", false},
                       {"", "fr", false},
                       {"", "  ", false},
                       {"FR", "", false},
                       {"", "NORMABEV", false},
                       {"", "NORM01  ", false}},
                      avec(n, pays));
    // A national body: the country of the extract, whatever the field.
    struct ligne {
        std::string notifiant, pays;
        bool accepte;
    };
    for (const ligne& l : {
             ligne{"ONICABDE    ", "DE", true},
             {"ONICABDE    ", "FR", false},
             {"OFFICEFR    ", "FR", true},
             {"OFFICEFR    ", "DE", false},
             {"OFFICEFR    ", "FI", false},
             {"OFFICEFR    ", "RR", false},
             {"OFFICEFR    ", "fr", false},
             {"OFFICEFR    ", "F", false},
             {"OFFICEFR    ", "", false},
             {"OFFICE      ", "  ", true},
             {"OFFICE      ", "FR", false},
             {"OFFICEFRDE12", "FR", true},
             {"OFFICEFRDE12", "DE", false},
             {"OFFICE\351\350", "\351\350", true},
             // A notice cut inside the identification.
             {"OFFICEF", "FR", false},
             {"OFFICEF", "F", true},
             {"ONICAB", "", true},
             {"ONICAB", "FR", false},
         })
        s.prouver({{"", "FR", l.accepte}, {"", "DE", l.accepte}, {"", "", l.accepte}},
                  avec(l.notifiant, l.pays));
}

TEST(Abattage, FormeDeLIdentification) {
    SUJET(fVerif_NUMID_ABATNOT_CONF)
        .prouver({
            {"", "35123456    ", true},
            {"", "0112345     ", true},   // seven
            {"", "011234      ", false},  // six
            {"", "01123456    ", true},   // eight
            {"", "011234567   ", false},  // nine
            {"", "0112345678  ", false},  // ten
            {"", "011234567890", false},
            {"", "            ", false},
            {"", "2A123456    ", true},
            {"", "2B12345     ", true},
            {"", "2C123456    ", false},
            {"", "2a123456    ", false},
            {"", "20123456    ", true},
            {"", "95123456    ", true},
            {"", "96123456    ", false},
            {"", "97123456    ", true},
            {"", "98123456    ", true},
            {"", "99123456    ", false},
            {"", "00123456    ", false},
            {"", "0X123456    ", false},
            {"", "01XXXXXX    ", true},  // only the département is looked at
            {"", "01\351\350\347\346\345\344    ", true},
            {"", "\26212345     ", false},
            {"", " 0112345    ", false},
            {"", "0 123456    ", false},
            // Columns 9 and 10 are free behind the first blank, 11 and 12 are blank.
            {"", "01123456 X  ", true},
            {"", "0112345 XX  ", true},
            {"", "01123456  X ", false},
            {"", "01123456   X", false},
            {"", "01123456  \240\240", false},
            {"", "01123456    X", true},
            {"", "01123456   ", false},
            {"", "01123456", false},
            {"", "2A123456", false},
            {"", "", false},
            // National bodies.
            {"", "OFFICEFR    ", true},
            {"", "ONICABDE    ", true},
            {"", "OFFICEF     ", true},
            {"", "OFFICE      ", false},
            {"", "ONICAB      ", false},
            {"", "OFFICEFRX   ", false},
            {"", "OFFICEFR   X", true},
            {"", "ONICABFR  XX", true},
            {"", "OFFICEFR", true},
            {"", "OFFICXFR    ", false},
            {"", "officefr    ", false},
            {"", "ONICACFR    ", false},
            // The codes that belong to every list have no département.
            {"", "NORMABEV    ", false},
            {"", "NORMABEV", false},
            {"", "NORM01  ", false},
            {"01", "99123456    ", false},
        });
}

TEST(Abattage, ReglesSansEffet) {
    for (const sujet& s : {SUJET(fVerif_NUMID_ABATNOT_COHER), SUJET(fVerif_NUMID_ABATNOT_TABREF),
                           SUJET(fVerif_INDIC_ABAT, FR), SUJET(return_true)})
        s.prouver({{"", "", true}, {"", "X", true}, {"", blancs(12), true}, {"FR", "99999999    ", true}});
}

// ---------------------------------------------------- named by no row

TEST(Abattage, IdentificationDuFichier) {
    struct ligne {
        std::string notifiant, fichier, c11;
        bool accepte;
    };
    const std::vector<ligne> LIGNES = {
        {"35123456    ", "35123456", "35123456    ", true},
        {"35123456    ", "35123457", "35123456    ", false},
        {"35123456    ", "3512345", "35123456    ", false},
        {"35123456    ", "351234567", "35123456    ", false},
        {"35123456    ", "", "35123456    ", false},
        {"35123456    ", " 35123456", "35123456    ", false},
        // The digits alone, wherever they stand.
        {"3X5-1 2.345 6", "3512345", "", true},
        {"A1B2C3D4E5F6", "123456", "", true},
        {"123456789012", "123456789012", "", true},
        {"123456789012", "12345678901", "", false},
        {"\2621          ", "1", "", true},
        {"            ", "", "", true},
        {"", "", "", true},
        {"OFFICEFR    ", "", "", true},
        {"OFFICEFR    ", "OFFICEFR", "", false},
        {"", "1", "", false},
        // Otherwise the field as cut from the record, not the extract.
        {"35123456    ", "1", "OFFICEFR    ", true},
        {"35123456    ", "1", "ONICABFR    ", true},
        {"35123456    ", "1", "OFFICE", true},
        {"35123456    ", "1", "2A123456    ", true},
        {"35123456    ", "1", "2B123456    ", true},
        {"35123456    ", "1", "2A", true},
        {"35123456    ", "1", "2C123456    ", false},
        {"35123456    ", "1", "2a123456    ", false},
        {"35123456    ", "1", "2", false},
        {"35123456    ", "1", " 2A", false},
        {"35123456    ", "1", "OFFIC", false},
        {"35123456    ", "1", "ONICAC", false},
        {"35123456    ", "1", "", false},
        {"35123456    ", "1", "1", false},
        {"OFFICEFR    ", "1", "35123456    ", false},
        {"2A123456    ", "1", "35123456    ", false},
    };
    for (const ligne& l : LIGNES)
        SUJET(fichier_C11)
            .prouver(
                {{"", "", l.accepte}, {"2A", "2A123456    ", l.accepte}, {"", "OFFICEFR    ", l.accepte}},
                {{cp.NUME_IDENT_ABAT_NOTIF, l.notifiant.substr(0, 12)},
                 {bufC11, l.fichier},
                 {valCorpsVSE[C11].valeur, l.c11}});
}

TEST(Abattage, DixOuDeuxBlancs) {
    SUJET(verifSpace)
        .prouver({
            {"", "10", true},
            {"", "  ", true},
            {"", "", false},
            {"", "1", false},
            {"", " ", false},
            {"", "   ", false},
            {"", "10 ", false},
            {"", "100", false},
            {"", "1 ", false},
            {"", " 1", false},
            {"", "01", false},
            {"", "00", false},
            {"", "**", false},
            {"", "NORMABEV", false},
            {"10", "20", false},
        });
}

TEST(Abattage, FichierC11LitDouzeChiffres) {
    valCorpsVSE[C11].valeur[0] = '\0';
    std::strcpy(cp.NUME_IDENT_ABAT_NOTIF, "123456789012345");
    std::strcpy(bufC11, "123456789012");
    EXPECT_TRUE(accepte(fichier_C11, "", ""));
    std::strcpy(bufC11, "123456789012345");
    EXPECT_FALSE(accepte(fichier_C11, "", ""));
    cp = {};
    bufC11[0] = '\0';
}
