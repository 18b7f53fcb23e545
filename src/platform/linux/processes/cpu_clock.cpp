#include "platform/linux/processes/cpu_clock.h"

#include <ctime>

namespace quelby {

std::optional<CpuClock> CpuClock::of(pid_t pid) {
    clockid_t clock = 0;
    return ::clock_getcpuclockid(pid, &clock) == 0 ? std::optional(CpuClock(clock)) : std::nullopt;
}

std::optional<std::uint64_t> CpuClock::nanoseconds() const {
    constexpr std::uint64_t perSecond = 1'000'000'000;
    struct timespec time = {};
    if (::clock_gettime(clock_, &time) != 0) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(time.tv_sec) * perSecond + static_cast<std::uint64_t>(time.tv_nsec);
}

} // namespace quelby
