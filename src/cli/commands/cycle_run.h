// What quelbyctl's commands have in common: they run beside whoever records, so the history is only read.
#pragma once

#include "cli/arguments/command_line.h"
#include "console/cycles.h"

namespace quelby::cli {

[[nodiscard]] inline CycleRun cycleRun(const Repetition& repetition, Pace pace) {
    return {.interval = pace == Pace::withoutWaiting ? std::chrono::seconds(0) : repetition.interval,
            .count = repetition.count,
            .history = HistoryAccess::readOnly};
}

// All of a recording at once, or a single cycle of this computer, with one look at the end.
[[nodiscard]] inline CycleRun untilTheEnd(const Machine& machine, CycleAction atEnd) {
    auto run = cycleRun({}, Pace::withoutWaiting);
    if (machine.kind() == MachineKind::thisComputer) {
        run.count = 1;
    }
    run.atEnd = std::move(atEnd);
    return run;
}

// Without a monitor. The present of a recording is its end.
inline void playToTheEnd(const Machine& machine, const Platform& platform) {
    while (machine.kind() == MachineKind::recorded && !machine.hasEnded()) {
        static_cast<void>(platform.battery->readBattery());
    }
}

} // namespace quelby::cli
