#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "checks/reference.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "support/magasin.h"
#include "vocabulaire/regle.h"
#include "vocabulaire/store.h"

using namespace quilvane;
using namespace essai;

namespace {

std::string blancs(std::size_t n) { return std::string(n, ' '); }
std::string lettres(std::size_t n) { return std::string(n, 'A'); }

/** The codes that belong to every list. */
const std::vector<std::string> SPECIAUX = {"NORMABEV", "NORM01  ", "NORM02  ", "PFOC01  "};

/** A check that switches at a reference date, and the days around it. */
struct bascule {
    sujet s;
    std::string veille, jour;
};

void memeVerdict(const sujet& s, const std::string& dependance, const std::vector<std::string>& champs,
                 bool accepte) {
    std::vector<casChamp> cas;
    for (const std::string& champ : champs)
        cas.push_back({dependance, champ, accepte});
    s.prouver(cas);
}

}  // namespace

// -------------------------------------------------- the date comparison

TEST(Reference, DateAuPlusTot) {
    struct ligne {
        std::string date, reference;
        int attendu;
    };
    const std::string P = "01071999";
    const std::vector<ligne> LIGNES = {
        {"01071999", P, 1},
        {"30061999", P, 0},
        {"02071999", P, 1},
        {"01081999", P, 1},
        {"31011999", P, 0},
        {"01012000", P, 1},
        {"31121998", P, 0},
        {"  071999", P, 0},  // day 00
        {"  081999", P, 1},
        {"    1999", P, 0},
        {"    2000", P, 1},
        {"15  1999", P, 0},
        {" 1071999", P, 1},
        {"        ", P, 0},
        {"99991999", P, 1},  // texts are compared, no calendar
        {"010719999", P, 1},
        {"300619999", P, 0},
        {"0107\351999", P, 1},
        {"01071999", "01  1999", 1},  // the reference's blanks stand
        {"    1999", "    1999", 1},
        // A date cut by the record's end stops at its first missing character.
        {"", P, 0},
        {"0107", P, 0},
        {"0107199", P, 0},
        {"01072", P, 1},
        {"01071", P, 0},
    };
    for (const ligne& l : LIGNES) {
        const std::string avant = l.date;
        EXPECT_EQ(fVTABP(l.date.c_str(), l.reference.c_str()), l.attendu) << l.date << " / " << l.reference;
        EXPECT_EQ(l.date, avant);
    }
}

// ----------------------------------------- blank before a reference date

TEST(Reference, BlancAvantLaDateEtEnListeDepuis) {
    const std::vector<bascule> BASCULES = {
        {SUJET(fVTABP5, TP), "30061999", "01071999"},
        {SUJET(fVTABP6, FR), "30061999", "01071999"},
        {SUJET(fVTABP8, TR), "31121998", "01011999"},
    };
    const std::vector<std::string> VIDES = {"", " ", "  ", blancs(12), blancs(98)};
    for (const bascule& b : BASCULES) {
        memeVerdict(b.s, b.veille, VIDES, true);
        memeVerdict(b.s, "        ", VIDES, true);
        memeVerdict(b.s, "", VIDES, true);
        memeVerdict(b.s, b.jour, VIDES, false);
        memeVerdict(b.s, "21112026", VIDES, false);
        for (const std::string& date : {b.veille, b.jour}) {
            memeVerdict(b.s, date, {b.s.sverif->begin()->valeur, (b.s.sverif->end() - 1)->valeur}, true);
            memeVerdict(b.s, date, SPECIAUX, true);
            memeVerdict(b.s, date,
                        {"ZZ", "99", "F", "FRX", "FR ", " FR", "fr", "**", "NORM01", "\xA0\xA0",
                         blancs(97) + "X", blancs(99), lettres(99)},
                        false);
        }
    }
}

TEST(Reference, ListeAvecUnBlancOuUnLongTexte) {
    const std::string long98 = lettres(98);
    const std::string long99 = lettres(99);
    const liste LISTE = {{"  ", long98.c_str(), long99.c_str()}};
    for (fVerif* verif : {fVTABP5, fVTABP6, fVTABP8}) {
        const sujet s{"fVTABP5a8", verif, &LISTE};
        memeVerdict(s, "01072000", {"  ", long98}, true);
        memeVerdict(s, "01072000", {"", " ", "   ", long99}, false);
        memeVerdict(s, "01011990", {"  ", "", long98}, true);
        memeVerdict(s, "01011990", {long99, blancs(99)}, false);
        memeVerdict({"fVTABP5a8", verif}, "01072000", {"  ", long98}, false);
    }
}

