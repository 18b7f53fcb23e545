// How far back a person can look at where the energy went.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quelby {

enum class EnergyRange { today, twentyFourHours, sevenDays, thirtyDays, sinceUnplugged };

// In the order of their buttons.
inline constexpr std::array allEnergyRanges{EnergyRange::today, EnergyRange::twentyFourHours,
                                            EnergyRange::sevenDays, EnergyRange::thirtyDays,
                                            EnergyRange::sinceUnplugged};

// "today", "24h", "7d", "30d" or "since-unplugged": the range's identity, also on the command line.
[[nodiscard]] std::string_view rawValue(EnergyRange range);

// The text of the range's button.
[[nodiscard]] std::string_view label(EnergyRange range);

// The range with exactly this raw value, or nothing.
[[nodiscard]] std::optional<EnergyRange> energyRange(std::string_view rawValue);

} // namespace quelby
