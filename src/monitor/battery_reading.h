// From the battery's property table to the published battery fields.
#pragma once

#include "monitor/published_fields.h"
#include "platform/battery_source.h"

namespace quelby {

// No battery changes `hasBattery` only; an unreadable one sets it and leaves every other field as it was. A
// property of the wrong type counts as absent. `realWatts` is never negative: `isPluggedIn`, `isCharging` and
// the sign of `amperage` tell the direction.
void publishBatteryReading(const BatteryReading& reading, PublishedFields& fields);

} // namespace quelby
