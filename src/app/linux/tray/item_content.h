#pragma once

#include <cstdint>
#include <string>

#include "monitor/menu_bar_display.h"

namespace quelby::app {

// What a status item shows.
struct ItemContent {
    std::string symbol;
    std::int64_t level = 0; // of the battery, in percent
    std::string title;      // trimmed
    std::string toolTip;
    MenuBarDisplay display = MenuBarDisplay::watts; // chosen in its menu

    bool operator==(const ItemContent&) const = default;
};

} // namespace quelby::app
