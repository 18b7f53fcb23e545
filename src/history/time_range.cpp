#include "history/time_range.h"

#include <algorithm>

namespace quelby {

std::string_view rawValue(TimeRange range) {
    switch (range) {
    case TimeRange::thirtyMinutes:
        return "30m";
    case TimeRange::oneHour:
        return "1h";
    case TimeRange::twentyFourHours:
        return "24h";
    case TimeRange::sevenDays:
        return "7d";
    }
    return {};
}

std::string_view label(TimeRange range) {
    switch (range) {
    case TimeRange::thirtyMinutes:
        return "30 Min";
    case TimeRange::oneHour:
        return "1 Hour";
    case TimeRange::twentyFourHours:
        return "24 Hours";
    case TimeRange::sevenDays:
        return "7 Days";
    }
    return {};
}

double seconds(TimeRange range) {
    switch (range) {
    case TimeRange::thirtyMinutes:
        return 1800;
    case TimeRange::oneHour:
        return 3600;
    case TimeRange::twentyFourHours:
        return 86400;
    case TimeRange::sevenDays:
        return 604800;
    }
    return 0;
}

std::optional<TimeRange> timeRange(std::string_view rawValue) {
    const auto* const found = std::find_if(allTimeRanges.begin(), allTimeRanges.end(), [&](TimeRange range) {
        return quelby::rawValue(range) == rawValue;
    });
    return found == allTimeRanges.end() ? std::nullopt : std::optional(*found);
}

} // namespace quelby
