#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "calendar/horloge.h"
#include "checks/dates.h"
#include "checks/sans_ligne.h"
#include "checks/valautorise.h"
#include "support/magasin.h"
#include "vocabulaire/store.h"

namespace {

/** The present as the checks of this program see it; 0: the true present. */
std::time_t present = 0;

}  // namespace

namespace quilvane {

// These stand in for the product's clock.
std::time_t maintenant() { return present != 0 ? present : std::time(nullptr); }

std::tm heureLocale() {
    const std::time_t instant = maintenant();
    return *std::localtime(&instant);
}

}  // namespace quilvane

using namespace quilvane;
using namespace essai;

namespace {

constexpr std::time_t NOVEMBRE_2026 = 1795262400;  // 2026-11-21 12:00:00 UTC
constexpr std::time_t JUILLET_2026 = 1782907200;   // 2026-07-01 12:00:00 UTC
constexpr std::time_t JANVIER_2040 = 2208988800;   // 2040-01-01 00:00:00 UTC

/** A present and a time zone for the length of a test. */
class horlogeFigee {
public:
    horlogeFigee(std::time_t instant, const char* fuseau) {
        const char* const avant = std::getenv("TZ");
        fuseauAvant_ = avant != nullptr ? std::optional<std::string>(avant) : std::nullopt;
        setenv("TZ", fuseau, 1);
        tzset();
        present = instant;
    }
    ~horlogeFigee() {
        present = 0;
        if (fuseauAvant_)
            setenv("TZ", fuseauAvant_->c_str(), 1);
        else
            unsetenv("TZ");
        tzset();
    }
    horlogeFigee(const horlogeFigee&) = delete;
    horlogeFigee& operator=(const horlogeFigee&) = delete;

private:
    std::optional<std::string> fuseauAvant_;
};

std::string blancs(std::size_t n) { return std::string(n, ' '); }

/** C5, the movement cause of ENTR and SORT. */
std::vector<texteLu> cause(const std::string& c5) { return {{valCorpsVSE[C5].valeur, c5}}; }

std::vector<texteLu> entreeLe(const std::string& date) { return {{cp.DATE_ENTREE_ABAT, date}}; }

}  // namespace

// --------------------------------------------------------- complete dates

TEST(Dates, CompleteOuBlanche) {
    struct ligne {
        std::string champ;
        bool DATEC, DATECxad, DatRecCorr, DATEC_INC, DATEC_xad, DatRecCorr_O;
    };
    // clang-format off
    const std::vector<ligne> LIGNES = {
        //                 C      xad    Corr   INC    _xad   Corr_O
        {"15032005",       true,  true,  true,  true,  true,  true},
        {"29022000",       true,  true,  true,  true,  true,  true},
        {"29022004",       true,  true,  true,  true,  true,  true},
        {"31121999",       true,  true,  true,  true,  true,  true},
        {"01011900",       true,  true,  true,  true,  true,  true},
        {"31129999",       true,  true,  true,  true,  true,  true},
        {"29021900",       false, false, false, false, false, false},
        {"29022003",       false, false, false, false, false, false},
        {"30022004",       false, false, false, false, false, false},
        {"31041999",       false, false, false, false, false, false},
        {"32011999",       false, false, false, false, false, false},
        {"31121899",       false, false, false, false, false, false},
        {"01011899",       false, false, false, false, false, false},
        {"01010000",       false, false, false, false, false, false},
        {"00011999",       false, false, false, false, false, false},
        {"01001999",       false, false, false, false, false, false},
        {"01131999",       false, false, false, false, false, false},
        {"1 011999",       false, false, false, false, false, false},
        {" 1011999",       false, false, false, false, false, false},
        {"  032005",       false, false, false, false, false, false},
        {"    2005",       false, false, false, false, false, false},
        {"1503    ",       false, false, false, false, false, false},
        {"1503200X",       false, false, false, false, false, false},
        {"150320\2625", false, false, false, false, false, false},
        {"+1032005",       false, false, false, false, false, false},
        {"********",       false, false, false, false, false, false},
        {"",               false, false, false, false, false, false},
        {"1503200",        false, false, false, false, false, false},
        {blancs(7),        false, false, false, false, false, false},
        {blancs(8),        false, true,  true,  true,  true,  false},
        {blancs(9),        false, false, false, true,  false, false},
        {blancs(8) + "X",  false, false, false, true,  false, false},
        {blancs(7) + "X",  false, false, false, false, false, false},
        {"X" + blancs(7),  false, false, false, false, false, false},
        {"150320059",      true,  true,  true,  true,  false, true},
    };
    // clang-format on
    for (const ligne& l : LIGNES) {
        SUJET(fDATEC).prouver({{"", l.champ, l.DATEC}});
        SUJET(fDATECxad).prouver({{"", l.champ, l.DATECxad}});
        SUJET(fDatRecCorr).prouver({{"", l.champ, l.DatRecCorr}});
        SUJET(fDATEC_INC).prouver({{"", l.champ, l.DATEC_INC}});
        SUJET(fDATEC_xad).prouver({{"", l.champ, l.DATEC_xad}});
        SUJET(fDatRecCorr_O).prouver({{"", l.champ, l.DatRecCorr_O}});
    }
}

