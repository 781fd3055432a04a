#include "driver/traitement.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "driver/etat.h"
#include "driver/flux.h"
#include "driver/publication.h"
#include "rules/moteur.h"
#include "support/champ.h"
#include "support/modeles.h"

using namespace quilvane;
using namespace essai;

namespace {

using codes = std::vector<int>;

/** A run in memory: the two temporary files, and the records one by one. */
class Traitement : public testing::Test {
protected:
    Traitement() { recommencer(); }
    ~Traitement() override {
        fermerFichiers();
        initialiserEtat();
    }

    void recommencer(const char* variante = "QUILVANE  ") {
        fermerFichiers();
        initialiserEtat();
        VARIANTE = variante;
        fp_emis = std::tmpfile();
        fp_erre = std::tmpfile();
        std::strcpy(VSEDate, ESTAMPILLE);
        rang = 1;
    }

    /** Starts a run with the FICH record of this emitter and receiver. */
    void ouvrir(const std::string& emetteur = "089ARS  ", const std::string& recepteur = "031BDN  ",
                const char* variante = "QUILVANE  ") {
        recommencer(variante);
        codesDe(avec(fich(1), {{3, emetteur}, {11, recepteur}}));
    }

    /** Processes the next record as the record stream does. */
    codes codesDe(const std::string& record, int format = CVERSE_UNIX) {
        codLong = record.size() < 256 ? 2 : 0;
        retour = traitement(record.c_str(), VISU_AUCUNE, rang++, format);
        EXPECT_EQ(retour, nbErreur);
        nbErreur = 0;
        return {codeErreur, codeErreur + (retour > 0 ? retour : 0)};
    }

    static std::string contenu(std::FILE* fp) {
        std::string r;
        std::rewind(fp);
        for (int c; (c = std::getc(fp)) != EOF;)
            r += static_cast<char>(c);
        std::fseek(fp, 0, SEEK_END);
        return r;
    }
    static std::string emis() { return contenu(fp_emis); }
    static std::string erre() { return contenu(fp_erre); }

    int rang = 1;
    int retour = 0;
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
    EXPECT_STREQ(sauvEmetteur, "089ARS  ");
    EXPECT_STREQ(sauvRecepteur, "031BDN  ");
    EXPECT_STREQ(sauvCodeVSE, "FICH");
    EXPECT_STREQ(sauvTypeVSE, "INF");
    EXPECT_EQ(sauvCodeVSEerr, 0);
    EXPECT_EQ(errFich, 0);
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
    EXPECT_STREQ(sauvEmetteur, "XXXXXXXX");
    EXPECT_STREQ(sauvRecepteur, "XXXXXXXX");
    rang = 2;
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
        // Fields of message records only, the body, and the whole footer.
        {{{27, "ZZZZZZZZ"}, {35, "        "}, {43, "        "}, {79, blancs(152)}, {231, blancs(26)}},
         0,
         0,
         {}},
    };
    for (const auto& c : cas) {
        recommencer();
        codCaract = c.codCaract;
        codLong = c.codLong;
        const int n = traitement(avec(fich(1), c.poses).c_str(), VISU_AUCUNE, 1, CVERSE_UNIX);
        EXPECT_EQ(codes(codeFichErreur, codeFichErreur + errFich), c.attendus);
        EXPECT_EQ(n, static_cast<int>(c.attendus.size()));
        EXPECT_EQ(nbErreur, n);
        EXPECT_EQ(sauvCodeVSEerr, 0);
        EXPECT_EQ(codCaract + codLong, 0);
        EXPECT_EQ(emis() + erre(), "");
    }
}

