#include "limiter/mechanisms/threshold_pair.h"

#include <algorithm>
#include <sstream>

#include "limiter/charge_levels.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

constexpr std::chrono::seconds untilForgotten(1);

std::string pairText(int start, int end) {
    return std::to_string(start) + ' ' + std::to_string(end);
}

} // namespace

Setting ThresholdPair::read() const {
    std::istringstream words(attributes_.read(attribute).value_or(""));
    std::string start;
    std::string end;
    words >> start >> end;
    Setting setting{.end = levelFrom(end), .start = levelFrom(start)};
    if (setting.end == 0) {
        setting.end = fullLevel; // "0 0" stands for none
    }
    return setting;
}

Setting ThresholdPair::limitedTo(int percent, int /*batteryPercent*/) const {
    if (percent >= fullLevel) {
        return lifted({});
    }
    return {.end = percent, .start = std::max(percent - stepToStart, 0)};
}

Setting ThresholdPair::lifted(const Setting& /*found*/) const {
    return {.end = fullLevel, .start = 0};
}

Setting ThresholdPair::restored(const Setting& found) const {
    return {.end = found.end.value_or(fullLevel), .start = found.start.value_or(0)};
}

Result<void> ThresholdPair::write(const Setting& setting) {
    const int end = setting.end.value_or(fullLevel);
    if (end == fullLevel) {
        // Some models go on limiting unless the old levels are forgotten first.
        if (auto forgotten = writeValue(attributes_, attribute, pairText(0, 0)); !forgotten) {
            return forgotten;
        }
        pause_(untilForgotten);
    }
    return writeValue(attributes_, attribute, pairText(setting.start.value_or(0), end));
}

Level ThresholdPair::levelOf(const Setting& setting, std::optional<int> /*limit*/) const {
    return {.limits = setting.end.value_or(fullLevel) < fullLevel, .percent = setting.end};
}

} // namespace quelby::limiter
