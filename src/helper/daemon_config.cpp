#include "helper/daemon_config.h"

#include <cmath>

#include <fmt/format.h>

#include "helper/json_record.h"

namespace quelby {

std::optional<DaemonConfig> decodeDaemonConfig(std::string_view text) {
    const auto record = JsonRecord::read(text);
    if (!record) {
        return std::nullopt;
    }
    const auto limitEnabled = record->boolean("chargeLimitEnabled");
    const auto limitPercent = record->integer("chargeLimitPercent");
    const auto calibrationEnabled = record->boolean("calibrationEnabled");
    const auto intervalDays = record->integer("calibrationIntervalDays");
    const auto lastCalibration = record->number("lastCalibrationTimestamp");
    if (!limitEnabled || !limitPercent || !calibrationEnabled || !intervalDays || !lastCalibration) {
        return std::nullopt;
    }
    return DaemonConfig{.chargeLimitEnabled = *limitEnabled,
                        .chargeLimitPercent = *limitPercent,
                        .calibrationEnabled = *calibrationEnabled,
                        .calibrationIntervalDays = *intervalDays,
                        .lastCalibrationTimestamp = *lastCalibration};
}

std::optional<std::string> encode(const DaemonConfig& config) {
    if (!std::isfinite(config.lastCalibrationTimestamp)) {
        return std::nullopt;
    }
    return fmt::format(R"({{"chargeLimitEnabled":{},"chargeLimitPercent":{},"calibrationEnabled":{},)"
                       R"("calibrationIntervalDays":{},"lastCalibrationTimestamp":{}}})",
                       config.chargeLimitEnabled, config.chargeLimitPercent, config.calibrationEnabled,
                       config.calibrationIntervalDays, config.lastCalibrationTimestamp);
}

} // namespace quelby
