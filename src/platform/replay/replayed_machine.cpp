#include "platform/replay/replayed_machine.h"

#include <algorithm>
#include <utility>

#include "platform/local_day.h"

namespace quelby {

Result<ReplayedMachine> ReplayedMachine::open(const std::filesystem::path& recording,
                                              AfterLastLine afterLastLine) {
    auto reader = RecordingReader::open(recording);
    if (!reader) {
        return tl::make_unexpected(reader.error());
    }
    auto first = reader->next();
    if (!first) {
        return problem("cannot replay \"" + recording.string() + "\": it was changed while it was opened");
    }
    return ReplayedMachine(std::move(*reader), std::move(*first), afterLastLine);
}

ReplayedMachine::ReplayedMachine(RecordingReader reader, RecordedCycle first, AfterLastLine afterLastLine)
    : reader_(std::move(reader))
    , afterLastLine_(afterLastLine)
    , firstTime_(first.time)
    , present_(std::move(first))
    , next_(reader_.next()) {}

bool ReplayedMachine::isAtLastLine() const {
    return started_ && !next_ && afterLastLine_ == AfterLastLine::stay;
}

BatteryReading ReplayedMachine::readBattery() {
    if (std::exchange(started_, true)) {
        goOn();
    }
    return present_.battery;
}

void ReplayedMachine::goOn() {
    const double before = now();
    if (!next_ && afterLastLine_ == AfterLastLine::startAgain) {
        clockAdvance_ += present_.time - firstTime_ + lastStep_;
        reader_.rewind();
        next_ = reader_.next();
    }
    if (next_) {
        present_ = std::move(*next_);
        next_ = reader_.next();
        lastStep_ = std::max(now() - before, 0.0);
    }
}

Date ReplayedMachine::startOfDay() {
    return startOfLocalDay(now());
}

Result<void> ReplayedMachine::install() {
    return problem("a recorded machine has no helper that could be installed or removed");
}

int ReplayedMachine::draw() {
    return present_.storageDraw ? *present_.storageDraw : unrecordedDraws_.draw();
}

} // namespace quelby
