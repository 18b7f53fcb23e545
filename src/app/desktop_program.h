// The program where somebody looks at it: in the tray, or as a picture. All that needs Qt's windows and pictures is here,
// so that a recorder without a display holds none of it in memory.
#pragma once

#include "app/command_line.h"

namespace quelby::app {

// Gives the exit status.
[[nodiscard]] int runOnDesktop(const MachineArguments& arguments, const DesktopCommand& command, char** argv);

using DesktopProgram = int (*)(const MachineArguments& arguments, const DesktopCommand& command, char** argv);

// Lies in a library of its own where the system loads one quickly. The problem is that this is missing or of another
// version, as in a damaged installation.
[[nodiscard]] Result<DesktopProgram> loadDesktopProgram();

} // namespace quelby::app
