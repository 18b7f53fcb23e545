#include "ui/presentation/cards/power_badge.h"

#include <fmt/format.h>

#include "base/arithmetic.h"

namespace quelby {

namespace {

constexpr double idleWatts = 0.5; // what a battery that is not charged still shows at its gauge

std::string figureText(double watts) {
    return fmt::format("{:.1f}", watts);
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

// The figure where no battery takes or gives anything.
PowerBadge systemDraw(Symbol symbol, double watts, std::string_view why) {
    return {.symbol = symbol,
            .figure = primary(figureText(watts)),
            .unit = secondary("W"),
            .caption = secondary(fmt::format("{} — System Power Draw", why))};
}

PowerBadge withoutBattery(const PublishedFields& fields) {
    return {.symbol = {"desktopcomputer", ColorName::primary},
            .figure = {figureText(fields.totalPower), Color::power(fields.totalPower)},
            .unit = secondary("W"),
            .caption = secondary("System Power Draw")};
}

PowerBadge held(const PublishedFields& fields) {
    return systemDraw({"bolt.badge.checkmark.fill", ColorName::green}, fields.totalPower,
                      fmt::format("Holding at {}%", truncated(fields.chargeLimitPercent)));
}

// Another program or the firmware keeps the charge where it is. Without a voltage nothing has been read yet.
bool takesNothing(const PublishedFields& fields) {
    return !fields.isCharging && fields.voltage > 0 && fields.realWatts <= idleWatts;
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
    if (!fields.hasBattery) {
        return withoutBattery(fields);
    }
    if (!fields.isPluggedIn) {
        return onBattery(fields);
    }
    if (fields.fullyCharged) {
        return systemDraw({"checkmark.circle.fill", ColorName::green}, fields.totalPower, "Fully Charged");
    }
    if (fields.chargingInhibited) {
        return held(fields);
    }
    if (takesNothing(fields)) {
        return systemDraw({"powerplug.fill", ColorName::secondary}, fields.totalPower, "Not Charging");
    }
    return charging(fields);
}

} // namespace quelby
