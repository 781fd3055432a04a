#include "calendar/datecalc.h"

namespace quilvane {

// clang-format off
constexpr std::int32_t DateCalc_Days_in_Month_[2][13] = {
    {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
    {0, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
};
// clang-format on

int DateCalc_leap_year(std::int32_t year) {
    if (year % 4 != 0) return 0;
    return year % 100 != 0 || (year / 100) % 4 == 0;
}

int DateCalc_check_date(std::int32_t year, std::int32_t month, std::int32_t day) {
    if (month < 1 || month > 12 || year < 1 || day < 1) return 0;
    return day <= DateCalc_Days_in_Month_[DateCalc_leap_year(year)][month];
}

}  // namespace quilvane
