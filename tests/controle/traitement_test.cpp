#include "controle/traitement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "messages/aiguillage.h"
#include "rules/constat.h"
#include "rules/entete.h"
#include "support/journal.h"
#include "support/modeles.h"
#include "support/passage.h"

using namespace quilvane;
using namespace essai;

namespace {

using codes = std::vector<int>;

/** A run in memory, record by record. */
class Traitement : public testing::Test {
protected:
    ~Traitement() override { VARIANTE = "QUILVANE  "; }

    /** Starts a run with the FICH record of this emitter and receiver. */
    void ouvrir(const std::string& emetteur = "089ARS  ", const std::string& recepteur = "031BDN  ",
                const char* variante = "QUILVANE  ") {
        p.recommencer();
        VARIANTE = variante;
        codesDe(avec(fich(1), {{3, emetteur}, {11, recepteur}}));
    }

    /** Processes the next record. Each of its errors says where it comes from. */
    codes codesDe(const std::string& record) { return verifies(p.traiter(record)); }
    codes codesDe(const std::string& record, int longueur, int caractere = 0, int format = CVERSE_UNIX) {
        return verifies(p.traiter(record, longueur, caractere, format));
    }

    codes verifies(const codes& c) const {
        EXPECT_EQ(p.v.fatal, eFatal::AUCUN);
        EXPECT_EQ(p.v.erreurs, nbErreur);
        EXPECT_EQ(p.v.erreurs, static_cast<int>(c.size()));
        for (std::size_t i = 0; i < c.size(); ++i) {
            const constat& k = constats[i];
            EXPECT_EQ(k.numero, c[i]);
            EXPECT_EQ(k.ligne != nullptr, k.origine == ORIGINE_TABLE) << c[i];
            EXPECT_EQ(k.origine == ORIGINE_CADRAGE, c[i] >= 106 && c[i] <= 108) << c[i];
            EXPECT_TRUE(k.ligne == nullptr || c[i] == k.ligne->noErr || c[i] == 86) << c[i];
        }
        return c;
    }

    /** The origin of each error of the current record. */
    std::vector<eOrigine> origines() const {
        std::vector<eOrigine> o;
        for (int i = 0; i < p.v.erreurs; ++i)
            o.push_back(constats[i].origine);
        return o;
    }

    const std::string& emis() const { return p.emis; }
    const std::string& erre() const { return p.erre; }

    passage p;
};

std::string info() { return vse("INFO", "DEM", {{63, "FR"}, {65, "7812345678  "}}); }

std::string jalo() {
    return vse("JALO", "CRE",
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "FR"},
                {81, LIEN_EXP},
                {93, "01022024"},
                {101, "NOM"},
                {161, "ADRESSE"},
                {221, "1"},
                {222, "A"}});
}

std::string entr(const std::string& cause, const std::string& genre = "CRE") {
    return vse("ENTR", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "01022024"},
                {87, cause},
                {88, "FR"},
                {90, LIEN_EXP},
                {102, "FR"},
                {104, "78654321    "},
                {116, "NOM"}});
}

std::string sort(const std::string& cause, const std::string& genre = "CRE") {
    std::string r = entr(cause, genre);
    poser(r, 22, "SORT");
    return r;
}

std::string abat(const std::string& genre = "CRE") {
    return vse("ABAT", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {77, "20"},
                {79, "FR"},
                {81, LIEN_EXP},
                {93, "01022024"},
                {101, "02022024"},
                {124, "FR"},
                {126, LIEN_EXP},
                {138, "C"}});
}

/** An ACTI record with exactly ten errors. */
std::string actiDixErreurs() {
    return avec(acti(), {{27, "020IPG  "},
                         {35, "        "},
                         {43, "        "},
                         {63, "ZZ"},
                         {65, "            "},
                         {79, "9"},
                         {80, "00000000"}});
}
const codes DIX_ERREURS = {135, 87, 89, 88, 31, 31, 68, 50, 81, 36};

}  // namespace

