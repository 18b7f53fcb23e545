#include "ui/presentation/cards/header.h"

#include "base/time_of_day.h"
#include "ui/presentation/text/words.h"

namespace quelby {

Header dashboardHeader(Date now) {
    return {.symbol = {"bolt.fill", ColorName::yellow},
            .title = primary(std::string(words::program)),
            .clock = secondary(timeOfDay(now)),
            .toggle = {"gearshape", ColorName::secondary}};
}

Header settingsHeader() {
    return {.symbol = {"chevron.left", ColorName::primary},
            .title = primary(std::string(words::settings)),
            .clock = std::nullopt,
            .toggle = {"xmark.circle", ColorName::secondary}};
}

Label quitButton() {
    return {{"xmark.circle", ColorName::secondary}, secondary(std::string(words::quit))};
}

} // namespace quelby
