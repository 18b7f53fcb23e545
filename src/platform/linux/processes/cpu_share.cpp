#include "platform/linux/processes/cpu_share.h"

#include <algorithm>

namespace quelby {

namespace {

// Over less, the rounding to whole ticks would be more than a tenth of a processor.
constexpr double leastMeasurableTicks = 10;

double shareOver(double elapsedTicks, double usedTicks, const CpuScale& scale) {
    const double mostPercent = 100.0 * static_cast<double>(scale.logicalProcessors);
    return std::min(100.0 * usedTicks / elapsedTicks, mostPercent);
}

double lifetimeAverage(const CpuCounters& counters, const ScanTime& scan, const CpuScale& scale) {
    const double ageTicks =
        scan.uptimeSeconds * scale.ticksPerSecond - static_cast<double>(counters.startTicks);
    return ageTicks >= 1 ? shareOver(ageTicks, static_cast<double>(counters.usedTicks), scale) : 0;
}

} // namespace

void CpuShare::update(const CpuCounters& counters, const ScanTime& scan, const CpuScale& scale) {
    const bool known = baseline_ && baseline_->counters.startTicks == counters.startTicks;
    if (!known) {
        percent_ = lifetimeAverage(counters, scan, scale);
        baseline_ = {counters, scan.monotonicSeconds};
        return;
    }
    const double elapsedTicks = (scan.monotonicSeconds - baseline_->monotonicSeconds) * scale.ticksPerSecond;
    if (elapsedTicks >= 0 && elapsedTicks < leastMeasurableTicks) {
        return;
    }
    if (elapsedTicks > 0) {
        const auto before = std::min(baseline_->counters.usedTicks, counters.usedTicks);
        percent_ = shareOver(elapsedTicks, static_cast<double>(counters.usedTicks - before), scale);
    }
    baseline_ = {counters, scan.monotonicSeconds};
}

} // namespace quelby
