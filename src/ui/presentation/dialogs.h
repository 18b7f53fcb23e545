// The two questions that the dashboard asks.
#pragma once

#include <string_view>

namespace quelby {

struct Dialog {
    std::string_view title;
    std::string_view message;
    std::string_view action; // the button that does something
    bool destructive = false;
    std::string_view cancel; // the button that only closes
};

// Raised the first time that the charge limit is switched on.
[[nodiscard]] Dialog chargingTip();

[[nodiscard]] Dialog uninstallConfirmation();

} // namespace quelby
