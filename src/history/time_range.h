// The ranges of the consumption history that a person can look at.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quelby {

enum class TimeRange { thirtyMinutes, oneHour, twentyFourHours, sevenDays };

// In the order of the range buttons.
inline constexpr std::array allTimeRanges{TimeRange::thirtyMinutes, TimeRange::oneHour,
                                          TimeRange::twentyFourHours, TimeRange::sevenDays};

// "30m", "1h", "24h" or "7d": the range's identity, also on the command line.
[[nodiscard]] std::string_view rawValue(TimeRange range);

// The text of the range's button.
[[nodiscard]] std::string_view label(TimeRange range);

// The length of the range back from now, in seconds.
[[nodiscard]] double seconds(TimeRange range);

// The range with exactly this raw value, or nothing.
[[nodiscard]] std::optional<TimeRange> timeRange(std::string_view rawValue);

} // namespace quelby
