#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

[[nodiscard]] Result<void> runWatch(Machine& machine, const WatchCommand& command, Pace pace);

} // namespace quelby::cli
