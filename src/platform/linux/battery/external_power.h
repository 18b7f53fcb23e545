#pragma once

#include <vector>

namespace quelby {

enum class PackStatus { Unknown, Charging, Discharging, NotCharging, Full };

enum class AdapterKind {
    Mains,
    Other, // USB ports, wireless chargers: they may be online in the other direction, too
};

struct Adapter {
    AdapterKind kind = AdapterKind::Mains;
    bool isOnline = false;
};

// Whether the computer is on external power, by the adapters and, where they say nothing or contradict each
// other, by what the batteries do. There is at least one battery.
[[nodiscard]] bool isExternalConnected(const std::vector<Adapter>& adapters,
                                       const std::vector<PackStatus>& packs);

} // namespace quelby
