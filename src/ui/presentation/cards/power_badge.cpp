#include "ui/presentation/cards/power_badge.h"

#include <fmt/format.h>

namespace quelby {

namespace {

std::string figureText(double watts) {
    return fmt::format("{:.1f}", watts);
}

PowerBadge fullyCharged(const PublishedFields& fields) {
    return {.symbol = {"checkmark.circle.fill", ColorName::green},
            .figure = primary(figureText(fields.totalPower)),
            .unit = secondary("W"),
            .caption = secondary("Fully Charged — System Power Draw")};
}

PowerBadge charging(const PublishedFields& fields) {
    return {.symbol = {"bolt.fill", ColorName::green},
            .figure = {figureText(fields.chargePower), ColorName::green},
            .unit = {"W", Color(ColorName::green, 0.7)},
            .caption = secondary("Charging Battery"),
            .extra = {{{"desktopcomputer", ColorName::secondary},
                       secondary(fmt::format("{:.0f}W system", fields.totalPower.get()))},
                      {{"powerplug.fill", ColorName::secondary},
                       secondary(fmt::format("{:.0f}W total input", fields.acTotal.get()))}}};
}

PowerBadge onBattery(const PublishedFields& fields) {
    const auto color = Color::power(fields.totalPower);
    return {.symbol = {"battery.75percent", color},
            .sign = Text{"-", color},
            .figure = {figureText(fields.totalPower), color},
            .unit = secondary("W"),
            .caption = secondary("Battery Drain")};
}

} // namespace

PowerBadge powerBadge(const PublishedFields& fields) {
    if (!fields.isPluggedIn) {
        return onBattery(fields);
    }
    return fields.fullyCharged ? fullyCharged(fields) : charging(fields);
}

} // namespace quelby
