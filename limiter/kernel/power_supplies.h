// What the kernel tells of this computer's batteries and of what feeds it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "limiter/kernel/attributes.h"

namespace quelby::limiter {

inline constexpr const char* powerSupplyFolder = "class/power_supply";

enum class Charging { unknown, charging, discharging, notCharging, full };

struct Battery {
    std::string name;   // "BAT0"
    std::string folder; // of its attributes
    Charging charging = Charging::unknown;
    std::optional<int> percent; // of full charge, 0 to 100
    std::optional<double> now;  // charge or energy, in the kernel's unit
    std::optional<double> full; // likewise
    bool countsEnergy = false;  // which of the two
    bool flowsNot = false;      // its current or power is told, and is 0

    // No charge goes into it, as far as can be told.
    [[nodiscard]] bool isTakingNone() const;
};

struct PowerSupplies {
    std::vector<Battery> batteries;          // the computer's own that are present
    std::vector<std::string> chargerFolders; // of all other supplies
    bool externalPower = false;

    // Of all batteries together; 0 without one.
    [[nodiscard]] int percent() const;
};

[[nodiscard]] PowerSupplies readPowerSupplies(const Attributes& attributes);

} // namespace quelby::limiter
