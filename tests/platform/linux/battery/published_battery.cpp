#include "platform/linux/battery/published_battery.h"

#include <cstdlib>

#include <fmt/format.h>

#include "base/arithmetic.h"

namespace quelby {

namespace {

std::optional<std::int64_t> integer(const PropertyTable& table, const char* key) {
    const auto property = table.find(key);
    return property == table.end() ? std::nullopt : std::optional(std::get<std::int64_t>(property->second));
}

std::optional<std::int64_t> integer(const PropertyTable& table, const char* first, const char* second) {
    const auto value = integer(table, first);
    return value ? value : integer(table, second);
}

std::optional<std::int64_t> percentFrom(const PropertyTable& table) {
    const auto whole = integer(table, "AppleRawMaxCapacity", "MaxCapacity").value_or(0);
    const auto part = integer(table, "AppleRawCurrentCapacity", "CurrentCapacity");
    if (whole < 1) {
        return integer(table, "CurrentCapacity");
    }
    return part ? std::optional(percentage(*part, whole)) : std::nullopt;
}

std::int64_t healthFrom(const PropertyTable& table) {
    const auto design = integer(table, "DesignCapacity").value_or(0);
    const auto full = integer(table, "AppleRawMaxCapacity").value_or(0);
    return design >= 1 && full >= 101 ? percentage(full, design) : 100;
}

std::optional<std::int64_t> milliamperesFrom(const PropertyTable& table) {
    const auto value = integer(table, "InstantAmperage");
    return value && *value > 30000 ? std::optional(*value - 65536) : value;
}

std::string timeFrom(const PropertyTable& table) {
    const auto minutes = integer(table, "TimeRemaining").value_or(0);
    return minutes >= 1 && minutes <= 5999 ? fmt::format("{}:{:02}", minutes / 60, minutes % 60) : "--:--";
}

} // namespace

PublishedBattery publishedFrom(const PropertyTable& table) {
    PublishedBattery battery;
    battery.designCapacity = integer(table, "DesignCapacity");
    battery.rawMaxCapacity = integer(table, "AppleRawMaxCapacity");
    battery.rawCurrentCapacity = integer(table, "AppleRawCurrentCapacity");
    battery.cycleCount = integer(table, "CycleCount");
    battery.percent = percentFrom(table);
    battery.health = healthFrom(table);
    battery.isCharging = std::get<bool>(table.at("IsCharging"));
    battery.isPluggedIn = std::get<bool>(table.at("ExternalConnected"));
    battery.fullyCharged = std::get<bool>(table.at("FullyCharged"));
    battery.milliamperes = milliamperesFrom(table);
    battery.millivolts = integer(table, "Voltage");
    if (battery.milliamperes && battery.millivolts) {
        battery.watts = static_cast<double>(std::abs(*battery.milliamperes) * *battery.millivolts) / 1e6;
    }
    battery.centidegrees = integer(table, "Temperature");
    battery.timeRemaining = timeFrom(table);
    return battery;
}

} // namespace quelby
