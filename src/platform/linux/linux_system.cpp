#include "platform/linux/battery/sysfs_battery_source.h"
#include "platform/linux/processes/proc_process_lister.h"
#include "platform/linux/xdg_folders.h"
#include "platform/system_readers.h"

namespace quelby {

SystemReaders makeSystemReaders(const SystemRoots& roots) {
    return {std::make_unique<SysfsBatterySource>(roots.sysfs),
            std::make_unique<ProcProcessLister>(roots.proc)};
}

std::unique_ptr<Folders> makeSystemFolders() {
    return std::make_unique<XdgFolders>();
}

} // namespace quelby
