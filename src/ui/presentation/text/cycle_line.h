#pragma once

#include <string>

#include "monitor/published_fields.h"

namespace quelby {

// One cycle on one line, for logs and pipes, with its newline: the local time of day, the battery, the power,
// the load and the busiest process.
[[nodiscard]] std::string cycleLine(const PublishedFields& fields, Date time);

// The battery's level, state and predicted time, "82 % discharging, ~3h 12m remaining", or "no battery".
[[nodiscard]] std::string batteryText(const PublishedFields& fields);

// "discharging", "charging", "full", "plugged in" or "no battery".
[[nodiscard]] std::string_view batteryState(const PublishedFields& fields);

} // namespace quelby
