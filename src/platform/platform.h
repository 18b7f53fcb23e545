// Everything that the monitor asks of a computer. It is handed these references and never asks which system
// it runs on; whoever makes them outlives the monitor.
#pragma once

#include "platform/battery_source.h"
#include "platform/clock.h"
#include "platform/folders.h"
#include "platform/helper_folder.h"
#include "platform/login_item.h"
#include "platform/preferences.h"
#include "platform/privileged_shell.h"
#include "platform/process_lister.h"
#include "platform/run_loop.h"
#include "platform/service_manager.h"
#include "platform/storage_draw.h"

namespace quelby {

struct Platform {
    BatterySource& battery;
    ProcessLister& processes;
    Clock& clock;
    Folders& folders;
    HelperFolder& helperFolder;
    LoginItem& loginItem;
    RunLoop& runLoop;
    Preferences& preferences;
    PrivilegedShell& privilegedShell;
    ServiceManager& serviceManager;
    StorageDraw& storageDraw;
};

} // namespace quelby