TEST(Reference, RempliDepuisLaDate) {
    for (const sujet& s : {SUJET(fVDIFFNULLP5), SUJET(fVDIFFNULLP6)}) {
        const std::vector<std::string> VIDES = {"", " ", blancs(12), blancs(98)};
        const std::vector<std::string> REMPLIS = {"X",        " X", "X ", "*", "\xA0", blancs(97) + "X",
                                                  lettres(98)};
        const std::vector<std::string> TROP_LONGS = {blancs(99), lettres(99), blancs(98) + "X"};
        for (const char* avant : {"30061999", "  071999", "        ", ""}) {
            memeVerdict(s, avant, VIDES, true);
            memeVerdict(s, avant, REMPLIS, true);
            memeVerdict(s, avant, TROP_LONGS, false);
        }
        for (const char* depuis : {"01071999", "02071999", "  081999", "    2000"}) {
            memeVerdict(s, depuis, VIDES, false);
            memeVerdict(s, depuis, REMPLIS, true);
            memeVerdict(s, depuis, TROP_LONGS, false);
        }
    }
}

// --------------------------------------------- lists with an exception

TEST(Reference, DeuxBlancsOuAsterisquesOuEnListe) {
    const sujet s = SUJET(fVDIFFNULLVTAB, TP);
    for (const char* dependance : {"", "01071999", "XX"}) {
        memeVerdict(s, dependance, {"  ", "**", "   ", "  QQ", "**QQ", "***", "AF", "FR", "XI"}, true);
        memeVerdict(s, dependance, SPECIAUX, true);
        memeVerdict(s, dependance, {"", " ", "*", " *", "* ", " F", "QQ", "F", "FR ", "FRX", "fr", "XS"},
                    false);
    }
    memeVerdict(SUJET(fVDIFFNULLVTAB), "", {"  ", "**", "NORMABEV"}, true);
    memeVerdict(SUJET(fVDIFFNULLVTAB), "", {"FR", ""}, false);
}

TEST(Reference, EnListeMaisPasFR) {
    const sujet s = SUJET(fVTABDIFFFR, TECH);
    memeVerdict(s, "", {"AT", "CH", "DE", "XI"}, true);
    memeVerdict(s, "", SPECIAUX, true);
    memeVerdict(s, "", {"FR", "US", "", "  ", "**", "CH ", "ch", "C"}, false);
    memeVerdict(s, "FR", {"CH"}, true);
    const liste LISTE = {{"FR", "FR ", "FRX"}};
    memeVerdict({"fVTABDIFFFR", fVTABDIFFFR, &LISTE}, "", {"FR ", "FRX"}, true);
    memeVerdict({"fVTABDIFFFR", fVTABDIFFFR, &LISTE}, "", {"FR"}, false);
}

TEST(Reference, DeuxBlancsExactementOuEnListe) {
    const sujet s = SUJET(fVDIFF2B, TP);
    memeVerdict(s, "", {"  ", "FR", "AF", "XI"}, true);
    memeVerdict(s, "", SPECIAUX, true);
    memeVerdict(s, "", {"", " ", "   ", "  X", "**", "QQ", "FR ", "fr"}, false);
    memeVerdict(s, "  ", {"QQ"}, false);
}

TEST(Reference, DeuxBlancsSiLaDependanceEstRemplie) {
    const sujet s = SUJET(fVEGALDNULLVTAB, TP);
    for (const std::string& rempli :
         {std::string("X"), std::string(" X"), std::string("\xA0"), lettres(98)}) {
        memeVerdict(s, rempli, {"  ", "   ", "  QQ", "FR", "NORM02  "}, true);
        memeVerdict(s, rempli, {"", " ", " X", "QQ", "**", "FR "}, false);
    }
    for (const std::string& vide : {std::string(), blancs(1), blancs(12), blancs(98)}) {
        memeVerdict(s, vide, {"FR", "NORM02  "}, true);
        memeVerdict(s, vide, {"  ", "  QQ", "", " ", "QQ", "**"}, false);
    }
    for (const std::string& tropLong : {lettres(99), blancs(99)})
        memeVerdict(s, tropLong, {"  ", "FR", "NORM02  ", "", "QQ"}, false);
    memeVerdict(s, "X", {"  " + lettres(97)}, true);  // only the dependency's length counts
}

