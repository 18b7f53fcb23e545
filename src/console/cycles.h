#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

#include "base/cycle_interval.h"
#include "base/problem.h"
#include "monitor/power_monitor.h"
#include "platform/host/machine.h"

namespace quelby {

// What is made of the figures.
using CycleAction = std::function<Result<void>(PowerMonitor& monitor)>;

struct CycleRun {
    std::chrono::duration<double> interval = cycleInterval; // zero: one cycle right after the other
    std::optional<std::int64_t> count;                      // cycles, 1 or more; none: until it is ended
    std::optional<HistoryAccess> history;
    CycleAction afterCycle; // none, or called after each cycle; a problem ends the run
    CycleAction atEnd;      // none, or called when all is done without a problem
};

// Runs a monitor on the platform, which is the machine's own or one built around it, until `count` cycles are
// done, the machine has ended, or a signal asks for the end (SIGINT, SIGTERM, SIGHUP, SIGQUIT). The problem
// is that of the look which had one.
[[nodiscard]] Result<void> runCycles(const Machine& machine, const Platform& platform, const CycleRun& run);

} // namespace quelby
