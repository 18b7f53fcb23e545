#include "platform/installer/scripted_installer.h"
#include "platform/macos/apple_script.h"
#include "platform/macos/bundle_folders.h"
#include "platform/macos/iokit_battery_source.h"
#include "platform/macos/main_app_login_item.h"
#include "platform/macos/processor_count.h"
#include "platform/macos/ps_process_lister.h"
#include "platform/macos/user_defaults.h"
#include "platform/system.h"

namespace quelby {

SystemReaders makeSystemReaders(const SystemRoots& /*roots*/) {
    return {std::make_unique<IokitBatterySource>(),
            std::make_unique<PsProcessLister>(configuredProcessors())};
}

std::unique_ptr<Folders> makeSystemFolders() {
    return std::make_unique<BundleFolders>();
}

std::unique_ptr<Preferences> makeSystemPreferences(ProgramKind kind) {
    return std::make_unique<UserDefaults>(kind);
}

SystemServices makeSystemServices(Folders& folders) {
    return {std::make_unique<ScriptedInstaller>(folders, macosHelperScripts(), runAppleScript),
            std::make_unique<MainAppLoginItem>()};
}

} // namespace quelby