TEST_F(Traitement, LaVSEFICHEstGardee) {
    const std::string f = avec(fich(7), {{1, "AB"}, {26, "G"}, {51, "K123456789"}, {126, "C9"}, {248, "F4"}});
    EXPECT_EQ(codesDe(f), codes{});
    EXPECT_EQ(emis() + erre(), "");
    EXPECT_STREQ(p.l.sauvEmetteur, "089ARS  ");
    EXPECT_STREQ(p.l.sauvRecepteur, "031BDN  ");
    EXPECT_STREQ(p.l.sauvCodeVSE, "FICH");
    EXPECT_STREQ(p.l.sauvTypeVSE, "INF");
    EXPECT_EQ(p.l.sauvCodeVSEerr, 0);
    EXPECT_EQ(p.l.errFich, 0);
    std::string relue;
    // The next record overwrites the current slots, not those of the FICH record.
    EXPECT_EQ(codesDe(acti()), codes{});
    for (const valeurVSE& v : valFichEnteteVSE)
        relue += v.valeur;
    for (const valeurVSE& v : valFichCorpsVSE)
        relue += v.valeur;
    for (const valeurVSE& v : valFichFinVSE)
        relue += v.valeur;
    EXPECT_EQ(relue, f);
}

TEST_F(Traitement, EmetteurDUnFichierSansFICH) {
    EXPECT_STREQ(p.l.sauvEmetteur, "XXXXXXXX");
    EXPECT_STREQ(p.l.sauvRecepteur, "XXXXXXXX");
    p.l.nombreDeVSE = 2;
    EXPECT_EQ(codesDe(acti()), codes{135});
}

TEST_F(Traitement, ErreursDeLaVSEFICH) {
    const struct {
        std::vector<pose> poses;
        int codCaract, codLong;
        codes attendus;
    } cas[] = {
        {{}, 0, 0, {}},
        {{{3, "013IPG  "}}, 0, 0, {95}},
        {{{11, "031BDN 1"}}, 0, 0, {96}},
        {{{19, "CRE"}}, 0, 0, {86}},
        {{{19, "XXX"}}, 0, 0, {84, 86}},
        {{{61, "5"}}, 0, 0, {97}},
        {{{62, "O"}}, 0, 0, {98}},
        {{}, 1, 0, {106}},
        {{}, 0, 1, {107}},
        {{}, 0, 2, {108}},
        {{}, 1, 2, {106, 108}},
        {{{3, "ZZZZZZZZ"}, {11, "ZZZZZZZZ"}, {19, "XXX"}, {61, "ZZ"}},
         1,
         1,
         {106, 107, 95, 96, 84, 86, 97, 98}},
        // Fields of message records only, and the body.
        {{{27, "ZZZZZZZZ"}, {35, "        "}, {43, "        "}, {79, blancs(152)}}, 0, 0, {}},
        // The footer, whose format version only the FICH record must have.
        {{{231, "31022024"}}, 0, 0, {90}},
        {{{239, "246060"}}, 0, 0, {91}},
        {{{245, "024"}}, 0, 0, {93}},
        {{{256, " "}}, 0, 0, {94}},
        {{{231, blancs(26)}}, 0, 0, {90, 91, 93, 94}},
        {{{62, "O"}, {245, "024"}}, 1, 0, {106, 98, 93}},
        // Ten at most: behind eight of the framing and the header two have room,
        // behind seven three.
        {{{3, "ZZZZZZZZ"}, {11, "ZZZZZZZZ"}, {19, "XXX"}, {61, "ZZ"}, {231, blancs(26)}},
         1,
         1,
         {106, 107, 95, 96, 84, 86, 97, 98, 90, 91}},
        {{{3, "ZZZZZZZZ"}, {11, "ZZZZZZZZ"}, {19, "XXX"}, {61, "ZZ"}, {239, blancs(18)}},
         1,
         0,
         {106, 95, 96, 84, 86, 97, 98, 91, 93, 94}},
    };
    for (const auto& c : cas) {
        p.recommencer();
        EXPECT_EQ(codesDe(avec(fich(1), c.poses), c.codLong, c.codCaract), c.attendus);
        EXPECT_EQ(codes(p.l.codeFichErreur, p.l.codeFichErreur + p.l.errFich), c.attendus);
        for (std::size_t i = 0; i < c.attendus.size(); ++i) {
            EXPECT_EQ(p.l.constatsFich[i].numero, c.attendus[i]);
            EXPECT_EQ(p.l.constatsFich[i].origine, constats[i].origine);
            EXPECT_EQ(p.l.constatsFich[i].ligne, constats[i].ligne);
        }
        EXPECT_EQ(p.l.sauvCodeVSEerr, 0);
        EXPECT_EQ(codCaract + codLong, 0);
        EXPECT_EQ(p.v.sansCompagnon, 0);
        EXPECT_EQ(emis() + erre(), "");
    }
}

