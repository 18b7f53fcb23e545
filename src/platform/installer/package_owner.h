#pragma once

#include <filesystem>
#include <optional>

#include "platform/package_manager.h"

namespace quelby {

// Which package manager brought the program, by what the managers themselves keep on the disk; nothing where
// none did. The root is the folder that takes the place of /, also in the program's path.
[[nodiscard]] std::optional<PackageManager> packageOwner(const std::filesystem::path& program,
                                                         const std::filesystem::path& root = "/");

} // namespace quelby
