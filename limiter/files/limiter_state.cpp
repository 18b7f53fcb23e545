#include "limiter/files/limiter_state.h"

#include <nlohmann/json.hpp>

#include "base/json_value.h"

namespace quelby::limiter {

namespace {

using Json = nlohmann::ordered_json;

std::optional<int> percentIn(const Json& object, const char* key) {
    const auto member = object.find(key);
    if (member == object.end() || !member->is_number_integer()) {
        return std::nullopt;
    }
    const auto percent = member->get<std::int64_t>();
    return percent >= 0 && percent <= 100 ? std::optional(static_cast<int>(percent)) : std::nullopt;
}

double secondsIn(const Json& object, const char* key) {
    const auto member = object.find(key);
    const double seconds = member != object.end() && member->is_number() ? member->get<double>() : 0;
    return seconds > 0 ? seconds : 0;
}

bool booleanIn(const Json& object, const char* key) {
    const auto member = object.find(key);
    return member != object.end() && member->is_boolean() && member->get<bool>();
}

Setting settingFrom(const Json& object) {
    Setting setting{.end = percentIn(object, "end"), .start = percentIn(object, "start")};
    if (const auto mode = object.find("mode"); mode != object.end() && mode->is_string()) {
        setting.mode = mode->get<std::string>();
    }
    return setting;
}

} // namespace

std::string encode(const LimiterState& state) {
    Json found = Json::object();
    for (const auto& [battery, setting] : state.found) {
        found[battery] = {
            {"end", orNull(setting.end)}, {"start", orNull(setting.start)}, {"mode", orNull(setting.mode)}};
    }
    Json calibration;
    if (state.calibration) {
        calibration = {{"reachedFull", state.calibration->reachedFull},
                       {"heldSeconds", state.calibration->heldSeconds},
                       {"stalledSeconds", state.calibration->stalledSeconds}};
    }
    const Json whole{
        {"found", found}, {"lastCalibration", state.lastCalibration}, {"calibration", calibration}};
    return whole.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

LimiterState decodeLimiterState(std::string_view text) {
    LimiterState state;
    const auto whole = Json::parse(text, nullptr, false);
    if (!whole.is_object()) {
        return state;
    }
    if (const auto found = whole.find("found"); found != whole.end() && found->is_object()) {
        for (const auto& [battery, setting] : found->items()) {
            if (setting.is_object()) {
                state.found[battery] = settingFrom(setting);
            }
        }
    }
    state.lastCalibration = secondsIn(whole, "lastCalibration");
    if (const auto progress = whole.find("calibration"); progress != whole.end() && progress->is_object()) {
        state.calibration = CalibrationProgress{.reachedFull = booleanIn(*progress, "reachedFull"),
                                                .heldSeconds = secondsIn(*progress, "heldSeconds"),
                                                .stalledSeconds = secondsIn(*progress, "stalledSeconds")};
    }
    return state;
}

} // namespace quelby::limiter
