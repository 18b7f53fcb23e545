#pragma once

#include <ctime>

namespace quelby {

// What this process has used of the processors so far, its threads together.
[[nodiscard]] inline double cpuMilliseconds() {
    struct timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// In milliseconds of CPU time.
template <typename Action>
[[nodiscard]] double costOf(const Action& action) {
    const double before = cpuMilliseconds();
    action();
    return cpuMilliseconds() - before;
}

} // namespace quelby
