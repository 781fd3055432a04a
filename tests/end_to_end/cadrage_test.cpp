/**
 * The record stream of the built program: line ends, lengths, forbidden
 * bytes, counts.
 */
#include <gtest/gtest.h>

#include "support/attendu.h"
#include "support/generateur.h"

using namespace essai;

namespace {

using contenu = std::map<std::string, std::string>;

/** Runs over `octets` and compares status and files; nothing is printed. */
void verifier(const std::string& octets, int statut, const contenu& attendu) {
    const dossier d;
    d.ecrire("in", octets);
    const resultat r = lancer(d, {"in", "out", "log"});
    EXPECT_EQ(r.statut, statut);
    EXPECT_EQ(r.sortie, "");
    EXPECT_EQ(r.erreur, "");
    EXPECT_EQ(d.contenu(), attendu);
}

void accepte(const std::string& octets, const std::string& emis) {
    verifier(octets, 0, {{"out", emis}, {"log", ""}});
}

void rejete(const std::string& octets, const std::string& erreurs) {
    verifier(octets, 2, {{"out", erreurs}, {"log", ""}});
}

/** The run ends at once, the input is given back and the log says why. */
void annule(const std::string& octets, const char* message) {
    verifier(octets, 1, {{"in", octets}, {"log", ligneLog(message)}});
}

std::string avec(std::string record, int col, const std::string& texte) {
    poser(record, col, texte);
    return record;
}

std::string erreActi(const std::string& r, const std::vector<int>& codes) {
    return erre(r, codes, clesExploitation(r));
}

/** The error file of one ACTI record with these numbers. */
std::string unRejete(const std::string& r, const std::vector<int>& codes) {
    return fichierErreurs(fich(1), {1, 1, 0}, {erreActi(r, codes)});
}

/** The error file after a wrong count only. */
std::string compteFaux(const std::string& fichVSE, int recus) {
    return fichierErreurs(fichVSE, {1, recus, recus}, {erre(fichVSE, {100}, clesBlanches(), fichVSE)});
}

std::string mille(int n, const std::string& finDeLigne = "\n") {
    std::string f;
    const std::string ligne = acti() + finDeLigne;
    for (int i = 0; i < n; ++i)
        f += ligne;
    return f;
}

}  // namespace

TEST(Cadrage, FinsDeLigneConservees) {
    std::string faux = acti();
    poser(faux, 79, "X");
    for (const char* fin : {"\n", "\r\n"}) {
        accepte(fichier({fich(2), acti(), acti()}, fin), fichierEmis(fich(2), 2, {acti(), acti()}, fin));
        rejete(fichier({fich(2), acti(), faux}, fin),
               fichierErreurs(fich(2), {1, 2, 1}, {erreActi(faux, {81})}, fin));
    }
}

TEST(Cadrage, LesErreursDuFICHSuiventLaFinDeLigne) {
    const std::string f = avec(fich(2), 61, "9");
    for (const char* fin : {"\n", "\r\n"})
        rejete(fichier({f, acti()}, fin),
               fichierErreurs(f, {1, 1, 1}, {erre(f, {97, 100}, clesBlanches(), f)}, fin));
}

TEST(Cadrage, FinsDeLigneMelangees) {
    const std::string reserve(256, ' ');
    const std::string valide = emise(acti());
    struct cas {
        const char* nom;
        std::string octets;
        std::string emis;
        std::string erres;
    };
    const std::string faux = avec(acti(), 79, "X");
    const std::vector<cas> CAS = {
        {"DOS behind the FICH record", fich(1) + "\n" + acti() + "\r\n", reserve, reserve},
        {"UNIX behind the FICH record", fich(1) + "\r\n" + acti() + "\n", reserve, reserve},
        {"DOS on the last line", fich(3) + "\n" + acti() + "\n" + acti() + "\n" + acti() + "\r\n",
         reserve + "\n" + valide + "\n" + valide, reserve},
        {"UNIX in the middle",
         fich(3) + "\r\n" + acti() + "\r\n" + faux + "\r\n" + acti() + "\n" + acti() + "\r\n",
         reserve + "\r\n" + valide, reserve + "\r\n" + erreActi(faux, {81})},
        {"a faulty line", fich(1) + "\n" + acti() + "\nx\r\n", reserve + "\n" + valide, reserve},
        {"CR before LF is one line end", fich(1) + "\n" + acti() + "\r\r\n" + acti() + "\n", "", ""},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.nom);
        if (c.emis.empty())  // an empty line after a line that ends in CR
            annule(c.octets, LOG_IG015);
        else
            verifier(c.octets, 1,
                     {{"in_r", c.octets},
                      {"in_e", c.emis},
                      {"in_o", c.erres},
                      {"out", ""},
                      {"log", ligneLog(LOG_IG008)}});
    }
}

