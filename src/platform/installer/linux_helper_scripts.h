// Scripts that install and remove the charge-limit helper, to be run as root: /bin/sh -c SCRIPT. They mean
// what those for macOS mean (see macos_helper_scripts.h).
//
// All paths are absolute, and may have any characters. The root is the folder that takes the place of / for
// all that is installed, but not within the unit's text; systemctl is the one in PATH.
#pragma once

#include <filesystem>
#include <string>

#include "platform/installer/installed_program.h"

namespace quelby {

// Copies the helper from the program's resources, opens its folder to everybody and has systemd start it, now
// and at every boot, which is tried also after one of these failed, and whose exit status is the script's. A
// helper that is running already gives way to the new one.
[[nodiscard]] std::string linuxInstallScript(const std::filesystem::path& resourceFolder,
                                             const std::filesystem::path& root = "/");

// Stops the helper, has it put back what it found, and removes all that installing made, each part whatever
// became of the others. The exit status is that of removing the helper's folder.
[[nodiscard]] std::string linuxUninstallScript(const std::filesystem::path& root = "/");

// The same, and then the program itself, whose files' removal decides about the exit status, if there are any.
// A folder in which something else has been put stays.
[[nodiscard]] std::string linuxFullUninstallScript(const InstalledProgram& program,
                                                   const std::filesystem::path& root = "/");

} // namespace quelby