TEST_F(Traitement, SansVSEFICHOuSansNumeroDeFichier) {
    const struct {
        std::string premiere;
        eFatal fatal;
    } cas[] = {
        {acti(), eFatal::IG011},
        {avec(fich(1), {{22, "fich"}}), eFatal::IG011},
        {fich(1).substr(0, 24), eFatal::IG011},
        {avec(fich(1), {{63, blancs(16)}}), eFatal::I099},
        {avec(fich(1), {{63, blancs(16)}, {3, "ZZZZZZZZ"}}), eFatal::I099},
        {avec(fich(1), {{63, blancs(15) + "1"}}), eFatal::AUCUN},
        {avec(fich(1), {{63, "1" + blancs(15)}}), eFatal::AUCUN},
        // Only fifteen blanks are there.
        {avec(fich(1), {{63, blancs(16)}}).substr(0, 77), eFatal::AUCUN},
    };
    for (const auto& c : cas) {
        p.recommencer();
        journal j;
        p.l.vu = &j.vu;
        p.traiter(c.premiere);
        EXPECT_EQ(p.v.fatal, c.fatal) << c.premiere;
        // Nothing is kept of it, and its trace stays open.
        const bool garde = c.fatal == eFatal::AUCUN;
        EXPECT_EQ(p.l.sauvCodeVSE, std::string(garde ? "FICH" : ""));
        EXPECT_EQ(p.l.sauvEmetteur, std::string(garde ? "089ARS  " : "XXXXXXXX"));
        EXPECT_EQ(j.texte.ends_with("termine\n"), garde) << j.texte;
        EXPECT_EQ(emis() + erre(), "");
    }
}

TEST_F(Traitement, ReglesDAdmission) {
    const std::string infoNational = avec(info(), {{27, "POINTFOC"}});
    const auto deCorps = [](std::string r, const char* e8) { return avec(std::move(r), {{27, e8}}); };
    const struct {
        const char* emetteur;
        const char* recepteur;
        std::string record;
        codes attendus;
    } cas[] = {
        // 135: emitter and departmental body
        {"089ARS  ", "031BDN  ", acti(), {}},
        {"013ARS  ", "031BDN  ", acti(), {135}},
        {"NORM01  ", "031BDN  ", acti(), {}},
        {"NORM02  ", "031BDN  ", acti(), {}},
        {"PFOC01  ", "031BDN  ", acti(), {}},
        {"NORM03  ", "031BDN  ", acti(), {135}},
        // 110 and 85: requests for data
        {"NORM02  ", "031BDN  ", info(), {}},
        {"PFOC01  ", "031BDN  ", info(), {}},
        {"PFOC01  ", "031BDN  ", infoNational, {}},
        {"NORM01  ", "031BDN  ", info(), {110}},
        {"089ARS  ", "031BDN  ", info(), {110}},
        {"013ARS  ", "031BDN  ", info(), {135, 110}},
        {"NORM02XX", "031BDN  ", info(), {110}},
        {"NORM02  ", "031BDN 1", info(), {85}},
        {"089ARS  ", "BDN     ", info(), {110, 85}},
        {"013ARS  ", "BDN     ", info(), {135, 110, 85}},
        {"089ARS  ", "BDN     ", avec(info(), {{19, "ECQ"}}), {86, 86, 86, 86, 86}},
        {"089ARS  ", "BDN     ", acti(), {}},
        // 110 and 129: slaughter notices
        {"NORM01  ", "031BDN  ", deCorps(abat(), "NORMABEV"), {}},
        {"NORM01  ", "031BDN  ", abat(), {129}},
        {"NORM01XX", "031BDN  ", deCorps(abat(), "NORMABEV"), {110}},
        {"NORM02  ", "031BDN  ", deCorps(abat(), "NORMABEV"), {110}},
        {"089ARS  ", "031BDN  ", abat(), {110}},
        {"013ARS  ", "031BDN  ", abat(), {135, 110}},
        {"OFFICE12", "031BDN  ", deCorps(abat(), "OFFICE12"), {}},
        {"ONICABFR", "031BDN  ", deCorps(abat(), "ONICABFR"), {}},
        {"OFFICE12", "031BDN  ", abat(), {135}},
        {"OFFICX12", "031BDN  ", deCorps(abat(), "OFFICX12"), {110, 87}},
        {"ONICAXFR", "031BDN  ", deCorps(abat(), "ONICAXFR"), {110, 87}},
        {"089ARS  ", "031BDN  ", abat("INV"), {110}},
    };
    for (const auto& c : cas) {
        ouvrir(c.emetteur, c.recepteur);
        EXPECT_EQ(codesDe(c.record), c.attendus) << c.emetteur << " " << colonnes(c.record, 19, 34);
    }
    // Equal codes agree, whatever they are.
    ouvrir("001IPG  ");
    EXPECT_EQ(codesDe(avec(acti(), {{27, "001IPG  "}, {65, "01123456    "}})), codes{});
}

