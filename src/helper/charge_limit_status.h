// The charge limit in one line, for people.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quelby {

struct ChargeLimitSituation {
    bool calibrationActive = false;
    std::optional<std::string> calibrationPhase; // the helper's own words
    bool chargingInhibited = false;              // the helper holds the battery
    bool chargeLimitEnabled = false;
    bool isPluggedIn = false;
    std::int64_t batteryPercent = 0; // % of full charge
    double chargeLimitPercent = 80;  // % of full charge; only the whole percents count
};

// Empty where there is nothing to say: no limit, or one that is reached while nothing is held.
[[nodiscard]] std::string chargeLimitStatus(const ChargeLimitSituation& situation);

} // namespace quelby