TEST(Dates, CompleteSansEgardALaDependance) {
    for (const char* dependance : {"", "01011900", "31129999", "XXXXXXXX"})
        for (const sujet& s : {SUJET(fDATEC), SUJET(fDATECxad), SUJET(fDatRecCorr), SUJET(fDATEC_INC),
                               SUJET(fDATEC_xad), SUJET(fDatRecCorr_O)})
            s.prouver({{dependance, "15032005", true}, {dependance, "31042005", false}});
}

TEST(Dates, BlancheAvantP18) {
    SUJET(fDatRecCorr_O_P18)
        .prouver({
            {"30042007", blancs(8), true},
            {"01052007", blancs(8), false},
            {"02052007", blancs(8), false},
            {"  052007", blancs(8), true},  // day 00 of May
            {"  062007", blancs(8), false},
            {"    2008", blancs(8), false},
            {blancs(8), blancs(8), true},
            {"", blancs(8), true},
            {"30042007", "15032005", true},
            {"01052007", "15032005", true},
            {"30042007", "31042005", false},
            {"01052007", "31042005", false},
            {"30042007", "  032005", false},
            {"30042007", blancs(7), false},
            {"30042007", blancs(9), false},
            {"30042007", "", false},
        });
}

// ------------------------------------------------- partly unknown dates

namespace {

/** Dates read the same way before a reference date and without any: verdict
 *  and rewritten field. All are before July 1999, or have no such date. */
const std::vector<casChamp> INCOMPLETES = {
    {"", "15031998", true},
    {"", "  031998", true, "00031998"},
    {"", "    1998", true, "00001998"},
    {"", "  021900", true, "00021900"},
    {"", "    1900", true, "00001900"},
    {"", "31121899", false},
    {"", "  021899", false, "00021899"},
    {"", "    1899", false, "00001899"},
    {"", "31041998", false},
    {"", "29021900", false},
    {"", "15131998", false},
    {"", "  131998", false, "00131998"},
    // Unknown parts are blanks, never zeros.
    {"", "00031998", false, " 0031998"},
    {"", "15001998", false, " 5001998"},
    {"", "  001998", false, " 0001998"},
    {"", "00001998", false, " 0001998"},
    {"", "00  1998", false, " 0  1998"},
    // Half-blank parts.
    {"", " 5031998", false},
    {"", "5 031998", false},
    {"", " 0031998", false},
    {"", "   31998", false, "00 31998"},
    {"", "  3 1998", false, "003 1998"},
    {"", "15  1998", false},
    {"", "15 31998", false},
    {"", " 5001998", false},
    {"", "1503199 ", false},
    {"", "XX031998", false},
    {"", "  X31998", false, "00X31998"},
    {"", "  03198\271", false, "0003198\271"},
    {"", blancs(8), false, "0000    "},
    // Cut by the record's end.
    {"", "", false},
    {"", " ", false},
    {"", "  ", false, "00"},
    {"", "   ", false, "00 "},
    {"", "    ", false, "0000"},
    {"", "0", false},
    {"", "00", false, " 0"},
    {"", "1500", false, " 500"},
    {"", "150", false},
    {"", "  03", false, "0003"},
    {"", "1503199", false},
    {"", "  03199", false, "0003199"},
};

}  // namespace

