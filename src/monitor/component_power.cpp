#include "monitor/component_power.h"

#include <algorithm>

#include "base/arithmetic.h"

namespace quelby {

namespace {

constexpr double memoryWatts = 3.0;
constexpr double measuredStorageWatts = 1.5;
constexpr double networkWatts = 1.0;
constexpr double restOfSystemWatts = 5.0; // counted in the total, shown nowhere
constexpr double measurementFloor = 0.5;  // W; a battery power above it is a measurement

double cpuWeight(double load) {
    return load * 35 / 100 + 3.0;
}

double gpuWeight(double load) {
    return load * 12 / 100 + 1.0;
}

void splitMeasuredPower(PublishedFields& fields) {
    fields.totalPower = fields.realWatts.get();
    const double total = fields.totalPower;
    const double cpu = cpuWeight(fields.cpuUsage);
    const double gpu = gpuWeight(fields.cpuUsage);
    const double sum = cpu + gpu + memoryWatts + measuredStorageWatts + networkWatts + restOfSystemWatts;
    fields.cpuPower = total * cpu / sum;
    fields.gpuPower = total * gpu / sum;
    fields.memPower = total * memoryWatts / sum;
    fields.diskPower = total * measuredStorageWatts / sum;
    fields.netPower = total * networkWatts / sum;
    fields.chargePower = 0;
    fields.acTotal = 0;
}

// What a battery takes at this level, in whole watts: much when it is empty, little when it is nearly full.
Int estimatedChargeWatts(Int percent) {
    if (percent < 80) {
        return difference(80, percent) / 4 + 15;
    }
    if (percent < 95) {
        return 95 - percent + 3;
    }
    return std::max<Int>(difference(100, percent), 0) + 1;
}

void publishAdapterPower(PublishedFields& fields) {
    if (!fields.isPluggedIn || fields.fullyCharged) {
        fields.chargePower = 0;
        fields.acTotal = fields.isPluggedIn ? fields.totalPower.get() : 0;
        return;
    }
    fields.chargePower = fields.realWatts > measurementFloor
                             ? fields.realWatts.get()
                             : static_cast<double>(estimatedChargeWatts(fields.batteryPercent));
    fields.acTotal = fields.totalPower + fields.chargePower;
}

void estimatePower(PublishedFields& fields, StorageDraw& storageDraw) {
    fields.cpuPower = cpuWeight(fields.cpuUsage);
    fields.gpuPower = gpuWeight(fields.cpuUsage);
    fields.memPower = memoryWatts;
    fields.diskPower = 1 + storageDraw.draw();
    fields.netPower = networkWatts;
    fields.totalPower = fields.cpuPower + fields.gpuPower + fields.memPower + fields.diskPower +
                        fields.netPower + restOfSystemWatts;
    publishAdapterPower(fields);
}

// 100 for a machine that draws nothing, 0 from 50 W on.
Int efficiencyScore(double watts) {
    return std::clamp<Int>(difference(100, truncated(watts * 2)), 0, 100);
}

void extendTrend(PublishedFields& fields) {
    const double total = fields.totalPower;
    fields.powerHistory.change([&](auto& totals) { totals.push_back(total); });
    if (fields.powerHistory.get().size() > maxHistory) {
        fields.powerHistory.change([](auto& totals) { totals.erase(totals.begin()); });
    }
}

} // namespace

void calculatePower(PublishedFields& fields, StorageDraw& storageDraw) {
    if (!fields.isPluggedIn && fields.realWatts > measurementFloor) {
        splitMeasuredPower(fields);
    } else {
        estimatePower(fields, storageDraw);
    }
    fields.efficiency = efficiencyScore(fields.totalPower);
    extendTrend(fields);
}

} // namespace quelby
