// How long the battery will last, or needs to fill, from the program's own record of its level.
//
// The prediction is the slope between the oldest and the newest sample of the record, which spans ten minutes
// at the most. Plugging in and unplugging do not clear the record, so for that long the slope may mix both
// directions.
#pragma once

#include <deque>

#include "monitor/published_fields.h"

namespace quelby {

inline constexpr double sampleInterval = 30.0; // seconds between two samples
inline constexpr std::size_t maxSamples = 20;

struct BatterySample {
    Date time = 0;
    Int percent = 0;

    bool operator==(const BatterySample&) const = default;
};

struct BatteryRecord {
    std::deque<BatterySample> batterySamples; // oldest first
    Date lastSampleTime = 0;
};

// Takes a sample if 30 seconds have passed since the last one; the oldest beyond 20 go.
void sampleBattery(BatteryRecord& record, Date now, Int percent);

// Writes `predictedTime` and `batteryRateStr` from the samples, `batteryPercent` and, while there are fewer
// than three samples, `timeRemaining`.
void predictBattery(const BatteryRecord& record, PublishedFields& fields);

// Minutes until charging will stop at the limit, by the same slope. Nothing where it will not: the battery
// does not charge, or the limit is off, has nobody who keeps it, or is reached.
[[nodiscard]] std::optional<double> minutesToLimit(const BatteryRecord& record,
                                                   const PublishedFields& fields);

} // namespace quelby
