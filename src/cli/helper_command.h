#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

// The problem says why the helper was not installed or removed; nothing has changed then.
[[nodiscard]] Result<void> runHelper(Machine& machine, const HelperCommand& command);

} // namespace quelby::cli
