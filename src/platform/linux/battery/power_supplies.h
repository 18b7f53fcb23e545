// What /sys/class/power_supply says, as it says it. The attributes, with their units and their meaning, are
// those of the kernel's Documentation/power/power_supply_class.rst and
// Documentation/ABI/testing/sysfs-class-power.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/battery/external_power.h"

namespace quelby {

using RawNumber = std::optional<std::int64_t>;

// charge_now, charge_full, charge_full_design in µAh, or energy_... in µWh. Signs, zeros and sentinels are
// still those of the driver.
struct RawCapacity {
    RawNumber now;
    RawNumber full;
    RawNumber fullDesign;
};

// One battery. Each member is the attribute of its name; nothing if it could not be read or is not needed
// beside the others (some gauges take milliseconds to answer for one attribute).
struct RawPack {
    std::optional<std::string> status; // in small letters
    RawCapacity charge;
    RawCapacity energy;         // not needed beside a charge that is enough
    RawNumber capacity;         // %
    RawNumber voltageNow;       // µV
    RawNumber voltageAvg;       // µV
    RawNumber voltageMinDesign; // µV
    RawNumber voltageMaxDesign; // µV
    RawNumber currentNow;       // µA
    RawNumber powerNow;         // µW
    RawNumber currentAvg;       // µA; the averages are not needed beside a present value
    RawNumber powerAvg;         // µW
    RawNumber temp;             // tenths of a degree Celsius
    RawNumber cycleCount;
    RawNumber timeToEmptyNow;            // seconds; needed while discharging only
    RawNumber timeToFullNow;             // seconds; needed while charging only
    RawNumber chargeControlEndThreshold; // %; needed only of a pack that may be held

    // The charge says how much of how much, with the help of the percentage or of the design.
    [[nodiscard]] bool isChargeEnough() const;
};

struct PowerSupplies {
    std::vector<RawPack> packs; // in the order of their names: BAT2 before BAT10
    std::vector<Adapter> adapters;
};

// Batteries that are present and belong to the computer, and adapters that tell whether they are online. The
// batteries of mice, headsets and gamepads (scope Device) and uninterruptible power supplies are neither.
// A folder that is missing is an empty one.
[[nodiscard]] PowerSupplies readPowerSupplies(const std::filesystem::path& folder);

} // namespace quelby