TEST(Cadrage, LigneVide) {
    const std::string f = fich(1);
    for (const std::string& octets : {
             std::string("\n"),
             std::string("\r\n"),
             std::string("\r"),
             std::string("\rx"),
             "\n" + f + "\n",
             f + "\n\n",
             f + "\r\n\r\n",
             f + "\n" + acti() + "\n\n",
             f + "\n\n" + acti() + "\n",
             f + "\n" + acti() + "\n\r",
             f + "\r\n" + acti() + "\r\r",
             f + "\n" + acti() + "\n\r\x1A",
             f + "\n" + acti() + "\n\r\n",  // empty before it is of the wrong kind
             f + "\r\n" + acti() + "\r\n\n",
         })
        annule(octets, LOG_IG015);
}

TEST(Cadrage, DerniereLigneSansFin) {
    accepte(fichier({fich(1), acti()}) + acti(), fichierEmis(fich(1), 1, {acti()}));
    accepte(fichier({fich(1), acti()}) + "x", fichierEmis(fich(1), 1, {acti()}));
    accepte(fichier({fich(1), acti()}, "\r\n") + acti(), fichierEmis(fich(1), 1, {acti()}, "\r\n"));
    rejete(fichier({fich(2), acti()}) + acti(), compteFaux(fich(2), 1));
    annule(fich(1) + "\n" + acti(), LOG_IG014);
    annule(fich(0) + "\n", LOG_IG014);
}

TEST(Cadrage, CtrlZ) {
    const std::string f = fichier({fich(1), acti()});
    const std::string emis = fichierEmis(fich(1), 1, {acti()});
    accepte(f + "\x1A", emis);
    accepte(f + "\x1A" + acti() + "\n", emis);
    accepte(f + "\x1A\n\r\n\x01", emis);
    accepte(f + acti().substr(0, 100) + "\x1A" + acti().substr(101) + "\n", emis);
    accepte(f + acti() + "\x1A\n", emis);
    accepte(f + acti() + std::string(40, 'x') + "\x1A\n", emis);
    annule(fich(0) + "\n\x1A" + acti() + "\n", LOG_IG014);
    rejete(fichier({fich(2), acti()}) + "\x1A" + acti() + "\n", compteFaux(fich(2), 1));
}

TEST(Cadrage, LignesTermineesParCR) {
    // They are counted and skipped, whatever they hold.
    const std::string emis = fichierEmis(fich(2), 2, {acti()});
    for (const std::string& saut : {acti() + "\r", std::string("x\r"), std::string(300, '\x01') + "\r",
                                    fich(1) + "\r", std::string(256, '\0') + "\r"}) {
        accepte(fich(2) + "\n" + saut + acti() + "\n", emis);
        accepte(fich(2) + "\n" + acti() + "\n" + saut, emis);
        accepte(fich(2) + "\n" + acti() + "\n" + saut + "\x1A" + acti() + "\n", emis);
        accepte(fich(2) + "\n" + acti() + "\n" + saut + acti(), emis);
        accepte(fich(2) + "\r\n" + saut + acti() + "\r\n", fichierEmis(fich(2), 2, {acti()}, "\r\n"));
        rejete(fich(1) + "\n" + saut + acti() + "\n", compteFaux(fich(1), 2));
        annule(fich(2) + "\n" + saut + saut, LOG_IG014);
        // The FICH record must be the first line of all.
        annule(saut + fich(1) + "\n", LOG_IG014);
    }
    annule(acti() + "\r\n" + acti() + "\r\n", LOG_IG011);
}

TEST(Cadrage, FichierDeLignesCR) {
    // No record was processed, so that nothing is known of a FICH record.
    rejete(fichier({fich(1), acti()}, "\r"), compteFaux("", 1));
    rejete(fichier({fich(2), acti(), acti()}, "\r"), compteFaux("", 2));
    rejete(fichier({"x", "y"}, "\r") + "\x1A", compteFaux("", 1));
    accepte(acti() + "\r", fichierEmis("", 0, {}));
    accepte("x\r", fichierEmis("", 0, {}));
    accepte("x\r\x1A", fichierEmis("", 0, {}));
    accepte("x\ry", fichierEmis("", 0, {}));
}

