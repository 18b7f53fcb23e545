// The component power model: what the system draws, and its split over five components.
//
// On battery the draw is measured. On the adapter nothing measures it, so it is estimated from the CPU load.
// The split is a fixed weighting model in both cases: no ordinary machine can measure the components.
#pragma once

#include "monitor/published_fields.h"
#include "platform/storage_draw.h"

namespace quelby {

// Entries of `powerHistory`: three minutes at a cycle every 3 seconds.
inline constexpr std::size_t maxHistory = 60;

// From `isPluggedIn`, `fullyCharged`, `realWatts`, `batteryPercent` and `cpuUsage` come the five component
// powers, `totalPower`, `chargePower`, `acTotal`, `efficiency` and the next entry of `powerHistory`.
// Observers see the components before `totalPower` where it is estimated and after it where it is measured,
// and `acTotal` as the last power before `efficiency`. A figure is drawn for the storage only where the draw
// is estimated.
void calculatePower(PublishedFields& fields, StorageDraw& storageDraw);

} // namespace quelby
