#include "limiter/mechanisms/firmware_switch.h"

#include "limiter/charge_levels.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

const std::string on = "1";
const std::string off = "0";

class FirmwareSwitch final : public Mechanism {
public:
    FirmwareSwitch(Attributes& attributes, std::string attribute, std::string name, std::optional<int> level)
        : attributes_(attributes), attribute_(std::move(attribute)), name_(std::move(name)), level_(level) {}

    [[nodiscard]] std::string_view name() const override { return name_; }

    [[nodiscard]] Setting read() const override {
        const auto text = attributes_.read(attribute_);
        return text && (*text == on || *text == off) ? Setting{.mode = *text} : Setting{};
    }

    [[nodiscard]] Setting limitedTo(int percent, int /*batteryPercent*/) const override {
        return {.mode = percent < fullLevel ? on : off};
    }

    [[nodiscard]] Setting lifted(const Setting& /*found*/) const override { return {.mode = off}; }

    [[nodiscard]] Setting restored(const Setting& found) const override {
        return {.mode = found.mode == on ? on : off};
    }

    [[nodiscard]] Result<void> write(const Setting& setting) override {
        return writeValue(attributes_, attribute_, setting.mode.value_or(off));
    }

    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> /*limit*/) const override {
        if (!setting.mode) {
            return {};
        }
        return setting.mode == on ? Level{.limits = true, .percent = level_} : Level{.percent = fullLevel};
    }

private:
    Attributes& attributes_;
    std::string attribute_;
    std::string name_;
    std::optional<int> level_;
};

} // namespace

std::unique_ptr<Mechanism> firmwareSwitch(Attributes& attributes, std::string attribute, std::string name,
                                          std::optional<int> level) {
    return std::make_unique<FirmwareSwitch>(attributes, std::move(attribute), std::move(name), level);
}

} // namespace quelby::limiter
