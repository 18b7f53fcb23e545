#include "limiter/mechanisms/care_levels.h"

#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

constexpr int full = 100;

} // namespace

CareLevels::CareLevels(Attributes& attributes, std::string attribute, std::string name,
                       std::vector<int> levels)
    : attributes_(attributes)
    , attribute_(std::move(attribute))
    , name_(std::move(name))
    , levels_(std::move(levels)) {}

Setting CareLevels::read() const {
    const auto level = percentIn(attributes_, attribute_);
    return {.end = level == 0 ? full : level}; // 0 stands for none
}

Setting CareLevels::limitedTo(int percent, int /*batteryPercent*/) const {
    return {.end = nearest(levels_, percent)};
}

Setting CareLevels::lifted(const Setting& /*found*/) const {
    return {.end = full};
}

Setting CareLevels::restored(const Setting& found) const {
    return {.end = nearest(levels_, found.end.value_or(full))};
}

Result<void> CareLevels::write(const Setting& setting) {
    return writeValue(attributes_, attribute_, std::to_string(setting.end.value_or(full)));
}

Level CareLevels::levelOf(const Setting& setting, std::optional<int> /*limit*/) const {
    return {.limits = setting.end.value_or(full) < full, .percent = setting.end};
}

} // namespace quelby::limiter