TEST_F(Traitement, AdmissionAvantLesTables) {
    ouvrir("013ARS  ", "BDN     ");
    EXPECT_EQ(codesDe(avec(info(), {{43, "        "}, {63, "??"}, {256, " "}})),
              (codes{135, 110, 85, 88, 1, 94}));
    EXPECT_EQ(origines(), (std::vector<eOrigine>{ORIGINE_ADMISSION, ORIGINE_ADMISSION, ORIGINE_ADMISSION,
                                                 ORIGINE_TABLE, ORIGINE_TABLE, ORIGINE_TABLE}));
}

TEST_F(Traitement, SecondeVSEFICH) {
    ouvrir();
    const std::string seconde = fich(1);
    EXPECT_EQ(codesDe(seconde), codes{109});
    EXPECT_EQ(erre(), "\n" + vseErreurInconnue(seconde, {109}));
    EXPECT_EQ(emis(), "");
    // It is not kept as the file's FICH record.
    EXPECT_EQ(codesDe(avec(fich(1), {{3, "013ARS  "}, {27, "004IPG  "}})), (codes{135, 109}));
    EXPECT_EQ(codesDe(acti()), codes{});
}

TEST_F(Traitement, DixErreursAvantLAiguillage) {
    // Only a second FICH record can hold ten: its admission, framing and header.
    ouvrir();
    const std::string pleine = avec(
        fich(1), {{3, "ZZZZZZZZ"}, {11, "ZZZZZZZZ"}, {19, "XXX"}, {27, "ZZZZZZZZ"}, {61, "ZZ"}, {256, "Z"}});
    const codes attendus = {135, 109, 106, 107, 95, 96, 84, 86, 97, 98};
    EXPECT_EQ(codesDe(pleine, 1, 1), attendus);
    EXPECT_EQ(p.v.itAiguil, ERR_AIGUILLAGE);
    EXPECT_EQ(erre(), "\n" + vseErreurInconnue(pleine, attendus));
}

TEST_F(Traitement, TypeInconnu) {
    for (const char* type : {"XXXX", "AVER", "LIST", "acti", "ZZZZ"}) {
        ouvrir();
        EXPECT_EQ(codesDe(acti()), codes{});  // leaves its body in the slots
        const std::string inconnue = avec(acti(), {{22, type}, {77, "xx"}, {256, " "}});
        // Neither the body nor the footer is looked at.
        EXPECT_EQ(codesDe(inconnue), (codes{85, 86})) << type;
        EXPECT_EQ(erre(), "\n" + vseErreurInconnue(inconnue, {85, 86})) << type;
        EXPECT_EQ(p.l.err_aux, 0);
    }
    // The partner rule does not run either.
    ouvrir("NORMABEV");
    EXPECT_EQ(codesDe(avec(acti(), {{22, "XXXX"}, {27, "NORMABEV"}})), (codes{85, 86}));
}

TEST_F(Traitement, OrdreDesErreurs) {
    ouvrir();
    // Framing, header, body, variant rule, footer.
    const std::string r =
        avec(acti(), {{43, "        "}, {77, "xx"}, {79, "9"}, {231, "31022024"}, {256, " "}});
    EXPECT_EQ(codesDe(r, 1, 1), (codes{106, 107, 88, 81, 51, 90, 94}));
    EXPECT_EQ(origines(),
              (std::vector<eOrigine>{ORIGINE_CADRAGE, ORIGINE_CADRAGE, ORIGINE_TABLE, ORIGINE_TABLE,
                                     ORIGINE_PARTENAIRE, ORIGINE_TABLE, ORIGINE_TABLE}));
    EXPECT_EQ(constats[2].ligne->numChamp, int{E10});
    EXPECT_EQ(constats[6].ligne, &tFin[lFin - 1]);
    EXPECT_EQ(codCaract + codLong, 0);
    EXPECT_EQ(codesDe(acti()), codes{}) << "nothing is left of the record before";
}

