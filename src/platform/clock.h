#pragma once

#include "base/date.h"

namespace quelby {

// The wall clock; it may jump in both directions.
class Clock {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual Date now() = 0;

    // The start of the current day in the user's time zone.
    [[nodiscard]] virtual Date startOfDay() = 0;
};

} // namespace quelby
