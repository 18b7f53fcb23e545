// What is kept of where the energy went. Times are whole seconds since 1970-01-01 00:00 UTC.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quelby {

// A name that a view can be looked up with.
struct NameHash {
    using is_transparent = void;

    [[nodiscard]] std::size_t operator()(std::string_view name) const {
        return std::hash<std::string_view>{}(name);
    }
};

// Watt-hours by name.
using EnergyByName = std::unordered_map<std::string, double, NameHash, std::equal_to<>>;

// What belongs to no process, and what belongs to those that are too small to be told apart.
inline constexpr std::string_view systemName = "system";
inline constexpr std::string_view otherName = "other";

// What was used within one hour, or a part of it.
struct HourOfEnergy {
    std::int64_t hour = 0;       // its start; hours are those of the local day
    bool sinceUnplugged = false; // used on battery, since the cable was pulled last
    EnergyByName apps;
    EnergyByName components; // the same energy
};

struct NamedEnergy {
    std::string name;
    double wattHours = 0;

    bool operator==(const NamedEnergy&) const = default;
};

// What was used in the hour or on the day that begins then.
struct TimedEnergy {
    std::int64_t start = 0;
    double wattHours = 0;

    bool operator==(const TimedEnergy&) const = default;
};

// The computer slept, while a recorder ran before and behind.
struct Sleep {
    std::int64_t start = 0; // by the wall clock, as are all starts and ends
    std::int64_t end = 0;
    std::int64_t seconds = 0; // by the computer's own clock
    double percentBefore = 0; // state of charge, as finely as the battery tells it
    double percentAfter = 0;  // more than before, where it was charged
    std::optional<double>
        wattHours; // that the battery lost; negative where it was charged; none: it does not tell

    bool operator==(const Sleep&) const = default;
};

enum class SessionKind { discharge, charge, calibration };

// A time on battery, of charging, or of a calibration. The last one may still go on.
struct Session {
    SessionKind kind = SessionKind::discharge;
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::int64_t seconds = 0; // by the computer's own clock, sleeps included
    std::int64_t percentFrom = 0;
    std::int64_t percentTo = 0;
    double wattHours = 0; // that went out of the battery or into it

    bool operator==(const Session&) const = default;
};

// What the battery was on one day of UTC.
struct BatteryDay {
    std::int64_t day = 0;          // its start
    std::int64_t fullCapacity = 0; // mAh, as does the battery tell it last
    std::optional<std::int64_t> designCapacity;
    std::int64_t cycleCount = 0;
    std::optional<double> maxTemperature; // °C

    bool operator==(const BatteryDay&) const = default;
};

} // namespace quelby
