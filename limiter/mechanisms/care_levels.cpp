#include "limiter/mechanisms/care_levels.h"

#include "limiter/charge_levels.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

class CareLevels final : public Mechanism {
public:
    CareLevels(Attributes& attributes, std::string attribute, std::string name, std::vector<int> levels)
        : attributes_(attributes)
        , attribute_(std::move(attribute))
        , name_(std::move(name))
        , levels_(std::move(levels)) {}

    [[nodiscard]] std::string_view name() const override { return name_; }

    [[nodiscard]] Setting read() const override {
        const auto level = percentIn(attributes_, attribute_);
        return {.end = level == 0 ? fullLevel : level}; // 0 stands for none
    }

    [[nodiscard]] Setting limitedTo(int percent, int /*batteryPercent*/) const override {
        return {.end = nearest(levels_, percent)};
    }

    [[nodiscard]] Setting lifted(const Setting& /*found*/) const override { return {.end = fullLevel}; }

    [[nodiscard]] Setting restored(const Setting& found) const override {
        return {.end = nearest(levels_, found.end.value_or(fullLevel))};
    }

    [[nodiscard]] Result<void> write(const Setting& setting) override {
        return writeValue(attributes_, attribute_, std::to_string(setting.end.value_or(fullLevel)));
    }

    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> /*limit*/) const override {
        return {.limits = setting.end.value_or(fullLevel) < fullLevel, .percent = setting.end};
    }

private:
    Attributes& attributes_;
    std::string attribute_;
    std::string name_;
    std::vector<int> levels_;
};

} // namespace

std::unique_ptr<Mechanism> careLevels(Attributes& attributes, std::string attribute, std::string name,
                                      std::vector<int> levels) {
    return std::make_unique<CareLevels>(attributes, std::move(attribute), std::move(name), std::move(levels));
}

} // namespace quelby::limiter
