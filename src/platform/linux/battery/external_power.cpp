#include "platform/linux/battery/external_power.h"

#include <algorithm>

namespace quelby {

namespace {

bool any(const std::vector<PackStatus>& packs, PackStatus status) {
    return std::find(packs.begin(), packs.end(), status) != packs.end();
}

bool any(const std::vector<Adapter>& adapters, AdapterKind kind, bool isOnline) {
    return std::any_of(adapters.begin(), adapters.end(), [&](const Adapter& adapter) {
        return adapter.kind == kind && adapter.isOnline == isOnline;
    });
}

// A battery that holds its charge without discharging can do so only where something else feeds the computer.
bool isFedByStatus(const std::vector<PackStatus>& packs) {
    const bool allUnknown = std::all_of(packs.begin(), packs.end(),
                                        [](PackStatus status) { return status == PackStatus::Unknown; });
    return !allUnknown && !any(packs, PackStatus::Discharging);
}

} // namespace

bool isExternalConnected(const std::vector<Adapter>& adapters, const std::vector<PackStatus>& packs) {
    if (adapters.empty()) {
        return isFedByStatus(packs);
    }
    if (any(adapters, AdapterKind::Mains, true)) {
        return true;
    }
    if (any(adapters, AdapterKind::Other, true)) {
        // A port is online beside an idle mains supply on USB-C computers, but also while it feeds a phone.
        return !any(adapters, AdapterKind::Mains, false) || !any(packs, PackStatus::Discharging);
    }
    // Drivers that never report their adapter online are known; nothing charges from nowhere.
    return any(packs, PackStatus::Charging);
}

} // namespace quelby