TEST_F(Traitement, DixErreursAuPlus) {
    ouvrir();
    EXPECT_EQ(codesDe(actiDixErreurs()), DIX_ERREURS);
    const std::string onze = avec(actiDixErreurs(), {{96, "?"}});
    EXPECT_EQ(codesDe(onze), DIX_ERREURS);
    // Neither the variant rule nor the footer finds room for its error.
    const std::string plus = avec(onze, {{77, "xx"}, {231, blancs(26)}});
    EXPECT_EQ(codesDe(plus), DIX_ERREURS);
    EXPECT_EQ(p.l.err_aux, 51);
    EXPECT_EQ(erre(), "\n" + vseErreurC1C2(actiDixErreurs(), DIX_ERREURS) + "\n" +
                          vseErreurC1C2(onze, DIX_ERREURS) + "\n" + vseErreurC1C2(plus, DIX_ERREURS));
    // The footer fills the place that is left.
    const std::string neuf = avec(actiDixErreurs(), {{79, "1"}, {239, blancs(18)}});
    EXPECT_EQ(codesDe(neuf), (codes{135, 87, 89, 88, 31, 31, 68, 50, 36, 91}));
}

TEST_F(Traitement, ReglesDeVariante) {
    const char* const QUILVANE = "QUILVANE  ";
    const char* const D = "QUILVANED ";
    const char* const L = "QUILVANEL ";
    const char* const PF = "QUILVANEPF";
    const struct {
        const char* variante;
        const char* emetteur;
        const char* c3;
        int code;
    } cas[] = {
        {QUILVANE, "089ARS  ", "xx", 51}, {QUILVANE, "NORM01  ", "xx", 64},
        {QUILVANE, "NORM02  ", "xx", 64}, {QUILVANE, "PFOC01  ", "xx", 64},
        {QUILVANE, "NORM01XX", "xx", 51}, {QUILVANE, "089ARS  ", "XX", 0},
        {QUILVANE, "089ARS  ", "x ", 0},  {QUILVANE, "089ARS  ", "  ", 0},
        {QUILVANE, "NORM01  ", "99", 0},  {D, "089ARS  ", "  ", 0},
        {D, "089ARS  ", "10", 0},         {D, "089ARS  ", "20", 806},
        {D, "NORM01  ", "20", 806},       {D, "089ARS  ", "xx", 806},
        {D, "089ARS  ", " 1", 806},       {L, "NORM01  ", "20", 0},
        {L, "NORM02  ", "10", 64},        {L, "PFOC01  ", "  ", 64},
        {L, "089ARS  ", "  ", 0},         {L, "089ARS  ", "10", 0},
        {L, "089ARS  ", "20", 806},       {L, "NORM01XX", "20", 806},
        {PF, "089ARS  ", "10", 0},        {PF, "089ARS  ", "  ", 807},
        {PF, "NORM01  ", "20", 807},      {"AUTRE     ", "089ARS  ", "xx", 0},
    };
    for (const auto& c : cas) {
        ouvrir(c.emetteur, "031BDN  ", c.variante);
        EXPECT_EQ(codesDe(avec(acti(), {{77, c.c3}, {256, " "}})),
                  c.code == 0 ? codes{94} : (codes{c.code, 94}))
            << c.variante << c.emetteur << c.c3;
        EXPECT_EQ(p.l.err_aux, c.code) << c.variante << c.emetteur << c.c3;
    }
    // Only the build "QUILVANE  " compares emitter and departmental body.
    for (const char* variante : {QUILVANE, D, L, PF}) {
        ouvrir("013ARS  ", "031BDN  ", variante);
        EXPECT_EQ(codesDe(avec(acti(), {{77, "10"}})), variante == QUILVANE ? codes{135} : codes{})
            << variante;
    }
    // "QUILVANEPF" leaves slaughter notices alone.
    ouvrir("OFFICE12", "031BDN  ", PF);
    EXPECT_EQ(codesDe(avec(abat(), {{27, "OFFICE12"}})), codes{});
}

TEST_F(Traitement, PasDeRegleDeVarianteSurUneERRE) {
    ouvrir();
    const std::string r = vse("ERRE", "ECQ", {{63, "ABATCRE"}, {70, "xx"}});
    for (const int code : codesDe(r))
        EXPECT_TRUE(code != 51 && code != 64) << code;
    EXPECT_EQ(p.l.err_aux, 0);
    // The rule forgets the record before.
    codesDe(avec(acti(), {{77, "xx"}}));
    EXPECT_EQ(p.l.err_aux, 51);
    codesDe(acti());
    EXPECT_EQ(p.l.err_aux, 0);
}

