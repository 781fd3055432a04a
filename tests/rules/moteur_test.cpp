/**
 * The engine over tables of its own: what is cut, which rows run, what is
 * stored and what is printed.
 */
#include "rules/moteur.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "support/banc.h"
#include "support/vse.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;
using essai::latin1;

namespace {

/** What the check was called with, call by call. */
struct appel {
    std::string dependance, champ;
    const liste* sverif;
    bool operator==(const appel&) const = default;
};
std::vector<appel> appels;

int noter(const char* dependance, char* champ, const liste& sverif, int verdict) {
    appels.push_back({dependance, champ, &sverif});
    return verdict;
}
int accepter(const char* d, char* c, const liste& s) { return noter(d, c, s, 1); }
int accepterAutrement(const char* d, char* c, const liste& s) { return noter(d, c, s, -7); }
int refuser(const char* d, char* c, const liste& s) { return noter(d, c, s, 0); }
int reecrire(const char* d, char* c, const liste& s) {
    noter(d, c, s, 0);
    c[0] = '#';
    return 0;
}

/** A row that is the same for every kind. */
constexpr sCorps ligne(int champ, int debut, int dernier, fVerif* verif, int erreur, int presence = 0) {
    return {champ,    debut,    dernier, presence,   presence, presence,
            presence, presence, verif,   &sansListe, "",       erreur};
}

/** What a walk over a table gave. */
struct passage {
    std::vector<int> codes;
    std::string console;
};

struct Moteur : testing::Test {
    valeurVSE slots[20] = {};

    Moteur() {
        codCaract = codLong = 0;
        std::memset(codeErreur, 0, sizeof codeErreur);
        appels.clear();
    }
    ~Moteur() override { codCaract = codLong = 0; }

    std::string couper(const std::vector<sCorps>& table, const std::string& record, int mode = VISU_AUCUNE) {
        testing::internal::CaptureStdout();
        getvseChamps(table.data(), static_cast<int>(table.size()), record.c_str(), slots, mode);
        return testing::internal::GetCapturedStdout();
    }
    passage verifier(const std::vector<sCorps>& table, const char* genre, int mode = VISU_AUCUNE,
                     int deja = 0, const char* lettre = "C") {
        for (int i = 0; i < deja; ++i)
            codeErreur[i] = 900 + i;
        testing::internal::CaptureStdout();
        const int n =
            verifChamps(mode, deja, table.data(), static_cast<int>(table.size()), slots, genre, lettre);
        passage p;
        p.console = testing::internal::GetCapturedStdout();
        p.codes.assign(codeErreur, codeErreur + n);
        return p;
    }
};

std::string alphabet(int n) {
    std::string s;
    for (int i = 0; i < n; ++i)
        s += static_cast<char>('A' + i % 26);
    return s;
}

using codes = std::vector<int>;

}  // namespace

// ---------------------------------------------------------------- cutting

TEST_F(Moteur, CoupeLesColonnesSansRienOter) {
    const std::vector<sCorps> table = {ligne(0, 1, 1, nullptr, 0), ligne(1, 2, 5, nullptr, 0),
                                       ligne(1, 0, 0, nullptr, 0), ligne(4, 30, 29 + 100, nullptr, 0),
                                       ligne(5, 3, 4, nullptr, 0)};
    std::string r = alphabet(256);
    r.replace(1, 4, " b  ");
    EXPECT_EQ(couper(table, r), "");
    EXPECT_STREQ(slots[0].valeur, "A");
    EXPECT_STREQ(slots[1].valeur, " b  ");
    EXPECT_EQ(slots[2].valeur, r.substr(29, 100));  // the extra row has no slot
    EXPECT_STREQ(slots[3].valeur, "b ");            // columns may be cut again
    EXPECT_STREQ(slots[4].valeur, "");
    EXPECT_EQ(xdebug, r);
    // The widest field leaves its neighbour alone.
    std::strcpy(slots[1].valeur, "voisin");
    EXPECT_EQ(couper({ligne(0, 1, 256, nullptr, 0)}, r), "");
    EXPECT_EQ(slots[0].valeur, r);
    EXPECT_STREQ(slots[1].valeur, "voisin");
}

