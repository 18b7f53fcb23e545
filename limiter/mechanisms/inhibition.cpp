#include "limiter/mechanisms/inhibition.h"

#include "limiter/mechanisms/choices.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

constexpr int full = 100;
constexpr int distance = 5; // % below the limit at which charging begins again
const std::string usual = "auto";
const std::string inhibited = "inhibit-charge";
const std::string inhibitedAwake = "inhibit-charge-awake"; // charges while the computer sleeps

std::string attributeIn(const std::string& batteryFolder) {
    return batteryFolder + "/charge_behaviour";
}

bool inhibits(const std::optional<std::string>& mode) {
    return mode == inhibited || mode == inhibitedAwake;
}

} // namespace

Inhibition::Inhibition(Attributes& attributes, const std::string& batteryFolder)
    : attributes_(attributes), attribute_(attributeIn(batteryFolder)) {}

bool Inhibition::isPresent(const Attributes& attributes, const std::string& batteryFolder) {
    const auto choices = readChoices(attributes.read(attributeIn(batteryFolder)).value_or(""));
    return choices.offer(inhibited) || choices.offer(inhibitedAwake);
}

Setting Inhibition::read() const {
    return {.mode = readChoices(attributes_.read(attribute_).value_or("")).active};
}

Setting Inhibition::limitedTo(int percent, int batteryPercent) const {
    const auto choices = readChoices(attributes_.read(attribute_).value_or(""));
    const bool awakeOnly = choices.offer(inhibitedAwake) && !choices.offer(inhibited);
    const bool isHeld = inhibits(choices.active);
    const bool hold = batteryPercent >= percent || (isHeld && batteryPercent > percent - distance);
    if (!hold || percent >= full) {
        return {.mode = usual};
    }
    return {.mode = awakeOnly ? inhibitedAwake : inhibited};
}

Setting Inhibition::lifted(const Setting& /*found*/) const {
    return {.mode = usual};
}

Setting Inhibition::restored(const Setting& /*found*/) const {
    return {.mode = usual};
}

Result<void> Inhibition::write(const Setting& setting) {
    return writeValue(attributes_, attribute_, setting.mode.value_or(usual));
}

Level Inhibition::levelOf(const Setting& setting, std::optional<int> limit) const {
    if (!setting.mode) {
        return {};
    }
    if (!limit) {
        return inhibits(setting.mode) ? Level{.limits = true} : Level{.percent = full};
    }
    return {.limits = *limit < full, .percent = limit};
}

} // namespace quelby::limiter
