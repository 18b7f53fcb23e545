// Everything that the monitor asks of a computer. It is handed these references and never asks which system
// it runs on; whoever makes them outlives the monitor.
#pragma once

#include "platform/battery_source.h"
#include "platform/clock.h"
#include "platform/folders.h"
#include "platform/preferences.h"
#include "platform/process_lister.h"
#include "platform/run_loop.h"
#include "platform/storage_draw.h"

namespace quelby {

struct Platform {
    BatterySource& battery;
    ProcessLister& processes;
    Clock& clock;
    Folders& folders;
    RunLoop& runLoop;
    Preferences& preferences;
    StorageDraw& storageDraw;
};

} // namespace quelby