TEST(Cadrage, EntreeVide) {
    const std::string erreurs =
        surBlancs("INF000001-00001000001-000011" + std::string(105, ' ') + ESTAMPILLE) + "\n" +
        erre("", {100}, clesBlanches(), "") + "\n";
    for (const std::string& octets : {std::string(), std::string("\x1A"), fich(1), std::string("x"),
                                      "\x1A" + fichier({fich(1), acti()}), std::string(1000, 'x')})
        rejete(octets, erreurs);
}

TEST(Cadrage, LigneCRApresUneErreurDePaire) {
    hasard h(1);
    const std::string f = fich(3, "NORM01  ");
    const std::string exp1 = recordCorrect("EXP1", "CRE", h);
    const std::string seul = recordCorrect("IMPO", "CRE", h);
    std::string exp2 = recordCorrect("EXP2", "CRE", h);
    poser(exp2, 27, exp1.substr(26, 8));
    poser(exp2, 65, exp1.substr(64, 12));
    const std::string rejetExp1 = erre(exp1, {105}, clesExploitation(exp1), f);

    // A line that is skipped does not stand between the two.
    accepte(f + "\n" + exp1 + "\nx\r" + exp2 + "\n", fichierEmis(f, 3, {exp1, exp2}));
    // The missing companion is found out at the next record and counted again
    // at the skipped lines behind it.
    rejete(f + "\n" + exp1 + "\n" + seul + "\nx\r", fichierErreurs(f, {2, 3, 1}, {rejetExp1}));
    const std::string f4 = fich(5, "NORM01  ");
    rejete(f4 + "\n" + exp1 + "\n" + seul + "\nx\ry\r" + seul + "\n",
           fichierErreurs(f4, {3, 5, 2}, {rejetExp1}));
    // At the end of the file.
    const std::string f2 = fich(2, "NORM01  ");
    rejete(f2 + "\n" + exp1 + "\nx\r", fichierErreurs(f2, {1, 2, 1}, {rejetExp1}));
}

TEST(Cadrage, Longueurs) {
    const std::string r = acti();
    struct cas {
        std::string octets;
        std::vector<int> codes;
    };
    const std::vector<cas> CAS = {
        {r.substr(0, 255), {108, 94}},
        {r + "x", {107}},
        {r + std::string(44, ' '), {107}},
        {r + std::string(70000, 'x'), {107}},
        {r + "\t", {106, 107}},
        {r + std::string(44, '\xFF'), {106, 107}},
        {r + std::string(1, '\0'), {106, 107}},
        {r.substr(0, 254) + "\t", {106, 108, 94}},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.octets.size());
        rejete(fich(1) + "\n" + c.octets + "\n", unRejete(c.octets.substr(0, 256), c.codes));
        rejete(fich(1) + "\r\n" + c.octets + "\r\n",
               fichierErreurs(fich(1), {1, 1, 0}, {erreActi(c.octets.substr(0, 256), c.codes)}, "\r\n"));
    }
    accepte(fichier({fich(1), r}), fichierEmis(fich(1), 1, {r}));
}

TEST(Cadrage, UnDefautNePasseACeluiQuiSuit) {
    const std::string longue = acti() + "x";
    const std::string tab = avec(acti(), 126, "\t");
    const std::string courte = acti().substr(0, 255);
    const std::string f = fich(6);
    rejete(fichier({f, longue, acti(), tab, acti(), courte, acti()}),
           fichierErreurs(f, {3, 6, 3},
                          {erreActi(acti(), {107}), erreActi(tab, {106}), erreActi(courte, {108, 94})}));
    // Nor does that of a skipped line.
    accepte(fich(2) + "\n" + std::string(300, '\x80') + "\r" + acti() + "\n",
            fichierEmis(fich(2), 2, {acti()}));
}

TEST(Cadrage, OctetsInterdits) {
    std::vector<std::string> records;
    std::vector<std::string> erres;
    for (int o = 1; o < 256; ++o) {
        if (o == '\n' || o == '\r' || o == 0x1A) continue;
        const std::string r = avec(acti(), 126, std::string(1, static_cast<char>(o)));
        records.push_back(r);
        if (o < 0x20 || o > 0x7E) erres.push_back(erreActi(r, {106}));
    }
    const int n = static_cast<int>(records.size());
    const int faux = static_cast<int>(erres.size());
    ASSERT_EQ(n, 252);
    ASSERT_EQ(faux, 252 - 95);
    const std::string f = fich(n);
    records.insert(records.begin(), f);
    rejete(fichier(records), fichierErreurs(f, {faux, n, n - faux}, erres));
}

