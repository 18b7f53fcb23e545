#include "limiter/kernel/power_supplies.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"

namespace quelby::limiter {

namespace {

struct Adapter {
    bool isMains = false;
    bool isOnline = false;
};

std::string textOf(const Attributes& attributes, const std::string& folder, const char* name) {
    return attributes.read(folder + '/' + name).value_or("");
}

std::optional<double> numberOf(const Attributes& attributes, const std::string& folder, const char* name) {
    return decimalNumber(textOf(attributes, folder, name));
}

Charging chargingOf(const std::string& status) {
    if (status == "Charging") {
        return Charging::charging;
    }
    if (status == "Discharging") {
        return Charging::discharging;
    }
    if (status == "Not charging") {
        return Charging::notCharging;
    }
    return status == "Full" ? Charging::full : Charging::unknown;
}

std::optional<int> percentFrom(std::optional<double> percent) {
    if (!percent) {
        return std::nullopt;
    }
    return static_cast<int>(std::clamp(*percent, 0.0, 100.0));
}

Battery readBattery(const Attributes& attributes, const std::string& name, const std::string& folder) {
    Battery battery{.name = name, .folder = folder};
    battery.charging = chargingOf(textOf(attributes, folder, "status"));
    for (const char* const family : {"energy", "charge"}) {
        const auto now = numberOf(attributes, folder, (std::string(family) + "_now").c_str());
        const auto full = numberOf(attributes, folder, (std::string(family) + "_full").c_str());
        if (!battery.full && now && full && *full > 0) {
            battery.now = now;
            battery.full = full;
            battery.countsEnergy = std::string_view(family) == "energy";
        }
    }
    battery.percent = percentFrom(numberOf(attributes, folder, "capacity"));
    if (!battery.percent && battery.full) {
        battery.percent = percentFrom(100 * *battery.now / *battery.full);
    }
    const auto power = numberOf(attributes, folder, "power_now");
    const auto current = numberOf(attributes, folder, "current_now");
    battery.flowsNot = (power || current) && power.value_or(0) == 0 && current.value_or(0) == 0;
    return battery;
}

bool any(const std::vector<Battery>& batteries, Charging charging) {
    return std::any_of(batteries.begin(), batteries.end(),
                       [&](const Battery& battery) { return battery.charging == charging; });
}

bool any(const std::vector<Adapter>& adapters, bool isMains, bool isOnline) {
    return std::any_of(adapters.begin(), adapters.end(), [&](const Adapter& adapter) {
        return adapter.isMains == isMains && adapter.isOnline == isOnline;
    });
}

bool isFed(const std::vector<Adapter>& adapters, const std::vector<Battery>& batteries) {
    if (any(adapters, true, true)) {
        return true;
    }
    if (any(adapters, false, true)) {
        // A port is online also while it feeds a phone.
        return !any(adapters, true, false) || !any(batteries, Charging::discharging);
    }
    if (!adapters.empty()) {
        return any(batteries, Charging::charging); // from an adapter that never says so
    }
    return any(batteries, Charging::charging) || any(batteries, Charging::full) ||
           (any(batteries, Charging::notCharging) && !any(batteries, Charging::discharging));
}

} // namespace

bool Battery::isTakingNone() const {
    switch (charging) {
    case Charging::charging:
    case Charging::unknown:
        return flowsNot;
    case Charging::discharging:
    case Charging::notCharging:
    case Charging::full:
        return true;
    }
    return false;
}

int PowerSupplies::percent() const {
    double now = 0;
    double full = 0;
    int percents = 0;
    int known = 0;
    for (const auto& battery : batteries) {
        now += battery.now.value_or(0);
        full += battery.full.value_or(0);
        percents += battery.percent.value_or(0);
        known += battery.percent ? 1 : 0;
    }
    const bool canBeSummed = std::all_of(batteries.begin(), batteries.end(), [&](const Battery& one) {
        return one.full && one.countsEnergy == batteries.front().countsEnergy;
    });
    if (batteries.size() > 1 && canBeSummed) {
        return static_cast<int>(std::clamp(100 * now / full, 0.0, 100.0));
    }
    return known == 0 ? 0 : percents / known;
}

PowerSupplies readPowerSupplies(const Attributes& attributes) {
    PowerSupplies supplies;
    std::vector<Adapter> adapters;
    for (const auto& name : attributes.names(powerSupplyFolder)) {
        const auto folder = std::string(powerSupplyFolder) + '/' + name;
        const auto type = textOf(attributes, folder, "type");
        // Not what a mouse or a headset has, nor what stands beside the computer.
        if (type.empty() || type == "UPS" || textOf(attributes, folder, "scope") == "Device") {
            continue;
        }
        if (type == "Battery") {
            if (textOf(attributes, folder, "present") != "0") {
                supplies.batteries.push_back(readBattery(attributes, name, folder));
            }
            continue;
        }
        supplies.chargerFolders.push_back(folder);
        if (const auto online = numberOf(attributes, folder, "online")) {
            adapters.push_back({.isMains = type == "Mains", .isOnline = *online > 0});
        }
    }
    supplies.externalPower = isFed(adapters, supplies.batteries);
    return supplies;
}

} // namespace quelby::limiter
