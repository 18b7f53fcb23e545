#pragma once

#include <filesystem>

#include "platform/battery_source.h"

namespace quelby {

// The battery of a Linux computer, from class/power_supply below the sysfs root. Everything is read anew each
// time: packs, mice and adapters come and go.
//
// A battery of which nothing can be read is unreadable if it has answered before: for the moments after a
// sleep in which firmware answers nothing, the old values are nearer to the truth than a table without any,
// which reads as 0 %. If it has never answered there are no old values, and the table tells what the adapters
// say. A pack that does not answer beside one that does is left out.
class SysfsBatterySource final : public BatterySource {
public:
    explicit SysfsBatterySource(const std::filesystem::path& sysfsRoot);

    [[nodiscard]] BatteryReading readBattery() override;

private:
    std::filesystem::path folder_;
    bool hasAnswered_ = false;
};

} // namespace quelby
