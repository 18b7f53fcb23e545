// Under what the user's choices are kept.
#pragma once

#include <array>
#include <string_view>

namespace quelby::preference_keys {

inline constexpr std::string_view menuBarDisplay = "menuBarDisplay"; // text: the display's raw value
inline constexpr std::string_view launchAtLogin = "launchAtLogin";
inline constexpr std::string_view hasShownChargingTip = "hasShownChargingTip";

inline constexpr std::array all{menuBarDisplay, launchAtLogin, hasShownChargingTip};

} // namespace quelby::preference_keys
