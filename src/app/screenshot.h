#pragma once

#include "app/command_line.h"

namespace quelby::app {

// Draws the dashboard into a PNG file, after the last cycle of the recording or, without one, after the first
// of this machine, and gives the exit status. The history of a recording is that of its own cycles, unless a
// folder is named. Whatever display there is, the picture does not depend on it.
[[nodiscard]] int runScreenshot(const MachineArguments& arguments, const ScreenshotCommand& command,
                                char** argv);

} // namespace quelby::app
