#include <gtest/gtest.h>

#include "messages/cas.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace essai;
using namespace quilvane;

namespace {

const std::string SANS_CODE(2, ' ');
const std::string SANS_NUMERO(12, ' ');
const std::string SANS_DATE(8, ' ');

/** A correct birth: French calf and dam, sire with a foreign number. */
std::string modele(const std::string& genre) {
    return vse("NAIS", genre,
               {{63, "FR"},
                {65, "7812345678  "},
                {79, "1"},
                {80, "38"},
                {82, "01022024"},
                {90, "BETE"},
                {105, "FR"},
                {107, "7811111111  "},
                {119, "38"},
                {121, "BE"},
                {123, "TAUREAU12345"},
                {135, "38"},
                {137, "FR"},
                {139, "78123456    "},
                {159, "0"},
                {160, "1"},
                {161, "10022024"}});
}

/** Birth dates on both sides of `P5` and `P6`, 1 July 1999; blanks count as zeros. */
const struct {
    const char* c6;
    bool avant;
} AUTOUR_DE_P5[] = {
    {"30061999", true}, {"01071999", false}, {"02071999", false}, {"  071999", true},
    {"00071999", true}, {"  081999", false}, {"    1999", true},  {"    2000", false},
    {"        ", true}, {"", true},          {"15032024", false}, {"01011998", true},
};

}  // namespace

