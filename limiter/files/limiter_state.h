// What the helper must not forget, in a folder of its own that nobody else can write to.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "limiter/decisions/calibration.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

struct LimiterState {
    // By the battery's name: what it was set to before the helper first changed it. Forgotten once it has
    // been put back.
    std::map<std::string, Setting> found;

    double lastCalibration = 0; // seconds since 1970; 0: none
    std::optional<CalibrationProgress> calibration;

    bool operator==(const LimiterState&) const = default;
};

[[nodiscard]] std::string encode(const LimiterState& state);

// What cannot be understood is as if it had never been written.
[[nodiscard]] LimiterState decodeLimiterState(std::string_view text);

} // namespace quelby::limiter
