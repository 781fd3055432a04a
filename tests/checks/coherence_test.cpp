#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <set>
#include <sstream>

#include "checks/coherence.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "support/champ.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

struct cas {
    std::string dependance;
    std::string champ;
    bool attendu;
};

/** Compares the check's verdict on each row with the expected one. */
void verdicts(const char* nom, fVerif* verif, const std::vector<cas>& table,
              const liste& sverif = sansListe) {
    for (const cas& c : table)
        EXPECT_EQ(accepte(verif, c.dependance, c.champ, sverif), c.attendu)
            << nom << " dependance \"" << c.dependance << "\" champ \"" << c.champ << "\"";
}

std::vector<std::string> mots(const std::string& texte) {
    std::istringstream flux(texte);
    std::vector<std::string> r;
    for (std::string mot; flux >> mot;)
        r.push_back(mot);
    return r;
}

bool commencePar(const std::string& texte, const std::string& debut) {
    return texte.compare(0, debut.size(), debut) == 0;
}

/** `n` in at least `largeur` digits. */
std::string chiffres(int n, int largeur) {
    std::string r = std::to_string(n);
    while (r.size() < static_cast<std::size_t>(largeur))
        r.insert(0, 1, '0');
    return r;
}

/** The 101 departments of the bodies: 001 to 095 without 020, Corsica, overseas. */
std::vector<std::string> departements() {
    std::vector<std::string> r;
    for (int d = 1; d <= 95; ++d)
        if (d != 20) r.push_back(chiffres(d, 3));
    for (const char* d : {"02A", "02B", "971", "972", "973", "974", "976"})
        r.emplace_back(d);
    return r;
}

/** All starts of a number: three digits, and those with letters. */
std::vector<std::string> prefixes() {
    std::vector<std::string> r;
    for (int i = 0; i <= 999; ++i)
        r.push_back(chiffres(i, 3));
    for (char c = 'A'; c <= 'Z'; ++c)
        r.push_back(std::string("97") + c);
    for (const char* p : {"2A1", "2B1", "02A", "02B", "   ", "97 ", "97\xC1"})
        r.emplace_back(p);
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

/** `fCoherenCCE` and `pairesTEDC` on texts of their exact length. */
bool essayer(int (*verif)(const char*, const char*), const std::string& a, const std::string& b) {
    const std::vector<char> va(a.c_str(), a.c_str() + a.size() + 1);
    const std::vector<char> vb(b.c_str(), b.c_str() + b.size() + 1);
    return verif(va.data(), vb.data()) != 0;
}

}  // namespace

// ------------------------------------------ numbers and departmental body

TEST(CoherenceCC, ChaqueCorpsEtChaquePrefixe) {
    const std::vector<std::string> debuts = prefixes();
    for (const std::string& dep : departements()) {
        std::vector<std::string> admis = {dep[0] == '0' ? dep.substr(1) : dep};
        if (dep == "02A" || dep == "02B") admis = {"20"};
        if (dep == "974") admis = {"974", "98"};
        for (const std::string& debut : debuts) {
            bool attendu = false;
            for (const std::string& a : admis)
                attendu = attendu || commencePar(debut, a);
            EXPECT_EQ(accepte(fCoherenCC, dep + "IPG  ", debut + "45678    "), attendu)
                << dep << "IPG " << debut;
        }
    }
}

TEST(CoherenceCC, FormesParticulieres) {
    verdicts("fCoherenCC", fCoherenCC,
             {{"02BIPG  ", "20123456    ", true},
              {"02BIPG  ", "2B123456    ", false},
              {"02AIPG  ", "2A123456    ", false},
              {"974IPG  ", "97412345    ", true},
              {"974IPG  ", "98123456    ", true},
              {"976IPG  ", "98123456    ", false},
              {"035IPG  ", "35123456    ", true},
              {"035IPG  ", "03512345    ", false},
              // Only the start of the code and of the number counts.
              {"035", "35", true},
              {"035", "3", false},
              {"035", "", false},
              {"03", "35", false},
              {"", "35", false},
              {"971", "971", true},
              {"971", "97", false},
              {"971", "", false},
              {"97", "97", false},
              {"974", "98", true},
              {"974", "9", false},
              {"02A", "20", true},
              {"02A", "2", false},
              {"02A", "", false},
              {"02", "20", false},
              {"02a", "2a", true},
              {"02C", "2C", true},
              {"970IPG  ", "97012345    ", false},
              {"970IPG  ", "70123456    ", true},
              {"975IPG  ", "97512345    ", false},
              {"975IPG  ", "75123456    ", true},
              {"977IPG  ", "77123456    ", true},
              {"098IPG  ", "98123456    ", true},
              {"020IPG  ", "20123456    ", true},
              {"0\3119IPG  ", "\3119", true},
              {"0\3119IPG  ", "I9", false}});
}

