#pragma once

#include <optional>

#include "base/problem.h"
#include "platform/package_manager.h"

namespace quelby {

// Brings the charge-limit helper to this computer, and takes it away again.
class HelperInstaller {
public:
    virtual ~HelperInstaller() = default;

    // Whether the helper is loaded; false also where the system cannot be asked. Waits for the answer.
    [[nodiscard]] virtual bool isLoaded() = 0;

    // Who brought this program, where it came as a package: uninstallEverything() leaves its files to that
    // manager then. Nothing where no manager did.
    [[nodiscard]] virtual std::optional<PackageManager> packageManager() = 0;

    // Each of these asks for the administrator's password, and waits for the user and for what is then done
    // as root. The problem is that the user did not agree, or that it failed.

    // Installs and starts the helper that came with this program, also in place of one that runs. Nobody is asked
    // where none did.
    [[nodiscard]] virtual Result<void> install() = 0;

    // Stops and removes the helper and its folder.
    [[nodiscard]] virtual Result<void> uninstall() = 0;

    // The same, and removes this program itself, all of it, unless it came as a package.
    [[nodiscard]] virtual Result<void> uninstallEverything() = 0;
};

} // namespace quelby