TEST(Dates, IncompleteEtRecrite) {
    SUJET(fDATEI).prouver(INCOMPLETES);
    SUJET(fDATEI).prouver({
        {"", "15082026", true},
        {"", "  082026", true, "00082026"},
        {"", "    2026", true, "00002026"},
        {"", "00082026", false, " 0082026"},
        {"01011900", "29022000", true},
    });
}

TEST(Dates, JourEtMoisDepuisP6) {
    SUJET(fDATEP6).prouver(INCOMPLETES);
    SUJET(fDATEP6).prouver({
        {"", "30061999", true},
        {"", "01071999", true},
        {"", "15081999", true},
        {"", "  061999", true, "00061999"},
        {"", "  071999", true, "00071999"},  // day 00 of July
        {"", "    1999", true, "00001999"},
        // From here on nothing may be blank, and nothing is rewritten.
        {"", "  081999", false},
        {"", "    2000", false},
        {"", "    2001", false},
        {"", "15  2001", false},
        {"", "  002001", false},
        {"", "00  2001", false},
        // The day is there, if badly written.
        {"", "00081999", false, " 0081999"},
        {"", "15002001", false, " 5002001"},
        {"", " 5081999", false},
        {"", "5 081999", false},
        {"", "31091999", false},
        {"", "15 82001", false},
        {"", "  01\351999", false},
    });
}

TEST(Dates, CompleteDepuisP6EtP7) {
    // Both dates are 1 July 1999, so a date is on or after both or before
    // both: a compulsory month alone (from the first on, before the second)
    // and a compulsory day alone (from the second on, before the first) cannot
    // be met with them.
    ASSERT_STREQ(P6[0].valeur, P7[0].valeur);
    SUJET(fDATEP6P7).prouver(INCOMPLETES);
    SUJET(fDATEP6P7).prouver({
        {"", "30061999", true},
        {"", "01071999", true},
        {"", "29022000", true},
        {"", "  061999", true, "00061999"},
        {"", "  071999", true, "00071999"},  // day 00 of July
        {"", "    1999", true, "00001999"},
        // A complete date: nothing is rewritten.
        {"", "  081999", false},
        {"", "    2000", false},
        {"", "15  2000", false},
        {"", "00081999", false},
        {"", "15002000", false},
        {"", "30022000", false},
        {"", " 5081999", false},
    });
}

// ------------------------------------------------------- ordered dates

TEST(Dates, PasApresLaDependance) {
    SUJET(fDatRecCohe)
        .prouver({
            {"15032005", "15032005", true},
            {"15032005", "14032005", true},
            {"15032005", "16032005", false},
            {"15032005", "14042005", false},
            {"15032005", "14022005", true},
            {"15032005", "01012006", false},
            {"15032005", "31122004", true},
            {"15032005", "  032005", true},
            {"15032005", "  042005", false},
            {"15032005", "    2005", true},
            {"15032005", "    2006", false},
            {"15032005", blancs(8), true},
            {"", blancs(8), true},
            {"", "15032005", false},
            {"  032005", "01032005", false},  // the dependency's blanks stand
            {"15032005", "150320\2625", false},
        });
}

TEST(Dates, PasAvantLaDependance) {
    const std::vector<casChamp> CAS = {
        {"15032005", "15032005", true},  {"15032005", "14032005", false}, {"15032005", "16032005", true},
        {"15032005", "16022005", false}, {"15032005", "14042005", true},  {"15032005", "31122004", false},
        {"15032005", "01012006", true},  {"15032005", "  032005", false}, {"15032005", "  042005", true},
        {"15032005", "    2005", false}, {"15032005", "    2006", true},  {"15032005", blancs(8), true},
        {"15032005", blancs(7), false},  {"15032005", blancs(9), false},  {"15032005", "", false},
        {"", "15032005", true},          {"  032005", "01032005", true},
    };
    SUJET(fDatRecPost).prouver(CAS);
    for (const char* c5 : {"", " ", "K", "j", "J ", "JJ"})
        SUJET(fDatRecPost_tr).prouver(CAS, cause(c5));
}

