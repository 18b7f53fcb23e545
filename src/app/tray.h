#pragma once

#include "app/command_line.h"

namespace quelby::app {

// The program as most people know it: in the menu bar, until somebody quits it or the session ends. A second
// start shows the dashboard of the first and is done. The problem is that there is no display, or that the
// recording cannot be played.
[[nodiscard]] int runInTray(const MachineArguments& arguments, const TrayCommand& command, char** argv);

} // namespace quelby::app
