#pragma once

#include "helper/daemon_config.h"

namespace quelby::limiter {

// What the application asks for, within the bounds of what the helper does: anybody may have written the
// file that it comes from.
struct Wish {
    static constexpr int lowestPercent = 20;
    static constexpr int highestPercent = 100;
    static constexpr int mostDays = 365;

    bool limit = false;
    int percent = 80; // of full charge
    bool calibration = false;
    int intervalDays = 30;

    bool operator==(const Wish&) const = default;
};

[[nodiscard]] Wish wishFrom(const DaemonConfig& config);

// The time of the last calibration as an application remembers it, where it can be true; 0 otherwise.
[[nodiscard]] double credibleCalibration(const DaemonConfig& config, double now);

} // namespace quelby::limiter
