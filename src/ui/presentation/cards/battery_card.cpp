#include "ui/presentation/cards/battery_card.h"

#include <fmt/format.h>

namespace quelby {

namespace {

constexpr Int wornHealth = 80; // %, up to which a battery counts as worn

} // namespace

BatteryCard batteryCard(const PublishedFields& fields) {
    const auto percent = fields.batteryPercent.get();
    const auto levelColor = Color::battery(percent);
    const auto healthColor = fields.batteryHealth > wornHealth ? ColorName::green : ColorName::orange;
    return {.symbol = {"battery.100percent", ColorName::primary},
            .title = primary("Battery"),
            .level = {fmt::format("{}%", percent), levelColor},
            .bar = bar(static_cast<double>(percent), 100, levelColor),
            .rate = {fields.batteryRateStr, fields.isCharging ? ColorName::green : ColorName::orange},
            .time = {{"clock", ColorName::secondary}, secondary(fields.predictedTime)},
            .health = {{"heart.fill", healthColor},
                       secondary(fmt::format("Health: {}%", fields.batteryHealth.get()))}};
}

} // namespace quelby
