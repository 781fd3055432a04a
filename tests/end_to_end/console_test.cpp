/**
 * What modes -i and -d print, byte for byte.
 */
#include <gtest/gtest.h>

#include <algorithm>

#include "support/attendu.h"
#include "support/generateur.h"

using namespace essai;

namespace {

std::string console(const char* option, const std::string& octets, int statut) {
    const dossier d;
    d.ecrire("in", octets);
    const resultat r = lancer(d, {option, "in", "out", "log"});
    EXPECT_EQ(r.statut, statut);
    EXPECT_EQ(r.erreur, "");
    return r.sortie;
}

std::string avec(std::string record, const std::vector<pose>& poses) {
    for (const pose& p : poses)
        poser(record, p.col, p.texte);
    return record;
}

/** A row of a table that names no check. */
std::string coupe(int champ) { return "champ: " + std::to_string(champ) + "  "; }
std::string coupes(int premier, int dernier) {
    std::string s;
    for (int c = premier; c <= dernier; ++c)
        s += coupe(c);
    return s;
}
/** A row whose check accepts. */
std::string bon(int champ, const std::string& valeur) { return coupe(champ) + "'" + valeur + "'\n"; }
std::string faux(int champ, const std::string& valeur) {
    return bon(champ, valeur) + "! erreurChamp sur [" + valeur + "]\n";
}
std::string ignore(int champ, const std::string& valeur) {
    return coupe(champ) + "verif ignoree! '" + valeur + "'\n";
}
std::string interdit(int champ, int code) {
    return coupe(champ) + "verifOblg = [" + std::to_string(code) + "]\n";
}

/** The start of a record's trace: header and footer have been cut. */
std::string debut(const std::string& record) { return "VSE=|" + record + "|\n\n\n"; }

/** The header rows of a correct record. */
std::string entete(const std::string& r) {
    const auto col = [&](std::size_t a, std::size_t b) { return colonnes(r, a, b); };
    return coupe(1) + coupe(2) + bon(3, col(3, 10)) + bon(4, col(11, 18)) + bon(5, col(19, 21)) +
           bon(6, col(22, 25)) + bon(6, col(22, 25)) + coupe(7) + bon(8, col(27, 34)) + bon(9, col(35, 42)) +
           bon(10, col(43, 50)) + coupe(11) + bon(12, col(61, 61)) + bon(13, col(62, 62));
}

/** The footer rows of a correct record. */
std::string fin(const std::string& r) {
    return bon(1, colonnes(r, 231, 238)) + bon(2, colonnes(r, 239, 244)) + coupe(2) +
           bon(3, colonnes(r, 245, 247)) + coupe(4) + bon(5, colonnes(r, 256, 256));
}

/** The FICH record: its body table is run twice. */
std::string traceFich(const std::string& f) {
    return debut(f) + entete(f) + "\n" + coupes(1, 9) + coupes(1, 9) + fin(f);
}

/** A correct ACTI creation up to its footer. */
std::string corpsActi() {
    const std::string c2 = "78123456    ";
    return "\n" + bon(1, "FR") + bon(2, c2) + bon(2, c2) + bon(2, c2) + coupe(3) + bon(4, "1") +
           bon(5, "01022024") + bon(5, "01022024") + ignore(6, "        ") + ignore(6, "        ") +
           bon(7, "B") + coupe(8);
}

}  // namespace

TEST(Console, DecripteeFichierAccepte) {
    const std::string f = fich(2);
    const std::string r = acti();
    const std::string record = debut(r) + entete(r) + corpsActi() + fin(r);
    EXPECT_EQ(console("-d", fichier({f, r, r}), 0), traceFich(f) + record + record);
}