TEST(Reference, PaysHorsUnion) {
    const sujet s = SUJET(fPaysNonCEE);
    std::vector<std::string> membres, autres;
    for (int i = 0; i < TCEE.nombre(); ++i)
        membres.push_back(TCEE[i].valeur);
    for (int i = 0; i < TP.nombre(); ++i)
        if (std::find(membres.begin(), membres.end(), TP[i].valeur) == membres.end())
            autres.push_back(TP[i].valeur);
    ASSERT_EQ(autres.size(), static_cast<std::size_t>(TCPNOCEE.nombre()));
    memeVerdict(s, "", membres, false);
    memeVerdict(s, "", autres, true);
    memeVerdict(s, "", {"US", "CH", "GB"}, true);
    memeVerdict(s, "", {"FR", "UK", "EL", "XI", "", "  ", "XX", "XS", "US ", "us"}, false);
    memeVerdict(s, "", SPECIAUX, false);  // they belong to the Union's list too
}

// ---------------------------------------------- one of two fields filled

TEST(Reference, UnDesDeuxChampsRempli) {
    const std::string B30 = blancs(30);
    const std::string NON_BLANC = "NB" + blancs(28);
    for (const sujet& s : {SUJET(fVDIFFVD, NB)})
        s.prouver({
            {B30, B30, false},
            {B30, NON_BLANC, true},
            {NON_BLANC, B30, true},
            {NON_BLANC, NON_BLANC, true},
            {B30, blancs(29) + "X", true},
            {blancs(29) + "X", B30, true},
            // Exactly thirty blanks, no more, no fewer.
            {B30, blancs(29), true},
            {B30, blancs(31), true},
            {B30, "", true},
            {blancs(29), B30, true},
            {blancs(31), B30, true},
            {"", B30, true},
            {"", "", true},
        });
    // Two blank fields pass when that is what the list's first entry says.
    SUJET(fVDIFFVD, trenteBlancs).prouver({{B30, B30, true}, {B30, "X", true}});
    const liste SECONDE = {{"NB", B30.c_str()}};
    sujet{"fVDIFFVD", fVDIFFVD, &SECONDE}.prouver({{B30, B30, false}});
}

TEST(Reference, UnDesDeuxChampsRempliVuDeLaDependance) {
    const std::string B30 = blancs(30);
    SUJET(fCDIFF, trenteBlancs)
        .prouver({
            {B30, B30, false},
            {"", B30, false},
            {" ", B30, false},
            {blancs(98), B30, false},
            {B30, blancs(29) + "X", true},
            {B30, blancs(29), true},
            {B30, blancs(31), true},
            {B30, "", true},
            {B30, "NORMABEV", true},  // no entry of the list
            {B30, "PFOC01  ", true},
            {blancs(29) + "X", B30, true},
            {"X", B30, true},
            {"\xA0", B30, true},
            {lettres(98), B30, true},
            {lettres(99), B30, false},
            {lettres(99), "X", false},
            {blancs(99), "X", false},
        });
    const liste DEUX = {{"A", "B"}};
    sujet{"fCDIFF", fCDIFF, &DEUX}.prouver(
        {{"", "A", false}, {"", "B", false}, {"", "NORM01  ", true}, {"", "C", true}, {"X", "A", true}});
    const liste SPECIAL = {{"A", "B", "NORM01  "}};
    sujet{"fCDIFF", fCDIFF, &SPECIAL}.prouver({{"", "NORM01  ", false}});
    SUJET(fCDIFF).prouver({{"", "A", true}, {"X", "A", true}, {lettres(99), "A", false}});
}

// ------------------------------------------- tag models, from P17 on

TEST(Reference, ModeleBovin) {
    struct ligne {
        std::string champ;
        bool avant, depuis;
    };
    const std::vector<ligne> LIGNES = {
        {blancs(8), true, false},    {"123456  ", true, true},
        {"ABCDEF  ", true, true},    {"******  ", true, true},
        {"\35123456  ", true, true}, {" 23456  ", false, false},
        {"1 3456  ", false, false},  {"12 456  ", false, false},
        {"123 56  ", false, false},  {"1234 6  ", false, false},
        {"12345   ", false, false},  {"12345678", false, false},
        {"123456 8", false, false},  {"1234567 ", false, false},
        {"       8", false, false},  {"1       ", false, false},
        {"123456   ", false, false}, {"123456  X", false, false},
        {blancs(9), false, false},   {blancs(8) + "X", false, false},
        {"123456 ", false, false},   {"123456", false, false},
        {"12345", false, false},     {blancs(7), false, false},
        {blancs(2), false, false},   {"", false, false},
    };
    const sujet s = SUJET(fConform_BV_model1);
    for (const ligne& l : LIGNES) {
        for (const char* avant : {"31122010", "  012011", "    2011", "        ", ""})
            s.prouver({{avant, l.champ, l.avant}});
        for (const char* depuis : {"01012011", "02012011", "  022011", "    2012"})
            s.prouver({{depuis, l.champ, l.depuis}});
    }
}

