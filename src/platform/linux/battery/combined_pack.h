#pragma once

#include <vector>

#include "platform/linux/battery/battery_pack.h"

namespace quelby {

// Several packs seen as one; a single one stays as it is. There is at least one.
//
// Charges of packs with different voltages do not add up, energies do: so contents and flows are summed as
// energies. Only packs that know both how much they hold and how much they could are part of the sum; without
// any, the percentage is the mean of theirs. The reference voltage is the first pack's that knows one, so
// that the capacity does not change with the pack in use; the present voltage is that of the first pack in
// use.
[[nodiscard]] BatteryPack combined(const std::vector<BatteryPack>& packs);

} // namespace quelby