TEST(Dates, CauseJDispenseDeLOrdre) {
    std::vector<casChamp> cas;
    for (const char* champ : {"14032005", "15032005", "01011900", "", "XXXXXXXX", "        "})
        cas.push_back({"15032005", champ, true});
    SUJET(fDatRecPost_tr).prouver(cas, cause("J"));
}

TEST(Dates, AnneeApresCelleDeLaDependance) {
    SUJET(fDatRec_OC_Post)
        .prouver({
            {"2004", "01012005", true},    {"2004", "31122004", false},
            {"2004", "31122003", false},   {"2004", "    2005", true},
            {"2004", blancs(8), true},     {"2004", blancs(7), false},
            {"2004", blancs(9), false},    {"2004", "", false},
            {"2004", "0101", false},       {"2004", "0101200", false},
            {"2004", "01013", true},       {"2004", "010120049", false},  // four characters of the field
            {"2004", "0101\351999", true}, {"200", "01012004", true},     // all of the dependency
            {"20045", "01012004", false},  {"20045", "01012005", true},
            {"    ", "01012005", true},    {"", "01012005", true},
            {"", "0101", false},
        });
}

// ---------------------------------------------------- movement causes

TEST(Dates, CausesEtLeursLimites) {
    struct ligne {
        std::string cause;
        const char* dernierJour;  // null: always valid
        const char* lendemain;
    };
    const char* const D = "31122004";
    const char* const D1 = "01012005";
    const char* const N = "01011999";
    const char* const N1 = "02011999";
    const std::vector<ligne> ENTREES = {
        {"A", nullptr, nullptr}, {"J", nullptr, nullptr}, {"L", N, N1}, {"N", nullptr, nullptr},
        {"P", nullptr, nullptr}, {"F", nullptr, nullptr}, {"G", D, D1}};
    const std::vector<ligne> SORTIES = {{"B", nullptr, nullptr},
                                        {"C", nullptr, nullptr},
                                        {"D", N, N1},
                                        {"E", nullptr, nullptr},
                                        {"H", nullptr, nullptr},
                                        {"J", nullptr, nullptr},
                                        {"L", N, N1},
                                        {"M", nullptr, nullptr},
                                        {"P", N, N1},
                                        {"U", N, N1},
                                        {"S", nullptr, nullptr},
                                        {"T", D, D1}};
    const auto essayer = [](const sujet& s, const std::vector<ligne>& causes) {
        for (char c = 'A'; c <= 'Z'; ++c) {
            const ligne* trouvee = nullptr;
            for (const ligne& l : causes)
                if (l.cause[0] == c) trouvee = &l;
            const std::string champ(1, c);
            if (trouvee == nullptr)
                s.prouver({{"01011990", champ, false}, {"01012020", champ, false}});
            else if (trouvee->dernierJour == nullptr)
                s.prouver({{"01011900", champ, true}, {"31129999", champ, true}, {"", champ, true}});
            else
                s.prouver({{trouvee->dernierJour, champ, true}, {trouvee->lendemain, champ, false}});
        }
    };
    essayer(SUJET(fVerifValAutDate, TCME), ENTREES);
    essayer(SUJET(fVerifValAutDate, TCMS), SORTIES);
}

TEST(Dates, CauseInconnueOuDateIncomplete) {
    SUJET(fVerifValAutDate, TCMS)
        .prouver({
            {"01011990", "X", false},        {"01011990", "b", false},
            {"01011990", "", false},         {"01011990", " ", false},
            {"01011990", "B ", false},       {"01011990", "BC", false},
            {"01011990", "TOUJOURS", false},                                   // limits are no causes
            {"01011990", "31122004", false}, {"01011990", "NORMABEV", false},  // no list membership
            {"01011990", "NORM01  ", false}, {"01011990", "PFOC01  ", false},
            {"  011999", "L", true},         {"  021999", "L", false},
            {"    1999", "L", true},         {"    2000", "L", false},
            {blancs(8), "L", true},          {"", "L", true},
            {"3112200", "T", true},          {"01 12005", "T", false},
            {"ZZZZZZZZ", "B", true},  // no limit: the date is not looked at
            {"ZZZZZZZZ", "T", false},
        });
}

