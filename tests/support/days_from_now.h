#pragma once

#include <cmath>
#include <string>

#include <fmt/format.h>

namespace quelby {

// Speaks of dates in days, whatever the language of the environment.
inline std::string daysFromNow(double date, double now) {
    const double days = std::round((date - now) / 86'400);
    return days < 0 ? fmt::format("{} days ago", -days) : fmt::format("in {} days", days);
}

} // namespace quelby
