#pragma once

#include <cstdint>
#include <string>

#include "app/linux/tray/panel_ink.h"
#include "monitor/menu_bar_display.h"

namespace quelby::app {

// What a status item shows.
struct ItemContent {
    std::string symbol;
    std::int64_t level = 0; // of the battery, in percent
    std::string title;      // trimmed
    std::string toolTip;
    MenuBarDisplay display = MenuBarDisplay::watts; // chosen in its menu
    StatusInk ink = platedInk;                      // of what is drawn

    bool operator==(const ItemContent&) const = default;
};

} // namespace quelby::app
