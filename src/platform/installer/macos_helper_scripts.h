// AppleScript sources that install and remove the charge-limit helper as root, after asking for an
// administrator's password. Running one gives success or an error; a refused password is an error.
#pragma once

#include <string>
#include <string_view>

namespace quelby {

// Copies the helper from the program's resources, opens its folder to everybody and has launchd load it,
// which is tried also after one of these failed, and decides about success. The path goes into the script as
// it stands: one with a single quote breaks it.
[[nodiscard]] std::string macosInstallScript(std::string_view resourceFolder);

// The same in place of a helper that is loaded: stops it, and removes its executable, for the system would not run
// another one that is written over it.
[[nodiscard]] std::string macosUpdateScript(std::string_view resourceFolder);

// Stops the helper and removes all that installing made, each part whatever became of the others.
[[nodiscard]] std::string macosUninstallScript();

// The same, and the program itself. The path goes into the script as it stands.
[[nodiscard]] std::string macosFullUninstallScript(std::string_view bundle);

} // namespace quelby
