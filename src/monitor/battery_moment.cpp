#include "monitor/battery_moment.h"

#include <algorithm>

#include "base/arithmetic.h"

namespace quelby {

namespace {

constexpr Int largestPercentage = 100;
constexpr double shortestSleep = 60; // seconds

// Nothing where the clocks are missing, or run backwards, as they do from one boot to the next.
std::optional<TimeSinceBoot> passed(const BatteryMoment& before, const BatteryMoment& after) {
    if (!before.sinceBoot || !after.sinceBoot) {
        return std::nullopt;
    }
    const TimeSinceBoot time{.awake = after.sinceBoot->awake - before.sinceBoot->awake,
                             .asleep = after.sinceBoot->asleep - before.sinceBoot->asleep};
    return time.awake >= 0 && time.asleep >= 0 ? std::optional(time) : std::nullopt;
}

} // namespace

std::optional<Int> fullCapacity(const PublishedFields& fields) {
    const bool told = fields.hasBattery && fields.rawMaxCapacity > largestPercentage;
    return told ? std::optional(fields.rawMaxCapacity.get()) : std::nullopt;
}

std::optional<double> fullChargeWattHours(const PublishedFields& fields) {
    const auto capacity = fullCapacity(fields);
    return capacity && fields.voltage > 0
               ? std::optional(static_cast<double>(*capacity) * fields.voltage / 1000)
               : std::nullopt;
}

BatteryMoment batteryMoment(const PublishedFields& fields, Clock& clock) {
    BatteryMoment moment{.time = clock.now(), .sinceBoot = clock.sinceBoot()};
    if (!fields.hasBattery) {
        return moment;
    }
    moment.percent = static_cast<double>(fields.batteryPercent.get());
    if (const auto capacity = fullCapacity(fields); capacity && fields.rawCurrentCapacity > 0) {
        const auto remaining = static_cast<double>(fields.rawCurrentCapacity.get());
        moment.percent = std::min(remaining * 100 / static_cast<double>(*capacity), 100.0);
        moment.wattHours = remaining * fields.voltage / 1000;
    }
    return moment;
}

double secondsBetween(const BatteryMoment& before, const BatteryMoment& after) {
    if (const auto time = passed(before, after)) {
        return time->awake + time->asleep;
    }
    return std::max(after.time - before.time, 0.0);
}

std::optional<Sleep> sleepBetween(const BatteryMoment& before, const BatteryMoment& after) {
    const auto time = passed(before, after);
    if (!time || time->asleep < shortestSleep || !before.percent || !after.percent) {
        return std::nullopt;
    }
    const bool told = before.wattHours && after.wattHours;
    return Sleep{.start = truncated(before.time),
                 .end = truncated(after.time),
                 .seconds = truncated(time->asleep),
                 .percentBefore = *before.percent,
                 .percentAfter = *after.percent,
                 .wattHours = told ? std::optional(*before.wattHours - *after.wattHours) : std::nullopt};
}

} // namespace quelby
