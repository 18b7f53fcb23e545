#pragma once

#include <optional>

#include "platform/linux/battery/power_supplies.h"

namespace quelby {

enum class ContentUnit { MilliampereHours, MilliwattHours };

// How much a pack holds, all in one unit: the two families of attributes are never mixed.
struct PackContent {
    ContentUnit unit = ContentUnit::MilliampereHours;
    std::optional<double> design;    // above 0, as full
    std::optional<double> full;      // the design's where the present one is not known
    std::optional<double> remaining; // at least 0; may exceed full
    std::optional<int> percent;      // 0 to 100, truncated; known wherever full and remaining are
};

// part * 100 / whole, truncating, 100 at the most. The whole is above 0, the part not below.
[[nodiscard]] int truncatedPercent(double part, double whole);

// The kernel computes `capacity` from the same values where it can, but rounds as the driver likes; so it is
// asked only for what these do not tell: the remaining amount where it is missing or beyond belief, and the
// percentage where there is no full amount. If it contradicts a design that stands in for a missing full
// amount, the percentage is believed and the full amount is unknown.
[[nodiscard]] PackContent contentOf(const RawPack& pack);

// The same in the other unit. Amounts become unknown where the voltage is needed and not known; the
// percentage stays.
[[nodiscard]] PackContent inMilliampereHours(const PackContent& content, std::optional<double> volts);
[[nodiscard]] PackContent inMilliwattHours(const PackContent& content, std::optional<double> volts);

} // namespace quelby
