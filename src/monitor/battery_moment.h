// What the battery held at one moment, and what lies between two of them.
#pragma once

#include <optional>

#include "history/energy/energy_records.h"
#include "monitor/published_fields.h"
#include "platform/clock.h"

namespace quelby {

struct BatteryMoment {
    Date time = 0;
    std::optional<TimeSinceBoot> sinceBoot;
    std::optional<double> percent;   // as finely as the battery tells it; none: there is no battery
    std::optional<double> wattHours; // in the battery; none: it does not tell
};

// What a full charge holds, in mAh; nothing where the battery gives its charge in percent only.
[[nodiscard]] std::optional<Int> fullCapacity(const PublishedFields& fields);

// What a full charge holds, in Wh at the present voltage; nothing where the battery does not tell its capacity.
[[nodiscard]] std::optional<double> fullChargeWattHours(const PublishedFields& fields);

// `fields` are those of the cycle under way.
[[nodiscard]] BatteryMoment batteryMoment(const PublishedFields& fields, Clock& clock);

// How much time has passed, sleep included, by the computer's own clocks; by the wall clock where these tell
// nothing, or are of another boot. Never negative.
[[nodiscard]] double secondsBetween(const BatteryMoment& before, const BatteryMoment& after);

// The computer with its battery slept in between, for a minute or more. What passed while nothing recorded
// is no sleep, and neither is a jump of the wall clock.
[[nodiscard]] std::optional<Sleep> sleepBetween(const BatteryMoment& before, const BatteryMoment& after);

} // namespace quelby
