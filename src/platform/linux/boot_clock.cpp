#include "platform/boot_clock.h"

#include "platform/posix/clock_seconds.h"

namespace quelby {

TimeSinceBoot timeSinceBoot() {
    const double awake = clockSeconds(CLOCK_MONOTONIC);
    return {.awake = awake, .asleep = clockSeconds(CLOCK_BOOTTIME) - awake};
}

} // namespace quelby
