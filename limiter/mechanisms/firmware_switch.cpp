#include "limiter/mechanisms/firmware_switch.h"

#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

constexpr int full = 100;
const std::string on = "1";
const std::string off = "0";

} // namespace

FirmwareSwitch::FirmwareSwitch(Attributes& attributes, std::string attribute, std::string name,
                               std::optional<int> level)
    : attributes_(attributes), attribute_(std::move(attribute)), name_(std::move(name)), level_(level) {}

Setting FirmwareSwitch::read() const {
    const auto text = attributes_.read(attribute_);
    return text && (*text == on || *text == off) ? Setting{.mode = *text} : Setting{};
}

Setting FirmwareSwitch::limitedTo(int percent, int /*batteryPercent*/) const {
    return {.mode = percent < full ? on : off};
}

Setting FirmwareSwitch::lifted(const Setting& /*found*/) const {
    return {.mode = off};
}

Setting FirmwareSwitch::restored(const Setting& found) const {
    return {.mode = found.mode == on ? on : off};
}

Result<void> FirmwareSwitch::write(const Setting& setting) {
    return writeValue(attributes_, attribute_, setting.mode.value_or(off));
}

Level FirmwareSwitch::levelOf(const Setting& setting, std::optional<int> /*limit*/) const {
    if (!setting.mode) {
        return {};
    }
    return setting.mode == on ? Level{.limits = true, .percent = level_} : Level{.percent = full};
}

} // namespace quelby::limiter