TEST_F(Moteur, UnRecordCourtDonneDesChampsCourts) {
    const std::vector<sCorps> table = {ligne(0, 1, 10, nullptr, 0), ligne(1, 11, 40, nullptr, 0),
                                       ligne(2, 41, 41, nullptr, 0), ligne(3, 42, 256, nullptr, 0)};
    for (const int n : {0, 1, 9, 10, 11, 25, 26, 27, 28, 39, 40, 41, 42, 57, 58, 255, 256, 300}) {
        SCOPED_TRACE(n);
        for (valeurVSE& s : slots)
            std::strcpy(s.valeur, "ancien texte, plus long que le nouveau");
        std::strcpy(xdebug, std::string(300, '?').c_str());
        const std::string r = alphabet(n);
        couper(table, r);
        const auto morceau = [&](std::size_t debut, std::size_t dernier) {
            return r.size() < debut ? "" : r.substr(debut - 1, dernier - debut + 1);
        };
        EXPECT_EQ(slots[0].valeur, morceau(1, 10));
        EXPECT_EQ(slots[1].valeur, morceau(11, 40));
        EXPECT_EQ(slots[2].valeur, morceau(41, 41));
        EXPECT_EQ(slots[3].valeur, morceau(42, 256));
        EXPECT_STREQ(slots[4].valeur, "ancien texte, plus long que le nouveau");
        EXPECT_EQ(xdebug, r);
    }
}

TEST_F(Moteur, LeRecordGardeSeCoupeSansEtreDonneEncore) {
    const std::vector<sCorps> table = {ligne(0, 1, 10, nullptr, 0), ligne(1, 11, 40, nullptr, 0),
                                       ligne(2, 41, 256, nullptr, 0)};
    retenirVSE(alphabet(256).c_str());
    for (const int n : {256, 60, 25, 5, 0}) {  // each shorter than the one before
        SCOPED_TRACE(n);
        const std::string r = alphabet(n);
        retenirVSE(r.c_str());
        getvseChamps(table.data(), 3, xdebug, slots, VISU_AUCUNE);
        EXPECT_EQ(slots[0].valeur, r.substr(0, 10));
        EXPECT_EQ(slots[1].valeur, n > 10 ? r.substr(10, 30) : "");
        EXPECT_EQ(slots[2].valeur, n > 40 ? r.substr(40) : "");
        EXPECT_EQ(xdebug, r);
    }
}

TEST_F(Moteur, ToutesLesLargeurs) {
    const std::string r = alphabet(256);
    for (int debut = 1; debut <= 256; ++debut) {
        for (const int dernier : {debut, debut + 14, debut + 15, debut + 16, debut + 17, 255, 256}) {
            if (dernier < debut || dernier > 256) continue;
            couper({ligne(0, debut, dernier, nullptr, 0)}, r);
            ASSERT_EQ(slots[0].valeur, r.substr(static_cast<std::size_t>(debut - 1),
                                                static_cast<std::size_t>(dernier - debut + 1)))
                << debut << "-" << dernier;
        }
    }
}

TEST_F(Moteur, LaCoupeFinitUneLigneEnModeDecripte) {
    EXPECT_EQ(couper({ligne(0, 1, 1, nullptr, 0)}, "A", VISU_DECRIPTEE), "\n");
    EXPECT_EQ(couper({}, "A", VISU_DECRIPTEE), "\n");
    EXPECT_EQ(couper({ligne(0, 1, 1, nullptr, 0)}, "A", VISU_INFORMATIQUE), "");
}

TEST_F(Moteur, LesTablesDeTeteEtDeFinRemplissentLeursEmplacements) {
    const std::string r = alphabet(256);
    getvseChamps(tEntete, lEntete, r.c_str(), valEnteteVSE, VISU_AUCUNE);
    getvseChamps(tFin, lFin, r.c_str(), valFinVSE, VISU_AUCUNE);
    EXPECT_EQ(entete(E1), r.substr(0, 1));
    EXPECT_EQ(entete(E6), r.substr(21, 4));
    EXPECT_EQ(entete(E13), r.substr(61, 1));
    EXPECT_EQ(fin(F2), r.substr(238, 6));
    EXPECT_EQ(fin(F3), r.substr(244, 3));
    EXPECT_EQ(fin(F5), r.substr(255, 1));
}