TEST(Dates, ListeDeCausesCourteOuDAutreForme) {
    const liste UNE = {{"A", "31122004"}, 2};
    const liste TROIS = {{"A", "31122004", "B", "TOUJOURS", "A", "TOUJOURS"}, 2};
    SUJET(fVerifValAutDate).prouver({{"31122004", "A", false}});
    sujet{"fVerifValAutDate", fVerifValAutDate, &UNE}.prouver(
        {{"31122004", "A", true}, {"01012005", "A", false}, {"01012005", "B", false}});
    // The first row of a cause decides.
    sujet{"fVerifValAutDate", fVerifValAutDate, &TROIS}.prouver(
        {{"31122004", "A", true}, {"01012005", "A", false}, {"01012005", "B", true}});
    const liste SIMPLE = {{"A", "TOUJOURS"}};
    sujet{"fVerifValAutDate", fVerifValAutDate, &SIMPLE}.prouver({{"31122004", "A", false}});
}

// ---------------------------------------------------------------- times

TEST(Dates, Heures) {
    SUJET(fHEUREC).prouver({
        {"", "000000", true},  {"", "235959", true},  {"", "102030", true},
        {"", "1020309", true},  // the first six
        {"", "102030X", true}, {"", "240000", false}, {"", "990000", false},
        {"", "006000", false}, {"", "126000", false}, {"", "005900", true},
        {"", "000060", false}, {"", "000059", true},  {"", "12345", false},
        {"", "", false},       {"", "      ", false}, {"", " 12030", false},
        {"", "X02030", false}, {"", "1X2030", false}, {"", "10X030", false},
        {"", "102X30", false}, {"", "1020X0", false}, {"", "10203X", false},
        {"", "10203 ", false}, {"", "+12030", false}, {"", "1\2623456", false},
    });
}

TEST(Dates, InstantStrictementPasse) {
    const horlogeFigee figee(NOVEMBRE_2026, "UTC0");
    SUJET(fDATEHEUREC)
        .prouver({
            {"21112026", "115959", true},
            {"21112026", "120000", false},  // now
            {"21112026", "120001", false},
            {"21112026", "000000", true},
            {"21112026", "235959", false},
            {"20112026", "235959", true},
            {"22112026", "000000", false},
            {"21102026", "235959", true},
            {"01122026", "000000", false},
            {"31122025", "235959", true},
            {"01012027", "000000", false},
            {"21112026X", "115959X", true},  // six and eight characters are read
            {"211120269", "1159599", true},
        });
}

TEST(Dates, InstantALaSecondePres) {
    const horlogeFigee figee(NOVEMBRE_2026 + 23 * 60 + 37, "UTC0");
    SUJET(fDATEHEUREC)
        .prouver({
            {"21112026", "122336", true},
            {"21112026", "122337", false},
            {"21112026", "122338", false},
            {"21112026", "122259", true},
            {"21112026", "122400", false},
            {"21112026", "1223369", true},
        });
}

TEST(Dates, InstantMalEcrit) {
    const horlogeFigee figee(NOVEMBRE_2026, "UTC0");
    std::vector<casChamp> cas = {
        {"15032005", "235959", true},  {"15032005", "240000", false}, {"15032005", "235960", false},
        {"15032005", "236059", false}, {"15032005", "12345", false},  {"15032005", "", false},
        {"1503200", "120000", false},  {"", "120000", false},         {"        ", "120000", false},
        {"15032005", "      ", false}, {"00032005", "120000", false}, {"15002005", "120000", false},
        {"01032005", "120000", true},  {"15012005", "120000", true},  {"15122005", "120000", true},
        {"15132005", "120000", false}, {"15992005", "120000", false}, {"29022004", "120000", true},
        {"29022005", "120000", false}, {"31042005", "120000", false}, {"31122005", "120000", true},
        {"32122005", "120000", false}, {"99032005", "120000", false},
    };
    for (std::size_t i = 0; i < 8; ++i) {
        std::string date = "15032005";
        for (const char c : {' ', 'X', '\xB2'}) {
            date[i] = c;
            cas.push_back({date, "120000", false});
        }
    }
    for (std::size_t i = 0; i < 6; ++i) {
        std::string heure = "102030";
        for (const char c : {' ', 'X', '-'}) {
            heure[i] = c;
            cas.push_back({"15032005", heure, false});
        }
    }
    SUJET(fDATEHEUREC).prouver(cas);
}

