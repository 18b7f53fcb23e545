#include "ui/presentation/header.h"

#include "base/time_of_day.h"

namespace quelby {

Header dashboardHeader(Date now) {
    return {.symbol = {"bolt.fill", ColorName::yellow},
            .title = primary("Quelby"),
            .clock = secondary(timeOfDay(now)),
            .toggle = {"gearshape", ColorName::secondary}};
}

Header settingsHeader() {
    return {.symbol = {"chevron.left", ColorName::primary},
            .title = primary("Settings"),
            .clock = std::nullopt,
            .toggle = {"xmark.circle", ColorName::secondary}};
}

Label quitButton() {
    return {{"xmark.circle", ColorName::secondary}, secondary("Quit Quelby")};
}

} // namespace quelby
