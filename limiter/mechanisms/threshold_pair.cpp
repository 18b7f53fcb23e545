#include "limiter/mechanisms/threshold_pair.h"

#include <algorithm>
#include <sstream>

#include "base/number_text.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

constexpr int full = 100;
constexpr int distance = 5; // % between start and end
constexpr std::chrono::seconds untilForgotten(1);

std::string pairText(int start, int end) {
    return std::to_string(start) + ' ' + std::to_string(end);
}

std::optional<int> percentFrom(const std::string& word) {
    const auto value = wholeNumber(word);
    return value && *value >= 0 && *value <= full ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

} // namespace

Setting ThresholdPair::read() const {
    std::istringstream words(attributes_.read(attribute).value_or(""));
    std::string start;
    std::string end;
    words >> start >> end;
    Setting setting{.end = percentFrom(end), .start = percentFrom(start)};
    if (setting.end == 0) {
        setting.end = full; // "0 0" stands for none
    }
    return setting;
}

Setting ThresholdPair::limitedTo(int percent, int /*batteryPercent*/) const {
    if (percent >= full) {
        return lifted({});
    }
    return {.end = percent, .start = std::max(percent - distance, 0)};
}

Setting ThresholdPair::lifted(const Setting& /*found*/) const {
    return {.end = full, .start = 0};
}

Setting ThresholdPair::restored(const Setting& found) const {
    return {.end = found.end.value_or(full), .start = found.start.value_or(0)};
}

Result<void> ThresholdPair::write(const Setting& setting) {
    const int end = setting.end.value_or(full);
    if (end == full) {
        // Some models go on limiting unless the old levels are forgotten first.
        if (auto forgotten = writeValue(attributes_, attribute, pairText(0, 0)); !forgotten) {
            return forgotten;
        }
        pause_(untilForgotten);
    }
    return writeValue(attributes_, attribute, pairText(setting.start.value_or(0), end));
}

Level ThresholdPair::levelOf(const Setting& setting, std::optional<int> /*limit*/) const {
    return {.limits = setting.end.value_or(full) < full, .percent = setting.end};
}

} // namespace quelby::limiter
