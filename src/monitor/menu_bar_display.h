// What the title in the menu bar shows.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quelby {

enum class MenuBarDisplay { watts, percentage, mA, voltage, temperature, iconOnly };

inline constexpr std::array allMenuBarDisplays{MenuBarDisplay::watts,       MenuBarDisplay::percentage,
                                               MenuBarDisplay::mA,          MenuBarDisplay::voltage,
                                               MenuBarDisplay::temperature, MenuBarDisplay::iconOnly};

// Identity, label and stored preference value in one, for example "Power (W)".
[[nodiscard]] std::string_view rawValue(MenuBarDisplay display);

// The display with exactly this raw value, or nothing.
[[nodiscard]] std::optional<MenuBarDisplay> menuBarDisplay(std::string_view rawValue);

} // namespace quelby
