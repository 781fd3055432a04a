#include "checks/valautorise.h"
#include "messages/cas.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string BLANCS12(12, ' ');
const std::string BLANCS30(30, ' ');

/** A request names the keeper by department, the other kinds carry an address. */
std::string modele(const std::string& genre) {
    return vse("DETE", genre,
               {{63, "FR"},
                {65, "078         "},
                {79, "EARL"},
                {83, "DU MOULIN"},
                {113, "12 RUE HAUTE"},
                {173, "78000"},
                {178, "VERSAILLES"},
                {222, "FR"},
                {224, "D"}});
}

}  // namespace

TEST(Dete, TouteLignePasseEtEchoue) {
    const std::string UNE_ADRESSE = "one address line is asked for, and both rows ask for it";
    prouverLignes({
        .type = "DETE",
        .genres = "CRE DEM INV MOD",
        .modele = modele,
        .dependances = "C2/50:E8 C2/50:E8 C2/50:E8 C6/74:C7 C7/74:C6",
        .cas =
            {
                {LIGNE(C1, fVerifValAut, 30), "CRE DEM INV MOD", {{63, "BE"}}, {30}},
                {LIGNE(C2, fVerifDiffNull, 30),
                 "CRE DEM INV MOD",
                 {{65, BLANCS12}},
                 {30, 50},
                 "a blank number has no department"},
                {LIGNE(C2, fCoherenCCD, 50), "CRE INV", {{65, "077         "}}, {50}},
                {LIGNE(C2, fConform3, 50), "MOD", {{65, "020         "}}, {50}},
                {LIGNE(C2, fCoherenCC_dete_dem, 50), "DEM", {{65, "020         "}}, {50}},
                {LIGNE(C4, fVerifValAut, 39), "CRE", {{79, "XXXX"}}, {39}},
                {LIGNE(C4, fVerifValAut, 39), "MOD", {{79, "XXXX"}}, {39}},
                {LIGNE(C5, fVerifDiffNull, 39), "CRE MOD", {{83, BLANCS30}}, {39}},
                {LIGNE(C6, fVDIFFVD, 74), "CRE MOD", {{113, BLANCS30}}, {74, 74}, UNE_ADRESSE},
                {LIGNE(C7, fVDIFFVD, 74), "CRE MOD", {{113, BLANCS30}}, {74, 74}, UNE_ADRESSE},
                {LIGNE(C8, fVerifDiffNull, 40), "CRE MOD", {{173, "     "}}, {40}},
                {LIGNE(C9, fVerifDiffNull, 79), "CRE MOD", {{178, BLANCS30}}, {79}},
                {LIGNE(C11, fVerifValAut, 80), "CRE MOD", {{222, "ZZ"}}, {80}},
                // A kind other than "D" is a holding and has a holding's number.
                {LIGNE(C12, fVerifValAut, 130), "DEM", {{65, "78123456    "}, {224, "X"}}, {130}},
            },
    });
}

TEST(Dete, Enregistrements) {
    const std::string TROIS("078ABCDEFGHI");
    prouverVSE(modele, {
                           {"keeper by department", "DEM", {{65, "02A         "}, {224, "D"}}, {}},
                           {"department 020 is no code", "DEM", {{65, "020         "}, {224, "D"}}, {50}},
                           {"keeper by a holding's number", "DEM", {{65, "78123456    "}, {224, "D"}}, {50}},
                           {"a holding's number that begins like a department",
                            "DEM",
                            {{65, "07812345    "}, {224, "D"}},
                            {}},
                           {"holding by its number", "DEM", {{65, "78123456    "}, {224, "E"}}, {}},
                           {"holding by department", "DEM", {{65, "078         "}, {224, "E"}}, {50}},
                           {"holding of another department", "DEM", {{65, "35123456    "}, {224, "E"}}, {}},
                           {"unknown kind counts as a holding", "DEM", {{224, "X"}}, {50, 130}},
                           {"department behind which anything follows", "CRE", {{65, TROIS}}, {}},
                           {"modification of another department", "MOD", {{65, "035         "}}, {}},
                           {"inventory of another department", "INV", {{65, "035         "}}, {50}},
                           {"older legal form on creation", "CRE", {{79, "MR  "}}, {39}},
                           {"older legal form on modification", "MOD", {{79, "MR  "}}, {}},
                           {"second address line alone", "CRE", {{113, BLANCS30}, {143, "BOITE 4"}}, {}},
                           {"both address lines", "MOD", {{143, "BOITE 4"}}, {}},
                           {"emptied address line", "MOD", {{113, "NB"}, {115, std::string(28, ' ')}}, {}},
                           {"inventory reads C1 and C2 only", "INV", {{79, std::string(152, '?')}}, {}},
                           {"creation does not read the kind", "CRE", {{224, "?"}}, {}},
                       });
}

TEST(Dete, PointfocNEstPasExempteDuDepartement) {
    // The three-column check compares; it knows no body that covers all.
    std::string r = modele("CRE");
    poser(r, 27, "POINTFOC");
    EXPECT_EQ(codesDe(r, "PFOC01  "), std::vector<int>{50});
}

TEST(Dete, DetenteurDUneDemande) {
    struct cas {
        const char* temoin;
        const char* numero;
        bool attendu;
    };
    for (const cas& c : {
             cas{"D", "078         ", true},
             cas{"D", "02B", true},
             cas{"D", "098XYZ", true},
             cas{"D", "020         ", false},
             cas{"D", "975         ", false},
             cas{"D", "78123456    ", false},
             cas{"D", "07", false},
             cas{"D", "", false},
             cas{"E", "78123456    ", true},
             cas{"E", "97612345    ", true},
             cas{"E", "97512345    ", false},
             cas{"E", "078         ", false},
             cas{"E", "78123456   ", false},
             cas{"E", "78123456", false},
             cas{"E", "78", false},
             cas{"E", "", false},
             // Only the whole text "D" is a keeper.
             cas{"d", "078         ", false},
             cas{"D ", "078         ", false},
             cas{"", "078         ", false},
             cas{"", "78123456    ", true},
             cas{" ", "78123456    ", true},
         }) {
        remplir(valCorpsVSE[C12], c.temoin);
        for (const char* departement : {"078IPG  ", "035IPG  ", ""})  // the body plays no part
            EXPECT_EQ(accepte(fCoherenCC_dete_dem, departement, c.numero, TD), c.attendu)
                << "'" << c.temoin << "' '" << c.numero << "'";
    }
    // The list of the row serves holdings only.
    remplir(valCorpsVSE[C12], "D");
    EXPECT_TRUE(accepte(fCoherenCC_dete_dem, "078IPG  ", "078         ", sansListe));
    remplir(valCorpsVSE[C12], "E");
    EXPECT_FALSE(accepte(fCoherenCC_dete_dem, "078IPG  ", "78123456    ", sansListe));
}
