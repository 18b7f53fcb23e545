#include "limiter/program/clock.h"

#include <ctime>

namespace quelby::limiter {

namespace {

double secondsOf(clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

double SystemClock::now() {
    return secondsOf(CLOCK_REALTIME);
}

double SystemClock::awake() {
    return secondsOf(CLOCK_MONOTONIC);
}

} // namespace quelby::limiter
