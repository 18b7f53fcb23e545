#pragma once

#include <ctime>

namespace quelby {

// What a clock of the system's shows.
[[nodiscard]] inline double clockSeconds(clockid_t clock) {
    struct timespec time = {};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace quelby
