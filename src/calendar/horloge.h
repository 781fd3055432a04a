/**
 * horloge.h - the run's clock, read here and nowhere else.
 */
#ifndef QUILVANE_CALENDAR_HORLOGE_H
#define QUILVANE_CALENDAR_HORLOGE_H

#include <ctime>

namespace quilvane {

/** The current calendar time. */
std::time_t maintenant();

/** The current local time, broken down. A time that has no such form (a clock
 *  far out of range) gives all zeros. */
std::tm heureLocale();

}  // namespace quilvane

#endif