TEST(Dates, InstantDe1970A2038) {
    const horlogeFigee figee(JANVIER_2040, "UTC0");
    SUJET(fDATEHEUREC)
        .prouver({
            {"01011970", "000000", true},
            {"31121969", "235958", false},
            {"15031969", "120000", false},
            {"15030000", "120000", false},
            {"19012038", "031407", true},
            {"19012038", "031408", true},  // past 32 bits
            {"31122038", "235959", true},
            {"01012039", "000000", false},
            {"31122039", "235959", false},
        });
}

TEST(Dates, InstantAvant1970EnTempsUniversel) {
    // East of Greenwich 1970 begins before the count of seconds does.
    const horlogeFigee figee(NOVEMBRE_2026, "EST-1");
    SUJET(fDATEHEUREC)
        .prouver({
            {"01011970", "000000", true},
            {"01011970", "005958", true},
            {"01011970", "005959", true},  // the second before the count begins
            {"01011970", "010000", true},
            {"31121969", "235959", false},
        });
}

TEST(Dates, InstantLuEnHeureLocale) {
    const char* const PARIS = "CET-1CEST,M3.5.0,M10.5.0/3";
    {
        const horlogeFigee hiver(NOVEMBRE_2026, PARIS);  // 13:00 local
        SUJET(fDATEHEUREC).prouver({{"21112026", "125959", true}, {"21112026", "130000", false}});
    }
    {
        const horlogeFigee ete(JUILLET_2026, PARIS);  // 14:00 local
        SUJET(fDATEHEUREC).prouver({{"01072026", "135959", true}, {"01072026", "140000", false}});
    }
}

TEST(Dates, InstantAuChangementDHeure) {
    const horlogeFigee figee(NOVEMBRE_2026, "CET-1CEST,M3.5.0,M10.5.0/3");
    // An hour that was skipped, or came twice, leaves the day as it is.
    SUJET(fDATEHEUREC)
        .prouver({
            {"31032024", "015959", true},
            {"31032024", "023000", true},
            {"31032024", "030000", true},
            {"27102024", "023000", true},
        });
}

TEST(Dates, InstantDUnJourSaute) {
    // Zones that go 24 hours ahead at midnight: one has no 31 March 2024, the
    // other no 10 March.
    {
        const horlogeFigee finDeMois(NOVEMBRE_2026, "AAA0BBB-24,M3.5.0/0,M10.5.0/0");
        SUJET(fDATEHEUREC)
            .prouver({
                {"30032024", "120000", true},
                {"31032024", "120000", false},
                {"01042024", "120000", true},
            });
    }
    {
        const horlogeFigee milieuDeMois(NOVEMBRE_2026, "AAA0BBB-24,M3.2.0/0,M10.5.0/0");
        SUJET(fDATEHEUREC)
            .prouver({
                {"09032024", "120000", true},
                {"10032024", "120000", false},
                {"11032024", "120000", true},
            });
    }
}

// ------------------------------------------------------- filled together

