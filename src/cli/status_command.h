#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

[[nodiscard]] Result<void> runStatus(Machine& machine, const StatusCommand& command);

} // namespace quelby::cli
