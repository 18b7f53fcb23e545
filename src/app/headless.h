#pragma once

#include "console/machine_arguments.h"

namespace quelby::app {

// The whole monitor without a user interface: records the history and prints a line for each cycle, until a
// signal ends it or, without waiting, a recording does. The problem is that the recording cannot be played,
// or that another program records to the same folder.
[[nodiscard]] Result<void> runHeadless(const MachineArguments& arguments);

} // namespace quelby::app