TEST(Console, DecripteeFichierRejete) {
    const std::string f = avec(fich(1), {{61, "9"}});
    const std::string r = avec(acti(), {{43, "X       "}, {79, "?"}, {96, "?"}, {256, "#"}});
    const std::string e9 = "EMETTEUR";
    const std::string c2 = "78123456    ";
    const std::string attendu =
        debut(f) + coupe(1) + coupe(2) + bon(3, "089ARS  ") + bon(4, "031BDN  ") + bon(5, "INF") +
        bon(6, "FICH") + bon(6, "FICH") + coupe(7) + bon(8, "078IPG  ") + bon(9, e9) + bon(10, "BDN     ") +
        coupe(11) + faux(12, "9") + bon(13, "N") + "\n" + coupes(1, 9) + coupes(1, 9) + fin(f) +  //
        debut(r) + coupe(1) + coupe(2) + bon(3, "089ARS  ") + bon(4, "031BDN  ") + bon(5, "CRE") +
        bon(6, "ACTI") + bon(6, "ACTI") + coupe(7) + bon(8, "078IPG  ") + bon(9, e9) + faux(10, "X       ") +
        coupe(11) + bon(12, "3") + bon(13, "N") + "\n" + bon(1, "FR") + bon(2, c2) + bon(2, c2) + bon(2, c2) +
        coupe(3) + faux(4, "?") + bon(5, "01022024") + bon(5, "01022024") + ignore(6, "        ") +
        ignore(6, "        ") + faux(7, "?") + coupe(8) + bon(1, "15032024") + bon(2, "102030") + coupe(2) +
        bon(3, "025") + coupe(4) + faux(5, "#");
    EXPECT_EQ(console("-d", fichier({f, r}), 2), attendu);
}

TEST(Console, DecripteeGenreNonPrevu) {
    // DEM is not for ACTI: ten errors before the last rows, which are named and
    // passed over; the footer is not looked at.
    const std::string r = avec(acti(), {{19, "DEM"}});
    const std::string tete = coupe(1) + coupe(2) + bon(3, "089ARS  ") + bon(4, "031BDN  ");
    const std::string queue = coupe(7) + bon(8, "078IPG  ") + bon(9, "EMETTEUR") + bon(10, "BDN     ") +
                              coupe(11) + bon(12, "3") + bon(13, "N") + "\n";
    EXPECT_EQ(console("-d", fichier({fich(1), r}), 2),
              traceFich(fich(1)) + debut(r) + tete + bon(5, "DEM") + bon(6, "ACTI") + faux(6, "ACTI") +
                  queue + interdit(1, 2) + interdit(2, 2) + interdit(2, 2) + interdit(2, 2) + coupe(3) +
                  interdit(4, 2) + interdit(5, 2) + interdit(5, 2) + interdit(6, 2) + interdit(6, 2) +
                  coupe(7) + coupe(8));
    // A kind that no table knows.
    const std::string x = avec(acti(), {{19, "XXX"}});
    EXPECT_EQ(console("-d", fichier({fich(1), x}), 2),
              traceFich(fich(1)) + debut(x) + tete + faux(5, "XXX") + bon(6, "ACTI") + faux(6, "ACTI") +
                  queue + interdit(1, -1) + interdit(2, -1) + interdit(2, -1) + interdit(2, -1) + coupe(3) +
                  interdit(4, -1) + interdit(5, -1) + interdit(5, -1) + interdit(6, -1) + coupe(6) +
                  coupe(7) + coupe(8));
}

TEST(Console, DecripteeTypeInconnu) {
    const std::string r = avec(acti(), {{22, "ACTE"}});
    EXPECT_EQ(console("-d", fichier({fich(1), r}), 2),
              traceFich(fich(1)) + debut(r) + coupe(1) + coupe(2) + bon(3, "089ARS  ") + bon(4, "031BDN  ") +
                  bon(5, "CRE") + faux(6, "ACTE") + faux(6, "ACTE") + coupe(7) + bon(8, "078IPG  ") +
                  bon(9, "EMETTEUR") + bon(10, "BDN     ") + coupe(11) + bon(12, "3") + bon(13, "N"));
}

