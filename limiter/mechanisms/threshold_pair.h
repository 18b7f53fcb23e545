#pragma once

#include <chrono>
#include <functional>

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

using Pause = std::function<void(std::chrono::milliseconds)>;

// Huawei's one file with both levels, "75 80", which the firmware takes together.
class ThresholdPair final : public Mechanism {
public:
    static constexpr const char* attribute = "devices/platform/huawei-wmi/charge_control_thresholds";

    ThresholdPair(Attributes& attributes, Pause pause) : attributes_(attributes), pause_(std::move(pause)) {}

    [[nodiscard]] std::string_view name() const override { return "charge_control_thresholds"; }

    [[nodiscard]] Setting read() const override;
    [[nodiscard]] Setting limitedTo(int percent, int batteryPercent) const override;
    [[nodiscard]] Setting lifted(const Setting& found) const override;
    [[nodiscard]] Setting restored(const Setting& found) const override;
    [[nodiscard]] Result<void> write(const Setting& setting) override;
    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> limit) const override;

private:
    Attributes& attributes_;
    Pause pause_;
};

} // namespace quelby::limiter
