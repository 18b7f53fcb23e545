#pragma once

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// charge_types = Long_Life, on machines whose firmware has one level of its own and no other.
class LongLife final : public Mechanism {
public:
    LongLife(Attributes& attributes, const std::string& batteryFolder);

    [[nodiscard]] static bool isPresent(const Attributes& attributes, const std::string& batteryFolder);

    [[nodiscard]] std::string_view name() const override { return "charge_types"; }

    [[nodiscard]] Setting read() const override;
    [[nodiscard]] Setting limitedTo(int percent, int batteryPercent) const override;
    [[nodiscard]] Setting lifted(const Setting& found) const override;
    [[nodiscard]] Setting restored(const Setting& found) const override;
    [[nodiscard]] Result<void> write(const Setting& setting) override;
    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> limit) const override;

private:
    Attributes& attributes_;
    std::string attribute_;
};

} // namespace quelby::limiter
