#include "calendar/horloge.h"

namespace quilvane {

std::time_t maintenant() { return std::time(nullptr); }

std::tm heureLocale() {
    const std::time_t instant = maintenant();
    const std::tm* const local = std::localtime(&instant);
    return local != nullptr ? *local : std::tm{};
}

}  // namespace quilvane
