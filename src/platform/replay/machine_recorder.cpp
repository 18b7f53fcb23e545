#include "platform/replay/machine_recorder.h"

#include <utility>

namespace quelby {

RecordedCycle MachineRecorder::takeCycle() {
    // Asked for here, because a cycle whose lister fails does not ask.
    cycle_.processors = real_.processes->logicalProcessors();
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
