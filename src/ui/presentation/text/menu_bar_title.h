// What stands in the menu bar: a symbol, and beside it the figure that the user has chosen.
#pragma once

#include <string>
#include <string_view>

#include "monitor/published_fields.h"

namespace quelby {

// The symbol's name, as the system symbols of macOS are named. A full battery that is not on power shows the
// same symbol as one of 76 %.
[[nodiscard]] std::string_view menuBarSymbol(const PublishedFields& fields);

// Empty, or the figure that the display asks for, with one leading blank, which keeps it off the symbol.
// Watts become the level while the helper holds the charge, because then nothing is more interesting than
// that.
[[nodiscard]] std::string menuBarTitle(const PublishedFields& fields, MenuBarDisplay display);

// What is said of the symbol while the pointer rests on it: "82 % discharging, ~3h 12m remaining, 12.3 W".
[[nodiscard]] std::string menuBarToolTip(const PublishedFields& fields);

// The same with the load, for bars that lead to no dashboard.
[[nodiscard]] std::string statusBarToolTip(const PublishedFields& fields);

} // namespace quelby