TEST(Nais, TouteLignePasseEtEchoue) {
    const char* const NUMERO_BLANC = "a blank number has no form either";
    prouverLignes({
        .type = "NAIS",
        .genres = "CRE DEM INV MOD ECQ",
        .modele = modele,
        .dependances =
            "C2/67:C1 C2/118:C1 C2/1:C1 C2/50:E8 C6/52:F1 C10/7:C6 C11/67:C10 C11/118:C10 C11/6:C10 C11/7:C6 "
            "C11/67:C6 C11/118:C6 C11/6:C6 C11/113:C10 C12/8:C6 C14/114:C13 C14/14:C13 C15/9:C6 C16/2:C6 "
            "C17/50:E8 C17/2:C6 C17/68:C6 C17/115:C16 C26/52:F1 C26/137:C6",
        // clang-format off
        .cas = {
            // animal
            {LIGNE(C1, fVerifValAut, 1), "CRE INV MOD ECQ", {{63, "BE"}}, {1}},
            {LIGNE(C1, fVerifValAut, 1), "DEM", {{63, "ZZ"}}, {1}},
            {LIGNE(C2, fVerifDiffNull, 1), "CRE INV ECQ", {{65, SANS_NUMERO}}, {1, 67, 50}, NUMERO_BLANC},
            {LIGNE(C2, fVerifDiffNull, 1), "DEM MOD", {{65, SANS_NUMERO}}, {1, 67}, NUMERO_BLANC},
            {LIGNE(C2, fVerifDiffNull, 1), "DEM", {{63, "US"}, {65, SANS_NUMERO}}, {1, 118}, NUMERO_BLANC},
            {LIGNE(C2, fVerifDiffNull, 1), "DEM", {{63, "BE"}, {65, SANS_NUMERO}}, {1, 1}, NUMERO_BLANC},
            {LIGNE(C2, nais_C2, 67), "CRE ECQ", {{65, "781234567   "}}, {67}},
            {LIGNE(C2, nais_C2, 67), "CRE ECQ", {{65, "7812340000  "}}, {67}},
            {LIGNE(C2, fConform10, 67), "INV MOD", {{65, "781234567   "}}, {67}},
            {LIGNE(C2, fConform10FR, 67), "DEM", {{65, "781234567   "}}, {67}},
            {LIGNE(C2, fConform10FRnonECHAnon, 118), "DEM", {{63, "US"}, {65, "781234567   "}}, {118}},
            {LIGNE(C2, fConform10FRnonECHAoui, 1), "DEM", {{63, "BE"}, {65, "BE1234567   "}}, {1}},
            {LIGNE(C2, fCoherenCC, 50), "CRE INV ECQ", {{65, "3512345678  "}}, {50}},
            {LIGNE(C4, fVerifValAut, 3), "CRE MOD ECQ", {{79, "3"}}, {3}},
            {LIGNE(C5, fVerifValAut, 4), "CRE MOD ECQ", {{80, "99"}}, {4}},
            // birth date
            {LIGNE(C6, fDATEC, 5), "CRE ECQ", {{82, "30022023"}}, {5}},
            {LIGNE(C6, fDATEC, 5), "CRE ECQ", {{82, "  061998"}}, {5}},
            {LIGNE(C6, fDATEP6P7, 5), "MOD", {{82, "30022023"}}, {5}},
            {LIGNE(C6, fDATEP6P7, 5), "MOD", {{82, "  022024"}}, {5}},
            {LIGNE(C6, fCoherenDC, 52), "CRE ECQ", {{82, "16032024"}, {161, "16032024"}}, {52, 52},
             "a receipt after the birth is after the record, too"},
            {LIGNE(C6, fCoherenDC, 52), "CRE ECQ", {{82, "16032024"}}, {52, 137}, "a receipt before the record is before the birth"},
            {LIGNE(C6, fCoherenDC, 52), "MOD", {{82, "16032024"}}, {52}},
            {LIGNE(C7, nais_C7, 10), "CRE MOD ECQ", {{90, "    "}}, {10}},
            // dam
            {LIGNE(C10, fVerifValAut, 6), "CRE ECQ", {{105, "ZZ"}}, {6}},
            {LIGNE(C10, fVTABP5, 7), "MOD", {{105, "ZZ"}}, {7}},
            {LIGNE(C11, fVerifDiffNull, 6), "CRE ECQ", {{107, SANS_NUMERO}}, {6, 67}, NUMERO_BLANC},
            {LIGNE(C11, fVerifDiffNull, 6), "CRE ECQ", {{105, "US"}, {107, SANS_NUMERO}}, {6, 118}, NUMERO_BLANC},
            {LIGNE(C11, fVerifDiffNull, 6), "CRE ECQ", {{105, "BE"}, {107, SANS_NUMERO}}, {6, 6}, NUMERO_BLANC},
            {LIGNE(C11, fConform10FR, 67), "CRE ECQ", {{107, "781234567   "}}, {67}},
            {LIGNE(C11, fConform10FRnonECHAnon, 118), "CRE ECQ", {{105, "US"}, {107, "781234567   "}}, {118}},
            {LIGNE(C11, fConform10FRnonECHAoui, 6), "CRE ECQ", {{105, "BE"}, {107, "BE1234567   "}}, {6}},
            {LIGNE(C11, fVDIFFNULLP5, 7), "MOD", {{107, SANS_NUMERO}}, {7, 67, 113}, "a blank number goes with no country"},
            {LIGNE(C11, fVDIFFNULLP5, 7), "MOD", {{105, "US"}, {107, SANS_NUMERO}}, {7, 118, 113}, "a blank number goes with no country"},
            {LIGNE(C11, fVDIFFNULLP5, 7), "MOD", {{105, "BE"}, {107, SANS_NUMERO}}, {7, 6, 113}, "a blank number goes with no country"},
            {LIGNE(C11, fVDIFFNULLP5, 7), "MOD", {{105, SANS_CODE}, {107, SANS_NUMERO}}, {7, 7, 118},
             "no country is a country outside the exchanges"},
            {LIGNE(C11, nais_C11, 67), "MOD", {{107, "781234567   "}}, {67}},
            {LIGNE(C11, nais_C11FRnonUEnon, 118), "MOD", {{105, "US"}, {107, "781234567   "}}, {118}},
            {LIGNE(C11, nais_C11FRnonUEoui, 6), "MOD", {{105, "BE"}, {107, "BE1234567   "}}, {6}},
            {LIGNE(C11, fSimult, 113), "MOD", {{82, "30061999"}, {105, SANS_CODE}}, {113}},
            {LIGNE(C11, fSimult, 113), "MOD", {{82, "30061999"}, {105, "US"}, {107, SANS_NUMERO}}, {113}},
            {LIGNE(C12, fVerifValAut, 8), "CRE ECQ", {{119, "99"}}, {8}},
            {LIGNE(C12, fVerifValAut, 8), "CRE ECQ", {{119, SANS_CODE}}, {8}},
            {LIGNE(C12, fVTABP8, 8), "MOD", {{119, "99"}}, {8}},
            {LIGNE(C12, fVTABP8, 8), "MOD", {{119, SANS_CODE}}, {8}},
            // sire
            {LIGNE(C13, fVDIFFNULLVTAB, 14), "CRE MOD ECQ", {{121, "ZZ"}}, {14}},
            {LIGNE(C14, fSimult, 114), "CRE MOD ECQ", {{121, SANS_CODE}}, {114}},
            {LIGNE(C14, fSimult, 114), "CRE MOD ECQ", {{123, SANS_NUMERO}}, {114}},
            {LIGNE(C14, fVerifNumEtrangerN, 14), "CRE MOD ECQ", {{123, "BE-1        "}}, {14}},
            {LIGNE(C15, fVerifValAut, 9), "CRE ECQ", {{135, "99"}}, {9}},
            {LIGNE(C15, fVTABP8, 9), "MOD", {{135, "99"}}, {9}},
            {LIGNE(C15, fVTABP8, 9), "MOD", {{135, SANS_CODE}}, {9}},
            // holding
            {LIGNE(C16, fVerifValAut, 2), "CRE ECQ", {{137, "BE"}}, {2}},
            {LIGNE(C16, fVTABP6, 2), "MOD", {{137, "BE"}}, {2}},
            {LIGNE(C17, fVerifDiffNull, 2), "CRE ECQ", {{139, SANS_NUMERO}}, {2, 68, 50}, NUMERO_BLANC},
            {LIGNE(C17, fConform8, 68), "CRE ECQ", {{139, "7812345     "}}, {68}},
            {LIGNE(C17, fCoherenCC, 50), "CRE ECQ", {{139, "35123456    "}}, {50}},
            {LIGNE(C17, fVDIFFNULLP6, 2), "MOD", {{139, SANS_NUMERO}}, {2, 68, 115}, "a blank number has no form and goes with no country"},
            {LIGNE(C17, fVDIFFNULLP6, 2), "MOD", {{137, SANS_CODE}, {139, SANS_NUMERO}}, {2, 2, 68}, "without the country it is missing, too"},
            {LIGNE(C17, nais_C17, 68), "MOD", {{139, "7812345     "}}, {68}},
            {LIGNE(C17, fSimult, 115), "MOD", {{82, "30061999"}, {139, SANS_NUMERO}}, {115}},
            {LIGNE(C17, fSimult, 115), "MOD", {{82, "30061999"}, {137, SANS_CODE}}, {115}},
            // flags and receipt
            {LIGNE(C24, fVerifValAut, 83), "CRE ECQ", {{159, "2"}}, {83}},
            {LIGNE(C25, fVerifValAut, 132), "MOD", {{160, "2"}}, {132}},
            {LIGNE(C26, fDatRecCorr_O, 134), "CRE ECQ", {{161, SANS_DATE}}, {134}},
            {LIGNE(C26, fDatRecCorr_O, 134), "CRE ECQ", {{161, "31022024"}}, {134}},
            {LIGNE(C26, fDatRecCohe, 52), "CRE ECQ", {{161, "16032024"}}, {52}},
            {LIGNE(C26, fDatRecPost, 137), "CRE ECQ", {{161, "31012024"}}, {137}},
        },
        // clang-format on
    });
}