// -------------------------------------------------------- presence codes

TEST_F(Moteur, LaColonneDuGenre) {
    // Only the column named holds 0; every other one would not run the check.
    struct cas {
        const char* genre;
        int colonne;  // CRE DEM INV EDI MOD, -1 none
    };
    constexpr cas CAS[] = {
        {"CRE", 0}, {"DEM", 1},  {"INV", 2},   {"EDI", 3},  {"MOD", 4},
        {"ECQ", 0}, {"INF", -1}, {"ERR", -1},  {"XXX", -1}, {"", -1},
        {"CR", -1}, {"cre", -1}, {"CREE", -1}, {"   ", -1}, {"CRE ", -1},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.genre);
        for (int verifiee = 0; verifiee < 5; ++verifiee) {
            for (const int autre : {1, 2}) {
                sCorps l = ligne(3, 1, 1, refuser, 31, autre);
                int* const presence[] = {&l.typeCRE, &l.typeDEM, &l.typeINV, &l.typeEDI, &l.typeMOD};
                *presence[verifiee] = 0;
                appels.clear();
                const passage p = verifier({l}, c.genre);
                const codes attendu = c.colonne == verifiee           ? codes{31}
                                      : c.colonne == -1 || autre == 2 ? codes{86}
                                                                      : codes{};
                EXPECT_EQ(p.codes, attendu) << "column " << verifiee << ", others " << autre;
                EXPECT_EQ(appels.size(), c.colonne == verifiee ? 1U : 0U);
            }
        }
    }
}

TEST_F(Moteur, SansGenreToutEstVerifie) {
    const passage p = verifier({ligne(0, 1, 1, refuser, 11, 1), ligne(1, 2, 2, refuser, 12, 2),
                                ligne(2, 3, 3, accepter, 13, 1), ligne(3, 4, 4, nullptr, 14, 0)},
                               nullptr);
    EXPECT_EQ(p.codes, (codes{11, 12}));
    EXPECT_EQ(appels.size(), 3U);
}

TEST_F(Moteur, UnCodeDePresenceInconnuInterdit) {
    for (const int code : {2, 3, -1, 86}) {
        const passage p = verifier({ligne(0, 1, 1, accepter, 11, code)}, "MOD", VISU_DECRIPTEE);
        EXPECT_EQ(p.codes, codes{86});
        EXPECT_EQ(p.console, "champ: 1  verifOblg = [" + std::to_string(code) + "]\n");
    }
    EXPECT_TRUE(appels.empty());
}

TEST_F(Moteur, UneLigneSansVerificationNeRendJamaisDErreur) {
    for (const char* genre : {"CRE", "DEM", "INF", "XXX"})
        for (const int code : {0, 1, 2})
            EXPECT_EQ(verifier({ligne(0, 1, 1, nullptr, 11, code)}, genre).codes, codes{}) << genre << code;
}

TEST_F(Moteur, UnGenreInconnuInterditToutChampVerifie) {
    const passage p = verifier(
        {ligne(0, 1, 1, accepter, 1, 0), ligne(1, 2, 2, accepter, 2, 1), ligne(1, 0, 0, accepter, 2, 1),
         ligne(2, 3, 3, nullptr, 0, 0), ligne(3, 4, 4, accepter, 4, 2)},
        "INF");
    EXPECT_EQ(p.codes, (codes{86, 86, 86, 86}));
    EXPECT_TRUE(appels.empty());
}

// ------------------------------------------------------- slots and checks

TEST_F(Moteur, LaVerificationRecoitCeQueLaLigneNomme) {
    const liste LISTE = {{"A", "B", "C"}};
    sCorps l = ligne(0, 1, 2, accepter, 5);
    l.sverif = &LISTE;
    l.dependance = slots[7].valeur;
    std::strcpy(slots[7].valeur, "autre");
    std::strcpy(slots[0].valeur, " v ");
    verifier({l, ligne(1, 3, 3, accepter, 6)}, "CRE");
    EXPECT_EQ(appels, (std::vector<appel>{{"autre", " v ", &LISTE}, {"", "", &sansListe}}));
}

