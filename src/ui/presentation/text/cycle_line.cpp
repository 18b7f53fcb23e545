#include "ui/presentation/text/cycle_line.h"

#include <fmt/format.h>

#include "base/time_of_day.h"
#include "base/utf8.h"

namespace quelby {

namespace {

std::string busiestText(const PublishedFields& fields) {
    const auto& processes = fields.topProcesses.get();
    return processes.empty()
               ? std::string()
               : fmt::format(", {} {:.1f} %", printable(processes.front().name), processes.front().cpu);
}

} // namespace

std::string_view batteryState(const PublishedFields& fields) {
    if (!fields.hasBattery) {
        return "no battery";
    }
    if (!fields.isPluggedIn) {
        return "discharging";
    }
    if (fields.fullyCharged) {
        return "full";
    }
    return fields.isCharging ? "charging" : "plugged in";
}

std::string batteryText(const PublishedFields& fields) {
    if (!fields.hasBattery) {
        return std::string(batteryState(fields));
    }
    return fmt::format("{} % {}, {}", fields.batteryPercent.get(), batteryState(fields),
                       fields.predictedTime.get());
}

std::string cycleLine(const PublishedFields& fields, Date time) {
    return fmt::format("{}  {}  {:.1f} W  CPU {:.1f} %{}\n", timeOfDay(time), batteryText(fields),
                       fields.totalPower.get(), fields.cpuUsage.get(), busiestText(fields));
}

} // namespace quelby
