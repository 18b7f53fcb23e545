#include "monitor/menu_bar_display.h"

#include <algorithm>

namespace quelby {

std::string_view rawValue(MenuBarDisplay display) {
    switch (display) {
    case MenuBarDisplay::watts:
        return "Power (W)";
    case MenuBarDisplay::percentage:
        return "Battery %";
    case MenuBarDisplay::mA:
        return "Current (mA)";
    case MenuBarDisplay::voltage:
        return "Voltage (V)";
    case MenuBarDisplay::temperature:
        return "Temperature";
    case MenuBarDisplay::iconOnly:
        return "Icon Only";
    }
    return {};
}

std::optional<MenuBarDisplay> menuBarDisplay(std::string_view rawValue) {
    const auto* const found =
        std::find_if(allMenuBarDisplays.begin(), allMenuBarDisplays.end(),
                     [&](MenuBarDisplay display) { return quelby::rawValue(display) == rawValue; });
    return found == allMenuBarDisplays.end() ? std::nullopt : std::optional(*found);
}

} // namespace quelby
