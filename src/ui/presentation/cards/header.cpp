#include "ui/presentation/cards/header.h"

#include "base/time_of_day.h"
#include "ui/presentation/text/words.h"

namespace quelby {

namespace {

Header headerWithWayBack(std::string_view title) {
    return {.symbol = {"chevron.left", ColorName::primary},
            .title = primary(std::string(title)),
            .clock = std::nullopt,
            .toggle = {"xmark.circle", ColorName::secondary}};
}

} // namespace

Header dashboardHeader(Date now) {
    return {.symbol = {"bolt.fill", ColorName::yellow},
            .title = primary(std::string(words::program)),
            .clock = secondary(timeOfDay(now)),
            .toggle = {"gearshape", ColorName::secondary}};
}

Header settingsHeader() {
    return headerWithWayBack(words::settings);
}

Header energyHeader() {
    return headerWithWayBack(words::energy);
}

Label quitButton() {
    return {{"xmark.circle", ColorName::secondary}, secondary(std::string(words::quit))};
}

} // namespace quelby
