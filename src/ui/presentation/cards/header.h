#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_Header(MEMBER)                                                                     \
    MEMBER(part, Symbol, symbol) /* in the settings the button that leads back */                            \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(optional, Text, clock) /* the time at which it is drawn; none in the settings */                  \
    MEMBER(part, Symbol, toggle)  /* the button that leads to the settings, or away from them */

struct Header {
    QUELBY_RECORD(Header)
};

[[nodiscard]] Header dashboardHeader(Date now);
[[nodiscard]] Header settingsHeader();
[[nodiscard]] Header energyHeader();

[[nodiscard]] Label quitButton();

} // namespace quelby
