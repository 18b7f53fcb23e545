#pragma once

#include <vector>

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// An attribute of a maker's own driver that takes one of a few levels, the highest of which is no limit.
class CareLevels final : public Mechanism {
public:
    CareLevels(Attributes& attributes, std::string attribute, std::string name, std::vector<int> levels);

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
    std::vector<int> levels_; // %, rising
};

} // namespace quelby::limiter
