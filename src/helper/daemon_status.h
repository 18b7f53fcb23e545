// What the charge-limit helper says that it is doing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quelby {

// The content of `status.json`: one JSON object with these keys.
struct DaemonStatus {
    bool daemonRunning = false;
    bool chargingInhibited = false; // the battery is held: charging is switched off
    bool calibrationActive = false;
    std::optional<std::string> calibrationPhase; // for people; the key may be absent, or null
    std::int64_t batteryPercent = 0;             // % of full charge, as the helper sees it
    double lastUpdate = 0;                       // seconds since 1970-01-01 00:00 UTC

    bool operator==(const DaemonStatus&) const = default;
};

// Nothing unless the text is a JSON object that JsonRecord accepts and that has all keys but the phase, with
// values of their types. The order does not matter, and other keys are passed over.
[[nodiscard]] std::optional<DaemonStatus> decodeDaemonStatus(std::string_view text);

} // namespace quelby
