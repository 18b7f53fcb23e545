#include "helper/daemon_config.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "helper/json_record.h"

namespace quelby {

namespace {

constexpr std::array<std::string_view, 5> ownKeys{"chargeLimitEnabled", "chargeLimitPercent",
                                                  "calibrationEnabled", "calibrationIntervalDays",
                                                  "lastCalibrationTimestamp"};

// The members that are not the record's own, each behind a comma, in their order.
std::string otherMembers(std::string_view text) {
    using Json = nlohmann::ordered_json;
    std::string members;
    if (!JsonRecord::read(text)) {
        return members;
    }
    const auto object = Json::parse(text, nullptr, false);
    for (const auto& [key, value] : object.items()) {
        if (std::find(ownKeys.begin(), ownKeys.end(), key) == ownKeys.end()) {
            members += ',' + Json(key).dump() + ':' + value.dump();
        }
    }
    return members;
}

} // namespace

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

std::optional<std::string> encode(const DaemonConfig& config, std::string_view replaced) {
    if (!std::isfinite(config.lastCalibrationTimestamp)) {
        return std::nullopt;
    }
    const auto own =
        fmt::format(R"({{"chargeLimitEnabled":{},"chargeLimitPercent":{},"calibrationEnabled":{},)"
                    R"("calibrationIntervalDays":{},"lastCalibrationTimestamp":{})",
                    config.chargeLimitEnabled, config.chargeLimitPercent, config.calibrationEnabled,
                    config.calibrationIntervalDays, config.lastCalibrationTimestamp);
    auto whole = own + otherMembers(replaced) + '}';
    return whole.size() <= JsonRecord::longestText ? std::move(whole) : own + '}';
}

} // namespace quelby
