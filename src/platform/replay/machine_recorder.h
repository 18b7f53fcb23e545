// Listens to what a monitor asks of a machine, so that it can be played back.
#pragma once

#include "platform/platform.h"
#include "platform/replay/recorded_cycle.h"

namespace quelby {

// The platform that it offers passes every question on to the real one and notes the answer.
class MachineRecorder final : BatterySource,
                              ProcessLister,
                              Clock,
                              HelperFolder,
                              HelperInstaller,
                              StorageDraw {
public:
    // The real platform's parts outlive the recorder.
    explicit MachineRecorder(const Platform& real) : real_(real) {}

    [[nodiscard]] Platform platform() {
        auto platform = real_;
        platform.battery = *this;
        platform.processes = *this;
        platform.clock = *this;
        platform.helperFolder = *this;
        platform.helperInstaller = *this;
        platform.storageDraw = *this;
        return platform;
    }

    // The answers since the last call: those of one cycle, if called at the end of each.
    [[nodiscard]] RecordedCycle takeCycle();

private:
    BatteryReading readBattery() override;
    std::optional<std::string> cpuListing() override;
    std::optional<std::string> topListing() override;
    std::int64_t logicalProcessors() override;
    Date now() override;
    Date startOfDay() override;
    std::optional<std::string> applicationListing() override;
    std::optional<TimeSinceBoot> sinceBoot() override;
    std::optional<std::string> config() override;
    std::optional<std::string> status() override;

    bool configChanged() override { return real_.helperFolder->configChanged(); }

    std::optional<std::string> details() override { return real_.helperFolder->details(); }

    bool detailsChanged() override { return real_.helperFolder->detailsChanged(); }

    Result<void> replaceConfig(std::string_view text) override {
        return real_.helperFolder->replaceConfig(text);
    }

    bool isLoaded() override;

    std::optional<PackageManager> packageManager() override {
        return real_.helperInstaller->packageManager();
    }

    Result<void> install() override { return real_.helperInstaller->install(); }

    Result<void> uninstall() override { return real_.helperInstaller->uninstall(); }

    Result<void> uninstallEverything() override { return real_.helperInstaller->uninstallEverything(); }

    int draw() override;

    Platform real_;
    RecordedCycle cycle_;
    // As they were told last, which holds for every cycle until they are asked for again.
    bool helperLoaded_ = false;
    std::optional<std::string> config_;
};

} // namespace quelby
