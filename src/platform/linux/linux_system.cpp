#include "platform/installer/scripted_installer.h"
#include "platform/linux/autostart_entry.h"
#include "platform/linux/battery/sysfs_battery_source.h"
#include "platform/linux/pkexec.h"
#include "platform/linux/processes/proc_process_lister.h"
#include "platform/linux/xdg_folders.h"
#include "platform/qt/qt_preferences.h"
#include "platform/system.h"

namespace quelby {

SystemReaders makeSystemReaders(const SystemRoots& roots) {
    return {std::make_unique<SysfsBatterySource>(roots.sysfs),
            std::make_unique<ProcProcessLister>(roots.proc, systemScanTime, desktopEntryFolders())};
}

std::unique_ptr<Folders> makeSystemFolders() {
    return std::make_unique<XdgFolders>();
}

std::unique_ptr<Preferences> makeSystemPreferences(ProgramKind /*kind*/) {
    return std::make_unique<QtPreferences>(std::nullopt);
}

SystemServices makeSystemServices(Folders& folders) {
    return {std::make_unique<ScriptedInstaller>(folders, linuxHelperScripts(), runWithPkexec),
            std::make_unique<AutostartEntry>(folders.configuration(), folders.program())};
}

} // namespace quelby
