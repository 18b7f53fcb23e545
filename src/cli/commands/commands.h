// What each command does. A problem is what could not be done and why; it has not been told to anybody yet.
#pragma once

#include "cli/arguments/command_line.h"

namespace quelby::cli {

[[nodiscard]] Result<void> runStatus(Machine& machine, const StatusCommand& command);

[[nodiscard]] Result<void> runWatch(Machine& machine, const WatchCommand& command, Pace pace);

[[nodiscard]] Result<void> runDashboard(Machine& machine, const DashboardCommand& command);

[[nodiscard]] Result<void> runTitle(Machine& machine, const TitleCommand& command, Pace pace);

// The problem is that the file cannot be written to; it is as it was then.
[[nodiscard]] Result<void> runMetrics(Machine& machine, const MetricsCommand& command);

// The problem says why there is no history to show.
[[nodiscard]] Result<void> runHistory(Machine& machine, const HistoryCommand& command);

// Where the energy went. The problem says why there is no history to tell it.
[[nodiscard]] Result<void> runEnergy(Machine& machine, const EnergyCommand& command);
[[nodiscard]] Result<void> runSleeps(Machine& machine, const SleepsCommand& command);
[[nodiscard]] Result<void> runSessions(Machine& machine, const SessionsCommand& command);
[[nodiscard]] Result<void> runHealth(Machine& machine, const HealthCommand& command);

// The settings that the dashboard's switches and sliders set. The problem is that they could not be handed to
// the helper, because its folder cannot be written to.
[[nodiscard]] Result<void> runLimit(Machine& machine, const LimitCommand& command);
[[nodiscard]] Result<void> runCalibration(Machine& machine, const CalibrationCommand& command);

// The problem says why the helper was not installed or removed; nothing has changed then.
[[nodiscard]] Result<void> runHelper(Machine& machine, const HelperCommand& command);

[[nodiscard]] Result<void> runRecord(Machine& machine, const RecordCommand& command, Pace pace);

} // namespace quelby::cli
