#pragma once

#include "platform/replay/replayed_machine.h"
#include "support/fake_platform.h"

namespace quelby {

// A recorded machine in the place of a computer's readers.
inline Platform playing(ReplayedMachine& machine, fake::Computer& rest) {
    auto platform = rest.platform();
    platform.battery = machine;
    platform.processes = machine;
    platform.clock = machine;
    platform.helperInstaller = machine;
    platform.storageDraw = machine;
    return platform;
}

} // namespace quelby
