#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

// The settings that the dashboard's switches and sliders set. The problem is that they could not be handed to
// the helper, because its folder cannot be written to.
[[nodiscard]] Result<void> runLimit(Machine& machine, const LimitCommand& command);
[[nodiscard]] Result<void> runCalibration(Machine& machine, const CalibrationCommand& command);

} // namespace quelby::cli
