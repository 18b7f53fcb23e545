#include "platform/boot_clock.h"

#include <ctime>

#include "platform/posix/clock_seconds.h"

namespace quelby {

// The first of these clocks stands still while the computer sleeps, the other goes on.
TimeSinceBoot timeSinceBoot() {
    const double awake = clockSeconds(CLOCK_UPTIME_RAW);
    return {.awake = awake, .asleep = clockSeconds(CLOCK_MONOTONIC_RAW) - awake};
}

} // namespace quelby
