// Everything that the monitor asks of a computer. It is handed these references and never asks which system
// it runs on; whoever made the parts outlives the monitor.
#pragma once

#include "base/ref.h"
#include "platform/battery_source.h"
#include "platform/clock.h"
#include "platform/folders.h"
#include "platform/helper_folder.h"
#include "platform/helper_installer.h"
#include "platform/login_item.h"
#include "platform/preferences.h"
#include "platform/process_lister.h"
#include "platform/run_loop.h"
#include "platform/storage_draw.h"

namespace quelby {

// A value: whoever wants another part in a computer copies this and replaces the part.
struct Platform {
    Ref<BatterySource> battery;
    Ref<ProcessLister> processes;
    Ref<Clock> clock;
    Ref<Folders> folders;
    Ref<HelperFolder> helperFolder;
    Ref<HelperInstaller> helperInstaller;
    Ref<LoginItem> loginItem;
    Ref<RunLoop> runLoop;
    Ref<Preferences> preferences;
    Ref<StorageDraw> storageDraw;
};

} // namespace quelby
