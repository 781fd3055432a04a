// Proofs that hold for every rule table: the header, the footer, the FICH body
// and the body of each message type.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "checks/utils.h"
#include "messages/aiguillage.h"
#include "messages/messages.h"
#include "rules/entete.h"

using namespace quilvane;

namespace {

enum ePartie { ENTETE, CORPS, FIN };

struct tableNommee {
    std::string nom;
    const sCorps* lignes;
    int longueur;  // the table's own count
    int attendue;  // rows it must have
    ePartie partie = CORPS;
};

// clang-format off
const std::vector<tableNommee> TABLES = {
    {"tEntete", tEntete, lEntete, 14, ENTETE},
    {"tFin",    tFin,    lFin,     6, FIN},
    {"tFich",   tFich,   lFich,    9},
    {"tAbat",   tAbat,   lAbat,   25},
    {"tActi",   tActi,   lActi,   12},
    {"tAsso",   tAsso,   lAsso,   23},
    {"tDete",   tDete,   lDete,   17},
    {"tDeti",   tDeti,   lDeti,   10},
    {"tEcbo",   tEcbo,   lEcbo,   20},
    {"tEcha",   tEcha,   lEcha,   36},
    {"tEget",   tEget,   lEget,   11},
    {"tEntr",   tEntr,   lEntr,   30},
    {"tErre",   tErre,   lErre,   28},
    {"tErti",   tErti,   lErti,   18},
    {"tExp1",   tExp1,   lExp1,   15},
    {"tExp2",   tExp2,   lExp2,   23},
    {"tGroc",   tGroc,   lGroc,   26},
    {"tImoc",   tImoc,   lImoc,   13},
    {"tImpo",   tImpo,   lImpo,   36},
    {"tInfo",   tInfo,   lInfo,    7},
    {"tJalo",   tJalo,   lJalo,   17},
    {"tNais",   tNais,   lNais,   50},
    {"tNuma",   tNuma,   lNuma,   26},
    {"tNvmn",   tNvmn,   lNvmn,   31},
    {"tPass",   tPass,   lPass,   20},
    {"tPico",   tPico,   lPico,   23},
    {"tRaco",   tRaco,   lRaco,   13},
    {"tRata",   tRata,   lRata,   17},
    {"tRebo",   tRebo,   lRebo,   22},
    {"tSort",   tSort,   lSort,   29},
};

// clang-format on

/** How a check uses its row's list. */
enum eUsage {
    ENTIER,       // compares the whole field: entries as wide as the field
    DEPARTEMENT,  // compares the first two columns
    DEPT_A_3,     // compares the first three columns
    UN_CARAC,     // compares one column
    CAUSES,       // pairs: code as wide as the field, date or "TOUJOURS"
    SERIES,       // pairs: body of six columns, series letters
    PLAGES,       // triples of six columns
    SANS_USAGE,   // is given a list and does not consult it
};

// clang-format off
/** Every check that is given a list. */
const std::map<fVerif*, eUsage> USAGES = {
    {fVerifValAut, ENTIER},   {fVerifDiffNull, ENTIER}, {fVDIFFNULLVTAB, ENTIER}, {fVTABP5, ENTIER},
    {fVTABP6, ENTIER},        {fVTABP8, ENTIER},        {fVTABDIFFFR, ENTIER},    {fVDIFFVD, ENTIER},
    {fCDIFF, ENTIER},         {enteteE3, ENTIER},       {enteteE4, ENTIER},       {enteteE8, ENTIER},
    {enteteE10, ENTIER},      {enteteE12, ENTIER},      {enteteE13, ENTIER},      {finF3, ENTIER},
    {erti_fC5, ENTIER},       {erti_fC9C10, ENTIER},    {fexp1_C4, ENTIER},       {ecbo_C12, ENTIER},
    {ecbo_C15, ENTIER},       {impo_C6_1, ENTIER},      {impo_C6_2, ENTIER},      {impo_C20, ENTIER},

    {fConform8, DEPARTEMENT}, {fConform8FR, DEPARTEMENT}, {fCONFORM8FRNULL, DEPARTEMENT},
    {fConform10, DEPARTEMENT}, {fConform10FR, DEPARTEMENT}, {fCONFORM10FRNULL, DEPARTEMENT},
    {fConform10FRnonECHAnon, DEPARTEMENT}, {fCoherenCC_dete_dem, DEPARTEMENT}, {asso_fC6_5, DEPARTEMENT},
    {impo_C2, DEPARTEMENT},   {nais_C2, DEPARTEMENT},   {nais_C11, DEPARTEMENT},  {nais_C11FRnonUEnon, DEPARTEMENT},
    {nais_C17, DEPARTEMENT},  {nvmn_C2, DEPARTEMENT},

    {fConform3, DEPT_A_3},

    {fConform_OC_model2, UN_CARAC}, {fConform_OC_model3, UN_CARAC}, {fConform_OC_model4, UN_CARAC},
    {fConform_BV_model2, UN_CARAC}, {fConform_BV_model3, UN_CARAC}, {fConform_BV_model4, UN_CARAC},

    {fVerifValAutDate, CAUSES},
    {fConformEget, SERIES},   {fCoherenCCEget, SERIES},
    {fCoheren_OC_IND_M, PLAGES},

    {enteteE9, SANS_USAGE},   {ecbo_C13, SANS_USAGE},   {entr_fC5, SANS_USAGE},   {sort_fC5, SANS_USAGE},
    {fConform_temoin_bouc1, SANS_USAGE}, {fConform_OC_FR, SANS_USAGE}, {fConform_OC_TP, SANS_USAGE},
    {presence_C5, SANS_USAGE}, {fVerif_NUM_ASDA, SANS_USAGE}, {fVerif_CODEPE_ABATNOT, SANS_USAGE},
    {fVerif_INDIC_ABAT, SANS_USAGE},
};
// clang-format on

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

/** First and last column of a part of the record, and its slots. */
struct etendue {
    int debut;
    int fin;
    int emplacements;
};
etendue etendueDe(ePartie partie) {
    if (partie == ENTETE) return {1, 62, 13};
    if (partie == FIN) return {231, 256, 5};
    return {63, 230, 100};
}

bool supplementaire(const sCorps& ligne) { return ligne.debut == 0; }

/** Calls `f(table, row index, row, row with the columns)` for every row. */
template <typename Fonction>
void pourChaqueLigne(Fonction f) {
    for (const tableNommee& t : TABLES) {
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

/** Whether `texte` lies in the slots; its slot when it is the start of one. */
struct lieu {
    bool dedans = false;
    int emplacement = -1;
};
template <int N>
lieu lieuDe(const valeurVSE (&slots)[N], const char* texte) {
    const auto adresse = reinterpret_cast<std::uintptr_t>(texte);
    const auto premiere = reinterpret_cast<std::uintptr_t>(slots);
    if (adresse < premiere || adresse >= premiere + sizeof slots) return {};
    const std::uintptr_t ecart = adresse - premiere;
    return {true, ecart % sizeof(valeurVSE) == 0 ? static_cast<int>(ecart / sizeof(valeurVSE)) : -1};
}

}  // namespace

TEST(Tables, ChacuneASonNombreDeLignes) {
    for (const tableNommee& t : TABLES)
        EXPECT_EQ(t.longueur, t.attendue) << t.nom;
}

TEST(Tables, AucuneTableAiguilleeNEstOubliee) {
    std::set<const sCorps*> connues;
    for (const tableNommee& t : TABLES)
        EXPECT_TRUE(connues.insert(t.lignes).second) << t.nom << " stands twice";
    for (const sAiguillage& route : tAiguillage)
        if (route.tabVerif != nullptr) connues.erase(route.tabVerif);
    EXPECT_EQ(connues, (std::set<const sCorps*>{tEntete, tFin, tFich}));
}

TEST(Tables, LesChampsTiennentDansLesEmplacements) {
    for (const tableNommee& t : TABLES)
        EXPECT_LE(static_cast<int>(emplacements(t.lignes, t.longueur).size()),
                  etendueDe(t.partie).emplacements)
            << t.nom;
    EXPECT_EQ(emplacements(tEntete, lEntete).size(), 13U);
    EXPECT_EQ(emplacements(tFin, lFin).size(), 5U);
    EXPECT_EQ(emplacements(tFich, lFich).size(), 9U);
}

TEST(Tables, LesColonnesMontentSansSeChevaucher) {
    for (const tableNommee& t : TABLES) {
        const etendue e = etendueDe(t.partie);
        int precedente = e.debut - 1;
        for (const sCorps* champ : emplacements(t.lignes, t.longueur)) {
            EXPECT_GT(champ->debut, precedente) << t.nom << " field " << champ->numChamp + 1;
            EXPECT_GE(champ->fin, champ->debut) << t.nom << " field " << champ->numChamp + 1;
            precedente = champ->fin;
        }
        EXPECT_LE(precedente, e.fin) << t.nom;
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
    for (const tableNommee& t : TABLES) {
        const etendue e = etendueDe(t.partie);
        int libre = e.debut;
        const auto noter = [&](int jusqua) {
            if (libre < jusqua)
                trouves.push_back(t.nom + " " + std::to_string(libre) + "-" + std::to_string(jusqua - 1));
        };
        for (const sCorps* champ : emplacements(t.lignes, t.longueur)) {
            noter(champ->debut);
            libre = champ->fin + 1;
        }
        noter(e.fin + 1);
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
    for (const tableNommee& t : TABLES) {
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

TEST(Tables, UneLigneSupplementaireSuitSonChamp) {
    pourChaqueLigne([](const tableNommee&, const sCorps& ligne, const sCorps& champ) {
        EXPECT_EQ(supplementaire(ligne), ligne.fin == 0);
        EXPECT_EQ(ligne.numChamp, champ.numChamp);
    });
}

TEST(Tables, LesCodesDePresenceSont0A2) {
    pourChaqueLigne([](const tableNommee& t, const sCorps& ligne, const sCorps&) {
        for (const int code : {ligne.typeCRE, ligne.typeDEM, ligne.typeINV, ligne.typeEDI, ligne.typeMOD}) {
            EXPECT_TRUE(code >= 0 && code <= 2) << code;
            const bool sansGenre = t.partie != CORPS || t.lignes == tFich;
            EXPECT_TRUE(!sansGenre || code == 1) << "applied without a kind, has code " << code;
            EXPECT_TRUE(ligne.pfVerif != nullptr || code != 0) << "nothing to run";
        }
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

TEST(Tables, UneVerificationAUnNumeroDErreur) {
    pourChaqueLigne([](const tableNommee&, const sCorps& ligne, const sCorps&) {
        const bool numerote = ligne.noErr >= 1 && ligne.noErr <= 999;
        EXPECT_TRUE(ligne.pfVerif != nullptr ? numerote : ligne.noErr == 0) << ligne.noErr;
    });
}

TEST(Tables, SeuleLaLigneViergeDuPiedEstSupplementaireSansVerification) {
    std::vector<std::string> vierges;
    pourChaqueLigne([&](const tableNommee& t, const sCorps& ligne, const sCorps&) {
        if (supplementaire(ligne) && ligne.pfVerif == nullptr)
            vierges.push_back(t.nom + " F" + std::to_string(ligne.numChamp + 1));
    });
    EXPECT_EQ(vierges, std::vector<std::string>{"tFin F2"});
}

TEST(Tables, UneListePourUneVerification) {
    pourChaqueLigne([](const tableNommee&, const sCorps& ligne, const sCorps&) {
        ASSERT_NE(ligne.sverif, nullptr);
        if (ligne.sverif == &sansListe) return;
        EXPECT_NE(ligne.pfVerif, nullptr) << "a list for no check";
        EXPECT_GT(ligne.sverif->nombre(), 0);
    });
}

TEST(Tables, LesEntreesOntLaLargeurQueLaVerificationCompare) {
    pourChaqueLigne([](const tableNommee&, const sCorps& ligne, const sCorps& champ) {
        if (ligne.pfVerif == nullptr) return;
        const auto usage = USAGES.find(ligne.pfVerif);
        if (ligne.sverif == &sansListe) {
            EXPECT_EQ(usage, USAGES.end()) << "the list is missing";
            return;
        }
        ASSERT_NE(usage, USAGES.end()) << "use of the list unknown";
        const liste& valeurs = *ligne.sverif;
        const int compte = valeurs.nombre();
        const auto large = [&](int rang) { return static_cast<int>(std::strlen(valeurs[rang].valeur)); };
        const auto toutes = [&](int attendue) {
            for (int k = 0; k < compte; ++k)
                EXPECT_EQ(large(k), attendue) << "entry " << valeurs[k].valeur;
        };
        switch (usage->second) {
            case ENTIER: toutes(largeur(champ)); break;
            case DEPARTEMENT: toutes(2); break;
            case DEPT_A_3: toutes(3); break;
            case UN_CARAC: toutes(1); break;
            case CAUSES:
                EXPECT_EQ(compte % 2, 0);
                for (int k = 0; k + 1 < compte; k += 2) {
                    EXPECT_EQ(large(k), largeur(champ)) << "entry " << valeurs[k].valeur;
                    EXPECT_EQ(large(k + 1), 8) << "entry " << valeurs[k + 1].valeur;
                }
                break;
            case SERIES:
                EXPECT_EQ(compte % 2, 0);
                for (int k = 0; k < compte; k += 2)
                    EXPECT_EQ(large(k), 6) << "entry " << valeurs[k].valeur;
                break;
            case PLAGES:
                EXPECT_EQ(compte % 3, 0);
                toutes(6);
                break;
            case SANS_USAGE: break;
        }
    });
}

TEST(Tables, UneDependanceEstUnChampQuiExiste) {
    pourChaqueLigne([](const tableNommee& t, const sCorps& ligne, const sCorps& champ) {
        ASSERT_NE(ligne.dependance, nullptr);
        for (const lieu& l :
             {lieuDe(valEnteteVSE, ligne.dependance), lieuDe(valFinVSE, ligne.dependance),
              lieuDe(valFichEnteteVSE, ligne.dependance), lieuDe(valFichCorpsVSE, ligne.dependance),
              lieuDe(valFichFinVSE, ligne.dependance)}) {
            if (!l.dedans) continue;
            EXPECT_GE(l.emplacement, 0) << "not the start of a slot";
            EXPECT_NE(ligne.pfVerif, nullptr) << "a dependency for no check";
            return;
        }
        const lieu l = lieuDe(valCorpsVSE, ligne.dependance);
        if (!l.dedans) {
            EXPECT_STREQ(ligne.dependance, "") << "neither a slot nor the empty text";
            return;
        }
        const int k = l.emplacement;
        EXPECT_NE(ligne.pfVerif, nullptr) << "a dependency for no check";
        ASSERT_GE(k, 0) << "not the start of a slot";
        ASSERT_EQ(t.partie, CORPS);
        const std::vector<const sCorps*> champs = emplacements(t.lignes, t.longueur);
        ASSERT_LT(k, static_cast<int>(champs.size()));
        // A row names its dependency by field number: up to that field the
        // table has no gap.
        EXPECT_EQ(champs[static_cast<std::size_t>(k)]->numChamp, k);
        EXPECT_NE(champs[static_cast<std::size_t>(k)], &champ) << "a field that depends on itself";
    });
}

TEST(Tables, ChaqueLigneDependDeSonChamp) {
    // Row, from 1, and the field it depends on; the rows that are not named
    // depend on none. (A check that ignores its dependency is given it too.)
    // clang-format off
    const std::vector<std::pair<std::string, std::string>> ATTENDUES = {
        {"tEntete", "3:E6 4:E6 7:E5 9:E6 10:E6 11:E6 13:E6 14:E6"},
        {"tFin", "4:E6"},
        {"tFich", ""},
        {"tAbat", "10:F1 13:F1"},
        {"tActi", "3:C1 4:E8 8:F1 10:F1"},
        {"tAsso", "19:F1 21:C7 22:F1"},
        {"tDete", "3:E8 4:E8 5:E8 10:C7 11:C6"},
        {"tDeti", "3:E8 7:F1 9:F1"},
        {"tEcbo", "3:C1 4:C1 5:C1 12:C7 17:C12"},
        {"tEcha", "3:C1 8:F1 13:C10 14:C10 15:C10 18:C13 19:C13 21:C6 22:C6 23:C6 24:C16 25:C16 26:C16 29:E8 34:F1 35:C6"},
        {"tEget", "4:E8 7:C6 8:C5"},
        {"tEntr", "3:C1 4:C1 5:C1 9:F1 10:C4 11:E5 15:E8 25:F1 28:F1 29:C4"},
        {"tErre", "20:F1 22:F1 24:F1 26:F1 28:FICH E3"},
        {"tErti", "4:E8 7:C4 9:F1 12:C6 13:F1 15:F1 16:C5 17:C5"},
        {"tExp1", "3:C1 4:E8 9:C7 10:C6"},
        {"tExp2", "3:C1 4:E8 20:F1 22:F1"},
        {"tGroc", "3:C1 4:C1 8:C1 9:E8 11:F1 17:C1 18:C7 19:C6 20:F1 22:F1 24:C10"},
        {"tImoc", "4:E8 8:C1 9:E8 12:F1"},
        {"tImpo", "4:E8 9:F1 14:C10 15:C10 18:C13 19:C13 22:C16 23:C16 24:C16 28:E8 34:F1 35:C6"},
        {"tInfo", "3:C1 4:C1 5:C1"},
        {"tJalo", "3:C1 4:C1 5:C1 9:C1 10:E8 12:F1"},
        {"tNais", "6:C1 7:C1 8:C1 9:E8 15:F1 20:C6 22:C10 23:C10 24:C10 25:C6 26:C6 27:C6 28:C6 29:C10 31:C6 33:C13 34:C13 36:C6 38:C6 41:E8 42:C6 43:C6 44:C16 48:F1 49:C6"},
        {"tNuma", "4:E8 9:E8 12:C5 14:F1 16:C7 21:C7"},
        {"tNvmn", "5:E8 10:F1 16:C10 17:C10 18:C10 21:C13 22:C13 27:E8 29:F1 30:C6"},
        {"tPass", "3:C1 4:C1 5:C1 10:E8 12:C11 16:F1 17:C11"},
        {"tPico", "4:E8 8:C4 9:E8 12:C5 14:F1 22:C8"},
        {"tRaco", "4:E8 7:F1 11:F1 12:C4"},
        {"tRata", "4:E8 9:C1 12:C1 14:F1 16:F1"},
        {"tRebo", "3:C1 4:C1 5:C1 8:F1 12:E8 14:F1 15:C4 20:C4"},
        {"tSort", "3:C1 4:C1 5:C1 9:F1 10:C4 11:E5 15:E8 25:F1 27:F1 28:C4"},
    };
    // clang-format on
    const auto champDe = [](const char* dependance) -> std::string {
        if (const lieu l = lieuDe(valEnteteVSE, dependance); l.dedans)
            return "E" + std::to_string(l.emplacement + 1);
        if (const lieu l = lieuDe(valCorpsVSE, dependance); l.dedans)
            return "C" + std::to_string(l.emplacement + 1);
        if (const lieu l = lieuDe(valFinVSE, dependance); l.dedans)
            return "F" + std::to_string(l.emplacement + 1);
        if (const lieu l = lieuDe(valFichEnteteVSE, dependance); l.dedans)
            return "FICH E" + std::to_string(l.emplacement + 1);
        return "?";
    };
    ASSERT_EQ(ATTENDUES.size(), TABLES.size());
    for (std::size_t k = 0; k < TABLES.size(); ++k) {
        const tableNommee& t = TABLES[k];
        std::string trouvees;
        for (int i = 0; i < t.longueur; ++i) {
            const char* const dependance = t.lignes[i].dependance;
            if (*dependance == '\0' && champDe(dependance) == "?") continue;
            trouvees += (trouvees.empty() ? "" : " ") + std::to_string(i + 1) + ":" + champDe(dependance);
        }
        EXPECT_EQ(t.nom, ATTENDUES[k].first);
        EXPECT_EQ(trouvees, ATTENDUES[k].second) << t.nom;
    }
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
