// Proofs that hold for every rule table: the header, the footer, the FICH body
// and the body of each message type.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "catalogue/verifs.h"
#include "checks/abattage.h"
#include "checks/coherence.h"
#include "checks/conformite.h"
#include "checks/dates.h"
#include "checks/identifiants.h"
#include "checks/listes.h"
#include "checks/reference.h"
#include "checks/valautorise.h"
#include "messages/aiguillage.h"
#include "rules/entete.h"
#include "rules/preuve.h"
#include "support/lignes.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;

namespace {

struct tableNommee {
    std::string nom;
    const sCorps* lignes;
    int longueur;
    partie part = CORPS;
};

/** Every table: header, footer, FICH body, and what the routing table names. */
const std::vector<tableNommee>& tables() {
    static const std::vector<tableNommee> toutes = [] {
        std::vector<tableNommee> t = {
            {"tEntete", tEntete, lEntete, ENTETE}, {"tFin", tFin, lFin, FIN}, {"tFich", tFich, lFich}};
        for (const sAiguillage& route : tAiguillage) {
            if (route.tabVerif == nullptr) continue;
            std::string nom = route.nomVSE;  // "tActi" for "ACTI"
            std::transform(nom.begin() + 1, nom.end(), nom.begin() + 1,
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
            t.push_back({"t" + nom, route.tabVerif, *route.pLenTabVerif});
        }
        return t;
    }();
    return toutes;
}

/** Transaction kinds that have a presence column, and the types they allow. */
struct genre {
    const char* nom;
    int sCorps::*colonne;
    const liste& types;
};
const std::vector<genre> GENRES = {
    {"CRE", &sCorps::typeCRE, tE6CRE}, {"DEM", &sCorps::typeDEM, tE6DEM}, {"INV", &sCorps::typeINV, tE6INV},
    {"EDI", &sCorps::typeEDI, tE6EDI}, {"MOD", &sCorps::typeMOD, tE6MOD},
};

bool supplementaire(const sCorps& ligne) { return ligne.debut == 0; }

/** Calls `f(table, row index, row, row with the columns)` for every row. */
template <typename Fonction>
void pourChaqueLigne(Fonction f) {
    for (const tableNommee& t : tables()) {
        const sCorps* champ = nullptr;
        for (int i = 0; i < t.longueur; ++i) {
            const sCorps& ligne = t.lignes[i];
            if (!supplementaire(ligne)) champ = &ligne;
            SCOPED_TRACE(t.nom + " row " + std::to_string(i) + " (field " +
                         std::to_string(ligne.numChamp + 1) + ")");
            ASSERT_NE(champ, nullptr) << "an extra row comes first";
            f(t, ligne, *champ);
        }
    }
}

/** Rows with columns of a table: the fields by slot. */
std::vector<const sCorps*> emplacements(const sCorps* lignes, int longueur) {
    std::vector<const sCorps*> r;
    for (int i = 0; i < longueur; ++i)
        if (!supplementaire(lignes[i])) r.push_back(&lignes[i]);
    return r;
}

int largeur(const sCorps& champ) { return champ.fin - champ.debut + 1; }

}  // namespace

// The compiler proves the rows where they stand. Here it is shown to see each
// mistake, and a mistake is told in one sentence.
namespace {

/** A fault of `table` in one sentence, with the name of the check. */
std::string phrase(const std::vector<sCorps>& table, const faute& f) {
    const std::map<eFaute, std::string> SENS = {
        {AUCUNE_FAUTE, "nothing is wrong"},
        {COLONNES, "its columns begin before the field before ends, or lie outside its part"},
        {CHAMP_SANS_PLACE, "its section has no slot left for it"},
        {LIGNE_EN_PLUS, "an extra row must follow its field"},
        {CHAMPS_EN_ORDRE, "field numbers must rise"},
        {PRESENCE, "a presence code is 0, 1 or 2, and not 0 without a check"},
        {NUMERO_D_ERREUR, "a check has an error number from 1 to 999, a row without check has none"},
        {DEPENDANCE, "its dependency is no other field that is cut"},
        {LISTE_EN_TROP, "its check reads no list"},
        {LISTE_ABSENTE, "its check reads a list"},
        {FORME_DE_LISTE, "its list has another number of entries in a row than its check reads"},
        {LARGEUR_DE_LISTE, "its list has entries of another width than its check compares"},
    };
    std::string verif = "no row";
    int rang = 0;
    for (const sCorps& l : table)
        if (l.numChamp + 1 == f.champ && ++rang == f.ligne)
            verif = l.pfVerif == nullptr ? "no check" : verifDe(l.pfVerif)->nom;
    return "field " + std::to_string(f.champ) + ", row " + std::to_string(f.ligne) + " (" + verif +
           "), error " + std::to_string(f.erreur) + ": " + SENS.at(f.quoi);
}

/** A small table that is right, to be made wrong. */
std::vector<sCorps> juste() {
    return {
        {C1, 63, 64, 0, 2, 0, 2, 0, fVerifValAut, &FR, aucune, 31},
        {C2, 65, 76, 0, 2, 0, 2, 0, fConform8, &TD, corps(C1), 68},
        {C2, 0, 0, 0, 2, 0, 2, 0, fCoherenCC, &sansListe, entete(E8), 50},
        {C3, 77, 77, 0, 2, 0, 2, 0, fVerifValAutDate, &TCME, corps(C2), 23},
        {C4, 78, 230, 1, 1, 1, 1, 1, nullptr, &sansListe, aucune, 0},
    };
}

}  // namespace

TEST(Preuve, UneTableJuste) {
    const std::vector<sCorps> t = juste();
    EXPECT_EQ(examiner(t.data(), static_cast<int>(t.size()), CORPS), faute{});
    EXPECT_EQ(examiner(t.data(), 0, CORPS), faute{});
}

TEST(Preuve, ChaqueFauteEstVueEtNommee) {
    struct cas {
        const char* quoi;
        int rang;
        void (*gater)(sCorps&);
        faute attendue;
    };
    const faute C2_68 = {AUCUNE_FAUTE, 2, 1, 68};
    const auto en = [](faute f, eFaute quoi) {
        f.quoi = quoi;
        return f;
    };
    const faute C1_31 = {AUCUNE_FAUTE, 1, 1, 31};
    const faute C2_50 = {AUCUNE_FAUTE, 2, 2, 50};
    const faute C3_23 = {AUCUNE_FAUTE, 3, 1, 23};
    const faute C4_0 = {AUCUNE_FAUTE, 4, 1, 0};
    for (const cas& c : {
             cas{"begins inside the field before", 1, [](sCorps& l) { l.debut = 64; }, en(C2_68, COLONNES)},
             cas{"ends before it begins", 1, [](sCorps& l) { l.fin = 64; }, en(C2_68, COLONNES)},
             cas{"before its part", 0, [](sCorps& l) { l.debut = 62; }, en(C1_31, COLONNES)},
             cas{"behind its part", 4, [](sCorps& l) { l.fin = 231; }, en(C4_0, COLONNES)},
             cas{"extra row of another field", 2, [](sCorps& l) { l.numChamp = C4; },
                 faute{LIGNE_EN_PLUS, 4, 1, 50}},
             cas{"extra row with a last column", 2, [](sCorps& l) { l.fin = 70; }, en(C2_50, LIGNE_EN_PLUS)},
             cas{"extra row first", 0, [](sCorps& l) { l.debut = l.fin = 0; }, en(C1_31, LIGNE_EN_PLUS)},
             cas{"field number twice", 3, [](sCorps& l) { l.numChamp = C2; },
                 faute{CHAMPS_EN_ORDRE, 2, 3, 23}},
             cas{"presence code 3", 1, [](sCorps& l) { l.typeINV = 3; }, en(C2_68, PRESENCE)},
             cas{"negative presence code", 1, [](sCorps& l) { l.typeMOD = -1; }, en(C2_68, PRESENCE)},
             cas{"nothing to run", 4, [](sCorps& l) { l.typeDEM = 0; }, en(C4_0, PRESENCE)},
             cas{"check without number", 1, [](sCorps& l) { l.noErr = 0; }, faute{NUMERO_D_ERREUR, 2, 1, 0}},
             cas{"number of four digits", 1, [](sCorps& l) { l.noErr = 1000; },
                 faute{NUMERO_D_ERREUR, 2, 1, 1000}},
             cas{"number without check", 4, [](sCorps& l) { l.noErr = 9; }, faute{NUMERO_D_ERREUR, 4, 1, 9}},
             cas{"depends on itself", 1, [](sCorps& l) { l.dependance = corps(C2); }, en(C2_68, DEPENDANCE)},
             cas{"depends on a field that is not cut", 1, [](sCorps& l) { l.dependance = corps(C5); },
                 en(C2_68, DEPENDANCE)},
             cas{"depends on the middle of a slot", 1, [](sCorps& l) { l.dependance = corps(C1) + 1; },
                 en(C2_68, DEPENDANCE)},
             cas{"depends on a text elsewhere", 1, [](sCorps& l) { l.dependance = xdebug; },
                 en(C2_68, DEPENDANCE)},
             cas{"dependency without check", 4, [](sCorps& l) { l.dependance = corps(C1); },
                 en(C4_0, DEPENDANCE)},
             cas{"a list for a check that reads none", 2, [](sCorps& l) { l.sverif = &FR; },
                 en(C2_50, LISTE_EN_TROP)},
             cas{"a list for no check", 4, [](sCorps& l) { l.sverif = &FR; }, en(C4_0, LISTE_EN_TROP)},
             cas{"no list", 1, [](sCorps& l) { l.sverif = &sansListe; }, en(C2_68, LISTE_ABSENTE)},
             cas{"not even the empty list", 2, [](sCorps& l) { l.sverif = nullptr; },
                 en(C2_50, LISTE_ABSENTE)},
             cas{"entries of another width", 0, [](sCorps& l) { l.sverif = &TDD; },
                 en(C1_31, LARGEUR_DE_LISTE)},
             cas{"departments of three characters", 1, [](sCorps& l) { l.sverif = &TDD; },
                 en(C2_68, LARGEUR_DE_LISTE)},
             cas{"pairs for single entries", 0, [](sCorps& l) { l.sverif = &TCME; },
                 en(C1_31, FORME_DE_LISTE)},
             cas{"single entries for pairs", 3, [](sCorps& l) { l.sverif = &SEX; },
                 en(C3_23, FORME_DE_LISTE)},
             cas{"pairs of other widths", 3, [](sCorps& l) { l.sverif = &NEV; }, en(C3_23, LARGEUR_DE_LISTE)},
         }) {
        std::vector<sCorps> t = juste();
        c.gater(t[static_cast<std::size_t>(c.rang)]);
        const faute vue = examiner(t.data(), static_cast<int>(t.size()), CORPS);
        EXPECT_TRUE(vue == c.attendue)
            << c.quoi << ": " << phrase(t, vue) << ", not " << phrase(t, c.attendue);
    }
}

TEST(Preuve, UneFauteSeDitEnUnePhrase) {
    EXPECT_EQ(phrase(juste(), {LISTE_EN_TROP, 2, 2, 50}),
              "field 2, row 2 (fCoherenCC), error 50: its check reads no list");
    EXPECT_EQ(phrase(juste(), {COLONNES, 4, 1, 0}),
              "field 4, row 1 (no check), error 0: its columns begin before the field before ends, or lie "
              "outside its part");
}

TEST(Preuve, PlusDeChampsQueDEmplacements) {
    constexpr partie ETROITE = {63, 230, 3};
    const std::vector<sCorps> t = juste();
    EXPECT_EQ(examiner(t.data(), static_cast<int>(t.size()), ETROITE), (faute{CHAMP_SANS_PLACE, 4, 1, 0}));
}

TEST(Preuve, ChaqueUsageDUneListe) {
    EXPECT_EQ(fauteDeListe(TDD, TROIS_COLONNES, 12), AUCUNE_FAUTE);
    EXPECT_EQ(fauteDeListe(TD, TROIS_COLONNES, 12), LARGEUR_DE_LISTE);
    EXPECT_EQ(fauteDeListe(FAB_REP, UNE_COLONNE, 8), AUCUNE_FAUTE);
    EXPECT_EQ(fauteDeListe(TD, UNE_COLONNE, 8), LARGEUR_DE_LISTE);
    EXPECT_EQ(fauteDeListe(NEV, SERIES, 12), AUCUNE_FAUTE);
    EXPECT_EQ(fauteDeListe(TCME, SERIES, 12), LARGEUR_DE_LISTE);
    EXPECT_EQ(fauteDeListe(IND_M, SERIES, 12), FORME_DE_LISTE);
    EXPECT_EQ(fauteDeListe(IND_M, PLAGES, 12), AUCUNE_FAUTE);
    EXPECT_EQ(fauteDeListe(NEV, PLAGES, 12), FORME_DE_LISTE);
    EXPECT_EQ(fauteDeListe(liste{{"AA", "B", "C"}, 3}, PLAGES, 12), LARGEUR_DE_LISTE);
    EXPECT_EQ(fauteDeListe(TD, NON_LUE, 12), AUCUNE_FAUTE);
    EXPECT_EQ(fauteDeListe(liste{}, ENTIER, 2), LISTE_ABSENTE);
    // A type's own checks come first.
    const usageDeListe PROPRES[] = {{fVerifValAut, NON_LUE}, {fDATEC, ENTIER}};
    EXPECT_EQ(usageDe(fVerifValAut, PROPRES, 2), NON_LUE);
    EXPECT_EQ(usageDe(fDATEC, PROPRES, 2), ENTIER);
    EXPECT_EQ(usageDe(fDATEC, PROPRES, 1), AUCUN_USAGE);
    EXPECT_EQ(usageDe(fConform3, PROPRES, 2), TROIS_COLONNES);
}

TEST(Preuve, ChaqueUsageDeLaBibliothequeSertAUneLigne) {
    std::set<fVerif*> nommees;
    for (const tableNommee& t : tables())
        for (int i = 0; i < t.longueur; ++i)
            nommees.insert(t.lignes[i].pfVerif);
    std::set<fVerif*> vues;
    for (const usageDeListe& u : USAGES) {
        EXPECT_EQ(nommees.count(u.verif), 1U) << "entry " << &u - USAGES << " of USAGES is named by no row";
        EXPECT_TRUE(vues.insert(u.verif).second) << "entry " << &u - USAGES << " of USAGES stands twice";
    }
}

TEST(Tables, ToutesLesColonnesSontCoupeesSaufExceptions) {
    struct trou {
        std::string table;
        int debut;
        int fin;
        std::string raison;
    };
    const std::vector<trou> PERMIS = {
        {"tAbat", 139, 230, "nothing behind the indicator is read"},
        {"tErre", 117, 161, "C11 to C28 have no row"},
        {"tErre", 230, 230, "nothing behind C37 is read"},
        {"tInfo", 79, 119, "not used; C4 begins behind it"},
        {"tNais", 151, 158, "used by NVMN; C18 to C23 have no row"},
        {"tRebo", 101, 211, "C7 to C22 have no row"},
    };
    std::vector<std::string> attendus;
    for (const trou& p : PERMIS) {
        EXPECT_FALSE(p.raison.empty());
        attendus.push_back(p.table + " " + std::to_string(p.debut) + "-" + std::to_string(p.fin));
    }
    std::vector<std::string> trouves;
    for (const tableNommee& t : tables()) {
        int libre = t.part.debut;
        const auto noter = [&](int jusqua) {
            if (libre < jusqua)
                trouves.push_back(t.nom + " " + std::to_string(libre) + "-" + std::to_string(jusqua - 1));
        };
        for (const sCorps* champ : emplacements(t.lignes, t.longueur)) {
            noter(champ->debut);
            libre = champ->fin + 1;
        }
        noter(t.part.fin + 1);
    }
    EXPECT_EQ(trouves, attendus);
}

TEST(Tables, LesNumerosDeChampSuiventLesEmplacementsSaufExceptions) {
    // Fields without a row: from there on a field's slot is not its number.
    const std::vector<std::string> PERMIS = {
        "tErre slot 11: field 29",
        "tNais slot 18: field 24",
        "tRebo slot 7: field 23",
    };
    std::vector<std::string> sauts;
    for (const tableNommee& t : tables()) {
        int rang = 0;
        int suivant = 0;
        for (const sCorps* champ : emplacements(t.lignes, t.longueur)) {
            ++rang;
            EXPECT_GE(champ->numChamp, suivant) << t.nom << " slot " << rang;
            if (champ->numChamp != suivant)
                sauts.push_back(t.nom + " slot " + std::to_string(rang) + ": field " +
                                std::to_string(champ->numChamp + 1));
            suivant = champ->numChamp + 1;
        }
    }
    EXPECT_EQ(sauts, PERMIS);
}

TEST(Tables, SansGenreToutesLesLignesSontLancees) {
    // Header, footer and FICH tables are applied without a kind.
    pourChaqueLigne([](const tableNommee& t, const sCorps& ligne, const sCorps&) {
        if (t.nom != "tEntete" && t.nom != "tFin" && t.nom != "tFich") return;
        for (const int code : {ligne.typeCRE, ligne.typeDEM, ligne.typeINV, ligne.typeEDI, ligne.typeMOD})
            EXPECT_EQ(code, 1);
    });
}

TEST(Tables, UnChampSansVerificationEstIgnorePartoutSaufExceptions) {
    // The tag order's C11 stands with its neighbours; the engine skips it all the same.
    const std::vector<std::string> PERMIS = {"tGroc C11: 11222"};
    std::vector<std::string> autres;
    pourChaqueLigne([&](const tableNommee& t, const sCorps& ligne, const sCorps&) {
        if (ligne.pfVerif != nullptr) return;
        std::string codes;
        for (const int code : {ligne.typeCRE, ligne.typeDEM, ligne.typeINV, ligne.typeEDI, ligne.typeMOD})
            codes += std::to_string(code);
        if (codes != "11111")
            autres.push_back(t.nom + " C" + std::to_string(ligne.numChamp + 1) + ": " + codes);
    });
    EXPECT_EQ(autres, PERMIS);
}

TEST(Tables, SeuleLaLigneViergeDuPiedEstSupplementaireSansVerification) {
    std::vector<std::string> vierges;
    pourChaqueLigne([&](const tableNommee& t, const sCorps& ligne, const sCorps&) {
        if (supplementaire(ligne) && ligne.pfVerif == nullptr)
            vierges.push_back(t.nom + " F" + std::to_string(ligne.numChamp + 1));
    });
    EXPECT_EQ(vierges, std::vector<std::string>{"tFin F2"});
}

// Those of a message type are asked by its own test (`prouverLignes`).
TEST(Tables, EnteteEtPiedDependentDeLeursChamps) {
    EXPECT_EQ(essai::dependancesDe(tEntete, lEntete, 'E'),
              "E3/95:E6 E4/96:E6 E6/86:E5 E8/87:E6 E9/89:E6 E10/88:E6 E12/97:E6 E13/98:E6");
    EXPECT_EQ(essai::dependancesDe(tFin, lFin, 'F'), "F3/93:E6");
    EXPECT_EQ(essai::dependancesDe(tFich, lFich, 'C'), "");
}

TEST(Tables, LExploitationConcerneeEstUnPaysEtUnNumero) {
    for (const sAiguillage& route : tAiguillage) {
        SCOPED_TRACE(route.nomVSE);
        EXPECT_EQ(route.champErrC7 == CINC, route.champErrC8 == CINC);
        if (route.champErrC7 == CINC) continue;
        const std::vector<const sCorps*> champs = emplacements(route.tabVerif, *route.pLenTabVerif);
        ASSERT_LT(route.champErrC8, champs.size());
        EXPECT_EQ(route.champErrC8, route.champErrC7 + 1);
        EXPECT_EQ(champs[route.champErrC7]->numChamp, static_cast<int>(route.champErrC7));
        EXPECT_EQ(champs[route.champErrC8]->numChamp, static_cast<int>(route.champErrC8));
        EXPECT_EQ(largeur(*champs[route.champErrC7]), 2);
        EXPECT_EQ(largeur(*champs[route.champErrC8]), 12);
    }
}

TEST(Tables, UnGenreRefuseEstInterditPartoutSaufExceptions) {
    // A type's rows forbid the kinds that the header does not allow it, and
    // run or skip in the others; types that stand apart, with their code.
    const std::map<std::string, std::string> EXCEPTIONS = {
        {"ABAT DEM: 1", "the header alone refuses it"},
        {"ABAT EDI: 1", "the header alone refuses it"},
        {"ERRE CRE: 0", "an error return has kind ECQ and runs as a creation; the header refuses CRE"},
        {"ERRE DEM: 1", "the header alone refuses it"},
        {"ERRE INV: 0", "the header alone refuses it"},
        {"ERRE EDI: 1", "the header alone refuses it"},
        {"ERRE MOD: 0", "the header alone refuses it"},
        {"RATA INV: 1", "the header alone refuses it"},
    };
    std::set<std::string> attendues;
    for (const auto& [cellule, raison] : EXCEPTIONS)
        attendues.insert(cellule);
    std::set<std::string> vues;
    for (const sAiguillage& route : tAiguillage) {
        if (route.tabVerif == nullptr) continue;
        for (const genre& g : GENRES) {
            const bool permis = dansListe(route.nomVSE, g.types) != 0;
            for (int i = 0; i < *route.pLenTabVerif; ++i) {
                const sCorps& ligne = route.tabVerif[i];
                const int code = ligne.*g.colonne;
                if (ligne.pfVerif != nullptr && (code != 2) != permis)
                    vues.insert(std::string(route.nomVSE) + " " + g.nom + ": " + std::to_string(code));
            }
        }
    }
    EXPECT_EQ(vues, attendues);
}

TEST(Tables, ChaqueGenrePermisVerifieQuelqueChose) {
    // A kind that the header allows a type runs at least one of its rows.
    for (const genre& g : GENRES) {
        for (const tValAutorise& type : g.types) {
            const sAiguillage& route = tAiguillage[aiguiller(type.valeur)];
            ASSERT_NE(route.tabVerif, nullptr) << type.valeur;
            int lancees = 0;
            for (int i = 0; i < *route.pLenTabVerif; ++i)
                lancees += route.tabVerif[i].pfVerif != nullptr && route.tabVerif[i].*g.colonne == 0;
            EXPECT_GT(lancees, 0) << route.nomVSE << " " << g.nom;
        }
    }
}