TEST(Reference, TemoinDeBoucle) {
    const sujet s = SUJET(fConform_temoin_bouc1);
    for (const char* avant : {"31122010", "  012011", "        ", ""})
        memeVerdict(s, avant, {" ", "", "1", "  ", "*", " 1"}, true);
    for (const char* depuis : {"01012011", "  022011", "    2012"}) {
        memeVerdict(s, depuis, {"1", "0", "*", "1 ", "\xA0", ""}, true);
        memeVerdict(s, depuis, {" ", "  ", " 1"}, false);
    }
}

// --------------------------------------- blank numbers before a date

TEST(Reference, NumeroBlancAvantLaDateOuForme) {
    struct ligne {
        sujet s;
        char* pays;
        std::string bon, mauvais;
    };
    const std::vector<ligne> LIGNES = {
        {SUJET(fCONFORM8FRP6, TD), valCorpsVSE[C16].valeur, "35123456    ", "3512345     "},
        {SUJET(fCONFORM10FRP5, TD), valCorpsVSE[C10].valeur, "3512345678  ", "351234567   "},
    };
    for (const ligne& l : LIGNES) {
        const std::string B12 = blancs(12);
        for (const char* pays : {"FR", "BE", "", "FR "}) {
            const bool francais = std::string(pays) == "FR";
            const std::vector<texteLu> lus = {{l.pays, pays}};
            l.s.prouver(
                {
                    {"30061999", B12, true},
                    {"        ", B12, true},
                    {"", B12, true},
                    {"30061999", "NORM01  ", true},  // a special code belongs to every list
                    {"01071999", B12, !francais},
                    {"01071999", "NORM01  ", !francais},
                    {"30061999", l.bon, true},
                    {"01071999", l.bon, true},
                    {"30061999", l.mauvais, !francais},
                    {"01071999", l.mauvais, !francais},
                    {"30061999", "99" + l.bon.substr(2), !francais},
                    {"30061999", blancs(11), !francais},
                    {"30061999", blancs(13), !francais},
                    {"30061999", "", !francais},
                    {"30061999", "************", !francais},
                },
                lus);
        }
        // The list is the departments' one that the row names.
        sujet{l.s.nom, l.s.verif, &FR}.prouver({{"01071999", l.bon, false}}, {{l.pays, "FR"}});
    }
}

// ------------------------------------------------ tables and columns

TEST(Reference, TypeNumeriqueOuDeListe) {
    const std::string B14 = blancs(14);
    const std::string E14(14, '*');
    memeVerdict(SUJET(fVTYPE, NUM), "", {B14, E14, "0", "9", "12345678901234", "123", std::string(100, '7')},
                true);
    memeVerdict(SUJET(fVTYPE, NUM), "",
                {"", "NUM", blancs(13), blancs(15), "*", "12A", "A12", "1 2", "123 ", " 123", "-12", "1.2",
                 "\xB2", "12\xB2", "NORMABEV", "NORM01  "},
                false);
    const liste ALPHA = {{"ALP", "  ", "**", "ZZ"}};
    memeVerdict({"fVTYPE", fVTYPE, &ALPHA}, "", {"  ", "**"}, true);
    memeVerdict({"fVTYPE", fVTYPE, &ALPHA}, "", {"ALP", "ZZ", "12", "", "NORMABEV"}, false);
    const liste PRESQUE = {{"NUM ", "A", "B"}};
    memeVerdict({"fVTYPE", fVTYPE, &PRESQUE}, "", {"A", "B"}, true);
    memeVerdict({"fVTYPE", fVTYPE, &PRESQUE}, "", {"12", "NUM "}, false);
}

