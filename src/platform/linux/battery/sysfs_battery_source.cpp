#include "platform/linux/battery/sysfs_battery_source.h"

#include <algorithm>
#include <array>

#include <fcntl.h>

#include "platform/linux/battery/battery_table.h"
#include "platform/linux/battery/power_supplies.h"
#include "platform/posix/file_descriptor.h"

namespace quelby {

namespace {

// Those that answer, or all if none does.
std::vector<BatteryPack> packsThatCount(const std::vector<RawPack>& rawPacks) {
    std::vector<BatteryPack> packs;
    std::transform(rawPacks.begin(), rawPacks.end(), std::back_inserter(packs), packFrom);
    const auto silent = std::stable_partition(packs.begin(), packs.end(),
                                              [](const BatteryPack& pack) { return pack.answers; });
    if (silent != packs.begin()) {
        packs.erase(silent, packs.end());
    }
    return packs;
}

// For the folder, a supply, and an attribute.
bool areDescriptorsLeft() {
    std::array<FileDescriptor, 3> taken;
    return std::all_of(taken.begin(), taken.end(), [](FileDescriptor& one) {
        one = FileDescriptor(::open("/", O_PATH | O_CLOEXEC));
        return one.isOpen();
    });
}

} // namespace

SysfsBatterySource::SysfsBatterySource(const std::filesystem::path& sysfsRoot)
    : folder_(sysfsRoot / "class" / "power_supply") {}

BatteryReading SysfsBatterySource::readBattery() {
    if (hasAnswered_ && !areDescriptorsLeft()) {
        return UnreadableBattery{}; // and not one that was taken out, or tells a half
    }
    const auto supplies = readPowerSupplies(folder_);
    const auto packs = packsThatCount(supplies.packs);
    if (packs.empty()) {
        hasAnswered_ = false;
        return NoBattery{};
    }
    const bool answers = packs.front().answers;
    if (hasAnswered_ && !answers) {
        return UnreadableBattery{};
    }
    hasAnswered_ = answers;
    return propertyTable(packs, supplies.adapters);
}

} // namespace quelby
