// What the system that this program was built for answers the platform's questions with. The build picks the
// system's own definitions; nothing that these functions give is null.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/battery_source.h"
#include "platform/folders.h"
#include "platform/helper_installer.h"
#include "platform/login_item.h"
#include "platform/preferences.h"
#include "platform/process_lister.h"

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
    std::unique_ptr<HelperInstaller> helperInstaller;
    std::unique_ptr<LoginItem> loginItem;
};

// How a program ends: an application when its user has had enough of it, a tool as soon as its work is done.
enum class ProgramKind { application, tool };

[[nodiscard]] SystemReaders makeSystemReaders(const SystemRoots& roots);
[[nodiscard]] std::unique_ptr<Folders> makeSystemFolders();
[[nodiscard]] std::unique_ptr<Preferences> makeSystemPreferences(ProgramKind kind);

// The folders outlive the services.
[[nodiscard]] SystemServices makeSystemServices(Folders& folders);

} // namespace quelby