TEST(Nais, GenreNonPrevuDonneErreurParLigne) {
    EXPECT_EQ(codesDe(modele("EDI")), TOUT_REFUSE);
    prouverPresence("NAIS", &sCorps::typeEDI, 2);
}

TEST(Nais, EnregistrementsParticuliers) {
    // clang-format off
    prouverVSE(modele, {
        // Creation refuses a zero series, the other kinds do not.
        {"zero series", "INV", {{65, "7812340000  "}}, {}},
        {"zero series", "MOD", {{65, "7812340000  "}}, {}},
        {"zero series", "DEM", {{65, "7812340000  "}}, {}},
        // Only a request may name a foreign animal; it names nothing else.
        {"foreign animal", "DEM", {{63, "BE"}, {65, "0123456789  "}}, {}},
        {"foreign animal", "CRE", {{63, "BE"}, {65, "0123456789  "}}, {1, 50}},
        {"body of a request", "DEM", {{79, std::string(150, '?')}}, {}},
        {"body of an inventory", "INV", {{79, std::string(150, '?')}}, {}},
        {"animal of another department", "DEM", {{65, "3512345678  "}}, {}},
        {"animal of another department", "MOD", {{65, "3512345678  "}}, {}},
        {"one character of the name", "CRE", {{90, "   X"}}, {}},
        {"first character of the name", "MOD", {{90, "X   "}}, {}},
        // Before P5 and P6 a dam, its breed and the holding may be unknown.
        {"before P5, nothing known", "MOD",
         {{82, "30061999"}, {105, SANS_CODE}, {107, SANS_NUMERO}, {137, SANS_CODE}, {139, SANS_NUMERO}}, {}},
        {"before P5, blank number of a French dam", "MOD", {{82, "30061999"}, {107, SANS_NUMERO}}, {67, 113}},
        {"before P5, blank number of a Belgian dam", "MOD",
         {{82, "30061999"}, {105, "BE"}, {107, SANS_NUMERO}}, {6, 113}},
        {"before P5, dam of no known country", "MOD", {{82, "30061999"}, {105, "ZZ"}}, {7}},
        {"before P6, holding of another form", "MOD", {{82, "30061999"}, {139, "7812345     "}}, {68}},
        {"from P6, blank holding", "MOD", {{82, "01071999"}, {137, SANS_CODE}, {139, SANS_NUMERO}}, {2, 2, 68}},
        {"holding of another department", "MOD", {{139, "35123456    "}}, {}},
        {"before P8, unknown breeds", "MOD", {{82, "31121998"}, {119, SANS_CODE}, {135, SANS_CODE}}, {}},
        {"from P8, unknown breeds", "MOD", {{82, "01011999"}, {119, SANS_CODE}, {135, SANS_CODE}}, {8, 9}},
        {"creation before P5, nothing known", "CRE",
         {{82, "30061999"}, {105, SANS_CODE}, {107, SANS_NUMERO}, {137, SANS_CODE}, {139, SANS_NUMERO}},
         {6, 6, 118, 2, 2, 68, 50}},
        // A birth date may be unknown in part before P6.
        {"before P6, blank day", "MOD", {{82, "  061999"}}, {}},
        {"before P6, blank day and month", "MOD", {{82, "    1999"}}, {}},
        {"before P6, zero day", "MOD", {{82, "00061999"}}, {5}},
        {"from P6, blank day", "MOD", {{82, "  081999"}}, {5}},
        // An unknown day reads as zero in all rows behind.
        {"before P6, blank day, nothing known", "MOD",
         {{82, "  071999"}, {105, SANS_CODE}, {107, SANS_NUMERO}, {137, SANS_CODE}, {139, SANS_NUMERO}}, {}},
        {"sire with country and number left open", "CRE", {{121, "**"}, {123, "************"}}, {}},
        {"no sire", "MOD", {{121, SANS_CODE}, {123, SANS_NUMERO}}, {}},
        {"sire number repeats its country", "CRE", {{123, "BE123456    "}}, {14}},
        // Each of the two flags belongs to one kind.
        {"second flag", "CRE", {{160, "X"}}, {}},
        {"first flag and receipt", "MOD", {{159, "XXXXXXXXXX"}, {160, "0"}}, {}},
        // Columns 151 to 158 belong to no field.
        {"columns 151 to 158", "CRE", {{151, "10022024"}}, {}},
        {"columns 151 to 158", "MOD", {{151, "????????"}}, {}},
    });
    // clang-format on
}

