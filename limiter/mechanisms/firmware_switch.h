#pragma once

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// A switch of a maker's own driver, 1 or 0, for the one level that the firmware has.
class FirmwareSwitch final : public Mechanism {
public:
    // The level is absent where models differ and none tells.
    FirmwareSwitch(Attributes& attributes, std::string attribute, std::string name, std::optional<int> level);

    [[nodiscard]] std::string_view name() const override { return name_; }

    [[nodiscard]] Setting read() const override;
    [[nodiscard]] Setting limitedTo(int percent, int batteryPercent) const override;
    [[nodiscard]] Setting lifted(const Setting& found) const override;
    [[nodiscard]] Setting restored(const Setting& found) const override;
    [[nodiscard]] Result<void> write(const Setting& setting) override;
    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> limit) const override;

private:
    Attributes& attributes_;
    std::string attribute_;
    std::string name_;
    std::optional<int> level_;
};

} // namespace quelby::limiter
