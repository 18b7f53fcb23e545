#include "platform/linux/battery/power_supplies.h"

#include <algorithm>
#include <memory>

#include <dirent.h>

#include "platform/linux/battery/attribute_folder.h"
#include "platform/linux/battery/natural_order.h"

namespace quelby {

namespace {

struct CloseDirectory {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

// Not by the iterator of the standard library, which ends the program where there is no memory for it.
std::vector<std::string> namesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, CloseDirectory> directory(::opendir(folder.c_str()));
    while (const auto* const entry = directory ? ::readdir(directory.get()) : nullptr) {
        if (entry->d_name[0] != '.') { // the folder itself, and the one above
            names.emplace_back(entry->d_name);
        }
    }
    std::sort(names.begin(), names.end(), comesBefore);
    return names;
}

void readRate(const AttributeFolder& supply, RawPack& pack) {
    pack.currentNow = supply.number("current_now");
    pack.powerNow = supply.number("power_now");
    if (!pack.currentNow && !pack.powerNow) {
        pack.currentAvg = supply.number("current_avg");
        pack.powerAvg = supply.number("power_avg");
    }
}

void readTimes(const AttributeFolder& supply, RawPack& pack) {
    if (pack.status == "discharging") {
        pack.timeToEmptyNow = supply.number("time_to_empty_now");
    } else if (pack.status == "charging") {
        pack.timeToFullNow = supply.number("time_to_full_now");
    }
}

// A pack that charges, discharges or is full answers already whether something holds it.
void readEndThreshold(const AttributeFolder& supply, RawPack& pack) {
    if (!pack.status || pack.status == "not charging" || pack.status == "unknown") {
        pack.chargeControlEndThreshold = supply.number("charge_control_end_threshold");
    }
}

void readVoltages(const AttributeFolder& supply, RawPack& pack) {
    pack.voltageNow = supply.number("voltage_now");
    pack.voltageAvg = supply.number("voltage_avg");
    pack.voltageMinDesign = supply.number("voltage_min_design");
    pack.voltageMaxDesign = supply.number("voltage_max_design");
}

void readCapacities(const AttributeFolder& supply, RawPack& pack) {
    pack.capacity = supply.number("capacity");
    pack.charge = {supply.number("charge_now"), supply.number("charge_full"),
                   supply.number("charge_full_design")};
    if (!pack.isChargeEnough()) {
        pack.energy = {supply.number("energy_now"), supply.number("energy_full"),
                       supply.number("energy_full_design")};
    }
}

RawPack readPack(const AttributeFolder& supply) {
    RawPack pack;
    pack.status = supply.word("status");
    pack.temp = supply.number("temp");
    pack.cycleCount = supply.number("cycle_count");
    readCapacities(supply, pack);
    readVoltages(supply, pack);
    readRate(supply, pack);
    readTimes(supply, pack);
    readEndThreshold(supply, pack);
    return pack;
}

void readAdapter(const AttributeFolder& supply, const std::string& type, PowerSupplies& supplies) {
    // Above 1 stands for a negotiated voltage.
    if (const auto online = supply.number("online")) {
        supplies.adapters.push_back({type == "mains" ? AdapterKind::Mains : AdapterKind::Other, *online > 0});
    }
}

void readSupply(const AttributeFolder& supply, PowerSupplies& supplies) {
    const auto type = supply.word("type");
    if (!type || type == "ups" || supply.word("scope") == "device") {
        return;
    }
    if (type != "battery") {
        readAdapter(supply, *type, supplies);
    } else if (supply.number("present") != 0) {
        supplies.packs.push_back(readPack(supply));
    }
}

} // namespace

bool RawPack::isChargeEnough() const {
    const bool saysNow = charge.now.value_or(-1) >= 0;
    if (charge.full.value_or(0) > 0) {
        return saysNow || capacity;
    }
    return saysNow && charge.fullDesign.value_or(0) > 0;
}

PowerSupplies readPowerSupplies(const std::filesystem::path& folder) {
    PowerSupplies supplies;
    for (const auto& name : namesIn(folder)) {
        const AttributeFolder supply(folder / name);
        if (supply.isOpen()) {
            readSupply(supply, supplies);
        }
    }
    return supplies;
}

} // namespace quelby