TEST(CoherenceCC, LePointFocalCouvreTout) {
    for (const char* numero : {"", " ", "35123456    ", "2B", "************", "\xFF\xFE"}) {
        EXPECT_TRUE(accepte(fCoherenCC, "POINTFOC", numero)) << numero;
        EXPECT_TRUE(accepte(fCoherenCC, "POINTFOCAL", numero)) << numero;
        EXPECT_FALSE(accepte(fCoherenCC, "POINTFO", numero)) << numero;
        EXPECT_FALSE(accepte(fCoherenCC, "POINTFO ", numero)) << numero;
        EXPECT_FALSE(accepte(fCoherenCC, "pointfoc", numero)) << numero;
        // The four special codes have no favour here.
        for (const char* code : {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "})
            EXPECT_FALSE(accepte(fCoherenCC, code, numero)) << code << " " << numero;
    }
    EXPECT_FALSE(accepte(fCoherenCC, "035IPG  ", "POINTFOC"));
    EXPECT_FALSE(accepte(fCoherenCC, "035IPG  ", "NORM01  "));
    EXPECT_TRUE(accepte(fCoherenCC, "POINTFO ", "OI"));
}

TEST(CoherenceCC, CauseJ) {
    struct ligne {
        const char* cause;
        bool dispense;
    };
    for (const ligne& l : {ligne{"J", true},
                           {"", false},
                           {" ", false},
                           {"j", false},
                           {"J ", false},
                           {"JJ", false},
                           {"A", false},
                           {"\xCA", false}}) {
        const slotTenu c5(C5, l.cause);
        verdicts(l.cause, fCoherenCC_tr,
                 {{"035IPG  ", "35123456    ", true},
                  {"035IPG  ", "36123456    ", l.dispense},
                  {"02BIPG  ", "20123456    ", true},
                  {"02BIPG  ", "2B123456    ", l.dispense},
                  {"974IPG  ", "98123456    ", true},
                  {"974IPG  ", "97112345    ", l.dispense},
                  {"POINTFOC", "36123456    ", true},
                  {"", "36", l.dispense},
                  {"035IPG  ", "", l.dispense}});
        EXPECT_FALSE(accepte(fCoherenCC, "035IPG  ", "36123456    ")) << "the cause serves movements only";
    }
}

TEST(CoherenceCCD, DepartementDuCorps) {
    std::vector<std::string> tous = departements();
    tous.insert(tous.end(), {"020", "098", "975", "099", "   "});
    for (const std::string& code : departements())
        for (const std::string& dep : tous)
            EXPECT_EQ(accepte(fCoherenCCD, code + "IPG  ", dep),
                      code == dep || (code == "974" && dep == "098"))
                << code << " " << dep;
    verdicts("fCoherenCCD", fCoherenCCD,
             {{"974IPG  ", "974", true},
              {"974IPG  ", "098", true},
              {"974IPG  ", "0981", true},
              {"974IPG  ", "98 ", false},
              {"974IPG  ", "09", false},
              {"974IPG  ", "971", false},
              {"97", "098", false},
              {"035IPG  ", "0359", true},
              {"035IPG  ", "03", false},
              {"035IPG  ", "", false},
              {"03", "035", false},
              {"", "035", false},
              {"02AIPG  ", "02a", false},
              {"02AIPG  ", "02\xC1", false},
              {"POINTFOC", "035", false},
              {"POINTFOC", "POI", true}});
}

TEST(CoherenceCCDR, GroupesDeDepartements) {
    const std::vector<std::vector<std::string>> groupes = {
        mots("004 083"),
        mots("013 084"),
        mots("010 045 089"),
        mots("022 029 035 056"),
        mots("002 060 062 080"),
        mots("025 039 052 070 090"),
        mots("054 055 057 068 088"),
        mots("014 027 050 053 061 076"),
        mots("016 017 037 044 049 079 086"),
        mots("075 077 078 091 092 093 094 095"),
        mots("009 011 012 015 02A 020 030 031 032 033 034 047 048 065 066 081 082"),
    };
    std::map<std::string, std::size_t> groupeDe;
    for (std::size_t g = 0; g < groupes.size(); ++g)
        for (const std::string& dep : groupes[g])
            groupeDe[dep] = g;
    std::vector<std::string> tous = departements();
    tous.insert(tous.end(), {"020", "098", "975", "02a", "   "});
    for (const std::string& a : tous)
        for (const std::string& b : tous) {
            const bool memeGroupe =
                groupeDe.count(a) == 1 && groupeDe.count(b) == 1 && groupeDe[a] == groupeDe[b];
            EXPECT_EQ(accepte(fCoherenCCDR, a, b), a == b || memeGroupe) << a << " " << b;
        }
}

TEST(CoherenceCCDR, TroisCaracteresComptent) {
    verdicts("fCoherenCCDR", fCoherenCCDR,
             {{"004IPG  ", "083", true},
              {"083", "004IPG  ", true},
              {"013IPG  ", "013ARS  ", true},
              {"099IPG  ", "099", true},
              {"004", "013", false},
              {"083", "084", false},
              {"022", "002", false},
              {"025", "054", false},
              {"00", "083", false},
              {"004", "08", false},
              {"", "004", false},
              {"004", "", false},
              {"NORM01  ", "NORM02  ", true},
              {"NORM01  ", "PFOC01  ", false},
              {"\31104", "083", false}});
}

// ---------------------------------------------- emitter and departmental body

namespace {

/** The departmental bodies of each regional body. */
const std::map<std::string, std::vector<std::string>> REGIONS = {
    {"013", mots("004 005 006 013 083 084")},
    {"025", mots("025 039 070 090 008 051")},
    {"042", mots("007 026 038 042 069")},
    {"054", mots("052 054 055 057 067 068 088")},
    {"059", mots("002 059 060 062 080")},
    {"074", mots("073 074")},
    {"081", mots("009 011 012 015 019 02A 024 030 031 032 033 034 040 046 047 048 064 065 066 081 082 087")},
    {"089", mots("010 045 075 077 078 089 091 092 093 094 095")},
    {"350", mots("014 016 017 022 027 028 029 035 037 041 044 049 050 053 056 061 072 076 079 085 086")},
};

const std::pair<const char*, const char*> NATIONAUX[] = {
    {"NORM01  ", "NORMABEV"},
    {"NORM02  ", "NORMABEV"},
    {"PFOC01  ", "POINTFOC"},
    {"OVINFOS ", "OVINFOS "},
};

}  // namespace

TEST(CoherenceTEDC, ChaquePaireRegionale) {
    std::size_t paires = 0;
    for (const auto& [region, membres] : REGIONS) {
        paires += membres.size();
        for (const std::string& dep : departements()) {
            const bool attendu = std::find(membres.begin(), membres.end(), dep) != membres.end();
            const std::string emetteur = region + "ARS  ";
            EXPECT_EQ(essayer(pairesTEDC, emetteur, dep + "IPG  "), attendu) << region << " " << dep;
            EXPECT_EQ(essayer(fCoherenCCE, emetteur, dep + "IPG  "), attendu) << region << " " << dep;
            // Both codes compare whole.
            EXPECT_FALSE(essayer(pairesTEDC, emetteur, dep + "IPG ")) << region << " " << dep;
            EXPECT_FALSE(essayer(pairesTEDC, emetteur, dep + "IPG   ")) << region << " " << dep;
            EXPECT_FALSE(essayer(pairesTEDC, emetteur, dep)) << region << " " << dep;
            EXPECT_FALSE(essayer(pairesTEDC, region + "ARS ", dep + "IPG  ")) << region << " " << dep;
            EXPECT_FALSE(essayer(pairesTEDC, region + "IPG  ", dep + "IPG  ")) << region << " " << dep;
            EXPECT_FALSE(essayer(pairesTEDC, dep + "IPG  ", emetteur)) << region << " " << dep;
        }
    }
    EXPECT_EQ(paires, 85U);
}

TEST(CoherenceTEDC, PairesNationales) {
    for (const auto& [emetteur, code] : NATIONAUX) {
        EXPECT_TRUE(essayer(pairesTEDC, emetteur, code)) << emetteur;
        for (const std::string autre : {"", "013IPG  ", "NORM01  ", "NORMABEV", "POINTFOC", "OVINFOS "})
            EXPECT_EQ(essayer(pairesTEDC, emetteur, autre), autre == code) << emetteur << " " << autre;
    }
    EXPECT_FALSE(essayer(pairesTEDC, "OVINFOS", "OVINFOS"));
    EXPECT_FALSE(essayer(pairesTEDC, "NORMABEV", "NORM01  "));
}

TEST(CoherenceTEDC, LaLigneVideNestPasUnePaire) {
    EXPECT_FALSE(essayer(pairesTEDC, "", ""));
    EXPECT_FALSE(essayer(pairesTEDC, "", "NORMABEV"));
    EXPECT_FALSE(essayer(pairesTEDC, "013ARS  ", ""));
    EXPECT_FALSE(essayer(pairesTEDC, "        ", "        "));
    EXPECT_EQ(LenTEDC, 92);
    EXPECT_EQ(TEDC.ligne(89)[0].valeur, nullptr);
}

TEST(CoherenceCCE, EgauxNationauxOuPaire) {
    struct ligne {
        const char* emetteur;
        const char* codeDep;
        bool attendu;
    };
    const ligne table[] = {
        {"013ARS  ", "004IPG  ", true},
        {"013ARS  ", "025IPG  ", false},
        {"350ARS  ", "086IPG  ", true},
        {"350ARS  ", "087IPG  ", false},
        {"350ARS  ", "036IPG  ", false},
        // Equal codes, whatever they are.
        {"035IPG  ", "035IPG  ", true},
        {"XXXXXXXX", "XXXXXXXX", true},
        {"\xE9t\xE9     ", "\xE9t\xE9     ", true},
        {"", "", true},
        {"        ", "        ", true},
        {"035IPG  ", "035IPG ", false},
        {"035IPG  ", "036IPG  ", false},
        {"035IPG  ", "", false},
        {"", "035IPG  ", false},
        // National emitters by their first six characters.
        {"NORM01  ", "004IPG  ", true},
        {"NORM02  ", "004IPG  ", true},
        {"PFOC01  ", "004IPG  ", true},
        {"NORM01  ", "", true},
        {"NORM01XX", "004IPG  ", true},
        {"NORM02", "976IPG  ", true},
        {"PFOC019 ", "976IPG  ", true},
        {"NORM0", "004IPG  ", false},
        {"NORM00  ", "004IPG  ", false},
        {"NORM03  ", "004IPG  ", false},
        {"PFOC00  ", "004IPG  ", false},
        {"PFOC02  ", "004IPG  ", false},
        {"NORM1   ", "004IPG  ", false},
        {" NORM01 ", "004IPG  ", false},
        {"norm01  ", "004IPG  ", false},
        {"NORMABEV", "004IPG  ", false},
        {"POINTFOC", "004IPG  ", false},
        {"OVINFOS ", "OVINFOS ", true},
        {"OVINFOS ", "004IPG  ", false},
        // Only the emitter is national.
        {"004IPG  ", "NORM01  ", false},
        {"004IPG  ", "NORMABEV", false},
        {"004IPG  ", "PFOC01  ", false},
        {"004IPG  ", "013ARS  ", false},
    };
    for (const ligne& l : table)
        EXPECT_EQ(essayer(fCoherenCCE, l.emetteur, l.codeDep), l.attendu)
            << "\"" << l.emetteur << "\" \"" << l.codeDep << "\"";
}

// -------------------------------------------------- holding codes of EGET

TEST(CoherenceEgetVolailles, ChaqueCorpsEtChaqueSerie) {
    const slotTenu c4(C4, "V");
    std::string lettres = ",";
    for (char c = 'A'; c <= 'Z'; ++c)
        lettres += c;
    for (int i = 0; i + 1 < NEV.nombre(); i += 2) {
        const std::string code = NEV[i].valeur;
        const std::string series = NEV[i + 1].valeur;
        for (const char a : lettres)
            for (const char b : lettres) {
                const std::string serie = {a, b};
                EXPECT_EQ(accepte(fCoherenCCEget, code + "  ", serie + "A12       ", NEV),
                          series.find(serie) != std::string::npos)
                    << code << " " << serie;
            }
    }
}

TEST(CoherenceEgetVolailles, SeriesCommeTexte) {
    const slotTenu c4(C4, "V");
    verdicts("fCoherenCCEget", fCoherenCCEget,
             {{"001IPG  ", "AAA12       ", true},
              {"001IPG  ", "BAA12       ", true},
              {"001IPG  ", "HLA12       ", true},
              {"001IPG  ", "CAA12       ", false},
              {"002IPG  ", "CAA12       ", true},
              {"002IPG  ", "AAA12       ", false},
              {"976IPG  ", "XPA12       ", true},
              {"976IPG  ", "XOA12       ", false},
              {"02AIPG  ", "ZAA12       ", true},
              {"02BIPG  ", "ABA12       ", true},
              {"02BIPG  ", "ZAA12       ", false},
              // A series may straddle a comma: "AA,BA,,HL".
              {"001IPG  ", "A,A12       ", true},
              {"001IPG  ", ",BA12       ", true},
              {"001IPG  ", ",,A12       ", true},
              {"001IPG  ", ",HA12       ", true},
              {"001IPG  ", "L,A12       ", false},
              {"001IPG  ", "ABA12       ", false},
              {"001IPG  ", "AA", true},
              {"001IPG  ", "aaA12       ", false},
              {"001IPG  ", "01A12       ", false},
              {"001IPG  ", "  A12       ", false},
              {"001IPG  ", "A\301A12       ", false},
              {"001IPG  ", "NORM01  ", false},
              // Six characters of the body's code are compared.
              {"001IPG", "AAA12       ", true},
              {"001IPGXX", "AAA12       ", true},
              {"001IP", "AAA12       ", false},
              {"001ARS  ", "AAA12       ", false},
              {"020IPG  ", "AAA12       ", false},
              {"975IPG  ", "AAA12       ", false},
              {"POINTFOC", "AAA12       ", false},
              {"NORM01  ", "AAA12       ", false},
              {"", "AAA12       ", false}},
             NEV);
}

TEST(CoherenceEgetVolailles, BoutsDeLaListe) {
    const slotTenu c4(C4, "V");
    const liste quatre = {{"001IPG", "AA", "002IPG", "BB,CC", "001IPG", "DD", "003IPG", "EE"}, 2};
    const liste une = {{"001IPG", "AA"}, 2};
    const liste simple = {{"001IPG", "AA"}};
    struct ligne {
        const char* code;
        const char* champ;
        const liste& series;
        bool attendu;
    };
    const ligne table[] = {
        {"001IPG  ", "AAA12       ", quatre, true},
        {"001IPG  ", "DDA12       ", quatre, false},  // the first pair decides
        {"002IPG  ", "CCA12       ", quatre, true},
        {"003IPG  ", "EEA12       ", quatre, true},
        {"003IPG  ", "EEA12       ", une, false},
        {"001IPG  ", "AAA12       ", une, true},
        {"002IPG  ", "BBA12       ", une, false},
        {"001IPG  ", "AAA12       ", simple, false},
        {"001IPG  ", "AAA12       ", sansListe, false},
    };
    for (const ligne& l : table)
        EXPECT_EQ(accepte(fCoherenCCEget, l.code, l.champ, l.series), l.attendu)
            << l.code << l.champ << l.series.nombre();
}

TEST(CoherenceEgetPorcins, ChaqueCorpsEtChaquePrefixe) {
    const slotTenu c4(C4, "P");
    const std::map<std::string, std::vector<std::string>> outreMer = {
        {"971", mots("971 97A 97C 97D")},
        {"972", mots("972 97B")},
        {"973", {"973"}},
        {"974", {"98"}},
        {"976", {"976"}},
    };
    const std::vector<std::string> debuts = prefixes();
    for (const std::string& dep : departements()) {
        const auto particulier = outreMer.find(dep);
        const std::vector<std::string> admis =
            particulier != outreMer.end() ? particulier->second : std::vector{dep.substr(1)};
        for (const std::string& debut : debuts) {
            bool attendu = false;
            for (const std::string& a : admis)
                attendu = attendu || commencePar(debut, a);
            EXPECT_EQ(accepte(fCoherenCCEget, dep + "IPG  ", debut + "12       ", NEV), attendu)
                << dep << " " << debut;
        }
    }
}

TEST(CoherenceEgetPorcins, CodesParticuliers) {
    const slotTenu c4(C4, "P");
    verdicts("fCoherenCCEget", fCoherenCCEget,
             {{"02AIPG  ", "2AA12       ", true},
              {"02AIPG  ", "20A12       ", false},
              {"02BIPG  ", "2BA12       ", true},
              {"971IPG  ", "97a12       ", false},
              {"971IPG  ", "97B12       ", false},
              {"971IPG  ", "97", false},
              {"971IPG  ", "", false},
              {"972IPG  ", "97A12       ", false},
              {"973IPG  ", "97C12       ", false},
              {"974IPG  ", "98012       ", true},
              {"974IPG  ", "98", true},
              {"974IPG  ", "9", false},
              {"974IPG  ", "97412       ", false},
              {"976IPG  ", "97612       ", true},
              {"976IPG  ", "98012       ", false},
              {"035IPG  ", "35A12       ", true},
              {"035IPG  ", "3", false},
              {"035IPG  ", "", false},
              // Overseas goes by six characters of the body's code.
              {"971IPGXX", "97A12       ", true},
              {"971IPG", "97A12       ", true},
              {"971ARS  ", "97A12       ", false},
              {"971ARS  ", "71A12       ", true},
              {"971IP", "97A12       ", false},
              {"972IP", "97B12       ", false},
              {"973IP", "97312       ", false},
              {"976IP", "97612       ", false},
              {"971IPA  ", "97A12       ", false},
              {"972IPA  ", "97B12       ", false},
              {"973IPA  ", "97312       ", false},
              {"974IPA  ", "98012       ", false},
              {"976IPA  ", "97612       ", false},
              {"974IP", "98012       ", false},
              {"974IP", "74012       ", true},
              {"975IPG  ", "97512       ", false},
              {"975IPG  ", "75012       ", true},
              {"POINTFOC", "OIA12       ", true},
              {"POINTFOC", "35A12       ", false},
              {"035IPG  ", "NORM01  ", false},
              {"", "35A12       ", false},
              {"0\3111IPG  ", "\3111A12       ", true},
              {"0\3111IPG  ", "I1A12       ", false}},
             NEV);
    EXPECT_TRUE(accepte(fCoherenCCEget, "035IPG  ", "35A12       ", sansListe)) << "needs no list";
}

TEST(CoherenceEget, AutreProduction) {
    for (const char* production : {"", " ", "B", "p", "v", "P ", "V ", "PV", "VP", "\xD0"}) {
        const slotTenu c4(C4, production);
        for (const char* champ : {"AAA12       ", "01A12       ", "", "97112       "})
            for (const char* code : {"001IPG  ", "971IPG  ", "POINTFOC"})
                EXPECT_FALSE(accepte(fCoherenCCEget, code, champ, NEV))
                    << "\"" << production << "\" " << code << " " << champ;
    }
}

// -------------------------------------------- ovine and caprine ranges

namespace {

struct plageOC {
    std::string code;
    std::string de;
    std::string a;
};

// clang-format off
const plageOC SUPPLEMENTS[] = {
    {"076IPG", "655001", "655499"}, {"022IPG", "655500", "657499"}, {"035IPG", "657500", "659499"},
    {"076IPG", "659500", "660499"}, {"022IPG", "660500", "661999"}, {"024IPG", "662000", "664499"},
    {"029IPG", "664500", "667499"}, {"031IPG", "667500", "667999"}, {"033IPG", "668000", "668499"},
    {"035IPG", "668500", "673499"}, {"042IPG", "673500", "673999"}, {"043IPG", "674000", "674999"},
    {"049IPG", "674500", "674999"}, {"053IPG", "675000", "677499"}, {"056IPG", "677500", "677999"},
    {"059IPG", "678000", "678999"}, {"061IPG", "679000", "679999"}, {"072IPG", "680000", "680499"},
    {"076IPG", "680500", "683499"},
};
// clang-format on

/** The numbers beside a bound, and the texts just below and above it. */
std::vector<std::string> voisins(const std::string& borne) {
    const int n = std::stoi(borne);
    return {chiffres(n - 1, 6), borne, chiffres(n + 1, 6), borne.substr(0, 5) + "/",
            borne.substr(0, 5) + ":"};
}

}  // namespace

TEST(CoherenceIndM, ChaqueCorpsAuxBordsDeChaquePlage) {
    std::vector<plageOC> plages;
    for (int i = 0; i + 2 < IND_M.nombre(); i += 3)
        plages.push_back({IND_M[i].valeur, IND_M[i + 1].valeur, IND_M[i + 2].valeur});
    ASSERT_EQ(plages.size(), 101U);
    plages.insert(plages.end(), std::begin(SUPPLEMENTS), std::end(SUPPLEMENTS));
    std::set<std::string> numeros = {"000000", "099999", "700000", "999999"};
    for (const plageOC& p : plages)
        for (const std::string& borne : {p.de, p.a})
            for (const std::string& n : voisins(borne))
                numeros.insert(n);

    for (const std::string& dep : departements()) {
        const std::string code = dep + "IPG";
        for (const std::string& n : numeros) {
            bool attendu = false;
            for (const plageOC& p : plages)
                attendu = attendu || (code == p.code && n >= p.de && n <= p.a);
            EXPECT_EQ(accepte(fCoheren_OC_IND_M, code + "  ", n + "      ", IND_M), attendu)
                << code << " " << n;
        }
    }
}

TEST(CoherenceIndM, BornesComprises) {
    verdicts("fCoheren_OC_IND_M", fCoheren_OC_IND_M,
             {{"001IPG  ", "099999      ", false},
              {"001IPG  ", "100000      ", true},
              {"001IPG  ", "104999      ", true},
              {"001IPG  ", "105000      ", false},
              {"001IPG  ", "10499999999 ", true},
              {"002IPG  ", "105000      ", true},
              {"086IPG  ", "575009      ", false},
              {"086IPG  ", "575010      ", true},
              {"085IPG  ", "575009      ", true},
              {"085IPG  ", "575010      ", false},
              {"075IPG  ", "614000      ", true},
              {"075IPG  ", "614499      ", true},
              {"075IPG  ", "614500      ", false},
              {"092IPG  ", "614500      ", true},
              {"076IPG  ", "655000      ", false},
              {"076IPG  ", "655100      ", true},
              {"076IPG  ", "660000      ", true},
              {"076IPG  ", "681000      ", true},
              {"076IPG  ", "520000      ", true},
              {"076IPG  ", "683500      ", false},
              // Ranges shared by two bodies.
              {"043IPG  ", "674499      ", true},
              {"049IPG  ", "674499      ", false},
              {"043IPG  ", "674500      ", true},
              {"049IPG  ", "674500      ", true},
              {"043IPG  ", "674999      ", true},
              {"049IPG  ", "674999      ", true},
              {"043IPG  ", "675000      ", false},
              {"049IPG  ", "675000      ", false}},
             IND_M);
}

TEST(CoherenceIndM, LeCorpsInconnuAlaDernierePlage) {
    for (const char* code : {"020IPG  ", "975IPG  ", "POINTFOC", "NORM01  ", "        ", "", "001IP",
                             "001ARS  ", "001ipg  ", "0\2601IPG  "})
        verdicts("fCoheren_OC_IND_M", fCoheren_OC_IND_M,
                 {{code, "649999      ", false},
                  {code, "650000      ", true},
                  {code, "655000      ", true},
                  {code, "655001      ", false},
                  {code, "100000      ", false},
                  {code, "681000      ", false},
                  {code, "", false},
                  {code, "            ", false}},
                 IND_M);
    // Six characters of the code are compared.
    for (const char* code : {"001IPG", "001IPGXX"})
        verdicts("fCoheren_OC_IND_M", fCoheren_OC_IND_M,
                 {{code, "100000      ", true}, {code, "650000      ", false}}, IND_M);
    EXPECT_TRUE(accepte(fCoheren_OC_IND_M, "076IPGXX", "681000      ", IND_M));
    EXPECT_FALSE(accepte(fCoheren_OC_IND_M, "076IP", "681000      ", IND_M));
}

TEST(CoherenceIndM, ComparaisonDeTextes) {
    verdicts("fCoheren_OC_IND_M", fCoheren_OC_IND_M,
             {{"001IPG  ", "1000", false},  // a shorter text stands before the bound
              {"001IPG  ", "10001", true},  // ... or inside the range
              {"001IPG  ", "104999", true},
              {"001IPG  ", "10 000      ", false},
              {"001IPG  ", "10000/      ", false},
              {"001IPG  ", "10000:      ", true},
              {"001IPG  ", "10499:      ", false},
              {"001IPG  ", "1000AB      ", true},
              {"001IPG  ", "10499\xB9      ", false},
              {"001IPG  ", "1000\2719      ", true},
              {"001IPG  ", "\26100000      ", false},
              {"001IPG  ", "NORM01  ", false},
              {"001IPG  ", "", false}},
             IND_M);
}

TEST(CoherenceIndM, ListeDesPlages) {
    const liste trois = {
        {"001IPG", "100000", "104999", "001IPG", "200000", "204999", "002IPG", "300000", "304999"}, 3};
    const liste une = {{"001IPG", "100000", "104999"}, 3};
    verdicts("three triples", fCoheren_OC_IND_M,
             {{"001IPG  ", "100000      ", true},
              {"001IPG  ", "200000      ", false},  // the first triple stays current
              {"002IPG  ", "300000      ", true},
              {"003IPG  ", "304999      ", true},
              {"003IPG  ", "305000      ", false},
              {"003IPG  ", "100000      ", false},
              // The supplementary ranges do not depend on the list.
              {"076IPG  ", "683499      ", true},
              {"076IPG  ", "300000      ", true}},
             trois);
    verdicts("one triple", fCoheren_OC_IND_M,
             {{"001IPG  ", "104999      ", true},
              {"002IPG  ", "104999      ", true},
              {"002IPG  ", "300000      ", false}},
             une);
    verdicts("no triple", fCoheren_OC_IND_M,
             {{"001IPG  ", "100000      ", false},
              {"975IPG  ", "650000      ", false},
              {"076IPG  ", "683499      ", true}});
}

// ------------------------------------------------------ dates in order

TEST(CoherenceDate, AvantApresEtLeJourMeme) {
    EXPECT_EQ(SUP, 0);
    EXPECT_EQ(INF, 1);
    struct ligne {
        const char* reference;
        const char* date;
        int ordre;  // of the date behind the reference: -1 before, 0 same, 1 after
    };
    const ligne table[] = {
        {"15032024", "15032024", 0},
        {"15032024", "14032024", -1},
        {"15032024", "16032024", 1},
        {"15032024", "16022024", -1},
        {"15032024", "14042024", 1},
        {"15032024", "16042023", -1},
        {"15032024", "14022025", 1},
        {"15032024", "31122023", -1},
        {"15032024", "01012025", 1},
        {"31121999", "01012000", 1},
        {"15032024", "15039999", 1},
        {"31129999", "31129999", 0},
        {"15032024", "00000000", -1},
        // Blanks of the date count as zeros.
        {"15032024", "  032024", -1},
        {"01032024", "  032024", -1},
        {"00032024", "  032024", 0},
        {"15032024", "    2024", -1},
        {"00002024", "    2024", 0},
        {"15032024", "  042024", 1},
        {"15032024", "    2025", 1},
        {"15032024", "        ", -1},
        {"00000000", "        ", 0},
        {"15032024", "1 032024", -1},
        {"10032024", "1 032024", 0},
        {"05032024", " 5032024", 0},
        // Those of the reference stand as they are, below every digit.
        {"  032024", "00032024", 1},
        {"  032024", "  032024", 1},
        {"    2024", "    2024", 1},
        {"        ", "        ", 1},
        {"        ", "00000000", 1},
        {"  032024", "31022024", -1},
        {"    2024", "31122023", -1},
        // No calendar: texts in order.
        {"28022023", "31022023", 1},
        {"15032024", "99992024", 1},
        {"15032024", "99992023", -1},
        {"15032024", "********", -1},
        {"15032024", "ABCDEFGH", 1},
        {"15032024", "\3515032024", 1},
        {"\3515032024", "95032024", -1},
        {"1503202\xB4", "15032029", -1},
        {"~5032024", "\2405032024", 1},
    };
    for (const ligne& l : table) {
        EXPECT_EQ(fCoherenDCSupInf(l.reference, l.date, INF) != 0, l.ordre <= 0) << l.reference << l.date;
        EXPECT_EQ(fCoherenDCSupInf(l.reference, l.date, SUP) != 0, l.ordre >= 0) << l.reference << l.date;
        EXPECT_EQ(accepte(fCoherenDC, l.reference, l.date), l.ordre <= 0) << l.reference << l.date;
        EXPECT_EQ(accepte(fCoherenDateSup, l.reference, l.date), l.ordre >= 0) << l.reference << l.date;
    }
}

TEST(CoherenceDate, DatesCoupees) {
    struct ligne {
        const char* reference;
        const char* date;
        int ordre;
    };
    const ligne table[] = {
        // A date that ends inside or before its year has no more than that.
        {"15032024", "1503202", -1},
        {"15032024", "1503203", 1},
        {"15032024", "150320", -1},
        {"15032024", "150321", 1},
        {"15032024", "15032", -1},
        {"15032024", "15033", 1},
        {"15032024", "1503 ", -1},
        {"15032024", "1503", -1},
        {"15032024", "99", -1},
        {"15032024", "", -1},
        {"1503202", "15032024", 1},
        {"1503203", "15032024", -1},
        {"150320", "15032024", 1},
        {"1503", "15032024", 1},
        {"1503", "        ", 1},
        {"", "15032024", 1},
        {"", "", 0},
        {"", "1503", 0},
        {"9", "1503", 0},
        {"1503202", "0101202", 0},
        {"15032", "  032", 0},
        {"15030", "1503 ", 0},
        {"1503 ", "1503 ", 1},
    };
    for (const ligne& l : table) {
        EXPECT_EQ(accepte(fCoherenDC, l.reference, l.date), l.ordre <= 0)
            << "\"" << l.reference << "\" \"" << l.date << "\"";
        EXPECT_EQ(accepte(fCoherenDateSup, l.reference, l.date), l.ordre >= 0)
            << "\"" << l.reference << "\" \"" << l.date << "\"";
    }
}

TEST(CoherenceDate, JourPourJourContreLOrdreDuCalendrier) {
    using namespace std::chrono;
    const auto texte = [](sys_days jour) {
        const year_month_day d(jour);
        return chiffres(static_cast<int>(static_cast<unsigned>(d.day())), 2) +
               chiffres(static_cast<int>(static_cast<unsigned>(d.month())), 2) +
               chiffres(static_cast<int>(d.year()), 4);
    };
    const sys_days debut(year(2023) / 11 / 1);
    for (sys_days a = debut; a < debut + days(140); a += days(1))
        for (sys_days b = debut; b < debut + days(140); b += days(7)) {
            EXPECT_EQ(accepte(fCoherenDC, texte(a), texte(b)), b <= a) << texte(a) << " " << texte(b);
            EXPECT_EQ(accepte(fCoherenDateSup, texte(a), texte(b)), b >= a) << texte(a) << " " << texte(b);
        }
}

TEST(CoherenceDate, UnAnDePlus) {
    struct ligne {
        const char* reference;
        const char* date;
        bool memeAnnee;  // not after the reference
        bool anSuivant;  // not after the same day one year later
    };
    const ligne table[] = {
        {"15032024", "14032024", true, true},
        {"15032024", "15032024", true, true},
        {"15032024", "16032024", false, true},
        {"15032024", "31122024", false, true},
        {"15032024", "14032025", false, true},
        {"15032024", "15032025", false, true},
        {"15032024", "16032025", false, false},
        {"15032024", "14042025", false, false},
        {"15032024", "14032026", false, false},
        {"31121999", "31122000", false, true},
        {"31121999", "01012001", false, false},
        {"29022024", "28022025", false, true},
        {"29022024", "29022025", false, true},
        {"29022024", "01032025", false, false},
        // Blanks of the date count as zeros, those of the reference do not.
        {"15032024", "  032025", false, true},
        {"15032024", "    2025", false, true},
        {"15032024", "  042025", false, false},
        {"15032024", "        ", true, true},
        {"  032024", "  032024", false, true},
        {"  032024", "31022025", false, true},
        {"  032024", "  032025", false, false},
        {"    2024", "    2025", false, false},
        {"    2024", "31122024", false, true},
        // The year behind 9999 has five digits and is compared as text.
        {"15039998", "15039999", false, true},
        {"15039998", "16039999", false, false},
        {"15039999", "15039999", true, false},
        {"15039999", "01012024", true, false},
        {"15039999", "15031000", true, false},
        {"15039999", "    1000", true, true},
        {"15039999", "01011000", true, false},
        {"15039999", "00021000", true, false},
        {"15039999", "31120999", true, true},
        // The year is read as a number and written without leading zeros.
        {"15030099", "15030100", false, true},
        {"15030099", "15031000", false, true},
        {"15030099", "01011001", false, false},
        {"15030099", "15030099", true, true},
        {"150320A4", "15032024", true, true},
        {"150320A4", "15032103", false, true},
        {"150320A4", "15032104", false, false},
        {"15032 24", "15030003", true, true},
        {"15032 24", "15032024", false, true},
        {"15032 24", "01014000", false, false},
        {"1503 999", "15031000", false, true},
        {"1503 999", "16031000", false, false},
        {"1503-001", "15030031", false, true},
        {"1503-001", "16030315", false, false},
        {"1503    ", "15030000", false, true},
        {"1503    ", "15031031", false, true},
        {"1503    ", "16031031", false, true},
        {"1503    ", "15032024", false, false},
        {"1503ABCD", "15032024", true, false},
        {"1503\262024", "15032024", true, false},
    };
    const auto verifier = [&](const char* cause, bool unAn) {
        const slotTenu c5(C5, cause);
        for (const ligne& l : table) {
            EXPECT_EQ(accepte(fCoherenDC_tr, l.reference, l.date), unAn ? l.anSuivant : l.memeAnnee)
                << "cause \"" << cause << "\" " << l.reference << " " << l.date;
            EXPECT_EQ(accepte(fCoherenDC_tr2, l.reference, l.date), l.anSuivant)
                << "cause \"" << cause << "\" " << l.reference << " " << l.date;
            EXPECT_EQ(accepte(fCoherenDC, l.reference, l.date), l.memeAnnee)
                << "cause \"" << cause << "\" " << l.reference << " " << l.date;
        }
    };
    verifier("J", true);
    for (const char* cause : {"", " ", "A", "j", "J ", "JJ", "\xCA"})
        verifier(cause, false);
}

TEST(CoherenceDate, UnAnDePlusDatesCoupees) {
    struct ligne {
        const char* reference;
        const char* date;
        bool anSuivant;
    };
    const ligne table[] = {
        {"15032024", "1503202", true},
        {"15032024", "1503203", false},
        {"15032024", "1503", true},
        {"15032024", "", true},
        {"15039999", "15031", true},
        {"15039999", "15032", false},
        {"1503202", "0101203", true},
        {"1503202", "01012030", false},
        {"1503202", "01012029", true},
        {"150320", "010121", true},
        {"150320", "01012099", true},
        {"150320", "01012100", false},
        // A year that is not there is 0: the limit is "1".
        {"1503", "15032024", false},
        {"1503", "15030999", true},
        {"1503", "15031", true},
        {"1503", "15031000", false},
        {"1503", "1503", true},
        {"1503", "", true},
        {"", "15032024", false},
        {"", "15030999", true},
        {"", "15031", true},
        {"", "150310", false},
        {"", "", true},
        {"", "0000000", true},
        // Four columns are the year, whatever follows them.
        {"150320249", "15032025", true},
        {"150320249", "16032025", false},
    };
    const slotTenu c5(C5, "J");
    for (const ligne& l : table) {
        EXPECT_EQ(accepte(fCoherenDC_tr, l.reference, l.date), l.anSuivant)
            << "\"" << l.reference << "\" \"" << l.date << "\"";
        EXPECT_EQ(accepte(fCoherenDC_tr2, l.reference, l.date), l.anSuivant)
            << "\"" << l.reference << "\" \"" << l.date << "\"";
    }
}

TEST(CoherenceAnnee, QuatreChiffres) {
    for (const char* annee : {"0000", "2024", "9999"})
        EXPECT_TRUE(accepte(fCoherenD_OC_an_1, "", annee)) << annee;
    for (int col = 0; col < 4; ++col)
        for (int octet = 1; octet <= 255; ++octet) {
            std::string annee = "2024";
            const char c = static_cast<char>(octet);
            annee[static_cast<std::size_t>(col)] = c;
            EXPECT_EQ(accepte(fCoherenD_OC_an_1, "15032024", annee), c >= '0' && c <= '9')
                << "colonne " << col + 1 << " octet " << octet;
        }
    for (const char* annee : {"", "2", "20", "202", "    ", "NORMABEV"})
        EXPECT_FALSE(accepte(fCoherenD_OC_an_1, "", annee)) << "\"" << annee << "\"";
}

TEST(CoherenceAnnee, StrictementAvantCelleDuMessage) {
    verdicts("fCoherenD_OC_an_2", fCoherenD_OC_an_2,
             {{"15032024", "2023", true},
              {"15032024", "2024", false},
              {"15032024", "2025", false},
              {"15032024", "0000", true},
              {"15032024", "9999", false},
              {"01012000", "1999", true},
              {"01012000", "2000", false},
              {"31129999", "9998", true},
              {"31129999", "9999", false},
              {"31120000", "0000", false},
              // Whole texts in order, no numbers.
              {"15032024", "    ", true},
              {"15032024", " 999", true},
              {"15032024", "202 ", true},
              {"15032024", "202A", false},
              {"15032024", "****", true},
              {"15032024", "202\xB3", false},
              {"15032024", "\262023", false},
              {"1503202\xB4", "2029", true},
              {"15032024", "202", true},
              {"15032024", "203", false},
              {"15032024", "20230", true},
              {"15032024", "20240", false},
              {"15032024", "", true},
              {"150320249999", "2024", false},
              // The message's date is cut short.
              {"1503202", "2023", false},
              {"1503202", "2019", true},
              {"1503202", "202", false},
              {"1503202", "20", true},
              {"15032", "1999", true},
              {"15032", "2000", false},
              {"1503", "0000", false},
              {"1503", "", false},
              {"", "0000", false},
              {"", "", false}});
}

// ------------------------------------------------------- the date reader

namespace {

/** Reads `champ` and returns the verdict; `apres` receives the field left. */
bool lire(const std::string& champ, eCouI mode, std::string* apres = nullptr) {
    std::vector<char> c(champ.c_str(), champ.c_str() + champ.size() + 1);
    const bool verdict = fDATECouI(c.data(), mode) != 0;
    if (apres != nullptr) *apres = std::string(c.data());
    return verdict;
}

bool jourReel(int jour, int mois, int annee) {
    using namespace std::chrono;
    return annee >= 1900 && (year(annee) / mois / jour).ok();
}

const int ANNEES[] = {0, 1, 4, 1582, 1600, 1899, 1900, 1904, 1999, 2000, 2023, 2024, 2100, 2400, 9996, 9999};

}  // namespace

TEST(LectureDate, CompleteContreLeCalendrier) {
    for (const int annee : ANNEES)
        for (int mois = 0; mois <= 99; ++mois)
            for (int jour = 0; jour <= 99; ++jour) {
                const std::string champ = chiffres(jour, 2) + chiffres(mois, 2) + chiffres(annee, 4);
                std::string apres;
                EXPECT_EQ(lire(champ, COMPLETE, &apres), jourReel(jour, mois, annee)) << champ;
                EXPECT_EQ(apres, champ);
            }
}

TEST(LectureDate, IncompleteContreLeCalendrier) {
    for (const int annee : ANNEES) {
        for (int mois = 0; mois <= 99; ++mois) {
            for (int jour = 0; jour <= 99; ++jour) {
                // A written zero is refused and spoils the first character.
                const bool zero = jour == 0 || mois == 0;
                const std::string champ = chiffres(jour, 2) + chiffres(mois, 2) + chiffres(annee, 4);
                std::string apres;
                EXPECT_EQ(lire(champ, INCOMPLETE, &apres), !zero && jourReel(jour, mois, annee)) << champ;
                EXPECT_EQ(apres, zero ? " " + champ.substr(1) : champ);
            }
            const std::string suite = chiffres(mois, 2) + chiffres(annee, 4);
            std::string apres;
            EXPECT_EQ(lire("  " + suite, INCOMPLETE, &apres), jourReel(1, mois, annee)) << "  " << suite;
            EXPECT_EQ(apres, (mois == 0 ? " 0" : "00") + suite);
        }
        std::string apres;
        EXPECT_EQ(lire("    " + chiffres(annee, 4), INCOMPLETE, &apres), annee >= 1900) << annee;
        EXPECT_EQ(apres, "0000" + chiffres(annee, 4));
    }
}

TEST(LectureDate, CompleteNeChangeJamaisLeChamp) {
    for (const std::string champ :
         {"    2024", "  032024", " 5032024",    "5 032024",    "00032024", "15002024",
          "15  2024", "15 32024", "153 2024",    "        ",    "15032 24", "1503202 ",
          "1503202A", "A5032024", "/5032024",    ":5032024",    "+1032024", "-1032024",
          "********", "NORM01  ", "\2615032024", "1503202\xB4", "31121899", "00000000",
          "1503202",  "1503",     "15",          " ",           ""}) {
        std::string apres;
        EXPECT_FALSE(lire(champ, COMPLETE, &apres)) << "\"" << champ << "\"";
        EXPECT_EQ(apres, champ);
    }
}

TEST(LectureDate, IncompleteRecritLeChamp) {
    struct ligne {
        const char* champ;
        bool attendu;
        const char* apres;
    };
    const ligne table[] = {
        // Unknown day and month, unknown day.
        {"    2024", true, "00002024"},
        {"    1900", true, "00001900"},
        {"    1899", false, "00001899"},
        {"    9999", true, "00009999"},
        {"  032024", true, "00032024"},
        {"  122024", true, "00122024"},
        {"  132024", false, "00132024"},
        {"  021900", true, "00021900"},
        {"  021899", false, "00021899"},
        {"        ", false, "0000    "},
        {"    202 ", false, "0000202 "},
        {"    20 4", false, "000020 4"},
        {"    ABCD", false, "0000ABCD"},
        {"  A32024", false, "00A32024"},
        {"  0A2024", false, "000A2024"},
        {"   32024", false, "00 32024"},
        {"  3 2024", false, "003 2024"},
        {"  0 2024", false, "000 2024"},
        {"   02024", false, "00 02024"},
        {"  **2024", false, "00**2024"},
        {"  \xB0\2632024", false, "00\xB0\2632024"},
        // Complete dates stay.
        {"15032024", true, "15032024"},
        {"29022024", true, "29022024"},
        {"29022023", false, "29022023"},
        {"31121899", false, "31121899"},
        {"01011900", true, "01011900"},
        {"31129999", true, "31129999"},
        // Zeros written for an unknown part.
        {"00032024", false, " 0032024"},
        {"00002024", false, " 0002024"},
        {"15002024", false, " 5002024"},
        {"15001998", false, " 5001998"},
        {"  001998", false, " 0001998"},
        {"00  1998", false, " 0  1998"},
        {"00 31998", false, " 0 31998"},
        {"000 1998", false, " 00 1998"},
        {"00ABCDEF", false, " 0ABCDEF"},
        {"00001899", false, " 0001899"},
        {"00132024", false, " 0132024"},
        {"32002024", false, " 2002024"},
        {"A5002024", false, " 5002024"},
        {"5 002024", false, "  002024"},
        {"1500ABCD", false, " 500ABCD"},
        {"1500    ", false, " 500    "},
        {"**00****", false, " *00****"},
        {"\2615002024", false, " 5002024"},
        // A blank tens place.
        {" 5032024", false, " 5032024"},
        {" 0032024", false, " 0032024"},
        {" 5002024", false, " 5002024"},
        {" 5  2024", false, " 5  2024"},
        {" A032024", false, " A032024"},
        // Refused for another cause, the field stays.
        {"5 032024", false, "5 032024"},
        {"0 032024", false, "0 032024"},
        {"0A032024", false, "0A032024"},
        {"15  2024", false, "15  2024"},
        {"15 32024", false, "15 32024"},
        {"153 2024", false, "153 2024"},
        {"150 2024", false, "150 2024"},
        {"15 02024", false, "15 02024"},
        {"5   2024", false, "5   2024"},
        {"1503202 ", false, "1503202 "},
        {"1503    ", false, "1503    "},
        {"A5032024", false, "A5032024"},
        {"15/32024", false, "15/32024"},
        {"15:32024", false, "15:32024"},
        {"-1032024", false, "-1032024"},
        {"********", false, "********"},
        {"NORMABEV", false, "NORMABEV"},
        {"NORM01  ", false, "NORM01  "},
        {"1503202\xB4", false, "1503202\xB4"},
        {"\xA0\240032024", false, "\xA0\240032024"},
    };
    for (const ligne& l : table) {
        std::string apres;
        EXPECT_EQ(lire(l.champ, INCOMPLETE, &apres), l.attendu) << "\"" << l.champ << "\"";
        EXPECT_EQ(apres, l.apres) << "\"" << l.champ << "\"";
    }
}

TEST(LectureDate, IncompleteDateCoupee) {
    struct ligne {
        const char* champ;
        const char* apres;
    };
    const ligne table[] = {
        {"", ""},
        {" ", " "},
        {"0", "0"},
        {"1", "1"},
        {"15", "15"},
        {"00", " 0"},
        {" 5", " 5"},
        {"  ", "00"},  // a month that is not there is no blank
        {"   ", "00 "},
        {"    ", "0000"},
        {"  0", "000"},
        {"  00", " 000"},
        {"150", "150"},
        {"1500", " 500"},
        {"000", " 00"},
        {"1503", "1503"},
        {"    202", "0000202"},
        {"  03202", "0003202"},
        {"  00202", " 000202"},
        {"15032", "15032"},
        {"1503202", "1503202"},
        {"1500202", " 500202"},
    };
    for (const ligne& l : table) {
        std::string apres;
        EXPECT_FALSE(lire(l.champ, INCOMPLETE, &apres)) << "\"" << l.champ << "\"";
        EXPECT_EQ(apres, l.apres) << "\"" << l.champ << "\"";
    }
}

TEST(LectureDate, LeChampRecritServiraAuxLignesSuivantes) {
    // A rewritten field compares as the date that it was.
    for (const char* champ : {"    2024", "  032024"}) {
        std::string apres;
        ASSERT_TRUE(lire(champ, INCOMPLETE, &apres));
        EXPECT_TRUE(accepte(fCoherenDC, "15032024", apres)) << apres;
        EXPECT_FALSE(accepte(fCoherenDC, "31122023", apres)) << apres;
    }
    // Read again, its zeros are written ones.
    EXPECT_FALSE(lire("00032024", INCOMPLETE));
    EXPECT_FALSE(lire("00002024", INCOMPLETE));
}

TEST(Coherence, TextesCoupesAvantLesColonnesComparees) {
    // What neither text holds cannot differ; what one of them holds does.
    EXPECT_TRUE(accepte(fCoherenCC, "", ""));
    EXPECT_TRUE(accepte(fCoherenCC, "0", ""));
    EXPECT_FALSE(accepte(fCoherenCC, "078IPG  ", ""));
    EXPECT_FALSE(accepte(fCoherenCC, "", "78123456    "));
    EXPECT_TRUE(accepte(fCoherenCCD, "", ""));
    EXPECT_FALSE(accepte(fCoherenCCD, "078IPG  ", "07"));
}
