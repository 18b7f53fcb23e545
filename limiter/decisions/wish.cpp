#include "limiter/decisions/wish.h"

#include <algorithm>
#include <cmath>

namespace quelby::limiter {

namespace {

int within(std::int64_t value, int lowest, int highest) {
    return static_cast<int>(std::clamp<std::int64_t>(value, lowest, highest));
}

} // namespace

Wish wishFrom(const DaemonConfig& config) {
    return {.limit = config.chargeLimitEnabled,
            .percent = within(config.chargeLimitPercent, Wish::lowestPercent, Wish::highestPercent),
            .calibration = config.calibrationEnabled,
            .intervalDays = within(config.calibrationIntervalDays, 1, Wish::mostDays)};
}

double credibleCalibration(const DaemonConfig& config, double now) {
    const double time = config.lastCalibrationTimestamp;
    return std::isfinite(time) && time > 0 && time <= now ? time : 0;
}

} // namespace quelby::limiter
