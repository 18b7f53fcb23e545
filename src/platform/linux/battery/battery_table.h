#pragma once

#include <vector>

#include "platform/battery_source.h"
#include "platform/linux/battery/battery_pack.h"
#include "platform/linux/battery/external_power.h"

namespace quelby {

// The packs and adapters as the one property table that a battery answers with. There is at least one pack.
// IsCharging, ExternalConnected and FullyCharged are always there. MaxCapacity never is: where the full
// charge is not known, CurrentCapacity is the percentage, and AppleRawCurrentCapacity stands beside it so
// that nobody takes the percentage for a charge; it is 0 where the charge is not known either.
[[nodiscard]] PropertyTable propertyTable(const std::vector<BatteryPack>& packs,
                                          const std::vector<Adapter>& adapters);

} // namespace quelby
