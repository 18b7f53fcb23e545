#pragma once

#include <system_error>
#include <vector>

#include "limiter/kernel/attributes.h"
#include "limiter/mechanisms/mechanism.h"

namespace quelby::limiter {

// The kernel's charge_control_end_threshold, with charge_control_start_threshold where there is one, and with
// charge_types (or the older charge_type) = Custom where the thresholds count only then.
//
// The battery begins to charge again some percent below the limit: as near as hardware that keeps the two
// apart allows, so that raising the limit is followed by charging.
class Thresholds final : public Mechanism {
public:
    // The folder of the battery, or of the charger that has the attributes.
    Thresholds(Attributes& attributes, std::string folder);

    // Whether there are such attributes; reading them may still fail until they are first written.
    [[nodiscard]] static bool arePresent(const Attributes& attributes, const std::string& folder);

    [[nodiscard]] std::string_view name() const override { return "thresholds"; }

    [[nodiscard]] Setting read() const override;
    [[nodiscard]] Setting limitedTo(int percent, int batteryPercent) const override;
    [[nodiscard]] Setting lifted(const Setting& found) const override;
    [[nodiscard]] Setting restored(const Setting& found) const override;
    [[nodiscard]] Result<void> write(const Setting& setting) override;
    [[nodiscard]] Level levelOf(const Setting& setting, std::optional<int> limit) const override;

private:
    struct ModeAttribute {
        std::string path;
        bool isNeeded = false; // it lists the mode in which thresholds count
    };

    [[nodiscard]] std::optional<ModeAttribute> modeAttribute() const;
    [[nodiscard]] Result<void> writeMode(const Setting& setting);
    [[nodiscard]] Result<void> writeLevels(const Setting& setting);
    [[nodiscard]] std::error_code writeEnd(int percent);
    [[nodiscard]] std::error_code writeStart(std::optional<int> percent);
    [[nodiscard]] std::error_code writeAcceptedEnd(int percent);
    [[nodiscard]] bool endSettlesAt(int percent) const;

    Attributes& attributes_;
    std::string folder_;
    std::string end_;
    std::string start_;
};

} // namespace quelby::limiter
