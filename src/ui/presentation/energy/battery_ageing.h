// How a battery ages.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "history/energy/energy_records.h"

namespace quelby {

// Full charge relative to design, in %; nothing where the design is not known.
[[nodiscard]] std::optional<double> healthPercent(const BatteryDay& day);

// The straight line through the health of all days, by least squares.
struct AgeingLine {
    double first = 0;           // % at the first day
    double last = 0;            // % at the last one
    double percentPerMonth = 0; // falling: negative

    bool operator==(const AgeingLine&) const = default;
};

// Days with a health that it takes; fewer tell of the weather only.
inline constexpr std::size_t fewestDaysForALine = 60;

// Nothing where there are fewer days.
[[nodiscard]] std::optional<AgeingLine> ageingLine(const std::vector<BatteryDay>& days);

// "about 1.1 % a month", "no ageing to be seen", or how many days it still takes.
[[nodiscard]] std::string ageingText(const std::vector<BatteryDay>& days);

} // namespace quelby
