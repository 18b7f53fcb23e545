#pragma once

#include <vector>

#include "platform/battery_source.h"
#include "platform/linux/battery/battery_pack.h"
#include "platform/linux/battery/external_power.h"

namespace quelby {

// The packs and adapters as the one property table that a battery answers with. There is at least one pack.
// IsCharging, ExternalConnected and FullyCharged are always there. MaxCapacity never is: where the full
// charge is not known, CurrentCapacity alone is the percentage.
[[nodiscard]] PropertyTable propertyTable(const std::vector<BatteryPack>& packs,
                                          const std::vector<Adapter>& adapters);

} // namespace quelby
