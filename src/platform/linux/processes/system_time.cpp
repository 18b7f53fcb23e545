#include "platform/linux/processes/system_time.h"

#include <ctime>

#include "base/number_text.h"

namespace quelby {

namespace {

double seconds(clockid_t clock) {
    struct timespec time = {};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

ScanTime systemScanTime() {
    return {seconds(CLOCK_MONOTONIC), seconds(CLOCK_BOOTTIME)};
}

std::optional<double> parseUptime(std::string_view text) {
    return decimalNumber(text.substr(0, text.find(' ')));
}

} // namespace quelby