TEST_F(Moteur, LesLignesEnPlusPartagentLEmplacement) {
    const char* const valeurs[] = {"un", "deux", "trois"};
    for (int i = 0; i < 3; ++i)
        std::strcpy(slots[i].valeur, valeurs[i]);
    const passage p =
        verifier({ligne(0, 1, 2, accepter, 1), ligne(0, 0, 0, refuser, 2), ligne(4, 3, 6, nullptr, 0),
                  ligne(4, 0, 0, refuser, 3), ligne(4, 0, 0, accepter, 4), ligne(9, 7, 11, refuser, 5)},
                 nullptr, VISU_INFORMATIQUE, 0, "F");
    std::vector<std::string> vus;
    for (const appel& a : appels)
        vus.push_back(a.champ);
    EXPECT_EQ(vus, (std::vector<std::string>{"un", "un", "deux", "deux", "trois"}));
    EXPECT_EQ(p.codes, (codes{2, 3, 5}));
    EXPECT_EQ(p.console, "F1.2;F2.3;F3.5;");  // slots, not field numbers
}

TEST_F(Moteur, ToutResultatNonNulAccepte) {
    EXPECT_EQ(verifier({ligne(0, 1, 1, accepterAutrement, 1)}, "CRE").codes, codes{});
}

TEST_F(Moteur, UneValeurReecriteEstVueParLaSuite) {
    std::strcpy(slots[0].valeur, "15001998");
    const passage p =
        verifier({ligne(0, 1, 8, reecrire, 29), ligne(0, 0, 0, accepter, 52)}, "CRE", VISU_DECRIPTEE);
    EXPECT_EQ(appels[1].champ, "#5001998");
    EXPECT_EQ(p.console, "champ: 1  '15001998'\n! erreurChamp sur [#5001998]\nchamp: 1  '#5001998'\n");
}

// ------------------------------------------------------- the ten errors

TEST_F(Moteur, DixErreursAuPlus) {
    std::vector<sCorps> table;
    for (int i = 0; i < 12; ++i)
        table.push_back(ligne(i, i + 1, i + 1, refuser, 100 + i));
    const codes dix = {100, 101, 102, 103, 104, 105, 106, 107, 108, 109};
    std::string items;
    for (int i = 0; i < 10; ++i)
        items += "E" + std::to_string(i + 1) + "." + std::to_string(100 + i) + ";";
    const passage p = verifier(table, nullptr, VISU_INFORMATIQUE, 0, "E");
    EXPECT_EQ(p.codes, dix);
    EXPECT_EQ(p.console, items);
    EXPECT_EQ(appels.size(), 10U);  // the check of a row behind the tenth error does not run
    EXPECT_EQ(codeErreur[10], 0);

    std::string champs;
    for (int i = 0; i < 10; ++i)
        champs += "champ: " + std::to_string(i + 1) + "  ''\n! erreurChamp sur []\n";
    EXPECT_EQ(verifier(table, nullptr, VISU_DECRIPTEE).console, champs + "champ: 11  champ: 12  ");
}

TEST_F(Moteur, LesErreursDejaTrouveesComptent) {
    const std::vector<sCorps> table = {ligne(0, 1, 1, refuser, 1), ligne(1, 2, 2, refuser, 2),
                                       ligne(2, 3, 3, refuser, 3)};
    EXPECT_EQ(verifier(table, "CRE", VISU_AUCUNE, 2).codes, (codes{900, 901, 1, 2, 3}));
    passage p = verifier(table, "CRE", VISU_INFORMATIQUE, 8);
    EXPECT_EQ(p.codes, (codes{900, 901, 902, 903, 904, 905, 906, 907, 1, 2}));
    EXPECT_EQ(p.console, "C1.1;C2.2;");
    appels.clear();
    p = verifier(table, "CRE", VISU_INFORMATIQUE, 10);
    EXPECT_EQ(p.codes.size(), 10U);
    EXPECT_EQ(p.codes.back(), 909);
    EXPECT_EQ(p.console, "");
    EXPECT_TRUE(appels.empty());
    EXPECT_EQ(verifier(table, "XXX", VISU_DECRIPTEE, 10).console, "champ: 1  champ: 2  champ: 3  ");
}

// ------------------------------------------------------- framing faults

