#pragma once

#include <optional>

#include "base/date.h"

namespace quelby {

// How long the computer has been awake since it booted, and how long it has slept, in seconds. Nobody sets
// these clocks, so their differences are true where those of the wall clock may be jumps.
struct TimeSinceBoot {
    double awake = 0;
    double asleep = 0;

    bool operator==(const TimeSinceBoot&) const = default;
};

// The wall clock, which may jump in both directions, and the computer's own.
class Clock {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual Date now() = 0;

    // The start of the current day in the user's time zone.
    [[nodiscard]] virtual Date startOfDay() = 0;

    // Nothing where it is not known.
    [[nodiscard]] virtual std::optional<TimeSinceBoot> sinceBoot() { return std::nullopt; }
};

} // namespace quelby
