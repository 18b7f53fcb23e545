// What the system that this program was built for brings with it.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/battery_source.h"
#include "platform/folders.h"
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

// Never null. The build picks the system's own definitions.
[[nodiscard]] SystemReaders makeSystemReaders(const SystemRoots& roots);
[[nodiscard]] std::unique_ptr<Folders> makeSystemFolders();

} // namespace quelby
