#pragma once

#include "monitor/battery_reading.h"

namespace quelby {

// What the monitor makes of a reading: every other field is at its default, and 0 stands for what is unknown.
struct PublishedBattery : PublishedFields {
    explicit PublishedBattery(const BatteryReading& reading) { publishBatteryReading(reading, *this); }
};

} // namespace quelby