TEST(Console, DecripteeCadrage) {
    // Framing faults are not told in this mode; the record shows up to column
    // 256 or its first zero byte.
    const std::string tab = avec(acti(), {{126, "\t"}});
    EXPECT_EQ(console("-d", fichier({fich(1), tab + "xyz"}), 2),
              traceFich(fich(1)) + debut(tab) + entete(tab) + corpsActi() + fin(tab));
    std::string zero = acti();
    zero[247] = '\0';
    const std::string vu = acti().substr(0, 247);
    EXPECT_EQ(console("-d", fichier({fich(1), zero}), 2),
              traceFich(fich(1)) + debut(vu) + entete(vu) + corpsActi() + bon(1, "15032024") +
                  bon(2, "102030") + coupe(2) + bon(3, "025") + coupe(4) + faux(5, ""));
    // Of a short record the fields behind its end are empty.
    const std::string court = acti().substr(0, 90);
    EXPECT_EQ(console("-d", fichier({fich(1), court}), 2).substr(0, traceFich(fich(1)).size() + 90 + 9),
              traceFich(fich(1)) + debut(court));
}

TEST(Console, DecripteeFinDansLeFICH) {
    EXPECT_EQ(console("-d", fichier({acti(), acti()}), 1), debut(acti()));
    const std::string blanc = avec(fich(1), {{63, std::string(16, ' ')}});
    EXPECT_EQ(console("-d", fichier({blanc, acti()}), 1), debut(blanc) + entete(blanc) + "\n");
}

TEST(Console, LesLignesSauteesNAffichentRien) {
    const std::string f = fich(2);
    const std::string r = acti();
    const std::string octets = f + "\n" + "x\r" + r + "\n\x1A" + r + "\n";
    EXPECT_EQ(console("-d", octets, 0), traceFich(f) + debut(r) + entete(r) + corpsActi() + fin(r));
    EXPECT_EQ(console("-i", octets, 0), "\n\n");
}

TEST(Console, InformatiqueUneLigneParRecord) {
    const std::string faux94 = avec(acti(), {{256, "#"}});
    struct cas {
        const char* nom;
        std::vector<std::string> records;
        int statut;
        std::string sortie;
    };
    const std::vector<cas> CAS = {
        {"accepted", {fich(3), acti(), acti(), acti()}, 0, "\n\n\n\n"},
        {"one in error", {fich(3), acti(), faux94, acti()}, 2, "\n\nF5.94;\n\n"},
        {"header, body and footer",
         {fich(1), avec(acti(), {{43, "X       "}, {79, "?"}, {96, "?"}, {256, "#"}})},
         2,
         "\nE10.88;C4.81;C7.131;F5.94;\n"},
        {"FICH in error",
         {avec(fich(1), {{3, "013IPG  "}, {61, "99"}}), avec(acti(), {{27, "013IPG  "}})},
         2,
         "E3.95;E12.97;E13.98;\nC2.50;\n"},
        {"FICH footer",
         {avec(fich(1), {{231, "31022024246060024        ?"}}), acti()},
         2,
         "F1.90;F2.91;F3.93;F5.94;\n\n"},
        {"FICH count", {fich(9), acti()}, 2, "\n\n"},
        {"unknown type", {fich(1), avec(acti(), {{22, "ACTE"}})}, 2, "\nE6.85;E6.86;\n"},
        {"kind not allowed",
         {fich(1), avec(acti(), {{19, "DEM"}})},
         2,
         "\nE6.86;C1.86;C2.86;C2.86;C2.86;C4.86;C5.86;C5.86;C6.86;C6.86;\n"},
        {"unknown kind",
         {fich(1), avec(acti(), {{19, "XXX"}})},
         2,
         "\nE5.84;E6.86;C1.86;C2.86;C2.86;C2.86;C4.86;C5.86;C5.86;C6.86;\n"},
        {"FICH of another type", {acti(), acti()}, 1, ""},
        {"FICH number blank", {avec(fich(1), {{63, std::string(16, ' ')}, {62, "X"}})}, 1, "E13.98;"},
        {"no message record", {fich(0)}, 1, "\n"},
        {"second FICH record", {fich(1), fich(1)}, 1, "\n\n"},
        {"empty line", {fich(2), acti(), ""}, 1, "\n\n"},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.nom);
        EXPECT_EQ(console("-i", fichier(c.records), c.statut), c.sortie);
    }
}