TEST_F(Moteur, LesDefautsDeCadrageViennentDAbord) {
    struct cas {
        int caract, longueur;
        codes attendus;
        const char* console;  // UTF-8
    };
    const std::vector<cas> CAS = {
        {0, 0, {31}, "C1.31;"},
        {1, 0, {106, 31}, "VSE  cars non autorisés \nC1.31;"},
        {0, 1, {107, 31}, "VSE trop long C1.31;"},
        {0, 2, {108, 31}, "VSE trop court C1.31;"},
        {1, 1, {106, 107, 31}, "VSE  cars non autorisés \nVSE trop long C1.31;"},
        {1, 2, {106, 108, 31}, "VSE  cars non autorisés \nVSE trop court C1.31;"},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.console);
        for (const int mode : {VISU_AUCUNE, VISU_INFORMATIQUE, VISU_DECRIPTEE}) {
            codCaract = c.caract;
            codLong = c.longueur;
            const passage p = verifier({ligne(0, 1, 1, refuser, 31)}, "CRE", mode);
            EXPECT_EQ(p.codes, c.attendus);
            EXPECT_EQ(p.console, mode == VISU_INFORMATIQUE ? latin1(c.console)
                                 : mode == VISU_DECRIPTEE  ? "champ: 1  ''\n! erreurChamp sur []\n"
                                                           : "");
            EXPECT_EQ(codCaract, 0);
            EXPECT_EQ(codLong, 0);
            // Told once: the next table finds nothing.
            EXPECT_EQ(verifier({}, "CRE", mode).codes, codes{});
        }
    }
}

TEST_F(Moteur, DixErreursLaissentLesDrapeauxLeves) {
    codCaract = 1;
    codLong = 2;
    passage p = verifier({}, nullptr, VISU_INFORMATIQUE, 10);
    EXPECT_EQ(p.codes.size(), 10U);
    EXPECT_EQ(p.console, latin1("VSE  cars non autorisés \nVSE trop court "));
    EXPECT_EQ(codCaract, 1);
    EXPECT_EQ(codLong, 2);
    // Room for one: the first is stored and reset, the other stays.
    p = verifier({ligne(0, 1, 1, refuser, 31)}, nullptr, VISU_INFORMATIQUE, 9);
    EXPECT_EQ(p.codes.back(), 106);
    EXPECT_EQ(p.codes.size(), 10U);
    EXPECT_EQ(p.console, latin1("VSE  cars non autorisés \nVSE trop court "));
    EXPECT_EQ(codCaract, 0);
    EXPECT_EQ(codLong, 2);
    EXPECT_EQ(verifier({}, nullptr, VISU_AUCUNE, 10).console, "");
    EXPECT_EQ(codLong, 2);
    EXPECT_EQ(verifier({}, nullptr).codes, codes{108});
    EXPECT_EQ(codLong, 0);
    codLong = 1;
    EXPECT_EQ(verifier({}, nullptr, VISU_INFORMATIQUE, 10).console, "VSE trop long ");
    EXPECT_EQ(codLong, 1);
}

// --------------------------------------------------------------- traces

TEST_F(Moteur, TraceDecriptee) {
    for (int i = 0; i < 6; ++i)
        std::strcpy(slots[i].valeur, std::string(1, static_cast<char>('a' + i)).c_str());
    sCorps ignoree = ligne(23, 4, 4, refuser, 7);
    ignoree.typeEDI = 1;
    sCorps interdite = ligne(24, 5, 5, refuser, 8);
    interdite.typeEDI = 2;
    const std::vector<sCorps> table = {ligne(0, 1, 1, accepter, 1),
                                       ligne(1, 2, 2, nullptr, 0),
                                       ligne(1, 0, 0, refuser, 5),
                                       ligne(22, 3, 3, accepter, 6),
                                       ignoree,
                                       interdite,
                                       ligne(99, 6, 6, nullptr, 0)};
    const passage p = verifier(table, "EDI", VISU_DECRIPTEE);
    EXPECT_EQ(p.codes, (codes{5, 86}));
    EXPECT_EQ(p.console,
              "champ: 1  'a'\n"
              "champ: 2  champ: 2  'b'\n! erreurChamp sur [b]\n"
              "champ: 23  'c'\n"
              "champ: 24  verif ignoree! 'd'\n"
              "champ: 25  verifOblg = [2]\n"
              "champ: 100  ");
    EXPECT_EQ(verifier(table, "EDI", VISU_INFORMATIQUE, 0, "E").console, "E2.5;E5.86;");
    EXPECT_EQ(verifier(table, "EDI").console, "");
}