// A record that ends inside the dam's number: its two blanks are a blank
// number for two of the three checks, before P5 only.
TEST(Nais, NumeroDeMereCoupeADeuxColonnes) {
    const struct {
        const char* c6;
        const char* c10;
        std::vector<int> codes;
    } cas[] = {
        {"30061999", "FR", {52, 113, 8, 14, 14, 9, 68, 132, 90, 91}},
        {"30061999", "BE", {52, 113, 8, 14, 14, 9, 68, 132, 90, 91}},
        {"01071999", "FR", {52, 7, 67, 113, 8, 14, 14, 9, 2, 2}},
        {"01071999", "BE", {52, 7, 6, 113, 8, 14, 14, 9, 2, 2}},
    };
    for (const auto& c : cas) {
        std::string r = modele("MOD");
        poser(r, 82, c.c6);
        poser(r, 105, c.c10);
        poser(r, 107, "  ");
        EXPECT_EQ(codesDe(r.substr(0, 108)), c.codes) << c.c6 << " " << c.c10;
    }
}

TEST(Nais, ChampsApresLesColonnesNonCoupees) {
    std::string r = modele("CRE");
    poser(r, 151, "ABCDEFGH");
    ASSERT_EQ(codesDe(r), std::vector<int>{});
    EXPECT_STREQ(corps(C17), "78123456    ");
    EXPECT_STREQ(valCorpsVSE[17].valeur, "0");         // C24
    EXPECT_STREQ(valCorpsVSE[18].valeur, "1");         // C25
    EXPECT_STREQ(valCorpsVSE[19].valeur, "10022024");  // C26
    EXPECT_EQ(std::string(valCorpsVSE[20].valeur), r.substr(168, 62));
}

