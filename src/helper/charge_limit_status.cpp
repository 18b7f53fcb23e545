#include "helper/charge_limit_status.h"

#include <fmt/format.h>

#include "base/arithmetic.h"

namespace quelby {

std::string chargeLimitStatus(const ChargeLimitSituation& situation) {
    const auto limit = truncated(situation.chargeLimitPercent);
    if (situation.calibrationActive) {
        return "Calibrating: " + situation.calibrationPhase.value_or("in progress");
    }
    if (situation.chargingInhibited) {
        return fmt::format("Holding at {}%", limit);
    }
    if (!situation.chargeLimitEnabled) {
        return "";
    }
    if (!situation.isPluggedIn) {
        return "Waiting for charger";
    }
    return situation.batteryPercent < limit ? fmt::format("Charging to {}%", limit) : "";
}

} // namespace quelby
