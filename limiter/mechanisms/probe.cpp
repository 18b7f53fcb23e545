#include "limiter/mechanisms/probe.h"

#include "limiter/mechanisms/care_levels.h"
#include "limiter/mechanisms/firmware_switch.h"
#include "limiter/mechanisms/inhibition.h"
#include "limiter/mechanisms/long_life.h"
#include "limiter/mechanisms/thresholds.h"

namespace quelby::limiter {

namespace {

// Lenovo's, on the platform device that its driver binds.
std::unique_ptr<Mechanism> conservationMode(Attributes& attributes) {
    const std::string driver = "bus/platform/drivers/ideapad_acpi";
    for (const auto& device : attributes.names(driver)) {
        const auto attribute = driver + '/' + device + "/conservation_mode";
        if (attributes.exists(attribute)) {
            return firmwareSwitch(attributes, attribute, "conservation_mode", std::nullopt);
        }
    }
    return nullptr;
}

std::unique_ptr<Mechanism> ofAnyCharger(Attributes& attributes, const PowerSupplies& supplies) {
    for (const auto& folder : supplies.chargerFolders) {
        if (Thresholds::arePresent(attributes, folder)) {
            return std::make_unique<Thresholds>(attributes, folder);
        }
    }
    return nullptr;
}

std::unique_ptr<Mechanism> ofTheMachine(Attributes& attributes, const PowerSupplies& supplies) {
    if (auto charger = ofAnyCharger(attributes, supplies)) {
        return charger;
    }
    if (auto conservation = conservationMode(attributes)) {
        return conservation;
    }
    if (const std::string samsung = "devices/platform/samsung/battery_life_extender";
        attributes.exists(samsung)) {
        return firmwareSwitch(attributes, samsung, "battery_life_extender", 80);
    }
    if (const std::string sony = "devices/platform/sony-laptop/battery_care_limiter";
        attributes.exists(sony)) {
        return careLevels(attributes, sony, "battery_care_limiter", std::vector{50, 80, 100});
    }
    return nullptr;
}

} // namespace

std::unique_ptr<Mechanism> probe(Attributes& attributes, const PowerSupplies& supplies,
                                 const Battery& battery, const Pause& pause) {
    const bool isFirst = !supplies.batteries.empty() && supplies.batteries.front().name == battery.name;
    if (isFirst && attributes.exists(ThresholdPair::attribute)) {
        return std::make_unique<ThresholdPair>(attributes, pause);
    }
    if (Thresholds::arePresent(attributes, battery.folder)) {
        return std::make_unique<Thresholds>(attributes, battery.folder);
    }
    if (auto mechanism = longLife(attributes, battery.folder)) {
        return mechanism;
    }
    if (isFirst) {
        if (auto mechanism = ofTheMachine(attributes, supplies)) {
            return mechanism;
        }
    }
    return inhibition(attributes, battery.folder);
}

} // namespace quelby::limiter
