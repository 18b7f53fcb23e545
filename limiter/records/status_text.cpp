#include "limiter/records/status_text.h"

#include <nlohmann/json.hpp>

namespace quelby::limiter {

std::string encode(const DaemonStatus& status) {
    nlohmann::ordered_json record{{"daemonRunning", status.daemonRunning},
                                  {"chargingInhibited", status.chargingInhibited},
                                  {"calibrationActive", status.calibrationActive}};
    if (status.calibrationPhase) {
        record["calibrationPhase"] = *status.calibrationPhase;
    }
    record["batteryPercent"] = status.batteryPercent;
    record["lastUpdate"] = status.lastUpdate;
    return record.dump();
}

} // namespace quelby::limiter
