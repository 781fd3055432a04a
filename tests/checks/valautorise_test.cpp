/**
 * valautorise - the contents of the allowed-value lists: counts, widths, every
 * entry in its stored order, the relations between lists, and that each list
 * accepts its own entries and no other text.
 */
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "checks/index.h"
#include "checks/listes.h"
#include "checks/valautorise.h"
#include "support/champ.h"
#include "vocabulaire/store.h"

namespace {

using namespace quilvane;
using essai::accepte;
using textes = std::vector<std::string>;

std::string blancs(std::size_t n) { return std::string(n, ' '); }
std::string etoiles(std::size_t n) { return std::string(n, '*'); }

/** A list under its name. */
struct listeNommee {
    const char* nom;
    const liste& l;

    textes valeurs() const {
        textes v;
        for (const tValAutorise& entree : l)
            v.emplace_back(entree.valeur);
        return v;
    }
};
#define L(nom) \
    { #nom, nom }

/** Every list but `TEDC`, whose last row is empty. */
// clang-format off
const std::vector<listeNommee>& toutes() {
    static const std::vector<listeNommee> listes = {
        L(tE5), L(tE6), L(tE6CRE), L(tE6DEM), L(tE6INV), L(tE6MOD), L(tE6EDI), L(tE6INF),
        L(tE6ECQ), L(TEC), L(TDC), L(versionVSE), L(BDN8), L(BDN031), L(TOUQ), L(NOUU),
        L(ET1), L(ET2), L(ET4), L(ET12), L(deuxBlancs), L(quatreBlancs), L(cinqBlancs),
        L(HuitBlancs), L(dixBlancs), L(DouzeBlancs), L(quatorzeBlancs), L(vingtBlancs),
        L(trenteBlancs), L(soixanteBlancs), L(HuitBlancsFal), L(FR), L(UN), L(UNETCINQ),
        L(SEX), L(SEXFNV), L(TOUN), L(COUE), L(BOOL), L(BOOLFal), L(ZERO), L(Z),
        L(D7F10), L(RES), L(NB), L(MORTNE), L(NUM), L(P5), L(P6), L(P7), L(P8), L(P16),
        L(P17), L(P18), L(PROD), L(PROD_E), L(PROD_EV), L(FIL), L(FIL_V), L(ELV),
        L(ELV_V), L(TEMOIN), L(TYP_IDENT), L(DEROUL_MARC), L(UTIL_BOUC), L(TYP_NUMERO),
        L(C2_MODEL), L(C3_MODEL), L(C3_MODEL_BV), L(C2_MODEL_BV), L(FAB_REP), L(TYP_COM),
        L(CAT_RECEN), L(TCE), L(TTE), L(TCEP), L(TCME), L(TCMS), L(DPT2), L(DPT3), L(DPT4), L(DPT5), L(DPT6),
        L(DPT7), L(DPT8), L(DPT17), L(TD), L(TDD), L(TCEE), L(TECH), L(TP), L(TCPNOCEE),
        L(TCPNOECH), L(TR), L(TRFNV), L(TRG), L(TRSCRE), L(TRSMOD), L(NEV), L(IND_M),
    };
    return listes;
}
// clang-format on

/** FNV-1a (64 bits) over the entries, each with its zero. */
std::uint64_t empreinte(const textes& valeurs) {
    std::uint64_t h = 0xCBF29CE484222325;
    for (const std::string& v : valeurs)
        for (std::size_t i = 0; i <= v.size(); ++i) {
            h ^= static_cast<unsigned char>(v.c_str()[i]);
            h *= 0x100000001B3;
        }
    return h;
}

/** Three-character departments: 001 to 095 without 020. */
textes departementsContinentaux() {
    textes v;
    for (int n = 1; n <= 95; ++n)
        if (n != 20) v.push_back("0" + std::to_string(n / 10) + std::to_string(n % 10));
    return v;
}

textes avec(textes debut, const textes& suite) {
    debut.insert(debut.end(), suite.begin(), suite.end());
    return debut;
}

/** Whether `texte` has the form of `modele`: a capital for each 'A', a digit for each '0'. */
bool forme(const std::string& texte, const std::string& modele) {
    return texte.size() == modele.size() &&
           std::equal(texte.begin(), texte.end(), modele.begin(),
                      [](char c, char m) { return m == 'A' ? c >= 'A' && c <= 'Z' : c >= '0' && c <= '9'; });
}

std::set<std::string> ensemble(const textes& v) { return {v.begin(), v.end()}; }

textes textesDe(const liste& l) { return listeNommee{"", l}.valeurs(); }

// --------------------------------------------------------------- contents

TEST(Valautorise, ListesCourtes) {
    struct {
        listeNommee liste;
        int compte;
        textes valeurs;
    } const rows[] = {
        // clang-format off
        {L(tE5), 7, {"CRE", "INV", "MOD", "DEM", "EDI", "INF", "ECQ"}},
        {L(TEC), 26, {
            "001IPG  ", "003IPG  ", "013ARS  ", "018IPG  ", "021IPG  ", "023IPG  ", "025ARS  ",
            "02BIPG  ", "036IPG  ", "038IPG  ", "042ARS  ", "043IPG  ", "054ARS  ", "058IPG  ",
            "059ARS  ", "063IPG  ", "071IPG  ", "074ARS  ", "081ARS  ", "089ARS  ", "350ARS  ",
            "971IPG  ", "972IPG  ", "973IPG  ", "974IPG  ", "976IPG  "}},
        {L(versionVSE), 1, {"025"}},
        {L(BDN8), 1, {"BDN     "}},
        {L(BDN031), 1, {"031BDN  "}},
        {L(TOUQ), 2, {"3", "4"}},
        {L(NOUU), 2, {"N", "U"}},
        {L(ET1), 1, {"*"}},
        {L(ET2), 1, {"**"}},
        {L(ET4), 1, {etoiles(4)}},
        {L(ET12), 1, {etoiles(12)}},
        {L(deuxBlancs), 1, {"  "}},
        {L(quatreBlancs), 1, {blancs(4)}},
        {L(cinqBlancs), 1, {blancs(5)}},
        {L(HuitBlancs), 1, {blancs(8)}},
        {L(dixBlancs), 1, {blancs(10)}},
        {L(DouzeBlancs), 1, {blancs(12)}},
        {L(quatorzeBlancs), 1, {blancs(14)}},
        {L(vingtBlancs), 1, {blancs(20)}},
        {L(trenteBlancs), 1, {blancs(30)}},
        {L(soixanteBlancs), 1, {blancs(60)}},
        {L(HuitBlancsFal), 2, {blancs(8), etoiles(8)}},
        {L(FR), 1, {"FR"}},
        {L(UN), 1, {"1"}},
        {L(UNETCINQ), 5, {"1", "2", "3", "4", "5"}},
        {L(SEX), 2, {"1", "2"}},
        {L(SEXFNV), 3, {"0", "1", "2"}},
        {L(TOUN), 2, {"T", "N"}},
        {L(COUE), 2, {"C", "E"}},
        {L(BOOL), 2, {"0", "1"}},
        {L(BOOLFal), 4, {" ", "*", "0", "1"}},
        {L(ZERO), 1, {"0"}},
        {L(Z), 1, {"Z"}},
        {L(D7F10), 2, {"7", "10"}},
        {L(RES), 3, {"20", "30", "40"}},
        {L(NB), 1, {"NB" + blancs(28)}},
        {L(MORTNE), 1, {"MORTNE" + blancs(6)}},
        {L(NUM), 3, {"NUM", blancs(14), etoiles(14)}},
        {L(P5), 1, {"01071999"}},
        {L(P6), 1, {"01071999"}},
        {L(P7), 1, {"01071999"}},
        {L(P8), 1, {"01011999"}},
        {L(P16), 1, {"01012007"}},
        {L(P17), 1, {"01012011"}},
        {L(P18), 1, {"01052007"}},
        {L(PROD), 6, {"B", "C", "N", "O", "P", "V"}},
        {L(PROD_E), 2, {"P", "V"}},
        {L(PROD_EV), 9, {"D", "E", "F", "G", "H", "J", "K", "L", "M"}},
        {L(FIL), 5, {"VIAN", "GIBI", "LAIT", "OEUF", "REPR"}},
        {L(FIL_V), 1, {"OEUF"}},
        {L(ELV), 4, {"0   ", "1   ", "2   ", "3   "}},
        {L(ELV_V), 4, {"0   ", "1   ", "2   ", "3   "}},
        {L(TEMOIN), 2, {"D", "E"}},
        {L(TYP_IDENT), 2, {"D", "E"}},
        {L(DEROUL_MARC), 4, {"A", "D", "E", "S"}},
        {L(UTIL_BOUC), 6, {"0", "1", "2", "3", "4", "5"}},
        {L(TYP_NUMERO), 6, {"SIREN", "SIRET", "AGRIN", "AGRIT", "AGRSA", "CEM  "}},
        {L(C2_MODEL), 3, {"Z", "C", "O"}},
        {L(C3_MODEL), 2, {"E", "C"}},
        {L(C3_MODEL_BV), 2, {"E", "C"}},
        {L(C2_MODEL_BV), 1, {"B"}},
        {L(FAB_REP), 14, {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N"}},
        {L(TYP_COM), 8, {"I0", "I1", "I2", "I3", "I4", "I5", "PR", "PC"}},
        {L(CAT_RECEN), 10, {
            "EFOLAN", "EFOVAN", "REOLAN", "REOVAN", "EFOEAP", "EFCAAN", "RECAAN", "EFCVAN", "RECVAN",
            "EFCEAP"}},
        {L(TCE), 4, {"1", "2", "3", "4"}},
        {L(TTE), 9, {"10", "20", "31", "32", "33", "34", "40", "50", "90"}},
        {L(TCEP), 10, {"00", "01", "02", "03", "04", "05", "06", "07", "08", "09"}},
        {L(TCME), 14, {
            "A", "TOUJOURS", "J", "TOUJOURS", "L", "01011999", "N", "TOUJOURS", "P", "TOUJOURS", "F",
            "TOUJOURS", "G", "31122004"}},
        {L(TCMS), 24, {
            "B", "TOUJOURS", "C", "TOUJOURS", "D", "01011999", "E", "TOUJOURS", "H", "TOUJOURS", "J",
            "TOUJOURS", "L", "01011999", "M", "TOUJOURS", "P", "01011999", "U", "01011999", "S",
            "TOUJOURS", "T", "31122004"}},
        {L(DPT3), 3, {"010", "045", "089"}},
        {L(DPT6), 6, {"014", "027", "050", "053", "061", "076"}},
        {L(DPT7), 7, {"016", "017", "037", "044", "049", "079", "086"}},
        {L(DPT8), 8, {"075", "077", "078", "091", "092", "093", "094", "095"}},
        {L(DPT17), 17, {
            "009", "011", "012", "015", "02A", "020", "030", "031", "032", "033", "034", "047", "048",
            "065", "066", "081", "082"}},
        {L(TCEE), 29, {
            "AT", "BE", "BG", "CY", "CZ", "DE", "DK", "EE", "EL", "ES", "FI", "FR", "HR", "HU", "IE",
            "IT", "LU", "LV", "LT", "MT", "NL", "PL", "PT", "RO", "SE", "SI", "UK", "SK", "XI"}},
        {L(TECH), 30, {
            "AT", "BE", "BG", "CH", "CY", "CZ", "DE", "DK", "EE", "EL", "ES", "FI", "FR", "HR", "HU",
            "IE", "IT", "LU", "LV", "LT", "MT", "NL", "PL", "PT", "RO", "SE", "SI", "UK", "SK", "XI"}},
        // clang-format on
    };
    for (const auto& r : rows) {
        EXPECT_EQ(r.liste.l.nombre(), r.compte) << r.liste.nom;
        EXPECT_EQ(r.liste.valeurs(), r.valeurs) << r.liste.nom;
    }
}

// The types that are known for good, in their order. A new one needs no entry:
// what it is called and its kinds are asked by champs_test.cpp and aiguillage_test.cpp.
TEST(Valautorise, ListesDeTypes) {
    struct {
        listeNommee liste;
        textes valeurs;
    } const rows[] = {
        // clang-format off
        {L(tE6), {
            "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECBO", "ECHA", "EGET", "ENTR", "ERRE", "ERTI",
            "EXP1", "EXP2", "FICH", "GROC", "IMOC", "IMPO", "INFO", "JALO", "NAIS", "NUMA", "NVMN",
            "PASS", "PICO", "RACO", "RATA", "REBO", "SORT"}},
        {L(tE6CRE), {
            "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECBO", "ECHA", "EGET", "ENTR", "ERTI", "EXP1",
            "EXP2", "GROC", "IMPO", "IMOC", "JALO", "NAIS", "NUMA", "NVMN", "PICO", "RACO", "RATA",
            "REBO", "SORT"}},
        {L(tE6DEM), {"DETE", "GROC", "INFO", "NAIS", "PASS"}},
        {L(tE6INV), {
            "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECBO", "ECHA", "EGET", "ENTR", "ERTI", "EXP1",
            "EXP2", "IMPO", "IMOC", "NAIS", "NVMN", "PASS", "REBO", "RACO", "SORT"}},
        {L(tE6MOD), {
            "ABAT", "ACTI", "ASSO", "DETE", "DETI", "ECHA", "EGET", "ENTR", "ERTI", "EXP1", "EXP2",
            "IMPO", "NAIS", "NUMA", "NVMN", "RACO", "RATA", "REBO", "SORT"}},
        {L(tE6EDI), {"PASS"}},
        {L(tE6INF), {"FICH"}},
        {L(tE6ECQ), {"ERRE"}},
        // clang-format on
    };
    const std::set<std::string> connus = ensemble(rows[0].valeurs);
    for (const auto& r : rows) {
        textes v = r.liste.valeurs();
        std::erase_if(v, [&connus](const std::string& type) { return connus.count(type) == 0; });
        EXPECT_EQ(v, r.valeurs) << r.liste.nom;
    }
}

TEST(Valautorise, Departements) {
    const textes dep = departementsContinentaux();
    ASSERT_EQ(dep.size(), 94U);

    textes deux;
    for (const std::string& d : dep)
        deux.push_back(d.substr(1));
    EXPECT_EQ(TD.nombre(), 97);
    EXPECT_EQ(textesDe(TD), avec(deux, {"20", "97", "98"}));

    EXPECT_EQ(TDD.nombre(), 102);
    EXPECT_EQ(textesDe(TDD), avec(dep, {"02A", "02B", "971", "972", "973", "976", "974", "098"}));

    textes corps;
    for (const std::string& d : avec(dep, {"02A", "02B", "971", "972", "973", "974", "976"}))
        corps.push_back(d + "IPG  ");
    EXPECT_EQ(TDC.nombre(), 101);
    EXPECT_EQ(textesDe(TDC), corps);
}

TEST(Valautorise, ListesLongues) {
    struct {
        listeNommee liste;
        int compte;
        std::size_t largeur;  // 0: not all alike
        const char* premiere;
        const char* derniere;
        std::uint64_t empreinte;
    } const rows[] = {
        // clang-format off
        {L(TP), 245, 2, "AF", "XI", 0x7D9C5AA385E7C1FA},
        {L(TCPNOCEE), 216, 2, "AF", "GB", 0xCF578CC0E19EEC52},
        {L(TCPNOECH), 215, 2, "AF", "GB", 0xE6DA43F9D9DC02CD},
        {L(TR), 70, 2, "00", "97", 0x828154F07B8C7704},
        {L(TRFNV), 63, 2, "00", "97", 0xD1748E002DCF988D},
        {L(TRG), 84, 2, "10", "99", 0xA53266E55CF092A3},
        {L(TRSCRE), 47, 4, "ASS.", "SCIC", 0x2B0788127E4FFB9E},
        {L(TRSMOD), 52, 4, "ASS.", "SCIC", 0x4CAF3930902C90F1},
        {L(NEV), 202, 0, "001IPG", "XP", 0x6BB8394A2AFA1873},
        {L(IND_M), 303, 6, "001IPG", "655000", 0x218FABC1ACB8C7BA},
        // clang-format on
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.liste.nom);
        ASSERT_EQ(r.liste.l.nombre(), r.compte);
        const textes v = r.liste.valeurs();
        EXPECT_EQ(v.front(), r.premiere);
        EXPECT_EQ(v.back(), r.derniere);
        for (const std::string& valeur : v) {
            if (r.largeur != 0) {
                EXPECT_EQ(valeur.size(), r.largeur) << valeur;
            }
        }
        EXPECT_EQ(empreinte(v), r.empreinte) << std::hex << "0x" << empreinte(v);
    }
}

TEST(Valautorise, GroupesDeDepartements) {
    // A group is a row; only three tables have two.
    EXPECT_EQ(DPT2.lignes(2), 2);
    EXPECT_EQ(DPT4.lignes(4), 2);
    EXPECT_EQ(DPT5.lignes(5), 2);
    EXPECT_EQ(textesDe(DPT2), (textes{"004", "083", "013", "084"}));
    EXPECT_EQ(textesDe(DPT4), (textes{"022", "029", "035", "056", "002", "060", "062", "080"}));
    EXPECT_EQ(textesDe(DPT5), (textes{"025", "039", "052", "070", "090", "054", "055", "057", "068", "088"}));
    for (const liste* groupe : {&DPT3, &DPT6, &DPT7, &DPT8, &DPT17})
        EXPECT_EQ(groupe->lignes(groupe->nombre()), 1);
}

TEST(Valautorise, SansListe) { EXPECT_EQ(sansListe.nombre(), 0); }

// 89 pairs, then an empty row that stands before the count of 92 is reached.
TEST(Valautorise, EmetteursEtCorps) {
    const std::vector<std::pair<std::string, std::string>> groupes = {
        {"013ARS  ", "004 005 006 013 083 084"},
        {"025ARS  ", "025 039 070 090 008 051"},
        {"042ARS  ", "007 026 038 042 069"},
        {"054ARS  ", "052 054 055 057 067 068 088"},
        {"059ARS  ", "002 059 060 062 080"},
        {"074ARS  ", "073 074"},
        {"081ARS  ",
         "009 011 012 015 019 02A 024 030 031 032 033 034 040 046 047 048 064 065 066 081 082 087"},
        {"089ARS  ", "010 045 075 077 078 089 091 092 093 094 095"},
        {"350ARS  ", "014 016 017 022 027 028 029 035 037 041 044 049 050 053 056 061 072 076 079 085 086"},
    };
    std::vector<std::pair<std::string, std::string>> attendues;
    for (const auto& [emetteur, codes] : groupes) {
        std::istringstream flot(codes);
        for (std::string code; flot >> code;)
            attendues.emplace_back(emetteur, code + "IPG  ");
    }
    attendues.emplace_back("NORM01  ", "NORMABEV");
    attendues.emplace_back("NORM02  ", "NORMABEV");
    attendues.emplace_back("PFOC01  ", "POINTFOC");
    attendues.emplace_back("OVINFOS ", "OVINFOS ");
    ASSERT_EQ(attendues.size(), 89U);

    EXPECT_EQ(LenTEDC, 92);
    for (std::size_t i = 0; i < attendues.size(); ++i) {
        EXPECT_EQ(TEDC.ligne(static_cast<int>(i))[0].valeur, attendues[i].first) << i;
        EXPECT_EQ(TEDC.ligne(static_cast<int>(i))[1].valeur, attendues[i].second) << i;
    }
    ASSERT_EQ(TEDC.lignes(2), 90);
    for (const int colonne : {0, 1})
        EXPECT_EQ(TEDC.ligne(89)[colonne].valeur, nullptr);
}

// The packed beginning of an entry, on which a search decides, is that of its text.
TEST(Valautorise, DebutsDesEntrees) {
    for (const listeNommee& l : toutes())
        for (const tValAutorise& entree : l.l) {
            std::uint64_t debut = 0;
            const std::string v = entree.valeur;
            for (std::size_t k = std::min<std::size_t>(v.size(), 8); k > 0; --k)
                debut = debut << 8 | static_cast<unsigned char>(v[k - 1]);
            EXPECT_EQ(entree.debut, debut) << l.nom << ' ' << v;
        }
}

// -------------------------------------------------------------- relations

// The shape of the lists whose rows have several entries.
TEST(Valautorise, ColonnesDUneLigne) {
    const std::map<std::string, int> colonnes = {
        {"TCME", 2}, {"TCMS", 2}, {"NEV", 2},  {"IND_M", 3}, {"D7F10", 2}, {"NUM", 3},  {"DPT2", 2},
        {"DPT3", 3}, {"DPT4", 4}, {"DPT5", 5}, {"DPT6", 6},  {"DPT7", 7},  {"DPT8", 8}, {"DPT17", 17}};
    for (const listeNommee& l : toutes()) {
        const auto trouve = colonnes.find(l.nom);
        EXPECT_EQ(l.l.colonnes, trouve == colonnes.end() ? 1 : trouve->second) << l.nom;
    }
}

// Rows begin differently, and no list of one column holds an entry twice.
TEST(Valautorise, EntreesDistinctes) {
    for (const listeNommee& l : toutes()) {
        std::set<std::string> cles;
        EXPECT_EQ(l.l.nombre() % l.l.colonnes, 0) << l.nom;
        for (int i = 0; i < l.l.lignes(l.l.colonnes); ++i)
            EXPECT_TRUE(cles.insert(l.l.ligne(i)[0].valeur).second) << l.nom << ' ' << i;
    }
}

// The widths that the compiler proves below each list.
TEST(Valautorise, LargeurCommune) {
    EXPECT_EQ(largeur(TP), 2);
    EXPECT_EQ(largeur(TCME, 0), 1);
    EXPECT_EQ(largeur(TCME, 1), 8);
    EXPECT_EQ(largeur(TCME), -1);
    EXPECT_EQ(largeur(TEDC), 8) << "the empty end row has no width";
    EXPECT_EQ(largeur(sansListe), -1);
    EXPECT_EQ(largeur(liste{{"AB", "CD", "E"}}), -1) << "the last entry differs";
    EXPECT_EQ(largeur(liste{{"A", "BC", "DE"}}), -1) << "the first entry differs";
    EXPECT_EQ(largeur(liste{{"AB", "C", "DE"}}), -1) << "one in the middle differs";
    EXPECT_EQ(largeur(liste{{"A", "x", "B", "yz"}, 2}, 0), 1);
    EXPECT_EQ(largeur(liste{{"A", "x", "B", "yz"}, 2}, 1), -1);
    EXPECT_EQ(largeur(liste{{"AB", "CD", "EF"}, 2}), -1) << "the last row is not whole";
    EXPECT_EQ(largeur(liste{{"AB"}, 0}), -1);
    EXPECT_EQ(largeur(liste{{"AB", nullptr}, 1}), 2);
    EXPECT_EQ(largeur(liste{{"", ""}}), 0);
}

/** The first place where two lists differ, in words; empty when there is none. */
std::string ecart(const textes& vu, const textes& attendu) {
    const auto entree = [](const textes& v, std::size_t i) {
        return i < v.size() ? '"' + v[i] + '"' : std::string("nothing");
    };
    for (std::size_t i = 0; i < std::max(vu.size(), attendu.size()); ++i)
        if (entree(vu, i) != entree(attendu, i))
            return "entry " + std::to_string(i + 1) + " is " + entree(vu, i) + " where " +
                   entree(attendu, i) + " is due";
    return "";
}

TEST(Valautorise, PaysEntreEux) {
    const std::set<std::string> membres = ensemble(textesDe(TCEE));
    std::set<std::string> partenaires = membres;
    EXPECT_TRUE(partenaires.insert("CH").second);
    EXPECT_EQ(ensemble(textesDe(TECH)), partenaires);

    const textes tous = textesDe(TP);
    for (const std::string& pays : partenaires)
        EXPECT_EQ(std::count(tous.begin(), tous.end(), pays), 1) << pays;
    EXPECT_EQ(std::count(tous.begin(), tous.end(), "GR"), 0);
    for (const std::string pays : {"EL", "UK", "GB", "XI", "RS"})
        EXPECT_EQ(std::count(tous.begin(), tous.end(), pays), 1) << pays;

    // Outside the members: all the others in the order of `TP`, "XS" where that has "RS".
    textes dehors;
    for (const std::string& pays : tous)
        if (membres.count(pays) == 0) dehors.push_back(pays == "RS" ? "XS" : pays);
    EXPECT_EQ(ecart(textesDe(TCPNOCEE), dehors), "") << "TCPNOCEE beside TP";
    dehors.erase(std::remove(dehors.begin(), dehors.end(), "CH"), dehors.end());
    EXPECT_EQ(ecart(textesDe(TCPNOECH), dehors), "") << "TCPNOECH beside TP";
}

TEST(Valautorise, FormesJuridiques) {
    const std::set<std::string> anciennes = {"ETS ", "MLE ", "MR  ", "MRS ", "STE "};
    textes reste;
    int trouvees = 0;
    for (const std::string& forme : textesDe(TRSMOD)) {
        if (anciennes.count(forme) == 1)
            ++trouvees;
        else
            reste.push_back(forme);
    }
    EXPECT_EQ(trouvees, 5);
    EXPECT_EQ(reste, textesDe(TRSCRE));
}

TEST(Valautorise, RacesDeDeuxChiffres) {
    for (const listeNommee& l : {listeNommee L(TR), listeNommee L(TRFNV), listeNommee L(TRG)}) {
        const textes v = l.valeurs();
        EXPECT_TRUE(std::is_sorted(v.begin(), v.end())) << l.nom;
        for (const std::string& race : v)
            EXPECT_EQ(race.find_first_not_of("0123456789"), std::string::npos) << l.nom << ' ' << race;
    }
    const std::set<std::string> races = ensemble(textesDe(TR));
    for (const std::string& race : textesDe(TRFNV))
        EXPECT_EQ(races.count(race), 1U) << race;
}

TEST(Valautorise, TypesParGenre) {
    const std::set<std::string> types = ensemble(textesDe(tE6));
    std::set<std::string> admis;
    for (const listeNommee& l :
         {listeNommee L(tE6CRE), listeNommee L(tE6DEM), listeNommee L(tE6INV), listeNommee L(tE6MOD),
          listeNommee L(tE6EDI), listeNommee L(tE6INF), listeNommee L(tE6ECQ)})
        for (const std::string& type : l.valeurs()) {
            EXPECT_EQ(types.count(type), 1U) << l.nom << ' ' << type;
            admis.insert(type);
        }
    EXPECT_EQ(admis, types);  // no type without a kind
}

/** One column of a list of rows. */
textes colonne(const liste& l, int rang) {
    textes v;
    for (int i = 0; i < l.lignes(l.colonnes); ++i)
        v.emplace_back(l.ligne(i)[rang].valeur);
    return v;
}

TEST(Valautorise, CorpsDesSeriesEtDesNumeros) {
    const textes corps = colonne(NEV, 0);
    EXPECT_EQ(corps.size(), 101U);
    EXPECT_EQ(colonne(IND_M, 0), corps);
    textes codes;
    for (const std::string& c : corps)
        codes.push_back(c + "  ");
    EXPECT_EQ(ensemble(codes), ensemble(textesDe(TDC)));
}

TEST(Valautorise, SeriesDeDeuxLettres) {
    std::set<std::string> series;
    for (const std::string& texte : colonne(NEV, 1)) {
        std::istringstream flot(texte);
        for (std::string s; std::getline(flot, s, ',');) {
            if (s.empty()) continue;
            EXPECT_TRUE(forme(s, "AA")) << texte;
            EXPECT_TRUE(series.insert(s).second) << s << " twice";
        }
    }
    EXPECT_EQ(std::string(NEV[1].valeur), "AA,BA,,HL");
}

// The ranges of the bodies cover 100000 to 655000 without a gap.
TEST(Valautorise, PlagesDeNumeros) {
    std::vector<std::pair<int, int>> plages;
    for (int i = 0; i < IND_M.nombre(); i += 3)
        plages.emplace_back(std::stoi(IND_M[i + 1].valeur), std::stoi(IND_M[i + 2].valeur));
    std::sort(plages.begin(), plages.end());
    EXPECT_EQ(plages.front().first, 100000);
    EXPECT_EQ(plages.back().second, 655000);
    for (std::size_t i = 0; i < plages.size(); ++i) {
        EXPECT_LE(plages[i].first, plages[i].second);
        if (i > 0) {
            EXPECT_EQ(plages[i].first, plages[i - 1].second + 1);
        }
    }
}

TEST(Valautorise, CausesDeMouvement) {
    for (const listeNommee& l : {listeNommee L(TCME), listeNommee L(TCMS)})
        for (int i = 0; i < l.l.lignes(2); ++i) {
            const std::string dernierJour = l.l.ligne(i)[1].valeur;
            EXPECT_TRUE(forme(l.l.ligne(i)[0].valeur, "A")) << l.nom << ' ' << i;
            EXPECT_TRUE(dernierJour == "TOUJOURS" || forme(dernierJour, "00000000")) << l.nom << ' ' << i;
        }
}

// -------------------------------------------- every list under the checks

const textes CODES_SPECIAUX = {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "};

/** Whether the membership checks accept `texte` exactly as `attendu` says. */
void verifierMembre(const listeNommee& l, const std::string& texte, bool attendu) {
    EXPECT_EQ(accepte(fVerifValAut, "", texte, l.l), attendu) << l.nom << " \"" << texte << '"';
    EXPECT_EQ(accepte(fVerifDiffNull, "", texte, l.l), !attendu) << l.nom << " \"" << texte << '"';
}

TEST(ValautoriseMembres, NiPlusNiMoins) {
    for (const listeNommee& l : toutes()) {
        const std::set<std::string> membres = ensemble(l.valeurs());
        const auto essayer = [&](const std::string& t) {
            if (std::count(CODES_SPECIAUX.begin(), CODES_SPECIAUX.end(), t) == 0)
                verifierMembre(l, t, membres.count(t) == 1);
        };
        essayer("");
        essayer("\xE9");
        for (const std::string& membre : membres) {
            essayer(membre);
            essayer(membre + " ");
            essayer(" " + membre);
            essayer(membre.substr(1));
            essayer(membre.substr(0, membre.size() - 1));
            for (std::size_t col = 0; col < membre.size(); ++col)
                for (const char c : {' ', '*', '0', '9', 'A', 'Z', 'a', '\x7F', '\xE9', '\xFF'}) {
                    std::string autre = membre;
                    autre[col] = c;
                    essayer(autre);
                }
        }
    }
}

TEST(ValautoriseMembres, CodesSpeciauxPartout) {
    for (const listeNommee& l : toutes())
        for (const std::string& code : CODES_SPECIAUX) {
            EXPECT_TRUE(accepte(fVerifValAut, "", code, l.l)) << l.nom << ' ' << code;
            EXPECT_FALSE(dansListeStricte(code.c_str(), l.l)) << l.nom << ' ' << code;
            EXPECT_TRUE(accepte(fVerifDiffNull, "", code, l.l)) << l.nom << ' ' << code;
        }
}

TEST(ValautoriseMembres, ToutesLesPairesDeCaracteres) {
    const std::vector<listeNommee> deux = {L(FR), L(TCEE),  L(TECH), L(TP),  L(TCPNOCEE), L(TCPNOECH), L(TD),
                                           L(TR), L(TRFNV), L(TRG),  L(TTE), L(TCEP),     L(TYP_COM)};
    for (const listeNommee& l : deux) {
        const std::set<std::string> membres = ensemble(l.valeurs());
        for (char a = ' '; a <= '~'; ++a)
            for (char b = ' '; b <= '~'; ++b) {
                const std::string t = {a, b};
                ASSERT_EQ(dansListe(t.c_str(), l.l) != 0, membres.count(t) == 1) << l.nom << ' ' << t;
            }
    }
}

// ------------------------------------------------- index of the long lists

TEST(ValautoriseIndex, LesListesLonguesEnOntUn) {
    for (const listeNommee& l : toutes())
        EXPECT_EQ(l.l.index != nullptr, l.l.nombre() > indexListe::COURTE && l.l.colonnes == 1)
            << l.nom << " has " << l.l.nombre() << " entries: its index is made in checks/valautorise.cpp";
}

TEST(ValautoriseIndex, UnePlaceParEntree) {
    for (const listeNommee& l : toutes()) {
        if (l.l.index == nullptr) continue;
        SCOPED_TRACE(l.nom);
        const indexListe& index = *l.l.index;
        EXPECT_EQ(index.entrees, l.l.begin()) << "the index of another list";
        EXPECT_EQ(index.largeur, largeur(l.l));
        std::multiset<int> places(std::begin(index.places), std::end(index.places));
        EXPECT_EQ(places.count(0), indexListe::TAILLE - static_cast<unsigned>(l.l.nombre()));
        for (int i = 0; i < l.l.nombre(); ++i) {
            EXPECT_EQ(places.count(i + 1), 1U) << i;
            EXPECT_TRUE(index.contient(l.l[i].debut)) << i;
            EXPECT_FALSE(index.contient(~l.l[i].debut)) << i;
        }
    }
}

// What lies by the first characters is the same whether the list is read or
// looked up.
TEST(ValautoriseIndex, DebutsCommeEnLisant) {
    for (const listeNommee& l : toutes()) {
        if (l.l.index == nullptr) continue;
        liste lue = l.l;
        lue.index = nullptr;
        for (const std::string& membre : l.valeurs())
            for (int n = 0; n <= 8; ++n)
                for (const std::string& t :
                     {membre, membre + "X", membre.substr(1), "X" + membre, std::string()})
                    ASSERT_EQ(debutDansListe(t.c_str(), l.l, n) != 0, debutDansListe(t.c_str(), lue, n) != 0)
                        << l.nom << ' ' << t << ' ' << n;
    }
}

// No list is left out of these tests.
TEST(Valautorise, ToutesLesListesDeclarees) {
    std::ifstream entete(QUILVANE_RACINE "/src/checks/valautorise.h");
    ASSERT_TRUE(entete.is_open());
    const std::string declaration = "inline constexpr liste ";
    std::set<std::string> declarees;
    for (std::string ligne; std::getline(entete, ligne);)
        if (ligne.compare(0, declaration.size(), declaration) == 0)
            declarees.insert(
                ligne.substr(declaration.size(), ligne.find(' ', declaration.size()) - declaration.size()));
    std::set<std::string> essayees = {"TEDC"};
    for (const listeNommee& l : toutes())
        EXPECT_TRUE(essayees.insert(l.nom).second) << l.nom;
    EXPECT_EQ(declarees, essayees);
    EXPECT_EQ(essayees.size(), 101U);
}

#undef L

}  // namespace
