// The scripts of the system that this program was built for; the build picks their definitions.
#pragma once

#include <filesystem>
#include <string>

namespace quelby {

// Installs and starts the helper that lies in the program's resources.
[[nodiscard]] std::string helperInstallScript(const std::filesystem::path& resources);

// Stops and removes the helper and its folder.
[[nodiscard]] std::string helperUninstallScript();

// Stops and removes the helper, its folder and the program.
[[nodiscard]] std::string fullUninstallScript(const std::filesystem::path& program);

} // namespace quelby