TEST(Reference, ColonnesDeLaDependance) {
    const std::string D = "123456ABCD12";
    const sujet s = SUJET(fVEGDS, D7F10);
    s.prouver({
        {D, "ABCD", true},
        {D, "ABCDE", true},  // its first four characters
        {D, "ABCD" + lettres(94), true},
        {D, "ABCD" + lettres(95), false},  // 99 characters
        {D, "XBCD", false},
        {D, "AXCD", false},
        {D, "ABXD", false},
        {D, "ABCX", false},
        {D, "ABC", false},
        {D, "", false},
        {D, "123456ABCD", false},
        {D, "BCD1", false},
        {D, "abcd", false},
        {"123456ABC", "ABCD", false},
        {"123456", "ABCD", false},
        {"12345", "ABCD", false},
        {"", "ABCD", false},
        {"123456    ", "    ", true},
        {"123456\xE9\xE8\xE7\xE6", "\xE9\xE8\xE7\xE6", true},
        {"123456\xE9\xE8\xE7\xE6", "\xE9\xE8\xE7\xE7", false},
        {lettres(200), "AAAA", true},
    });
    struct ligne {
        const char *a, *b;
        std::string champ;
        bool attendu;
    };
    for (const ligne& l : {
             ligne{"1", "1", "1", true},
             {"1", "1", "1X", true},
             {"1", "1", "2", false},
             {"12", "12", "2", true},
             {"12", "12", "1", false},
             {"1", "12", D, true},
             {"1", "12", D + "X", true},
             {"1", "12", "123456ABCD13", false},
             {"7", "6", "X", true},  // no column at all
             {" 7", "10X", "ABCDZ", true},
             {" 7", "10X", "ABCZ", false},
         }) {
        const liste COLONNES = {{l.a, l.b}, 2};
        sujet{l.a, fVEGDS, &COLONNES}.prouver({{D, l.champ, l.attendu}});
    }
}

TEST(Reference, ColonnesAutresQueZero) {
    struct ligne {
        std::string champ;
        int debut, fin;
        int attendu;
    };
    const std::vector<ligne> LIGNES = {
        {"1234560000  ", 7, 10, 0},
        {"1234560001  ", 7, 10, 1},
        {"1234561000  ", 7, 10, 1},
        {"1234560 00  ", 7, 10, 1},
        {"123456000O  ", 7, 10, 1},
        {"12345600000 ", 7, 10, 0},  // what follows does not count
        {"1234560000", 7, 10, 0},
        {"123456000", 7, 10, 1},  // cut before the fourth
        {"123456", 7, 10, 1},
        {"12345", 7, 10, 1},
        {"", 7, 10, 1},
        {"0000", 1, 4, 0},
        {"0001", 1, 4, 1},
        {"00001", 2, 5, 1},
        {"10000", 2, 5, 0},
        // Other widths.
        {"1234560123", 7, 7, 0},
        {"1234561", 7, 7, 1},
        {"1234560012", 7, 8, 0},
        {"1234560100", 7, 8, 1},
        {"1234560001", 7, 9, 0},
        {"1234560010", 7, 9, 1},
        // Five columns, and more are five: equal only where the text ends.
        {"1234560000", 7, 11, 0},
        {"12345600000", 7, 11, 1},
        {"1234560000 ", 7, 11, 1},
        {"1234560001", 7, 11, 1},
        {"123456000", 7, 11, 1},
        {"1234560000", 7, 12, 0},
        {"1234560000", 7, 200, 0},
        {"123456000000", 7, 12, 1},
        // Empty ranges.
        {"1234561111", 7, 6, 0},
        {"1234561111", 10, 7, 0},
        // No such column.
        {"1234561111", 0, 3, 0},
        // Length.
        {lettres(98), 7, 10, 1},
        {lettres(99), 7, 10, 0},
        {lettres(94) + "0000", 95, 98, 0},
        {lettres(94) + "0001", 95, 98, 1},
    };
    for (const ligne& l : LIGNES)
        EXPECT_EQ(fVerifDiffZero(l.champ.c_str(), l.debut, l.fin) != 0, l.attendu != 0)
            << "'" << l.champ << "' " << l.debut << "-" << l.fin;
}

TEST(Reference, ListesTropCourtesOuHorsDuRecord) {
    // A list with fewer entries than a check reads matches nothing.
    EXPECT_FALSE(accepte(fVTYPE, "", "              ", liste{{"NUM", "              "}}));
    EXPECT_FALSE(accepte(fVEGDS, "abcdefghij", "ghij", liste{{"7"}}));
    EXPECT_FALSE(accepte(fVDIFFVD, trenteBlancs[0].valeur, trenteBlancs[0].valeur, sansListe));
    // Columns that no record has.
    for (const liste& colonnes : {liste{{"0", "3"}, 2}, liste{{"257", "258"}, 2}, liste{{"1", "257"}, 2},
                                  liste{{"99999999999999999999", "1"}, 2}})
        EXPECT_FALSE(accepte(fVEGDS, "abc", "abc", colonnes)) << colonnes[0].valeur;
}