TEST(Console, InformatiqueReglesHorsTables) {
    // Of the rules on emitter, receiver and body only the tables' own show.
    const std::string faux135 = avec(acti(), {{27, "014IPG  "}, {65, "14123456    "}});
    EXPECT_EQ(console("-i", fichier({fich(3), faux135, fich(3), acti()}), 2), "\n\n\n\n");
    hasard h(3);
    const std::string f = fich(2, "NORM01  ");
    EXPECT_EQ(
        console("-i", fichier({f, recordCorrect("EXP1", "CRE", h), recordCorrect("IMPO", "CRE", h)}), 2),
        "\n\n\n");
    const std::string national = avec(recordCorrect("IMPO", "CRE", h), {{77, "xx"}});
    EXPECT_EQ(console("-i", fichier({fich(1, "NORM01  "), national}), 2), "\n\n");
}

TEST(Console, InformatiqueNumeroDEmplacement) {
    // NAIS has no C18 to C23: C24 is its 18th field. Mode -d names the field.
    hasard h(2);
    const std::string f = fich(1, "NORM01  ");
    const std::string nais = avec(recordCorrect("NAIS", "CRE", h), {{159, "?"}});
    EXPECT_EQ(console("-i", fichier({f, nais}), 2), "\nC18.83;\n");
    EXPECT_NE(console("-d", fichier({f, nais}), 2).find(faux(24, "?")), std::string::npos);
    // REBO jumps from C6 to C23.
    const std::string rebo = avec(recordCorrect("REBO", "MOD", h), {{212, "30022024"}});
    EXPECT_EQ(console("-i", fichier({f, rebo}), 2).substr(0, 7), "\nC7.28;");
    EXPECT_NE(console("-d", fichier({f, rebo}), 2).find(faux(23, "30022024")), std::string::npos);
}

TEST(Console, InformatiqueCadrage) {
    const std::string interdit = latin1("VSE  cars non autorisés \n");
    const std::string tab = avec(acti(), {{126, "\t"}});
    const std::string faux = avec(acti(), {{79, "?"}});
    EXPECT_EQ(console("-i", fichier({fich(1), tab}), 2), "\n" + interdit + "\n");
    EXPECT_EQ(console("-i", fichier({fich(1), acti() + "x"}), 2), "\nVSE trop long \n");
    EXPECT_EQ(console("-i", fichier({fich(1), acti().substr(0, 255)}), 2), "\nVSE trop court F5.94;\n");
    EXPECT_EQ(console("-i", fichier({fich(1), faux + "\t"}), 2), "\n" + interdit + "VSE trop long C4.81;\n");
    EXPECT_EQ(console("-i", fichier({avec(fich(1), {{61, "9"}}) + "\x80", acti()}), 2),
              interdit + "VSE trop long E12.97;\n\n");
    EXPECT_EQ(console("-i", fichier({fich(1).substr(0, 250), acti()}), 2), "VSE trop court F5.94;\n\n");
}

TEST(Console, AutantDeFinsDeLigneQueDeRecords) {
    commande c;
    c.graine = 11;
    c.nombre = 300;
    c.fautes = 30;
    const std::string sortie = console("-i", fichierGenere(c), 2);
    EXPECT_EQ(std::count(sortie.begin(), sortie.end(), '\n'), 301);
    // Line n belongs to record n: the fault of the last record stands last.
    std::string faux = acti();
    poser(faux, 256, "#");
    EXPECT_EQ(console("-i", fichier({fich(4), acti(), faux, acti(), faux}), 2), "\n\nF5.94;\n\nF5.94;\n");
}

TEST(Console, SansOptionRienNEstAffiche) {
    const dossier d;
    d.ecrire("in", fichier({fich(2), avec(acti(), {{126, "\t"}}) + "x", avec(acti(), {{22, "ACTE"}})}));
    EXPECT_EQ(lancer(d, {"in", "out", "log"}).sortie, "");
}