TEST(Nais, NumeroSansSerieNulle) {
    for (fVerif* const verif : {&nais_C2, &nvmn_C2}) {
        SCOPED_TRACE(verif == &nais_C2 ? "nais_C2" : "nvmn_C2");
        prouverChamps(verif, "unread",
                      {
                          {"7812345678  ", true},
                          {"7812340001  ", true},
                          {"7812341000  ", true},
                          {"7800001234  ", true},
                          {"9761234567  ", true},
                          {"7812340000  ", false},  // columns 7 to 10
                          {"7800000000  ", false},
                          {"9751234567  ", false},  // no department
                          {"9912345678  ", false},
                          {"2A12345678  ", false},
                          {"781234567   ", false},
                          {"78123456789 ", false},
                          {"78123456X8  ", false},
                          {"            ", false},
                          {"7812345678 ", false},  // cut by the end of the record
                          {"7812345678", false},
                          {"781234", false},
                          {"", false},
                      },
                      TD);
        EXPECT_FALSE(accepte(verif, "", "7812345678  ", sansListe));
    }
}

TEST(Nais, NomNonBlanc) {
    prouverChamps(nais_C7, "unread",
                  {
                      {"BETE", true},
                      {"X   ", true},
                      {" X  ", true},
                      {"  X ", true},
                      {"   X", true},
                      {"    ", false},
                      {"    X", false},  // only four columns count
                      {"   ", true},     // a missing character is no blank
                      {"", true},
                  });
}

