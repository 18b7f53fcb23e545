#pragma once

#include "cli/command_line.h"

namespace quelby::cli {

[[nodiscard]] Result<void> runTitle(Machine& machine, const TitleCommand& command, Pace pace);

} // namespace quelby::cli