TEST_F(Traitement, SansVSEFICHOuSansNumeroDeFichier) {
    const struct {
        std::string premiere;
        const char* message;  // null: the run goes on
    } cas[] = {
        {acti(), IG011},
        {avec(fich(1), {{22, "fich"}}), IG011},
        {fich(1).substr(0, 24), IG011},
        {avec(fich(1), {{63, blancs(16)}}), I099},
        {avec(fich(1), {{63, blancs(16)}, {3, "ZZZZZZZZ"}}), I099},
        {avec(fich(1), {{63, blancs(15) + "1"}}), nullptr},
        {avec(fich(1), {{63, "1" + blancs(15)}}), nullptr},
        {avec(fich(1), {{63, blancs(16)}}).substr(0, 77), nullptr},  // only fifteen blanks are there
    };
    for (const auto& c : cas) {
        recommencer();
        const dossier d;
        const std::string noms[] = {d.nom("recu"), d.nom("emis"), d.nom("recu_r"), d.nom("recu_e"),
                                    d.nom("recu_o")};
        name_recu = noms[0].c_str();
        name_emis = noms[1].c_str();
        name_tmp_recu = noms[2].c_str();
        name_tmp_emis = noms[3].c_str();
        name_erre = noms[4].c_str();
        for (const char* nom : {"recu_r", "emis", "recu_e", "recu_o"})
            d.ecrire(nom, nom);
        fp_log = std::fopen(d.nom("log").c_str(), "w");
        const int n = traitement(c.premiere.c_str(), VISU_AUCUNE, 1, CVERSE_UNIX);
        if (c.message == nullptr) {
            EXPECT_GE(n, 0) << c.premiere;
            fermer(fp_log);
            EXPECT_EQ(d.lire("log"), "");
            continue;
        }
        EXPECT_EQ(n, FATAL) << c.message;
        EXPECT_EQ(FATAL, -2);
        EXPECT_EQ(fp_emis, nullptr);
        EXPECT_EQ(fp_erre, nullptr);
        EXPECT_TRUE(d.lire("log").ends_with(std::string(" : ") + c.message + "\n")) << d.lire("log");
        EXPECT_EQ(d.lire("recu"), "recu_r");
        EXPECT_EQ(d.contenu().size(), 2U) << "the input and the log";
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

// Runs that follow each other in one process start alike.
TEST(Etat, RevientAuDebutDuProcessus) {
    struct variable {
        const char* nom;
        void* adresse;
        std::size_t taille;
        const char* texte = "";  // its first bytes; zeros follow
    };
#define VARIABLE(nom) \
    { #nom, static_cast < void*>(&nom), sizeof nom }
    const variable VARIABLES[] = {
        VARIABLE(name_recu),
        VARIABLE(name_emis),
        VARIABLE(name_log),
        VARIABLE(name_tmp_recu),
        VARIABLE(name_tmp_emis),
        VARIABLE(name_erre),
        VARIABLE(fp_log),
        VARIABLE(fp_recu),
        VARIABLE(fp_emis),
        VARIABLE(fp_erre),
        VARIABLE(VSEDate),
        VARIABLE(visu),
        {"sauvEmetteur", sauvEmetteur, sizeof sauvEmetteur, "XXXXXXXX"},
        {"sauvRecepteur", sauvRecepteur, sizeof sauvRecepteur, "XXXXXXXX"},
        VARIABLE(codeFichErreur),
        VARIABLE(errFich),
        VARIABLE(sauvCodeVSE),
        VARIABLE(sauvTypeVSE),
        VARIABLE(sauvCodeVSEerr),
        VARIABLE(sauvLienVSE),
        VARIABLE(sauvTamponVSE),
        VARIABLE(existDependanceVSEerr),
        VARIABLE(err_aux),
        VARIABLE(valEnteteVSE),
        VARIABLE(valCorpsVSE),
        VARIABLE(valFinVSE),
        VARIABLE(valFichEnteteVSE),
        VARIABLE(valFichCorpsVSE),
        VARIABLE(valFichFinVSE),
        VARIABLE(codeErreur),
        VARIABLE(bufC11),
        VARIABLE(cp),
        VARIABLE(nbErreur),
        VARIABLE(codCaract),
        VARIABLE(codLong),
    };
#undef VARIABLE
    for (const variable& v : VARIABLES)
        std::memset(v.adresse, 0x5A, v.taille);
    VARIANTE = "QUILVANED ";
    xdebug[0] = '?';
    initialiserEtat();
    for (const variable& v : VARIABLES) {
        std::string attendus(v.taille, '\0');
        attendus.replace(0, std::strlen(v.texte), v.texte);
        EXPECT_TRUE(std::memcmp(v.adresse, attendus.data(), v.taille) == 0) << v.nom;
    }
    EXPECT_STREQ(VARIANTE, "QUILVANE  ");
    EXPECT_STREQ(xdebug, "");
}

TEST_F(Traitement, AdmissionAvantLesTables) {
    ouvrir("013ARS  ", "BDN     ");
    EXPECT_EQ(codesDe(avec(info(), {{43, "        "}, {63, "??"}, {256, " "}})),
              (codes{135, 110, 85, 88, 1, 94}));
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
    codCaract = 1;
    codLong = 1;
    EXPECT_EQ(traitement(pleine.c_str(), VISU_AUCUNE, 2, CVERSE_UNIX), 10);
    const codes attendus = {135, 109, 106, 107, 95, 96, 84, 86, 97, 98};
    EXPECT_EQ(codes(codeErreur, codeErreur + 10), attendus);
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
        EXPECT_EQ(err_aux, 0);
    }
    // The partner rule does not run either.
    ouvrir("NORMABEV");
    EXPECT_EQ(codesDe(avec(acti(), {{22, "XXXX"}, {27, "NORMABEV"}})), (codes{85, 86}));
}

TEST_F(Traitement, OrdreDesErreurs) {
    ouvrir();
    // Framing, header, body, variant rule, footer.
    codCaract = 1;
    codLong = 1;
    const std::string r =
        avec(acti(), {{43, "        "}, {77, "xx"}, {79, "9"}, {231, "31022024"}, {256, " "}});
    const int n = traitement(r.c_str(), VISU_AUCUNE, rang++, CVERSE_UNIX);
    EXPECT_EQ(codes(codeErreur, codeErreur + n), (codes{106, 107, 88, 81, 51, 90, 94}));
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
    EXPECT_EQ(err_aux, 51);
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
        EXPECT_EQ(err_aux, c.code) << c.variante << c.emetteur << c.c3;
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
    EXPECT_EQ(err_aux, 0);
    // The rule forgets the record before.
    codesDe(avec(acti(), {{77, "xx"}}));
    EXPECT_EQ(err_aux, 51);
    codesDe(acti());
    EXPECT_EQ(err_aux, 0);
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
    EXPECT_EQ(codesDe(actiDixErreurs()), DIX_ERREURS);
}

TEST_F(Traitement, Decision) {
    ouvrir();
    EXPECT_EQ(codesDe(acti(), CVERSE_DOS), codes{});
    const std::string fausse = avec(acti(), {{79, "9"}});
    EXPECT_EQ(codesDe(fausse, CVERSE_DOS), codes{81});
    EXPECT_EQ(codesDe(avec(acti(), {{77, "  "}}), CVERSE_DOS), codes{});
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
        EXPECT_EQ(existDependanceVSEerr, 0) << c.nom;
        const std::string avant = erre();
        const codes suivants = codesDe(c.suivante);
        const std::string apres = erre().substr(avant.size());
        const std::string orphelin = c.code == 0
                                         ? ""
                                         : "\n" + (c.code == 105 ? vseErreurC1C2(c.premiere, {105})
                                                                 : vseErreurSansCle(c.premiere, {138}));
        // It follows the next record's own error record.
        EXPECT_EQ(apres.size(), orphelin.size() + (suivants.empty() ? 0 : 257)) << c.nom;
        EXPECT_TRUE(apres.ends_with(orphelin)) << c.nom;
        EXPECT_EQ(existDependanceVSEerr, c.code == 0 ? 0 : 1) << c.nom;
        EXPECT_EQ(sauvCodeVSE, colonnes(c.suivante, 22, 25)) << c.nom;
        EXPECT_EQ(sauvTypeVSE, colonnes(c.suivante, 19, 21)) << c.nom;
        EXPECT_EQ(sauvCodeVSEerr, static_cast<int>(suivants.size())) << c.nom;
    }
}

TEST_F(Traitement, AttenteDuCompagnon) {
    EXPECT_EQ(dependanceVSE(), 1);
    ouvrir();
    EXPECT_FALSE(attendCompagnon());
    codesDe(exp1());
    EXPECT_TRUE(attendCompagnon());
    EXPECT_STREQ(sauvLienVSE, LIEN_EXP);
    EXPECT_EQ(sauvTamponVSE, vseErreurC1C2(exp1(), {105}));
    codesDe(exp2());
    EXPECT_FALSE(attendCompagnon());
    codesDe(avec(eget(), {{19, "INV"}}));
    EXPECT_FALSE(attendCompagnon());
    codesDe(eget());
    EXPECT_TRUE(attendCompagnon());
    EXPECT_STREQ(sauvLienVSE, LIEN_EGET);
    EXPECT_EQ(sauvTamponVSE, vseErreurSansCle(eget(), {138}));
    EXPECT_EQ(erre(), "");
    rejeterSansCompagnon(CVERSE_DOS);
    EXPECT_EQ(erre(), "\r\n" + vseErreurSansCle(eget(), {138}));
    EXPECT_EQ(existDependanceVSEerr, 1);
    codesDe(rata());
    EXPECT_EQ(existDependanceVSEerr, 0);
    codesDe(avec(exp1(), {{79, "????"}}));
    EXPECT_FALSE(attendCompagnon()) << "an EXP1 in error waits for nothing";
}

TEST_F(Traitement, TraceDUneVSE) {
    ouvrir();
    const std::string fausse = avec(acti(), {{43, "        "}, {79, "9"}, {256, " "}});
    testing::internal::CaptureStdout();
    traitement(acti().c_str(), VISU_INFORMATIQUE, 2, CVERSE_UNIX);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\n");
    testing::internal::CaptureStdout();
    traitement(fausse.c_str(), VISU_INFORMATIQUE, 3, CVERSE_UNIX);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "E10.88;C4.81;F5.94;\n");
    testing::internal::CaptureStdout();
    traitement(fausse.c_str(), VISU_DECRIPTEE, 4, CVERSE_UNIX);
    const std::string trace = testing::internal::GetCapturedStdout();
    EXPECT_TRUE(trace.starts_with("VSE=|" + fausse + "|\n\n\nchamp: 1  champ: 2  champ: 3  '089ARS  '\n"))
        << trace;
    EXPECT_EQ(trace.find("VSE=|", 1), std::string::npos) << "printed once";
    // Errors of admission and pairing are not shown.
    testing::internal::CaptureStdout();
    traitement(avec(acti(), {{27, "004IPG  "}, {65, "04123456    "}}).c_str(), VISU_INFORMATIQUE, 5,
               CVERSE_UNIX);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\n");
    EXPECT_EQ(nbErreur, 1);
}

TEST_F(Traitement, TablesParcouruesEnModeD) {
    const auto champsParcourus = [this](const std::string& record) {
        testing::internal::CaptureStdout();
        traitement(record.c_str(), VISU_DECRIPTEE, rang++, CVERSE_UNIX);
        const std::string trace = testing::internal::GetCapturedStdout();
        int n = 0;
        for (std::size_t p = 0; (p = trace.find("champ: ", p)) != std::string::npos; ++p)
            ++n;
        return n;
    };
    // Header, then the FICH body twice; its footer is not looked at.
    EXPECT_EQ(champsParcourus(fich(1)), 14 + 9 + 9);
    EXPECT_EQ(champsParcourus(acti()), 14 + 12 + 6);
    // Ten errors: the body's rows are still walked, the footer's are not.
    EXPECT_EQ(champsParcourus(actiDixErreurs()), 14 + 12);
    EXPECT_EQ(champsParcourus(avec(acti(), {{22, "XXXX"}})), 14);
}