TEST(Cadrage, UnRecordAuxOctetsInterditsEstTraite) {
    for (const int col : {1, 26, 51, 77, 97, 230, 248, 255}) {
        SCOPED_TRACE(col);
        std::string r = avec(acti(), 79, "X");
        poser(r, col, "\t");
        rejete(fichier({fich(1), r}), unRejete(r, {106, 81}));
    }
}

TEST(Cadrage, OctetNul) {
    // It ends the text of the record, not its length.
    const std::string zero(1, '\0');
    std::string r = avec(acti(), 248, zero);
    rejete(fichier({fich(1), r}), unRejete(r.substr(0, 247), {106, 94}));
    r = avec(acti(), 256, zero);
    rejete(fichier({fich(1), r}), unRejete(r.substr(0, 255), {106, 94}));
    r = avec(acti(), 240, zero);
    rejete(fichier({fich(1), r}), unRejete(r.substr(0, 239), {106, 91, 94}));
    // Counted in a short record, and beyond the last column.
    r = acti().substr(0, 250) + zero + "x";
    rejete(fichier({fich(1), r}), unRejete(r.substr(0, 250), {106, 108, 94}));
    r = acti() + zero + "x";
    rejete(fichier({fich(1), r}), unRejete(acti(), {106, 107}));
    // Fields behind it are empty: the error record is that much shorter.
    const dossier d;
    d.ecrire("in", fichier({fich(1), avec(acti(), 51, zero)}));
    EXPECT_EQ(lancer(d, {"in", "out", "log"}).statut, 2);
    const std::string out = d.lire("out");
    EXPECT_EQ(out.substr(257, 57 + 14),
              "11031BDN  089ARS  ERRERRE1INTERFACEMETTEUR089ARS  ACTICRE" + std::string(14, ' '));
    EXPECT_EQ(out.substr(257 + 57 + 14, 5), "I1061");
    EXPECT_EQ(out.size(), 257 + 57 + 14 + 119 + 26 + 1U);
}

TEST(Cadrage, NombreDeRecords) {
    const std::string dixMille = fich(10000) + "\n" + mille(10000);
    std::string emis = fichierEmis(fich(10000), 10000, {});
    for (int i = 0; i < 10000; ++i)
        emis += emise(acti()) + "\n";
    accepte(dixMille, emis);
    accepte(dixMille + "\x1A" + acti() + "\n", emis);
    accepte(dixMille + acti(), emis);  // no line end, no record
    for (const std::string& suite : {acti() + "\n", std::string("x\r"), std::string("x\n"), fich(1) + "\n",
                                     acti() + "\n" + acti() + "\n", acti() + "\n\n"})
        annule(dixMille + suite, LOG_I073);
    // An empty line before the limit is reached ends the run for its own reason.
    annule(dixMille + "\n" + acti() + "\n", LOG_IG015);
    annule("x\r" + std::string("x\r") + mille(10000, "\r"), LOG_I073);
}

TEST(Cadrage, CompteDuFICH) {
    for (const char* texte :
         {"000001", "     1", "1     ", " 1    ", "+1    ", " +1   ", "01ABCD", "1 2   ", "1.9   "}) {
        SCOPED_TRACE(texte);
        const std::string f = avec(fich(1), 95, texte);
        accepte(fichier({f, acti()}), fichierEmis(f, 1, {acti()}));
    }
    for (const char* texte : {"000000", "000002", "100000", "      ", "A00001", "-1    ", "+-1   ", "--1   ",
                              "0x0001", "999999"}) {
        SCOPED_TRACE(texte);
        const std::string f = avec(fich(1), 95, texte);
        rejete(fichier({f, acti()}), compteFaux(f, 1));
    }
}

TEST(Cadrage, CompteFauxAvecDAutresErreurs) {
    const std::string r = avec(acti(), 79, "X");
    const std::string f = fich(3);
    rejete(fichier({f, acti(), r}),
           fichierErreurs(f, {2, 2, 1}, {erreActi(r, {81}), erre(f, {100}, clesBlanches(), f)}));
    // A FICH record already in error counts once.
    const std::string g = avec(fich(3), 61, "9");
    rejete(fichier({g, acti(), r}),
           fichierErreurs(g, {2, 2, 1}, {erreActi(r, {81}), erre(g, {97, 100}, clesBlanches(), g)}));
    const std::string juste = avec(fich(2), 61, "9");
    rejete(fichier({juste, acti(), r}),
           fichierErreurs(juste, {2, 2, 1}, {erreActi(r, {81}), erre(juste, {97}, clesBlanches(), juste)}));
}

