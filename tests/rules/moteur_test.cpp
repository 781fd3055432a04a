/**
 * The engine over tables of its own: what is cut, which rows run, what is
 * stored and what a witness is told.
 */
#include "rules/moteur.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "messages/aiguillage.h"
#include "rules/constat.h"
#include "rules/entete.h"
#include "support/journal.h"
#include "support/vse.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;

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
    std::string refus;    // "C1.31;" for each error of a row
    std::string journal;  // all that the witness was told
};

struct Moteur : testing::Test {
    valeurVSE slots[20] = {};

    Moteur() {
        codCaract = codLong = 0;
        std::memset(codeErreur, 0, sizeof codeErreur);
        std::memset(constats, 0, sizeof constats);
        appels.clear();
    }
    ~Moteur() override { codCaract = codLong = 0; }

    void couper(const std::vector<sCorps>& table, const std::string& record) {
        essai::journal j;
        getvseChamps(table.data(), static_cast<int>(table.size()), record.c_str(), slots, &j.vu);
        EXPECT_EQ(j.texte, "coupe\n");
    }
    passage verifier(const std::vector<sCorps>& table, const char* genre, int deja = 0,
                     const char* lettre = "C") {
        for (int i = 0; i < deja; ++i)
            ajouterErreur(i, 900 + i, ORIGINE_ADMISSION);
        essai::journal j;
        const int n =
            verifChamps(&j.vu, deja, table.data(), static_cast<int>(table.size()), slots, genre, lettre);
        // The errors that rows add are those that the witness saw, with their rows.
        std::vector<const sCorps*> lignes;
        for (int i = 0; i < n; ++i) {
            EXPECT_EQ(constats[i].numero, codeErreur[i]);
            EXPECT_EQ(constats[i].ligne != nullptr, constats[i].origine == ORIGINE_TABLE);
            if (constats[i].origine == ORIGINE_TABLE) lignes.push_back(constats[i].ligne);
        }
        EXPECT_EQ(lignes, j.refusees);
        return {{codeErreur, codeErreur + n}, j.refus, j.texte};
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
    couper(table, r);
    EXPECT_STREQ(slots[0].valeur, "A");
    EXPECT_STREQ(slots[1].valeur, " b  ");
    EXPECT_EQ(slots[2].valeur, r.substr(29, 100));  // the extra row has no slot
    EXPECT_STREQ(slots[3].valeur, "b ");            // columns may be cut again
    EXPECT_STREQ(slots[4].valeur, "");
    EXPECT_EQ(xdebug, r);
    // The widest field leaves its neighbour alone.
    std::strcpy(slots[1].valeur, "voisin");
    couper({ligne(0, 1, 256, nullptr, 0)}, r);
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
        getvseChamps(table.data(), 3, xdebug, slots);
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

TEST_F(Moteur, LaCoupeSeDitEtSePasseDeTemoin) {
    couper({}, "A");  // also of a table without rows
    couper({ligne(0, 1, 1, nullptr, 0)}, "B");
    EXPECT_STREQ(slots[0].valeur, "B");
    const sCorps l = ligne(0, 1, 1, nullptr, 0);
    getvseChamps(&l, 1, "C", slots);
    EXPECT_STREQ(slots[0].valeur, "C");
}

TEST_F(Moteur, LesTablesDeTeteEtDeFinRemplissentLeursEmplacements) {
    const std::string r = alphabet(256);
    getvseChamps(tEntete, lEntete, r.c_str(), valEnteteVSE);
    getvseChamps(tFin, lFin, r.c_str(), valFinVSE);
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
        const passage p = verifier({ligne(0, 1, 1, accepter, 11, code)}, "MOD");
        EXPECT_EQ(p.codes, codes{86});
        EXPECT_EQ(p.journal, "C1 champ 1\nC1 interdite " + std::to_string(code) + " '' 86\n");
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
                 nullptr, 0, "F");
    std::vector<std::string> vus;
    for (const appel& a : appels)
        vus.push_back(a.champ);
    EXPECT_EQ(vus, (std::vector<std::string>{"un", "un", "deux", "deux", "trois"}));
    EXPECT_EQ(p.codes, (codes{2, 3, 5}));
    EXPECT_EQ(p.refus, "F1.2;F2.3;F3.5;");  // slots, not field numbers
}

TEST_F(Moteur, ToutResultatNonNulAccepte) {
    EXPECT_EQ(verifier({ligne(0, 1, 1, accepterAutrement, 1)}, "CRE").codes, codes{});
}

TEST_F(Moteur, UneValeurReecriteEstVueParLaSuite) {
    std::strcpy(slots[0].valeur, "15001998");
    const passage p = verifier({ligne(0, 1, 8, reecrire, 29), ligne(0, 0, 0, accepter, 52)}, "CRE");
    EXPECT_EQ(appels[1].champ, "#5001998");
    EXPECT_EQ(p.journal, "C1 champ 1\nC1 '15001998'\nC1 refusee '#5001998' 29\nC1 champ 1\nC1 '#5001998'\n");
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
    const passage p = verifier(table, nullptr, 0, "E");
    EXPECT_EQ(p.codes, dix);
    EXPECT_EQ(p.refus, items);
    EXPECT_EQ(appels.size(), 10U);  // the check of a row behind the tenth error does not run
    EXPECT_EQ(codeErreur[10], 0);

    std::string champs;
    for (int i = 0; i < 10; ++i) {
        const std::string place = "E" + std::to_string(i + 1);
        champs += place + " champ " + std::to_string(i + 1) + "\n" + place + " ''\n" + place +
                  " refusee '' " + std::to_string(100 + i) + "\n";
    }
    EXPECT_EQ(p.journal, champs + "E11 champ 11\nE12 champ 12\n");  // named, and passed over
}

TEST_F(Moteur, LesErreursDejaTrouveesComptent) {
    const std::vector<sCorps> table = {ligne(0, 1, 1, refuser, 1), ligne(1, 2, 2, refuser, 2),
                                       ligne(2, 3, 3, refuser, 3)};
    EXPECT_EQ(verifier(table, "CRE", 2).codes, (codes{900, 901, 1, 2, 3}));
    passage p = verifier(table, "CRE", 8);
    EXPECT_EQ(p.codes, (codes{900, 901, 902, 903, 904, 905, 906, 907, 1, 2}));
    EXPECT_EQ(p.refus, "C1.1;C2.2;");
    appels.clear();
    p = verifier(table, "CRE", 10);
    EXPECT_EQ(p.codes.size(), 10U);
    EXPECT_EQ(p.codes.back(), 909);
    EXPECT_EQ(p.journal, "C1 champ 1\nC2 champ 2\nC3 champ 3\n");
    EXPECT_TRUE(appels.empty());
    EXPECT_EQ(verifier(table, "XXX", 10).journal, "C1 champ 1\nC2 champ 2\nC3 champ 3\n");
}

// ------------------------------------------------------- framing faults

TEST_F(Moteur, LesDefautsDeCadrageViennentDAbord) {
    struct cas {
        int caract, longueur;
        codes attendus;
        std::string dits;
    };
    const std::vector<cas> CAS = {
        {0, 0, {31}, ""},
        {1, 0, {106, 31}, "cadrage 106\n"},
        {0, 1, {107, 31}, "cadrage 107\n"},
        {0, 2, {108, 31}, "cadrage 108\n"},
        {1, 1, {106, 107, 31}, "cadrage 106\ncadrage 107\n"},
        {1, 2, {106, 108, 31}, "cadrage 106\ncadrage 108\n"},
    };
    for (const cas& c : CAS) {
        SCOPED_TRACE(c.dits);
        for (const bool observe : {false, true}) {
            codCaract = c.caract;
            codLong = c.longueur;
            const sCorps l = ligne(0, 1, 1, refuser, 31);
            if (observe) {
                const passage p = verifier({l}, "CRE");
                EXPECT_EQ(p.codes, c.attendus);
                EXPECT_EQ(p.journal, c.dits + "C1 champ 1\nC1 ''\nC1 refusee '' 31\n");
            } else {
                const int n = verifChamps(nullptr, 0, &l, 1, slots, "CRE", "C");
                EXPECT_EQ((codes{codeErreur, codeErreur + n}), c.attendus);
            }
            for (std::size_t i = 0; i < c.attendus.size(); ++i)
                EXPECT_EQ(constats[i].origine, c.attendus[i] == 31 ? ORIGINE_TABLE : ORIGINE_CADRAGE);
            EXPECT_EQ(codCaract, 0);
            EXPECT_EQ(codLong, 0);
            // Told once: the next table finds nothing.
            EXPECT_EQ(verifier({}, "CRE").codes, codes{});
        }
    }
}

TEST_F(Moteur, DixErreursLaissentLesDrapeauxLeves) {
    codCaract = 1;
    codLong = 2;
    passage p = verifier({}, nullptr, 10);
    EXPECT_EQ(p.codes.size(), 10U);
    EXPECT_EQ(p.journal, "cadrage 106\ncadrage 108\n");
    EXPECT_EQ(codCaract, 1);
    EXPECT_EQ(codLong, 2);
    // Room for one: the first is stored and reset, the other stays.
    p = verifier({ligne(0, 1, 1, refuser, 31)}, nullptr, 9);
    EXPECT_EQ(p.codes.back(), 106);
    EXPECT_EQ(p.codes.size(), 10U);
    EXPECT_EQ(p.journal, "cadrage 106\ncadrage 108\nC1 champ 1\n");
    EXPECT_EQ(codCaract, 0);
    EXPECT_EQ(codLong, 2);
    EXPECT_EQ(verifChamps(nullptr, 10, nullptr, 0, slots, nullptr, "C"), 10);
    EXPECT_EQ(codLong, 2);
    EXPECT_EQ(verifier({}, nullptr).codes, codes{108});
    EXPECT_EQ(codLong, 0);
    codLong = 1;
    EXPECT_EQ(verifier({}, nullptr, 10).journal, "cadrage 107\n");
    EXPECT_EQ(codLong, 1);
}

// ------------------------------------------------------------ the witness

TEST_F(Moteur, CeQueVoitLeTemoin) {
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
    const passage p = verifier(table, "EDI", 0, "E");
    EXPECT_EQ(p.codes, (codes{5, 86}));
    EXPECT_EQ(p.journal,
              "E1 champ 1\nE1 'a'\n"
              "E2 champ 2\nE2 champ 2\nE2 'b'\nE2 refusee 'b' 5\n"
              "E3 champ 23\nE3 'c'\n"
              "E4 champ 24\nE4 ignoree 'd'\n"
              "E5 champ 25\nE5 interdite 2 'e' 86\n"
              "E6 champ 100\n");
    EXPECT_EQ(p.refus, "E2.5;E5.86;");
    // Without a witness the same is found, by the same calls.
    const std::vector<appel> vus = appels;
    appels.clear();
    std::memset(constats, 0, sizeof constats);
    EXPECT_EQ(verifChamps(nullptr, 0, table.data(), static_cast<int>(table.size()), slots, "EDI", "E"), 2);
    EXPECT_EQ(appels, vus);
    EXPECT_EQ((codes{codeErreur, codeErreur + 2}), p.codes);
    EXPECT_EQ(constats[0].ligne, &table[2]);
    EXPECT_EQ(constats[1].ligne, &table[5]);
    EXPECT_EQ(constats[1].numero, 86);
    EXPECT_EQ(constats[1].origine, ORIGINE_TABLE);
}

// -------------------------------------------------------- whole records

TEST_F(Moteur, UnCorpsActiEnDemande) {
    const std::string r = essai::acti();
    getvseChamps(tActi, lActi, r.c_str(), valCorpsVSE);
    essai::journal j;
    const int n = verifChamps(&j.vu, 0, tActi, lActi, valCorpsVSE, "DEM", "C");
    EXPECT_EQ(j.refus, "C1.86;C2.86;C2.86;C2.86;C4.86;C5.86;C5.86;C6.86;C6.86;C7.86;");
    EXPECT_EQ(n, 10);
    // What the header left room for.
    for (int deja = 0; deja <= 10; ++deja)
        EXPECT_EQ(verifChamps(nullptr, deja, tActi, lActi, valCorpsVSE, "DEM", "C"), 10);
}

TEST_F(Moteur, UnRecordCourtAuxCaracteresInterdits) {
    codCaract = 1;
    codLong = 2;
    std::string r = essai::acti();
    essai::poser(r, 43, "X\t");
    getvseChamps(tEntete, lEntete, r.c_str(), valEnteteVSE);
    const int n = verifChamps(nullptr, 0, tEntete, lEntete, valEnteteVSE, nullptr, "E");
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
