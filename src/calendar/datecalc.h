/**
 * datecalc.h - whether a (year, month, day) triple is a real day of the
 * proleptic Gregorian calendar. Plain functions without state.
 */
#ifndef QUILVANE_CALENDAR_DATECALC_H
#define QUILVANE_CALENDAR_DATECALC_H

#include <cstdint>

namespace quilvane {

/** Days of a month, indexed by leap flag, then by month 1 to 12 (column 0 is 0). */
extern const std::int32_t DateCalc_Days_in_Month_[2][13];

/** 1 when `year` is a leap year by the Gregorian rule, which is applied to
 *  every year, also before 1582; else 0. */
int DateCalc_leap_year(std::int32_t year);

/** 1 when the triple is a day of the calendar from year 1 on, else 0. There is
 *  no upper limit on the year. */
int DateCalc_check_date(std::int32_t year, std::int32_t month, std::int32_t day);

}  // namespace quilvane

#endif
