// Words about a system's own hardware and settings, which are true only there.
#pragma once

#include <string_view>

namespace quelby {

struct SystemWords {
    // What the charger's plug shows, behind "Holding at 80%" and "Charging to 80%"; empty where it shows nothing.
    std::string_view whileHolding;
    std::string_view whileCharging;

    // What else limits the charge there, and has to be off while this program does.
    std::string_view tipTitle;
    std::string_view tipMessage;
    std::string_view tipAction; // opens the system's own settings of the battery
};

inline constexpr SystemWords macosWords{
    .whileHolding = " — MagSafe green",
    .whileCharging = " — MagSafe orange",
    .tipTitle = "Disable Optimized Battery Charging",
    .tipMessage =
        "For Quelby's charge limit to work properly, disable macOS Optimized Battery Charging in System "
        "Settings → Battery.",
    .tipAction = "Open Battery Settings"};

inline constexpr SystemWords linuxWords{
    .tipTitle = "Disable Other Charge Limits",
    .tipMessage =
        "For Quelby's charge limit to work properly, disable the charge limit in the desktop's power "
        "settings, and that of any other program.",
    .tipAction = "Open Power Settings"};

// The build picks the system's own.
[[nodiscard]] const SystemWords& systemWords();

} // namespace quelby
