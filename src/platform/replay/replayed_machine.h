// A recorded machine in place of this one.
#pragma once

#include "base/problem.h"
#include "platform/battery_source.h"
#include "platform/clock.h"
#include "platform/process_lister.h"
#include "platform/random_storage_draw.h"
#include "platform/replay/recording_reader.h"

namespace quelby {

// It answers everything from one line of the recording, and its clock stands still at that line's time.
// Reading the battery is how a cycle begins, so that is what goes on to the next line: the first reading
// belongs to the first line. After the last line it stays there.
class ReplayedMachine final : public BatterySource, public ProcessLister, public Clock, public StorageDraw {
public:
    [[nodiscard]] static Result<ReplayedMachine> open(const std::filesystem::path& recording);

    // The cycle of the last line is under way or done.
    [[nodiscard]] bool isAtLastLine() const { return started_ && !next_; }

    [[nodiscard]] BatteryReading readBattery() override;

    [[nodiscard]] std::optional<std::string> cpuListing() override { return present_.cpuListing; }

    [[nodiscard]] std::optional<std::string> topListing() override { return present_.topListing; }

    [[nodiscard]] std::int64_t logicalProcessors() override { return present_.processors; }

    [[nodiscard]] double now() override { return present_.time; }

    [[nodiscard]] double startOfDay() override;

    // Where nothing was recorded, the same draws come at every replay.
    [[nodiscard]] int draw() override;

private:
    ReplayedMachine(RecordingReader reader, RecordedCycle first);

    RecordingReader reader_;
    RecordedCycle present_;
    std::optional<RecordedCycle> next_;
    bool started_ = false;
    RandomStorageDraw unrecordedDraws_{1};
};

} // namespace quelby
