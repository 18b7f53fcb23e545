#include "limiter/mechanisms/long_life.h"

#include "limiter/mechanisms/choices.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

constexpr int full = 100;
const std::string longLife = "Long_Life";
const std::string standard = "Standard";

std::string attributeIn(const std::string& batteryFolder) {
    return batteryFolder + "/charge_types";
}

} // namespace

LongLife::LongLife(Attributes& attributes, const std::string& batteryFolder)
    : attributes_(attributes), attribute_(attributeIn(batteryFolder)) {}

bool LongLife::isPresent(const Attributes& attributes, const std::string& batteryFolder) {
    return readChoices(attributes.read(attributeIn(batteryFolder)).value_or("")).offer(longLife);
}

Setting LongLife::read() const {
    return {.mode = readChoices(attributes_.read(attribute_).value_or("")).active};
}

Setting LongLife::limitedTo(int percent, int /*batteryPercent*/) const {
    return {.mode = percent < full ? longLife : standard};
}

Setting LongLife::lifted(const Setting& found) const {
    return {.mode = found.mode && found.mode != longLife ? found.mode : standard};
}

Setting LongLife::restored(const Setting& found) const {
    const bool isKnown =
        found.mode == longLife || found.mode == standard ||
        readChoices(attributes_.read(attribute_).value_or("")).offer(found.mode.value_or(""));
    return {.mode = isKnown ? found.mode : standard};
}

Result<void> LongLife::write(const Setting& setting) {
    return writeValue(attributes_, attribute_, setting.mode.value_or(standard));
}

Level LongLife::levelOf(const Setting& setting, std::optional<int> /*limit*/) const {
    if (!setting.mode) {
        return {};
    }
    return setting.mode == longLife ? Level{.limits = true} : Level{.percent = full};
}

} // namespace quelby::limiter
