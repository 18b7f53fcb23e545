#pragma once

namespace quelby {

// The wall clock; it may jump in both directions.
class Clock {
public:
    virtual ~Clock() = default;

    // Seconds since 1970-01-01 00:00 UTC.
    [[nodiscard]] virtual double now() = 0;

    // The start of the current day in the user's time zone, in seconds since 1970-01-01 00:00 UTC.
    [[nodiscard]] virtual double startOfDay() = 0;
};

} // namespace quelby
