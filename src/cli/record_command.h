#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

[[nodiscard]] Result<void> runRecord(Machine& machine, const RecordCommand& command, Pace pace);

} // namespace quelby::cli
