#include "limiter/mechanisms/long_life.h"

#include "limiter/charge_levels.h"
#include "limiter/mechanisms/choices.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

const std::string longLifeType = "Long_Life";
const std::string standardType = "Standard";

class LongLife final : public Mechanism {
public:
    LongLife(Attributes& attributes, std::string attribute)
        : attributes_(attributes), attribute_(std::move(attribute)) {}

    [[nodiscard]] std::string_view name() const override { return "charge_types"; }

    [[nodiscard]] Setting read() const override {
        return {.mode = readChoices(attributes_.read(attribute_).value_or("")).active};
    }

    [[nodiscard]] Setting limitedTo(int percent, int /*batteryPercent*/) const override {
        return {.mode = percent < fullLevel ? longLifeType : standardType};
    }

    [[nodiscard]] Setting lifted(const Setting& found) const override {
        return {.mode = found.mode && found.mode != longLifeType ? found.mode : standardType};
    }

    [[nodiscard]] Setting restored(const Setting& found) const override {
        const bool isKnown =
            found.mode == longLifeType || found.mode == standardType ||
            readChoices(attributes_.read(attribute_).value_or("")).offer(found.mode.value_or(""));
        return {.mode = isKnown ? found.mode : standardType};
    }

    [[nodiscard]] Result<void> write(const Setting& setting) override {
        return writeValue(attributes_, attribute_, setting.mode.value_or(standardType));
    }

    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> /*limit*/) const override {
        if (!setting.mode) {
            return {};
        }
        return setting.mode == longLifeType ? Level{.limits = true} : Level{.percent = fullLevel};
    }

private:
    Attributes& attributes_;
    std::string attribute_;
};

} // namespace

std::unique_ptr<Mechanism> longLife(Attributes& attributes, const std::string& batteryFolder) {
    const auto attribute = batteryFolder + "/charge_types";
    const bool isPresent = readChoices(attributes.read(attribute).value_or("")).offer(longLifeType);
    return isPresent ? std::make_unique<LongLife>(attributes, attribute) : nullptr;
}

} // namespace quelby::limiter
