#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

[[nodiscard]] Result<void> runDashboard(Machine& machine, const DashboardCommand& command);

} // namespace quelby::cli
