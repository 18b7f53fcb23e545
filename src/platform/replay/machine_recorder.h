// Listens to what a monitor asks of a machine, so that it can be played back.
#pragma once

#include "platform/platform.h"
#include "platform/replay/recorded_cycle.h"

namespace quelby {

// The platform that it offers passes every question on to the real one and notes the answer.
class MachineRecorder final : BatterySource, ProcessLister, Clock, HelperFolder, ServiceManager, StorageDraw {
public:
    // The real platform's parts outlive the recorder.
    explicit MachineRecorder(const Platform& real) : real_(real) {}

    [[nodiscard]] Platform platform() {
        return {.battery = *this,
                .processes = *this,
                .clock = *this,
                .folders = real_.folders,
                .helperFolder = *this,
                .loginItem = real_.loginItem,
                .runLoop = real_.runLoop,
                .preferences = real_.preferences,
                .privilegedShell = real_.privilegedShell,
                .serviceManager = *this,
                .storageDraw = *this};
    }

    // The answers since the last call: those of one cycle, if called at the end of each.
    [[nodiscard]] RecordedCycle takeCycle();

private:
    BatteryReading readBattery() override;
    std::optional<std::string> cpuListing() override;
    std::optional<std::string> topListing() override;
    std::int64_t logicalProcessors() override;
    double now() override;
    double startOfDay() override;
    std::optional<std::string> config() override;
    std::optional<std::string> status() override;
    void replaceConfig(std::string_view text) override;
    bool isHelperLoaded() override;
    int draw() override;

    Platform real_;
    RecordedCycle cycle_;
    // As they were told last, mostly at the start, which holds for every cycle from then on.
    bool helperLoaded_ = false;
    std::optional<std::string> config_;
};

} // namespace quelby
