#include "limiter/mechanisms/inhibition.h"

#include "limiter/charge_levels.h"
#include "limiter/mechanisms/choices.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

const std::string usual = "auto";
const std::string inhibited = "inhibit-charge";
const std::string inhibitedAwake = "inhibit-charge-awake"; // charges while the computer sleeps

bool inhibits(const std::optional<std::string>& mode) {
    return mode == inhibited || mode == inhibitedAwake;
}

class Inhibition final : public Mechanism {
public:
    Inhibition(Attributes& attributes, std::string attribute)
        : attributes_(attributes), attribute_(std::move(attribute)) {}

    [[nodiscard]] std::string_view name() const override { return "charge_behaviour"; }

    [[nodiscard]] bool holdsByItself() const override { return false; }

    [[nodiscard]] Setting read() const override {
        return {.mode = readChoices(attributes_.read(attribute_).value_or("")).active};
    }

    [[nodiscard]] Setting limitedTo(int percent, int batteryPercent) const override {
        const auto choices = readChoices(attributes_.read(attribute_).value_or(""));
        const bool awakeOnly = choices.offer(inhibitedAwake) && !choices.offer(inhibited);
        const bool isHeld = inhibits(choices.active);
        const bool hold = batteryPercent >= percent || (isHeld && batteryPercent > percent - stepToStart);
        if (!hold || percent >= fullLevel) {
            return {.mode = usual};
        }
        return {.mode = awakeOnly ? inhibitedAwake : inhibited};
    }

    [[nodiscard]] Setting lifted(const Setting& /*found*/) const override { return {.mode = usual}; }

    // Charging as usual, whatever was found: nobody wants a battery back that cannot be charged.
    [[nodiscard]] Setting restored(const Setting& /*found*/) const override { return {.mode = usual}; }

    [[nodiscard]] Result<void> write(const Setting& setting) override {
        return writeValue(attributes_, attribute_, setting.mode.value_or(usual));
    }

    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> limit) const override {
        if (!setting.mode) {
            return {};
        }
        if (!limit) {
            return inhibits(setting.mode) ? Level{.limits = true} : Level{.percent = fullLevel};
        }
        return {.limits = *limit < fullLevel, .percent = limit};
    }

private:
    Attributes& attributes_;
    std::string attribute_;
};

} // namespace

std::unique_ptr<Mechanism> inhibition(Attributes& attributes, const std::string& batteryFolder) {
    const auto attribute = batteryFolder + "/charge_behaviour";
    const auto choices = readChoices(attributes.read(attribute).value_or(""));
    const bool isPresent = choices.offer(inhibited) || choices.offer(inhibitedAwake);
    return isPresent ? std::make_unique<Inhibition>(attributes, attribute) : nullptr;
}

} // namespace quelby::limiter
