#include "ui/presentation/cards/battery_details_card.h"

#include <fmt/format.h>

namespace quelby {

namespace {

DetailRow detailRow(const char* label, std::string value, std::string_view icon, std::string note) {
    return {.symbol = {icon, ColorName::secondary},
            .label = secondary(label),
            .value = primary(std::move(value)),
            .note = note.empty() ? std::nullopt : std::optional(secondary(std::move(note)))};
}

std::string capacityText(Int milliampereHours) {
    return fmt::format("{} mAh", milliampereHours);
}

std::string percentText(Int percent) {
    return fmt::format("{}%", percent);
}

const char* cycleNote(Int cycles) {
    return cycles < 500 ? "healthy" : "consider service";
}

const char* healthNote(Int percent) {
    if (percent > 94) {
        return "excellent";
    }
    if (percent > 84) {
        return "good";
    }
    return percent > 69 ? "fair" : "consider replacement";
}

} // namespace

BatteryDetailsCard batteryDetailsCard(const PublishedFields& fields) {
    BatteryDetailsCard card{.symbol = {"battery.100percent.circle", ColorName::primary},
                            .title = primary("Battery Details")};
    const auto add = [&](auto&&... row) { card.rows.push_back(detailRow(row...)); };
    add("Design Capacity", capacityText(fields.designCapacity), "sparkles", "when new");
    add("Full Charge Capacity", capacityText(fields.rawMaxCapacity), "battery.100percent", "Current max");
    add("Current Charge", capacityText(fields.rawCurrentCapacity), "bolt.fill",
        percentText(fields.batteryPercent));
    add("Cycle Count", fmt::format("{}", fields.cycleCount.get()), "arrow.triangle.2.circlepath",
        cycleNote(fields.cycleCount));
    add("Battery Health", percentText(fields.batteryHealth), "heart.fill", healthNote(fields.batteryHealth));
    if (fields.voltage > 0) {
        add("Voltage", fmt::format("{:.2f} V", fields.voltage.get()), "bolt.circle", "");
    }
    if (fields.amperage != 0) {
        add("Current", fmt::format("{:.0f} mA", fields.amperage.get()), "arrow.down.to.line",
            fields.amperage < 0 ? "draining" : "charging");
    }
    if (fields.batteryTemp > 0) {
        add("Temperature", fmt::format("{:.1f}°C", fields.batteryTemp.get()), "thermometer.medium",
            fields.batteryTemp > 35 ? "warm" : "normal");
    }
    return card;
}

} // namespace quelby
