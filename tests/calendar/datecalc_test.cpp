/**
 * datecalc - leap years and real days, compared with the calendar of the
 * standard library.
 */
#include "calendar/datecalc.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <limits>

namespace {

using namespace quilvane;
constexpr std::int32_t PLUS_PETIT = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t PLUS_GRAND = std::numeric_limits<std::int32_t>::max();

/** The verdict of the standard library, for the months and days that it can name. */
bool jourReel(int annee, int mois, int jour) {
    if (mois < 0 || jour < 0) return false;
    return std::chrono::year_month_day(std::chrono::year(annee),
                                       std::chrono::month(static_cast<unsigned>(mois)),
                                       std::chrono::day(static_cast<unsigned>(jour)))
        .ok();
}

TEST(Datecalc, TableDesMois) {
    constexpr int COMMUNE[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int mois = 0; mois <= 12; ++mois) {
        EXPECT_EQ(DateCalc_Days_in_Month_[0][mois], COMMUNE[mois]) << mois;
        EXPECT_EQ(DateCalc_Days_in_Month_[1][mois], mois == 2 ? 29 : COMMUNE[mois]) << mois;
    }
}

TEST(Datecalc, AnneesBissextiles) {
    struct {
        std::int32_t annee;
        int attendu;
    } const cas[] = {
        {2000, 1},       {1900, 0},       {2004, 1},  {2003, 0},       {2002, 0},       {2001, 0},
        {2100, 0},       {2400, 1},       {1600, 1},  {1500, 0},       {1582, 0},       {4, 1},
        {100, 0},        {400, 1},        {1, 0},     {0, 1},          {-1, 0},         {-4, 1},
        {-100, 0},       {-400, 1},       {99999, 0}, {2147483600, 1}, {2147483500, 0}, {2147483644, 1},
        {PLUS_GRAND, 0}, {PLUS_PETIT, 1},
    };
    for (const auto& c : cas)
        EXPECT_EQ(DateCalc_leap_year(c.annee), c.attendu) << c.annee;
    for (int annee = -32767; annee <= 32767; ++annee)
        ASSERT_EQ(DateCalc_leap_year(annee), std::chrono::year(annee).is_leap() ? 1 : 0) << annee;
}

// Every day of 1890 to 2110, and the non-days around every month.
TEST(Datecalc, ChaqueJourDeDeuxSiecles) {
    int jours = 0;
    for (int annee = 1890; annee <= 2110; ++annee)
        for (int mois = -1; mois <= 14; ++mois)
            for (int jour = -1; jour <= 33; ++jour) {
                const int verdict = DateCalc_check_date(annee, mois, jour);
                ASSERT_EQ(verdict, jourReel(annee, mois, jour) ? 1 : 0)
                    << annee << '-' << mois << '-' << jour;
                jours += verdict;
            }
    using std::chrono::sys_days;
    EXPECT_EQ(
        jours,
        (sys_days(std::chrono::year(2111) / 1 / 1) - sys_days(std::chrono::year(1890) / 1 / 1)).count());
}

TEST(Datecalc, CasParticuliers) {
    struct {
        std::int32_t annee, mois, jour;
        int attendu;
    } const cas[] = {
        {2000, 2, 29, 1},
        {1900, 2, 29, 0},
        {2004, 2, 29, 1},
        {2003, 2, 29, 0},
        {2024, 2, 30, 0},
        {2024, 4, 31, 0},
        {2024, 12, 31, 1},
        {2024, 12, 32, 0},
        {2024, 0, 10, 0},
        {2024, 13, 10, 0},
        {2024, -1, 10, 0},
        {2024, 5, 0, 0},
        {2024, 5, -1, 0},
        {0, 5, 10, 0},
        {-4, 2, 29, 0},
        {1, 1, 1, 1},
        {4, 2, 29, 1},  // the rule is applied before 1582 too
        {1500, 2, 29, 0},
        {1582, 10, 10, 1},  // and no day is left out
        {99999, 1, 1, 1},   // no upper limit
        {99999, 2, 29, 0},
        {2147483600, 2, 29, 1},
        {2147483500, 2, 29, 0},
        {PLUS_GRAND, 12, 31, 1},
        {PLUS_GRAND, 2, 29, 0},
        {PLUS_PETIT, 1, 1, 0},
        {2024, PLUS_GRAND, 1, 0},
        {2024, PLUS_PETIT, 1, 0},
        {2024, 1, PLUS_GRAND, 0},
        {2024, 1, PLUS_PETIT, 0},
    };
    for (const auto& c : cas)
        EXPECT_EQ(DateCalc_check_date(c.annee, c.mois, c.jour), c.attendu)
            << c.annee << '-' << c.mois << '-' << c.jour;
}

}  // namespace
