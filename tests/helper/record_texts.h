// A valid text of each of the helper's files, and what it says.
#pragma once

#include <string>
#include <string_view>

#include "helper/daemon_config.h"
#include "helper/daemon_status.h"

namespace quelby {

inline const std::string configText =
    R"({"chargeLimitEnabled":true,"chargeLimitPercent":85,"calibrationEnabled":true,)"
    R"("calibrationIntervalDays":14,"lastCalibrationTimestamp":1700000000.25})";

inline const DaemonConfig configOfText{.chargeLimitEnabled = true,
                                       .chargeLimitPercent = 85,
                                       .calibrationEnabled = true,
                                       .calibrationIntervalDays = 14,
                                       .lastCalibrationTimestamp = 1700000000.25};

inline const std::string statusText =
    R"({"daemonRunning":true,"chargingInhibited":true,"calibrationActive":true,)"
    R"("calibrationPhase":"Discharging to 15%","batteryPercent":42,"lastUpdate":1700000003.5})";

inline const DaemonStatus statusOfText{.daemonRunning = true,
                                       .chargingInhibited = true,
                                       .calibrationActive = true,
                                       .calibrationPhase = "Discharging to 15%",
                                       .batteryPercent = 42,
                                       .lastUpdate = 1700000003.5};

// The text with another one in the place of one of its parts.
[[nodiscard]] inline std::string with(std::string text, std::string_view part, std::string_view instead) {
    const auto position = text.find(part);
    return position == std::string::npos ? "the text has no such part"
                                         : text.replace(position, part.size(), instead);
}

} // namespace quelby
