#pragma once

#include <optional>
#include <string>

#include "platform/battery_source.h"

namespace quelby {

// What a reader of the property table makes of it, with its integer arithmetic; nothing where it has no key
// to go by.
struct PublishedBattery {
    std::optional<std::int64_t> designCapacity;
    std::optional<std::int64_t> rawMaxCapacity;
    std::optional<std::int64_t> rawCurrentCapacity;
    std::optional<std::int64_t> cycleCount;
    std::optional<std::int64_t> percent;
    std::int64_t health = 100;
    bool isCharging = false;
    bool isPluggedIn = false;
    bool fullyCharged = false;
    std::optional<std::int64_t> milliamperes;
    std::optional<std::int64_t> millivolts;
    std::optional<double> watts;
    std::optional<std::int64_t> centidegrees;
    std::string timeRemaining = "--:--";
};

[[nodiscard]] PublishedBattery publishedFrom(const PropertyTable& table);

} // namespace quelby
