#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

// The problem says why there is no history to show.
[[nodiscard]] Result<void> runHistory(Machine& machine, const HistoryCommand& command);

} // namespace quelby::cli
