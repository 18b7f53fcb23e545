#include "platform/replay/machine_recorder.h"

#include <utility>

namespace quelby {

RecordedCycle MachineRecorder::takeCycle() {
    // Asked for here, because a cycle whose lister fails does not ask, nor one that keeps no history.
    cycle_.processors = real_.processes->logicalProcessors();
    cycle_.applicationListing = real_.processes->applicationListing();
    cycle_.sinceBoot = real_.clock->sinceBoot();
    cycle_.helperLoaded = helperLoaded_;
    cycle_.config = config_;
    return std::exchange(cycle_, {});
}

BatteryReading MachineRecorder::readBattery() {
    return cycle_.battery = real_.battery->readBattery();
}

std::optional<std::string> MachineRecorder::cpuListing() {
    return cycle_.cpuListing = real_.processes->cpuListing();
}

std::optional<std::string> MachineRecorder::topListing() {
    return cycle_.topListing = real_.processes->topListing();
}

std::optional<std::string> MachineRecorder::applicationListing() {
    return real_.processes->applicationListing();
}

std::optional<TimeSinceBoot> MachineRecorder::sinceBoot() {
    return real_.clock->sinceBoot();
}

std::int64_t MachineRecorder::logicalProcessors() {
    return real_.processes->logicalProcessors();
}

Date MachineRecorder::now() {
    return cycle_.time = real_.clock->now();
}

Date MachineRecorder::startOfDay() {
    return real_.clock->startOfDay();
}

int MachineRecorder::draw() {
    const int drawn = real_.storageDraw->draw();
    cycle_.storageDraw = drawn;
    return drawn;
}

std::optional<std::string> MachineRecorder::config() {
    return config_ = real_.helperFolder->config();
}

std::optional<std::string> MachineRecorder::status() {
    return cycle_.status = real_.helperFolder->status();
}

bool MachineRecorder::isLoaded() {
    return helperLoaded_ = real_.helperInstaller->isLoaded();
}

} // namespace quelby
