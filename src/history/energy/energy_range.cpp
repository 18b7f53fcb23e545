#include "history/energy/energy_range.h"

#include <algorithm>

namespace quelby {

std::string_view rawValue(EnergyRange range) {
    switch (range) {
    case EnergyRange::today:
        return "today";
    case EnergyRange::twentyFourHours:
        return "24h";
    case EnergyRange::sevenDays:
        return "7d";
    case EnergyRange::thirtyDays:
        return "30d";
    case EnergyRange::sinceUnplugged:
        return "since-unplugged";
    }
    return {};
}

std::string_view label(EnergyRange range) {
    switch (range) {
    case EnergyRange::today:
        return "Today";
    case EnergyRange::twentyFourHours:
        return "24 Hours";
    case EnergyRange::sevenDays:
        return "7 Days";
    case EnergyRange::thirtyDays:
        return "30 Days";
    case EnergyRange::sinceUnplugged:
        return "On Battery";
    }
    return {};
}

std::optional<EnergyRange> energyRange(std::string_view rawValue) {
    const auto* const found =
        std::find_if(allEnergyRanges.begin(), allEnergyRanges.end(),
                     [&](EnergyRange range) { return quelby::rawValue(range) == rawValue; });
    return found == allEnergyRanges.end() ? std::nullopt : std::optional(*found);
}

} // namespace quelby
