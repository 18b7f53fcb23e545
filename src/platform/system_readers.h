// What the system that this program was built for brings with it.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/battery_source.h"
#include "platform/folders.h"
#include "platform/login_item.h"
#include "platform/preferences.h"
#include "platform/privileged_shell.h"
#include "platform/process_lister.h"
#include "platform/service_manager.h"

namespace quelby {

// Where the kernel shows itself, for tests and odd systems. Only Linux looks at them.
struct SystemRoots {
    std::filesystem::path sysfs = "/sys";
    std::filesystem::path proc = "/proc";
};

struct SystemReaders {
    std::unique_ptr<BatterySource> battery;
    std::unique_ptr<ProcessLister> processes;
};

struct SystemServices {
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<PrivilegedShell> privilegedShell;
    std::unique_ptr<ServiceManager> serviceManager;
};

// Never null. The build picks the system's own definitions.
[[nodiscard]] SystemReaders makeSystemReaders(const SystemRoots& roots);
[[nodiscard]] std::unique_ptr<Folders> makeSystemFolders();
[[nodiscard]] std::unique_ptr<Preferences> makeSystemPreferences();
[[nodiscard]] SystemServices makeSystemServices(Folders& folders);

} // namespace quelby
