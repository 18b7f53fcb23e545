// A recorded machine in place of this one.
#pragma once

#include "base/cycle_interval.h"
#include "base/problem.h"
#include "platform/battery_source.h"
#include "platform/clock.h"
#include "platform/helper_installer.h"
#include "platform/process_lister.h"
#include "platform/random_storage_draw.h"
#include "platform/replay/recording_reader.h"

namespace quelby {

// What follows the last line: nothing more, or the first one again, the clock running on.
enum class AfterLastLine { stay, startAgain };

// It answers everything from one line of the recording, and its clock stands still at that line's time.
// Reading the battery is how a cycle begins, so that is what goes on to the next line: the first reading
// belongs to the first line.
class ReplayedMachine final : public BatterySource,
                              public ProcessLister,
                              public Clock,
                              public HelperInstaller,
                              public StorageDraw {
public:
    [[nodiscard]] static Result<ReplayedMachine> open(const std::filesystem::path& recording,
                                                      AfterLastLine afterLastLine = AfterLastLine::stay);

    // The cycle of the last line is under way or done; never where it starts again.
    [[nodiscard]] bool isAtLastLine() const;

    [[nodiscard]] BatteryReading readBattery() override;

    [[nodiscard]] std::optional<std::string> cpuListing() override { return present_.cpuListing; }

    [[nodiscard]] std::optional<std::string> topListing() override { return present_.topListing; }

    [[nodiscard]] std::optional<std::string> applicationListing() override {
        return present_.applicationListing;
    }

    [[nodiscard]] std::int64_t logicalProcessors() override { return present_.processors; }

    [[nodiscard]] Date now() override { return present_.time + clockAdvance_; }

    [[nodiscard]] Date startOfDay() override;

    [[nodiscard]] std::optional<TimeSinceBoot> sinceBoot() override { return present_.sinceBoot; }

    // The text of the helper's status.json, where there was one.
    [[nodiscard]] const std::optional<std::string>& helperStatus() const { return present_.status; }

    // Likewise of its config.json.
    [[nodiscard]] const std::optional<std::string>& helperConfig() const { return present_.config; }

    [[nodiscard]] bool isLoaded() override { return present_.helperLoaded; }

    [[nodiscard]] std::optional<PackageManager> packageManager() override { return std::nullopt; }

    // Nobody is asked for a password, and nothing is changed.
    [[nodiscard]] Result<void> install() override;

    [[nodiscard]] Result<void> uninstall() override { return install(); }

    [[nodiscard]] Result<void> uninstallEverything() override { return install(); }

    // Where nothing was recorded, the same draws come at every replay.
    [[nodiscard]] int draw() override;

private:
    ReplayedMachine(RecordingReader reader, RecordedCycle first, AfterLastLine afterLastLine);

    void goOn();

    RecordingReader reader_;
    AfterLastLine afterLastLine_;
    double firstTime_;
    RecordedCycle present_;
    std::optional<RecordedCycle> next_;
    bool started_ = false;
    double clockAdvance_ = 0; // seconds that the clock is ahead of the lines' times
    double lastStep_ = static_cast<double>(cycleInterval.count()); // seconds between the last two lines
    RandomStorageDraw unrecordedDraws_{1};
};

} // namespace quelby
