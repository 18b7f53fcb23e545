#pragma once

#include "platform/replay/replayed_machine.h"
#include "support/fake_platform.h"

namespace quelby {

// A recorded machine in the place of a computer's readers.
inline Platform playing(ReplayedMachine& machine, fake::Computer& rest) {
    return {.battery = machine,
            .processes = machine,
            .clock = machine,
            .folders = rest.folders,
            .helperFolder = rest.helper,
            .loginItem = rest.login,
            .runLoop = rest.runLoop,
            .preferences = rest.preferences,
            .privilegedShell = rest.administrator,
            .serviceManager = machine,
            .storageDraw = machine};
}

} // namespace quelby
