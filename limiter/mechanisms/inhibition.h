#pragma once

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// charge_behaviour, where it is all that a machine has: charging is switched off at the limit, and on again
// some percent below, for as long as somebody watches the battery.
class Inhibition final : public Mechanism {
public:
    Inhibition(Attributes& attributes, const std::string& batteryFolder);

    [[nodiscard]] static bool isPresent(const Attributes& attributes, const std::string& batteryFolder);

    [[nodiscard]] std::string_view name() const override { return "charge_behaviour"; }

    [[nodiscard]] bool holdsByItself() const override { return false; }

    [[nodiscard]] Setting read() const override;
    [[nodiscard]] Setting limitedTo(int percent, int batteryPercent) const override;
    [[nodiscard]] Setting lifted(const Setting& found) const override;

    // Charging as usual, whatever was found: nobody wants a battery back that cannot be charged.
    [[nodiscard]] Setting restored(const Setting& found) const override;
    [[nodiscard]] Result<void> write(const Setting& setting) override;
    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> limit) const override;

private:
    Attributes& attributes_;
    std::string attribute_;
};

} // namespace quelby::limiter
