#include "platform/replay/replayed_machine.h"

#include <utility>

#include "platform/posix/local_day.h"

namespace quelby {

Result<ReplayedMachine> ReplayedMachine::open(const std::filesystem::path& recording) {
    auto reader = RecordingReader::open(recording);
    if (!reader) {
        return tl::make_unexpected(reader.error());
    }
    auto first = reader->next();
    if (!first) {
        return problem("cannot replay \"" + recording.string() + "\": it was changed while it was opened");
    }
    return ReplayedMachine(std::move(*reader), std::move(*first));
}

ReplayedMachine::ReplayedMachine(RecordingReader reader, RecordedCycle first)
    : reader_(std::move(reader)), present_(std::move(first)), next_(reader_.next()) {}

BatteryReading ReplayedMachine::readBattery() {
    if (std::exchange(started_, true) && next_) {
        present_ = std::move(*next_);
        next_ = reader_.next();
    }
    return present_.battery;
}

double ReplayedMachine::startOfDay() {
    return startOfLocalDay(present_.time);
}

int ReplayedMachine::draw() {
    return present_.storageDraw ? *present_.storageDraw : unrecordedDraws_.draw();
}

} // namespace quelby
