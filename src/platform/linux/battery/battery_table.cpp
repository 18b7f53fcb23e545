#include "platform/linux/battery/battery_table.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "platform/linux/battery/combined_pack.h"
#include "platform/linux/battery/whole_capacity.h"

namespace quelby {

namespace {

// Firmware ends a charge within one percent of where it should, and then says neither Full nor Charging.
constexpr int endOfUnlimitedCharge = 99; // %

void put(PropertyTable& table, const char* key, std::optional<std::int64_t> value) {
    if (value) {
        table.emplace(key, *value);
    }
}

std::optional<std::int64_t> rounded(std::optional<double> value, double factor) {
    return value ? std::optional<std::int64_t>(std::llround(*value * factor)) : std::nullopt;
}

// Readers take what is above 30000 mA for a negative number; nearly right is better than the other direction.
std::optional<std::int64_t> readableMilliamperes(const PackFlow& flow) {
    const auto milliamperes = rounded(flow.milliamperes, 1);
    return milliamperes ? std::optional(std::min<std::int64_t>(*milliamperes, 30'000)) : std::nullopt;
}

void putCapacity(PropertyTable& table, const BatteryPack& pack) {
    const auto capacity = wholeCapacity(inMilliampereHours(pack.content, pack.referenceVolts));
    put(table, "DesignCapacity", capacity.design);
    put(table, "AppleRawMaxCapacity", capacity.full);
    put(table, "AppleRawCurrentCapacity",
        capacity.percent ? capacity.remaining.value_or(0) : capacity.remaining);
    put(table, "CurrentCapacity", capacity.percent);
}

void putState(PropertyTable& table, const BatteryPack& pack) {
    put(table, "CycleCount", pack.cycles);
    put(table, "InstantAmperage", readableMilliamperes(pack.flow));
    put(table, "Voltage", rounded(pack.volts, 1000));
    put(table, "Temperature", pack.centidegrees);
    if (pack.minutesLeft) {
        put(table, "TimeRemaining", static_cast<std::int64_t>(*pack.minutesLeft));
    }
}

// A battery that a limit holds is not full, however close to full the limit is.
bool isFull(const BatteryPack& pack, bool isExternalConnected) {
    const bool idle = pack.status == PackStatus::Unknown || pack.status == PackStatus::NotCharging;
    const int end = pack.endThreshold ? 100 : endOfUnlimitedCharge;
    const bool charged = idle && isExternalConnected && pack.content.percent.value_or(0) >= end;
    return pack.status == PackStatus::Full || charged;
}

std::vector<PackStatus> statusesOf(const std::vector<BatteryPack>& packs) {
    std::vector<PackStatus> statuses(packs.size());
    std::transform(packs.begin(), packs.end(), statuses.begin(), std::mem_fn(&BatteryPack::status));
    return statuses;
}

} // namespace

PropertyTable propertyTable(const std::vector<BatteryPack>& packs, const std::vector<Adapter>& adapters) {
    PropertyTable table;
    const auto statuses = statusesOf(packs);
    const bool external = isExternalConnected(adapters, statuses);
    const auto full = [external](const BatteryPack& pack) { return isFull(pack, external); };
    table["IsCharging"] = std::find(statuses.begin(), statuses.end(), PackStatus::Charging) != statuses.end();
    table["ExternalConnected"] = external;
    table["FullyCharged"] = std::all_of(packs.begin(), packs.end(), full);
    const auto whole = combined(packs);
    putCapacity(table, whole);
    putState(table, whole);
    return table;
}

} // namespace quelby
