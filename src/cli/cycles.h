#pragma once

#include <functional>

#include "base/problem.h"
#include "cli/command_line.h"
#include "monitor/power_monitor.h"

namespace quelby::cli {

// The exit status of a command that could not do what it was asked for, and says so on standard error.
inline constexpr int couldNotBeDone = 1;

// Called after each cycle; a problem ends the run.
using AfterCycle = std::function<Result<void>(const PowerMonitor& monitor)>;

// Runs a monitor on the platform, which is the machine's own or one built around it, until `count` cycles are
// done, the machine has ended, or a signal asks for the end (SIGINT, SIGTERM, SIGHUP, SIGQUIT). The problem
// is that of the last cycle. Intervals of zero mean one cycle right after the other.
[[nodiscard]] Result<void> runCycles(const Machine& machine, const Platform& platform,
                                     const Repetition& repetition, AfterCycle afterCycle);

// What a request's pace makes of its repetition.
[[nodiscard]] Repetition paced(Repetition repetition, Pace pace);

} // namespace quelby::cli
