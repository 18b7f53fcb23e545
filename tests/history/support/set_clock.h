#pragma once

#include <cstdint>

#include "platform/clock.h"

namespace quelby {

constexpr double minute = 60;
constexpr double hour = 3600;
constexpr double day = 24 * hour;
constexpr std::int64_t noonSecond = 1'699'963'200; // 2023-11-14 12:00 UTC
constexpr double noon = noonSecond;

// Shows what a test sets.
struct SetClock final : Clock {
    double time = noon;
    double dayStart = noon - 12 * hour;

    double now() override { return time; }

    double startOfDay() override { return dayStart; }
};

} // namespace quelby
