#include "platform/host/system_clock.h"

#include <chrono>

#include "platform/boot_clock.h"
#include "platform/local_day.h"

namespace quelby {

Date SystemClock::now() {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(sinceEpoch).count();
}

Date SystemClock::startOfDay() {
    return startOfLocalDay(now());
}

std::optional<TimeSinceBoot> SystemClock::sinceBoot() {
    return timeSinceBoot();
}

} // namespace quelby
