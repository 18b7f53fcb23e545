// The start-up notification of freedesktop.org: whoever starts a program, or presses its item, sees that it is
// at work until it says that it is done.
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace quelby::app {

// Says so to the X11 desktop, of the sequence with this name. Nothing happens where there is none.
void endStartupSequence(std::string_view name);

// The message in the pieces that events of X have room for; the last one ends with a zero.
[[nodiscard]] std::vector<std::array<char, 20>> endOfStartup(std::string_view name);

} // namespace quelby::app