TEST(Cadrage, FICHMalCadre) {
    const std::string tab = avec(fich(1), 130, "\t");
    rejete(fichier({tab, acti()}), fichierErreurs(tab, {1, 1, 1}, {erre(tab, {106}, clesBlanches(), tab)}));
    const std::string longue = fich(1) + "x";
    rejete(fichier({longue, acti()}),
           fichierErreurs(fich(1), {1, 1, 1}, {erre(fich(1), {107}, clesBlanches(), fich(1))}));
    // Nothing of its footer is there.
    const std::string sansFin = fich(1).substr(0, 230);
    rejete(
        fichier({sansFin, acti()}),
        fichierErreurs(sansFin, {1, 1, 1}, {erre(sansFin, {108, 90, 91, 93, 94}, clesBlanches(), sansFin)}));
    // A short one loses its count as well; its summary is shorter, over blanks.
    const std::string courte = fich(1).substr(0, 70);
    rejete(fichier({courte, acti()}),
           fichierErreurs(courte, {1, 1, 1},
                          {erre(courte, {108, 90, 91, 93, 94, 100}, clesBlanches(), courte)}));
    annule(fichier({fich(1).substr(0, 24), acti()}), LOG_IG011);
    annule(fichier({"x", acti()}), LOG_IG011);
}

// The footer of the FICH record is checked like any other, behind its header;
// its format version must be "025".
TEST(Cadrage, FinDuFICH) {
    const struct {
        std::string f;
        std::vector<int> codes;
    } cas[] = {
        {avec(fich(1), 245, "024"), {93}},
        {avec(fich(1), 245, "   "), {93}},
        {avec(fich(1), 231, "30022024"), {90}},
        {avec(fich(1), 231, "        "), {90}},
        {avec(fich(1), 239, "240000"), {91}},
        {avec(fich(1), 256, " "), {94}},
        {avec(fich(1), 231, std::string(26, ' ')), {90, 91, 93, 94}},
        {avec(fich(1), 231, "30022024240000024        ?"), {90, 91, 93, 94}},
        {avec(fich(1), 248, "ABCDEFGH"), {}},
        {fich(1).substr(0, 240), {108, 91, 93, 94}},
        // Behind the faults of the header, before that of the count.
        {avec(avec(fich(3), 61, "9"), 245, "024"), {97, 93, 100}},
        {avec(avec(fich(3), 130, "\t"), 256, "?"), {106, 94, 100}},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(testing::PrintToString(c.codes));
        if (c.codes.empty())
            accepte(fichier({c.f, acti()}), fichierEmis(c.f, 1, {acti()}));
        else
            rejete(fichier({c.f, acti()}),
                   fichierErreurs(c.f, {1, 1, 1}, {erre(c.f, c.codes, clesBlanches(), c.f)}));
    }
    // Eight errors of framing and header leave room for two more, in their
    // order; the wrong count then finds none.
    std::string pleine = fich(3);
    for (const auto& [colonne, texte] : std::vector<std::pair<int, std::string>>{
             {3, "ZZZZZZZZ"}, {11, "ZZZZZZZZ"}, {19, "XXX"}, {61, "99"}, {130, "\t"}})
        poser(pleine, colonne, texte);
    const std::vector<int> huit = {106, 107, 95, 96, 84, 86, 97, 98};
    const auto avecFin = [&](const std::string& fin, std::vector<int> suite) {
        const std::string f = avec(pleine, 257 - static_cast<int>(fin.size()), fin);
        suite.insert(suite.begin(), huit.begin(), huit.end());
        rejete(fichier({f + "x", acti()}), fichierErreurs(f, {2, 1, 0},
                                                          {erre(acti(), {135}, clesExploitation(acti()), f),
                                                           erre(f, suite, clesBlanches(), f)}));
    };
    avecFin("?", {94, 100});
    avecFin("024        ?", {93, 94});
    avecFin(std::string(26, ' '), {90, 91});
}

TEST(Cadrage, SecondFICH) {
    annule(fichier({fich(1), fich(1)}), LOG_IG014);
    annule(fichier({fich(2), acti(), fich(1)}), LOG_IG014);
    annule(fichier({fich(2), acti(), fich(1)}) + "x\r", LOG_IG014);
    // In the middle it is a record of unknown type that should not be there;
    // its header is judged as that of a FICH record.
    const std::string f = fich(2);
    rejete(fichier({f, fich(7), acti()}),
           fichierErreurs(f, {1, 2, 1}, {erre(fich(7), {109}, clesBlanches(), f)}));
}