TEST_F(Moteur, LesTextesNeSontPasDesFormats) {
    std::strcpy(slots[0].valeur, "%s%n%d");
    EXPECT_EQ(verifier({ligne(0, 1, 6, refuser, 1)}, "CRE", VISU_DECRIPTEE).console,
              "champ: 1  '%s%n%d'\n! erreurChamp sur [%s%n%d]\n");
}

// -------------------------------------------------------- whole records

TEST_F(Moteur, UnCorpsActiEnDemande) {
    const std::string r = essai::acti();
    getvseChamps(tActi, lActi, r.c_str(), valCorpsVSE, VISU_AUCUNE);
    testing::internal::CaptureStdout();
    const int n = verifChamps(VISU_INFORMATIQUE, 0, tActi, lActi, valCorpsVSE, "DEM", "C");
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "C1.86;C2.86;C2.86;C2.86;C4.86;C5.86;C5.86;C6.86;C6.86;C7.86;");
    EXPECT_EQ(n, 10);
    // What the header left room for.
    for (int deja = 0; deja <= 10; ++deja)
        EXPECT_EQ(verifChamps(VISU_AUCUNE, deja, tActi, lActi, valCorpsVSE, "DEM", "C"), 10);
}

TEST_F(Moteur, UnRecordCourtAuxCaracteresInterdits) {
    codCaract = 1;
    codLong = 2;
    std::string r = essai::acti();
    essai::poser(r, 43, "X\t");
    getvseChamps(tEntete, lEntete, r.c_str(), valEnteteVSE, VISU_AUCUNE);
    const int n = verifChamps(VISU_AUCUNE, 0, tEntete, lEntete, valEnteteVSE, nullptr, "E");
    EXPECT_EQ((codes{codeErreur, codeErreur + n}), (codes{106, 108, 88}));
}

TEST_F(Moteur, ExtraitDeLAvisDAbattage) {
    const std::string r = alphabet(256);
    couper({}, r);
    getVseCorps();
    const auto col = [&](std::size_t debut, std::size_t dernier) {
        return r.substr(debut - 1, dernier - debut + 1);
    };
    EXPECT_STREQ(cp.CODE_PAYS_BOV, "");
    EXPECT_EQ(cp.NUME_NATI_BOV, col(65, 76));
    EXPECT_EQ(cp.CODE_RESULTAT, col(77, 78));
    EXPECT_EQ(cp.CODE_EXPLOIT_PROVENANCE, col(79, 80));
    EXPECT_EQ(cp.NUME_EXPLOIT_PROVENANCE, col(81, 92));
    EXPECT_EQ(cp.DATE_ENTREE_ABAT, col(93, 100));
    EXPECT_EQ(cp.DATE_ABATTAGE, col(101, 108));
    EXPECT_EQ(cp.NUME_TUERIE, col(109, 116));
    EXPECT_EQ(cp.POIDS_CARCASSE, col(117, 123));
    EXPECT_EQ(cp.CODE_PAYS_ABAT_NOTIF, col(124, 125));
    EXPECT_EQ(cp.NUME_IDENT_ABAT_NOTIF, col(126, 137));
    EXPECT_EQ(cp.INDIC_CREA_INVA_ABATT, col(138, 138));

    // A short record clears what it does not reach.
    couper({}, r.substr(0, 95));
    getVseCorps();
    EXPECT_EQ(cp.NUME_EXPLOIT_PROVENANCE, col(81, 92));
    EXPECT_EQ(cp.DATE_ENTREE_ABAT, col(93, 95));
    EXPECT_STREQ(cp.DATE_ABATTAGE, "");
    EXPECT_STREQ(cp.INDIC_CREA_INVA_ABATT, "");
    couper({}, "");
    getVseCorps();
    EXPECT_STREQ(cp.NUME_NATI_BOV, "");
    EXPECT_STREQ(cp.POIDS_CARCASSE, "");
}