TEST_F(Traitement, ReglePartenaire) {
    // The partners' departmental body agrees with no holding: error 50 goes with it.
    const struct {
        std::string record;
        codes attendus;
        bool admis;
    } cas[] = {
        {info(), {110}, true},        {avec(info(), {{19, "EDI"}}), {86, 86, 86, 86, 86, 86}, false},
        {jalo(), {50}, true},         {avec(jalo(), {{19, "ECQ"}}), {50}, false},
        {entr("F"), {50}, true},      {entr("N"), {50}, false},
        {entr("G"), {23, 50}, false}, {avec(entr("F"), {{19, "ECQ"}}), {23, 50}, false},
        {sort("S"), {50}, true},      {sort("M"), {50}, true},
        {sort("E"), {50}, false},     {avec(sort("M"), {{19, "ECQ"}}), {50}, false},
        {acti(), {50}, false},        {exp1(), {50}, false},
    };
    for (const auto& c : cas) {
        ouvrir("NORMABEV");
        const std::string r = avec(c.record, {{27, "NORMABEV"}});
        codes attendus = c.attendus;
        if (!c.admis) attendus.push_back(182);
        EXPECT_EQ(codesDe(r), attendus) << colonnes(r, 19, 25) << " " << colonnes(r, 87, 87);
        // The same from any other emitter, or for another receiver.
        ouvrir("NORMABEV", "BDN     ");
        const codes ailleurs = codesDe(r);
        EXPECT_EQ(std::count(ailleurs.begin(), ailleurs.end(), 182), 0) << colonnes(r, 19, 25);
        ouvrir("NORM01  ");
        const codes autre = codesDe(r);
        EXPECT_EQ(std::count(autre.begin(), autre.end(), 182), 0) << colonnes(r, 19, 25);
    }
    // Slaughter notices of every kind pass this rule, not that of their emitter.
    for (const char* genre : {"CRE", "INV", "MOD", "ECQ"}) {
        ouvrir("NORMABEV");
        EXPECT_EQ(codesDe(avec(abat(genre), {{27, "NORMABEV"}})), codes{110}) << genre;
    }
    ouvrir("000PFO  ");
    EXPECT_EQ(codesDe(avec(acti(), {{256, " "}})), (codes{135, 182, 94}));
    EXPECT_EQ(codesDe(jalo()), codes{135});
    // After the variant rule, and only while there is room.
    EXPECT_EQ(codesDe(avec(acti(), {{77, "xx"}})), (codes{135, 51, 182}));
    EXPECT_EQ(origines(), (std::vector<eOrigine>{ORIGINE_ADMISSION, ORIGINE_PARTENAIRE, ORIGINE_PARTENAIRE}));
    EXPECT_EQ(codesDe(actiDixErreurs()), DIX_ERREURS);
}

TEST_F(Traitement, Decision) {
    ouvrir();
    EXPECT_EQ(codesDe(acti(), 0, 0, CVERSE_DOS), codes{});
    const std::string fausse = avec(acti(), {{79, "9"}});
    EXPECT_EQ(codesDe(fausse, 0, 0, CVERSE_DOS), codes{81});
    EXPECT_EQ(codesDe(avec(acti(), {{77, "  "}}), 0, 0, CVERSE_DOS), codes{});
    EXPECT_EQ(emis(), "\r\n" + emise(acti()) + "\r\n" + emise(acti()));
    EXPECT_EQ(erre(), "\r\n" + vseErreurC1C2(fausse, {81}));
}

TEST_F(Traitement, VSECourte) {
    ouvrir();
    // The end of the record stands in C2: its fields are written as they are.
    const std::string courte = acti().substr(0, 70);
    EXPECT_EQ(codesDe(courte), (codes{108, 68, 81, 36, 131, 90, 91, 94}));
    const std::string e = vseErreur(acti(), {108, 68, 81, 36, 131, 90, 91, 94}, "FR", "781234", "FR781234");
    std::string attendue = e;
    attendue.erase(105, 6);
    attendue.erase(77, 6);
    EXPECT_EQ(erre(), "\n" + attendue);
}

