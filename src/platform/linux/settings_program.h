// Which program shows the settings of the battery, on each desktop.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quelby {

using CommandWords = std::vector<std::string>; // the program's name, and its arguments

// By $XDG_CURRENT_DESKTOP, which lists names from the most special to the most general, with colons between
// them. The commands are in the order in which to try them: not every release of a desktop has each. None for
// desktops without such settings.
[[nodiscard]] std::vector<CommandWords> batterySettingsCommands(std::string_view currentDesktop);

// The first of the commands whose program there is in the folders, with the program's path in place of its
// name; an empty one where there is none. The folders are as in $PATH.
[[nodiscard]] CommandWords firstCommandFound(const std::vector<CommandWords>& commands,
                                             std::string_view folders);

} // namespace quelby
