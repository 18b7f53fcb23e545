// How energy, sleeps, sessions and a battery's age are spoken of.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "history/energy/energy_records.h"

namespace quelby {

// "0.08 Wh", "8.2 Wh", "182 Wh": as many digits as can be told.
[[nodiscard]] std::string wattHoursText(double wattHours);

// How much of a full battery it is: "17 %", and "<1 %" for what is less. Nothing where there is no battery
// to compare with.
[[nodiscard]] std::string chargeShareText(double wattHours, std::optional<double> fullCharge);

// "45 s", "12 min", "7 h 50 min", "3 d 4 h".
[[nodiscard]] std::string durationText(double seconds);

// "~1h 25m to the limit of 80%", from now on.
[[nodiscard]] std::string timeToLimitText(double minutes, double limitPercent);

// In % an hour; negative where it was charged.
[[nodiscard]] double percentPerHour(const Sleep& sleep);

// In W; negative where it was charged.
[[nodiscard]] std::optional<double> meanWatts(const Sleep& sleep);

// More than 1 % an hour: a sleeping computer of these years takes less.
[[nodiscard]] bool drainedMuch(const Sleep& sleep);
inline constexpr std::string_view drainedMuchText = "drained more than 1 % an hour";

// "On battery", "Charging", "Calibration".
[[nodiscard]] std::string_view sessionName(SessionKind kind);

// How today's figure is called where a press of it shows the rest: "31.4 Wh today, Show Where the Energy Went".
[[nodiscard]] std::string energyButtonName(std::string_view today);

// How far these figures can be trusted.
inline constexpr std::string_view energyFootnote =
    "The split over applications is an estimate: the processor's part of the power, by the share of CPU "
    "time. What belongs to no process stands under system.";
inline constexpr std::string_view chargeFootnote = "Shares are of a full charge at the present voltage.";

} // namespace quelby
