// Words that are shown in more than one place, or by somebody who draws no record. All others stand in the
// functions that make the records.
#pragma once

#include <string_view>

namespace quelby::words {

inline constexpr std::string_view program = "Quelby";

// The status item's menu; what the title can show stands in it as well, by the displays' raw values.
inline constexpr std::string_view showDashboard = "Show Dashboard";
inline constexpr std::string_view settings = "Settings"; // also over the settings themselves
inline constexpr std::string_view energy = "Energy";     // over the view of where it went
inline constexpr std::string_view quit = "Quit Quelby";

// The header's buttons, for those who cannot see their symbols.
inline constexpr std::string_view back = "Back";
inline constexpr std::string_view closeSettings = "Close Settings";
inline constexpr std::string_view closeEnergy = "Close Energy";

// What a press on today's energy does.
inline constexpr std::string_view showEnergy = "Show Where the Energy Went";

// Of the card with the figure in large type, on pages where every card has a title.
inline constexpr std::string_view power = "Power";

} // namespace quelby::words
