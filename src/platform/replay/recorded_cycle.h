// What one cycle asked of a machine and was told.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/battery_source.h"
#include "platform/clock.h"

namespace quelby {

struct RecordedCycle {
    double time = 0; // wall clock, seconds since 1970-01-01 00:00 UTC
    BatteryReading battery = NoBattery{};
    std::int64_t processors = 1;           // logical ones
    std::optional<std::string> cpuListing; // none: the lister could not be started
    std::optional<std::string> topListing;
    std::optional<std::string> applicationListing;
    std::optional<TimeSinceBoot> sinceBoot;
    std::optional<int> storageDraw;    // 0 or 1; none: nothing was drawn
    std::optional<std::string> status; // text of the helper's status.json; none: no such file
    bool helperLoaded = false;
    std::optional<std::string> config; // text of the helper's config.json; none: no such file

    bool operator==(const RecordedCycle&) const = default;
};

} // namespace quelby
