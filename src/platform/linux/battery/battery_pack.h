#pragma once

#include <cstdint>
#include <optional>

#include "platform/linux/battery/pack_content.h"
#include "platform/linux/battery/pack_flow.h"

namespace quelby {

// A battery in our units and signs. The driver's end here: nobody behind this knows of micro-anything.
struct BatteryPack {
    PackStatus status = PackStatus::Unknown;
    PackContent content;
    std::optional<double> volts;
    std::optional<double> referenceVolts; // turn an energy into a charge and back
    PackFlow flow;
    std::optional<double> minutesLeft;        // to empty or to full, by the status; 1 to below 6000
    std::optional<std::int64_t> cycles;       // above 0
    std::optional<std::int64_t> centidegrees; // hundredths of a degree Celsius
    std::optional<std::int64_t> endThreshold; // %, 1 to 99, where a charge ends; nothing without a limit
    bool answers = false;                     // says anything about its state at all
};

[[nodiscard]] BatteryPack packFrom(const RawPack& raw);

} // namespace quelby
