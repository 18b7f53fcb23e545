// What the charge-limit helper is to do.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quelby {

// The content of `config.json`: one JSON object with these five keys. Other keys are other programs' business.
struct DaemonConfig {
    bool chargeLimitEnabled = false;
    std::int64_t chargeLimitPercent = 80; // % of full charge
    bool calibrationEnabled = false;
    std::int64_t calibrationIntervalDays = 30;
    double lastCalibrationTimestamp = 0; // seconds since 1970-01-01 00:00 UTC; 0: none yet

    bool operator==(const DaemonConfig&) const = default;
};

// Nothing unless the text is a JSON object that JsonRecord accepts and that has all five keys with values of
// their types. The order does not matter, and other keys are passed over.
[[nodiscard]] std::optional<DaemonConfig> decodeDaemonConfig(std::string_view text);

// Compact, in the order above, without a final newline. Then come the other keys of the text that is to be
// replaced, if JsonRecord accepts it, and as long as it accepts the new text with them. Nothing where the
// time is not finite: JSON has no such number.
[[nodiscard]] std::optional<std::string> encode(const DaemonConfig& config, std::string_view replaced = {});

} // namespace quelby