TEST_F(Traitement, AppariementDesVSE) {
    const std::string exp1Inv = avec(exp1(), {{19, "INV"}});
    const std::string exp1Faux = avec(exp1(), {{256, " "}});
    const std::string egetFaux = avec(eget(), {{256, " "}});
    const struct {
        const char* nom;
        std::string premiere;
        std::string suivante;
        int code;  // of the first record when its companion does not come, 0 none
    } cas[] = {
        {"pair", exp1(), exp2(), 0},
        {"pair", eget(), rata(), 0},
        {"kind of the companion", exp1(), avec(exp2(), {{19, "MOD"}}), 105},
        {"kind of the companion", eget(), avec(rata(), {{19, "MOD"}}), 138},
        {"link of the companion", exp1(), exp2("78123457    "), 105},
        {"last column of the link", exp1(), avec(exp2(), {{76, "1"}}), 105},
        {"link of the companion", eget(), rata("IGA13       "), 138},
        {"companion of the other pair", exp1(), rata(), 105},
        {"companion of the other pair", eget(), exp2(), 138},
        {"another type", exp1(), acti(), 105},
        {"unknown type", exp1(), avec(exp2(), {{22, "EXP3"}}), 105},
        {"second FICH record", eget(), fich(1), 138},
        {"companion in error", exp1(), avec(exp2(), {{63, "ZZ"}, {256, " "}}), 0},
        {"companion in error", eget(), avec(rata(), {{79, "?"}}), 0},
        {"companion in error by its link alone", exp1("78123456    "), exp2("            "), 105},
        {"first not a creation", exp1Inv, acti(), 0},
        {"first not a creation", avec(eget(), {{19, "MOD"}}), acti(), 0},
        {"first in error", exp1Faux, acti(), 0},
        {"first in error", egetFaux, acti(), 0},
        {"companion alone", exp2(), rata(), 0},
        {"no pair", acti(), acti(), 0},
        {"next opens a pair itself", exp1(), exp1("78123457    "), 105},
        {"next opens the other pair", eget(), exp1(), 138},
    };
    for (const auto& c : cas) {
        ouvrir();
        codesDe(c.premiere);
        EXPECT_EQ(p.l.existDependanceVSEerr, 0) << c.nom;
        const std::string avant = erre();
        const codes suivants = codesDe(c.suivante);
        const std::string apres = erre().substr(avant.size());
        const std::string orphelin = c.code == 0
                                         ? ""
                                         : "\n" + (c.code == 105 ? vseErreurC1C2(c.premiere, {105})
                                                                 : vseErreurSansCle(c.premiere, {138}));
        EXPECT_EQ(p.v.sansCompagnon, c.code) << c.nom;
        EXPECT_EQ(c.code == 0 ? "" : "\n" + std::string(p.l.tamponSansCompagnon), orphelin) << c.nom;
        // It follows the next record's own error record.
        EXPECT_EQ(apres.size(), orphelin.size() + (suivants.empty() ? 0 : 257)) << c.nom;
        EXPECT_TRUE(apres.ends_with(orphelin)) << c.nom;
        EXPECT_EQ(p.l.existDependanceVSEerr, c.code == 0 ? 0 : 1) << c.nom;
        EXPECT_EQ(p.l.sauvCodeVSE, colonnes(c.suivante, 22, 25)) << c.nom;
        EXPECT_EQ(p.l.sauvTypeVSE, colonnes(c.suivante, 19, 21)) << c.nom;
        EXPECT_EQ(p.l.sauvCodeVSEerr, static_cast<int>(suivants.size())) << c.nom;
    }
}

TEST_F(Traitement, AttenteDuCompagnon) {
    EXPECT_EQ(dependanceVSE(), 1);
    const std::string ancien(LARGEUR_VSE, '?');
    const auto rien = [&] {
        std::strcpy(p.l.tamponSansCompagnon, ancien.c_str());
        p.l.existDependanceVSEerr = 0;
        return sansCompagnon(p.l) == 0 && p.l.existDependanceVSEerr == 0 && p.l.tamponSansCompagnon == ancien;
    };
    ouvrir();
    EXPECT_TRUE(rien());
    codesDe(exp1());
    EXPECT_STREQ(p.l.sauvLienVSE, LIEN_EXP);
    EXPECT_EQ(p.l.sauvTamponVSE, vseErreurC1C2(exp1(), {105}));
    EXPECT_EQ(sansCompagnon(p.l), 105);
    EXPECT_EQ(p.l.existDependanceVSEerr, 1);
    EXPECT_EQ(p.l.tamponSansCompagnon, vseErreurC1C2(exp1(), {105}));
    codesDe(exp2());
    EXPECT_TRUE(rien());
    codesDe(avec(eget(), {{19, "INV"}}));
    EXPECT_TRUE(rien());
    codesDe(eget());
    EXPECT_STREQ(p.l.sauvLienVSE, LIEN_EGET);
    EXPECT_EQ(p.l.sauvTamponVSE, vseErreurSansCle(eget(), {138}));
    EXPECT_EQ(erre(), "");
    EXPECT_EQ(sansCompagnon(p.l), 138);
    EXPECT_EQ(p.l.tamponSansCompagnon, vseErreurSansCle(eget(), {138}));
    EXPECT_EQ(p.l.existDependanceVSEerr, 1);
    codesDe(rata());
    EXPECT_EQ(p.l.existDependanceVSEerr, 0);
    codesDe(avec(exp1(), {{79, "????"}}));
    EXPECT_TRUE(rien()) << "an EXP1 in error waits for nothing";
}

