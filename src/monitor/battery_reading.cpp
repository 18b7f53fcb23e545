#include "monitor/battery_reading.h"

#include <cmath>
#include <optional>

#include <fmt/format.h>

#include "base/arithmetic.h"

namespace quelby {

namespace {

template <typename T>
std::optional<T> property(const PropertyTable& table, std::string_view key) {
    const auto found = table.find(key);
    if (found == table.end() || !std::holds_alternative<T>(found->second)) {
        return std::nullopt;
    }
    return std::get<T>(found->second);
}

std::optional<Int> integer(const PropertyTable& table, std::string_view key) {
    return property<Int>(table, key);
}

bool flag(const PropertyTable& table, std::string_view key) {
    return property<bool>(table, key).value_or(false);
}

void publishCapacities(const PropertyTable& table, PublishedFields& fields) {
    const auto maxCapacity = integer(table, "MaxCapacity").value_or(0);
    const auto currentCapacity = integer(table, "CurrentCapacity").value_or(0);
    fields.designCapacity = integer(table, "DesignCapacity").value_or(0);
    fields.rawMaxCapacity = integer(table, "AppleRawMaxCapacity").value_or(maxCapacity);
    fields.rawCurrentCapacity = integer(table, "AppleRawCurrentCapacity").value_or(currentCapacity);
    fields.cycleCount = integer(table, "CycleCount").value_or(0);
    fields.batteryPercent = fields.rawMaxCapacity >= 1
                                ? percentage(fields.rawCurrentCapacity, fields.rawMaxCapacity)
                                : currentCapacity;
}

void publishState(const PropertyTable& table, PublishedFields& fields) {
    fields.isCharging = flag(table, "IsCharging");
    fields.isPluggedIn = flag(table, "ExternalConnected");
    fields.fullyCharged = flag(table, "FullyCharged");
}

// A full charge of 100 or less is a percentage, so it says nothing about the capacity when new.
void publishHealth(const PropertyTable& table, PublishedFields& fields) {
    if (fields.designCapacity >= 1 && fields.rawMaxCapacity >= 101) {
        fields.batteryHealth = percentage(fields.rawMaxCapacity, fields.designCapacity);
        return;
    }
    const auto maxCapacity = integer(table, "MaxCapacity");
    if (!maxCapacity) {
        fields.batteryHealth = 100;
    } else if (*maxCapacity <= 100) {
        fields.batteryHealth = *maxCapacity;
    }
}

void publishFlow(const PropertyTable& table, PublishedFields& fields) {
    constexpr Int largestPositive = 30000; // mA; above it stands a negative number in 16 bits
    auto milliamperes = integer(table, "InstantAmperage").value_or(0);
    const auto millivolts = integer(table, "Voltage").value_or(0);
    if (milliamperes > largestPositive) {
        milliamperes -= 65536;
    }
    fields.amperage = static_cast<double>(milliamperes);
    fields.voltage = static_cast<double>(millivolts) / 1000.0;
    fields.realWatts = std::fabs(fields.amperage) * fields.voltage / 1000.0;
}

std::string timeText(std::optional<Int> minutes) {
    const bool known = minutes && *minutes >= 1 && *minutes <= 5999; // 65535 stands for unknown
    return known ? fmt::format("{}:{:02}", *minutes / 60, *minutes % 60) : "--:--";
}

} // namespace

void publishBatteryReading(const BatteryReading& reading, PublishedFields& fields) {
    if (std::holds_alternative<NoBattery>(reading)) {
        fields.hasBattery = false;
        return;
    }
    fields.hasBattery = true;
    const auto* const table = std::get_if<PropertyTable>(&reading);
    if (table == nullptr) {
        return;
    }
    publishCapacities(*table, fields);
    publishState(*table, fields);
    publishHealth(*table, fields);
    publishFlow(*table, fields);
    if (const auto hundredths = integer(*table, "Temperature")) {
        fields.batteryTemp = static_cast<double>(*hundredths) / 100.0;
    }
    fields.timeRemaining = timeText(integer(*table, "TimeRemaining"));
}

} // namespace quelby
