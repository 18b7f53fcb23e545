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

} // namespace quelby
