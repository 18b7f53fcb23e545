#pragma once

#include <optional>
#include <string_view>

#include "platform/linux/processes/cpu_share.h"

namespace quelby {

// Now, by the system's clocks.
[[nodiscard]] ScanTime systemScanTime();

// Seconds since boot, sleep included, from the text of /proc/uptime; nothing where it is malformed.
[[nodiscard]] std::optional<double> parseUptime(std::string_view text);

} // namespace quelby