TEST(Dates, RemplisEnsemble) {
    const std::vector<std::string> VIDES = {"", " ", blancs(2), blancs(12), blancs(29), blancs(30)};
    const std::vector<std::string> REMPLIS = {"X",
                                              "ABC",
                                              " X",
                                              "X ",
                                              blancs(29) + "X",
                                              "0",
                                              blancs(31),
                                              "*",
                                              blancs(98),
                                              blancs(30) + "X",
                                              "\xA0\xA0",
                                              blancs(11) + "\t"};
    std::vector<casChamp> cas;
    for (const std::string& vide : VIDES) {
        for (const std::string& autreVide : VIDES)
            cas.push_back({vide, autreVide, true});
        for (const std::string& rempli : REMPLIS) {
            cas.push_back({vide, rempli, false});
            cas.push_back({rempli, vide, false});
        }
    }
    for (const std::string& rempli : REMPLIS)
        cas.push_back({rempli, "X", true});
    SUJET(fSimult).prouver(cas);
}

// ---------------------------------------------- dates of slaughter notices

TEST(Dates, ToujoursAcceptees) {
    for (const sujet& s : {SUJET(fVerifDateInput), SUJET(fVerifDateInputCvse)})
        s.prouver(
            {{"", "", true}, {"15032005", "14032005", true}, {"", "XXXXXXXX", true}, {"", blancs(8), true}});
}

TEST(Dates, AnneeApres1997) {
    struct ligne {
        std::string champ;
        bool entree, abattage;
    };
    const std::vector<ligne> LIGNES = {
        {"01011998", true, true},
        {"31121997", false, false},
        {"01019999", true, true},
        {"01010000", false, false},
        {"XXXX1998", true, true},  // only the year is read
        {"    1998", true, true},
        {"99991998", true, true},
        {"010119981", true, true},  // four characters of it
        {"010101998", false, false},
        {"01011998X", true, true},
        {"0101199", false, false},
        {"0101199X", false, false},
        {"0101 999", false, false},
        {"0101+999", false, false},
        {"0101-999", false, false},
        {"0101X998", false, false},
        {"0101\271998", false, false},
        {"0101", false, false},
        {"X", false, false},
        {"0101    ", false, false},
        // No exception for blanks but at the entry.
        {"", true, false},
        {" ", true, false},
        {blancs(8), true, false},
        {blancs(31), true, false},
        {blancs(7) + "X", false, false},
    };
    for (const ligne& l : LIGNES) {
        SUJET(fVerifDateInputPost).prouver({{"", l.champ, l.entree}});
        SUJET(fVerifDateAbatPost).prouver({{"", l.champ, l.abattage}});
    }
}

TEST(Dates, AbattagePasAvantLEntree) {
    const sujet s = SUJET(fVerifDateAbatPostEntr);
    s.prouver(
        {
            {"", "09052010", false},
            {"", "10052010", true},
            {"", "11052010", true},
            {"", "31042010", false},
            {"", "01062010", true},
            {"", "31122009", false},
            {"", "01012011", true},
            {"", blancs(8), true},
            {"", blancs(7), false},
            {"", blancs(9), false},
            {"", "", false},
            {"", "  052010", false},
            {"", "10  2010", false},
            {"", "    2010", false},
            {"", "    2011", true},
            {"", "1005201", false},
            {"", "100520109", true},  // eight characters are read
            {"", "090520109", false},
            {"", "XXXX2011", true},
            {"01011900", "10052010", true},  // the dependency plays no part
            {"31129999", "10052010", true},
        },
        entreeLe("10052010"));
    s.prouver({{"", "10052010", true}, {"", "09052010", false}}, entreeLe("100520109"));
    for (const char* champ : {"", "01011900", "XXXXXXXX", "        "})
        s.prouver({{"", champ, true}}, entreeLe(blancs(8)));
    // A record that ends before the entry date: it reads as zeros.
    s.prouver({{"", "10052010", true}, {"", "", true}, {"", blancs(8), true}}, entreeLe(""));
    // Parts that are not there or no numbers are zeros.
    s.prouver({{"", "01052010", true}, {"", "00052010", true}, {"", "31042010", false}},
              entreeLe("  052010"));
    s.prouver({{"", "09012010", true}, {"", "10  2010", true}, {"", "09  2010", false}},
              entreeLe("10  2010"));
    s.prouver({{"", "01010000", true}, {"", "", true}}, entreeLe(blancs(7)));
    s.prouver({{"", "01010001", true}, {"", "01010000", false}, {"", "10050000", true}},
              entreeLe("1005XXXX"));
}
