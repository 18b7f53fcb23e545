#pragma once

#include <optional>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct Header {
    Symbol symbol; // in the settings the button that leads back
    Text title;
    std::optional<Text> clock; // the time at which it is drawn; none in the settings
    Symbol toggle;             // the button that leads to the settings, or away from them

    bool operator==(const Header&) const = default;
};

[[nodiscard]] Header dashboardHeader(Date now);
[[nodiscard]] Header settingsHeader();

[[nodiscard]] Label quitButton();

} // namespace quelby