// The next pair may open with the record that breaks the one before: the error
// record of the first is written, that of the second is kept.
TEST_F(Traitement, DeuxPairesSeSuivent) {
    ouvrir();
    codesDe(exp1());
    EXPECT_EQ(codesDe(eget()), codes{});
    EXPECT_EQ(p.v.sansCompagnon, 105);
    EXPECT_EQ(erre(), "\n" + vseErreurC1C2(exp1(), {105}));
    EXPECT_EQ(codesDe(acti()), codes{});
    EXPECT_EQ(p.v.sansCompagnon, 138);
    EXPECT_EQ(erre(), "\n" + vseErreurC1C2(exp1(), {105}) + "\n" + vseErreurSansCle(eget(), {138}));
    EXPECT_EQ(emis(), "\n" + emise(exp1()) + "\n" + emise(eget()) + "\n" + emise(acti()));
}

TEST_F(Traitement, CeQueVoitLeTemoin) {
    journal j;
    const auto vus = [&](const std::string& record) {
        j.vider();
        p.l.vu = &j.vu;
        codesDe(record);
        EXPECT_TRUE(j.texte.starts_with("record\ncoupe\ncoupe\nE1 champ 1\n")) << j.texte;
        EXPECT_TRUE(j.texte.ends_with("\ntermine\n")) << j.texte;
        EXPECT_EQ(j.texte.find("record\n", 1), std::string::npos) << "told once";
        return j.refus;
    };
    EXPECT_EQ(vus(fich(1)), "");
    EXPECT_EQ(vus(acti()), "");
    EXPECT_EQ(vus(avec(acti(), {{43, "        "}, {79, "9"}, {256, " "}})), "E10.88;C4.81;F5.94;");
    // Errors of admission, partner and pairing rules are no row's.
    EXPECT_EQ(vus(avec(acti(), {{27, "004IPG  "}, {65, "04123456    "}})), "");
    EXPECT_EQ(nbErreur, 1);
    EXPECT_EQ(vus(avec(acti(), {{77, "xx"}})), "");
    EXPECT_EQ(nbErreur, 1);
    EXPECT_EQ(vus(exp1()), "");
    EXPECT_EQ(vus(acti()), "");
    EXPECT_EQ(p.v.sansCompagnon, 105);
}

TEST_F(Traitement, TablesParcourues) {
    const auto champsParcourus = [this](const std::string& record) {
        journal j;
        p.l.vu = &j.vu;
        codesDe(record);
        int n = 0;
        for (std::size_t i = 0; (i = j.texte.find(" champ ", i)) != std::string::npos; ++i)
            ++n;
        return n;
    };
    // Header, then the FICH body twice, then the footer.
    EXPECT_EQ(champsParcourus(fich(1)), 14 + 9 + 9 + 6);
    EXPECT_EQ(champsParcourus(acti()), 14 + 12 + 6);
    // Ten errors: the body's rows are still walked, the footer's are not.
    EXPECT_EQ(champsParcourus(actiDixErreurs()), 14 + 12);
    EXPECT_EQ(champsParcourus(avec(acti(), {{22, "XXXX"}})), 14);
}

// What a record leaves in the store does not reach the next one.
TEST_F(Traitement, RienNeResteDuRecordDAvant) {
    ouvrir();
    const std::string courte = acti().substr(0, 40);
    const codes seule = codesDe(courte);
    ouvrir();
    codesDe(actiDixErreurs(), 1, 1);
    codesDe(avec(acti(), {{22, "XXXX"}}));
    EXPECT_EQ(codesDe(courte), seule);
    for (std::size_t i = seule.size(); i < MAX_ERREURS; ++i)
        EXPECT_EQ(codeErreur[i], 0) << i;
}