// The three checks of the dam's number differ in what they take for blank.
TEST(Nais, NumeroBlancAvantP5) {
    const struct {
        const char* nom;
        fVerif* verif;
        const char* pays;  // a country whose rule the check applies
        bool accepteDouzeBlancs;
        bool accepteDeuxBlancs;
    } cas[] = {
        {"nais_C11", &nais_C11, "FR", false, true},
        {"nais_C11FRnonUEnon", &nais_C11FRnonUEnon, "US", true, false},
        {"nais_C11FRnonUEoui", &nais_C11FRnonUEoui, "BE", false, true},
    };
    for (const auto& c : cas) {
        remplir(valCorpsVSE[C10], c.pays);
        for (const auto& d : AUTOUR_DE_P5) {
            SCOPED_TRACE(std::string(c.nom) + " " + d.c6);
            prouverChamps(c.verif, d.c6,
                          {
                              {SANS_NUMERO, d.avant && c.accepteDouzeBlancs},
                              {"  ", d.avant && c.accepteDeuxBlancs},
                              {std::string(11, ' '), false},
                              {std::string(13, ' '), false},
                              {" ", false},
                              {"", false},
                              {"7812345678  ", true},
                          },
                          TD);
        }
    }
}

TEST(Nais, NumeroDeMereSelonPays) {
    const struct {
        const char* pays;
        const char* numero;
        bool fr, horsEchanges, echanges;  // nais_C11, nais_C11FRnonUEnon, nais_C11FRnonUEoui
    } cas[] = {
        // clang-format off
        {"FR", "7812345678  ", true,  true,  true},
        {"FR", "7812340000  ", true,  true,  true},   // a zero series is no matter here
        {"FR", "781234567   ", false, true,  true},
        {"FR", "BE12345678  ", false, true,  true},
        {"BE", "7812345678  ", true,  true,  true},
        {"BE", "X           ", true,  true,  true},
        {"BE", "BE12345678  ", true,  true,  false},
        {"BE", "x           ", true,  true,  false},
        {"CH", "CH12345678  ", true,  true,  false},  // not of the union, but of the exchanges
        {"CH", "781234567   ", true,  true,  true},
        {"US", "7812345678  ", true,  true,  true},
        {"US", "781234567   ", true,  false, true},
        {"US", "US12345678  ", true,  false, true},
        {"ZZ", "X           ", true,  false, true},
        {"  ", "X           ", true,  false, true},
        {"",   "X           ", true,  false, true},
        {"F",  "X           ", true,  false, true},
        // clang-format on
    };
    for (const auto& c : cas) {
        remplir(valCorpsVSE[C10], c.pays);
        for (const auto& d : AUTOUR_DE_P5) {
            SCOPED_TRACE(std::string(c.pays) + " " + c.numero + " " + d.c6);
            EXPECT_EQ(accepte(nais_C11, d.c6, c.numero, TD), c.fr);
            EXPECT_EQ(accepte(nais_C11FRnonUEnon, d.c6, c.numero, TD), c.horsEchanges);
            EXPECT_EQ(accepte(nais_C11FRnonUEoui, d.c6, c.numero), c.echanges);
        }
    }
    // The departments are those of the row.
    remplir(valCorpsVSE[C10], "FR");
    EXPECT_FALSE(accepte(nais_C11, "15032024", "7812345678  ", sansListe));
    remplir(valCorpsVSE[C10], "US");
    EXPECT_FALSE(accepte(nais_C11FRnonUEnon, "15032024", "7812345678  ", sansListe));
}

TEST(Nais, ExploitationBlancheAvantP6) {
    for (const auto& d : AUTOUR_DE_P5) {
        SCOPED_TRACE(d.c6);
        prouverChamps(nais_C17, d.c6,
                      {
                          {SANS_NUMERO, d.avant},
                          {"78123456    ", true},
                          {"97612345    ", true},
                          {"97512345    ", false},
                          {"7812345     ", false},
                          {"781234567   ", false},
                          {"************", false},
                          {std::string(11, ' '), false},
                          {std::string(13, ' '), false},
                          {"  ", false},
                          {"", false},
                          {"78123456   ", false},
                      },
                      TD);
        EXPECT_FALSE(accepte(nais_C17, d.c6, "78123456    ", sansListe));
    }
}
