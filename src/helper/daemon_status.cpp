#include "helper/daemon_status.h"

#include "helper/json_record.h"

namespace quelby {

std::optional<DaemonStatus> decodeDaemonStatus(std::string_view text) {
    const auto record = JsonRecord::read(text);
    if (!record) {
        return std::nullopt;
    }
    const auto running = record->boolean("daemonRunning");
    const auto inhibited = record->boolean("chargingInhibited");
    const auto calibrating = record->boolean("calibrationActive");
    const auto phase = record->text("calibrationPhase");
    const auto percent = record->integer("batteryPercent");
    const auto update = record->number("lastUpdate");
    const bool phaseIsOfAnotherType = !phase && !record->lacks("calibrationPhase");
    if (!running || !inhibited || !calibrating || !percent || !update || phaseIsOfAnotherType) {
        return std::nullopt;
    }
    return DaemonStatus{.daemonRunning = *running,
                        .chargingInhibited = *inhibited,
                        .calibrationActive = *calibrating,
                        .calibrationPhase = phase,
                        .batteryPercent = *percent,
                        .lastUpdate = *update};
}

} // namespace quelby
