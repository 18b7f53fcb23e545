#include "platform/linux/processes/system_time.h"

#include "base/number_text.h"
#include "platform/posix/clock_seconds.h"

namespace quelby {

ScanTime systemScanTime() {
    return {clockSeconds(CLOCK_MONOTONIC), clockSeconds(CLOCK_BOOTTIME)};
}

std::optional<double> parseUptime(std::string_view text) {
    return decimalNumber(text.substr(0, text.find(' ')));
}

} // namespace quelby
