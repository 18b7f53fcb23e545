#pragma once

#include "cli/command_line.h"
#include "console/cycles.h"

namespace quelby::cli {

// What was asked for, as a run beside whoever records: the history is only read here.
[[nodiscard]] inline CycleRun cycleRun(const Repetition& repetition, Pace pace) {
    return {.interval = pace == Pace::withoutWaiting ? std::chrono::seconds(0) : repetition.interval,
            .count = repetition.count,
            .history = HistoryAccess::readOnly};
}

} // namespace quelby::cli
