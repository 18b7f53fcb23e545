// What a person asked quelby for.
#pragma once

#include <variant>

#include "console/machine_arguments.h"

namespace quelby::app {

[[nodiscard]] std::variant<MachineArguments, Answer> parseCommandLine(int argc, const char* const* argv);

} // namespace quelby::app
