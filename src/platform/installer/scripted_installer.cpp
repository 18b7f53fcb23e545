#include "platform/installer/scripted_installer.h"

#include <utility>

#include "platform/helper_names.h"
#include "platform/installer/linux_helper_scripts.h"
#include "platform/installer/macos_helper_scripts.h"
#include "platform/installer/package_owner.h"
#include "platform/posix/child_process.h"

namespace quelby {

namespace fs = std::filesystem;

HelperScripts linuxHelperScripts() {
    return {.install = [](const fs::path& resources) { return linuxInstallScript(resources); },
            .update = nullptr,
            .uninstall = [] { return linuxUninstallScript(); },
            .uninstallEverything =
                [](const fs::path& program) { return linuxFullUninstallScript(installedProgram(program)); },
            .packageManager = [](const fs::path& program) { return packageOwner(program); },
            .query = {"systemctl", "is-active", "--quiet", std::string(linux_helper::service)}};
}

HelperScripts macosHelperScripts() {
    return {.install = [](const fs::path& resources) { return macosInstallScript(resources.native()); },
            .update = [](const fs::path& resources) { return macosUpdateScript(resources.native()); },
            .uninstall = macosUninstallScript,
            .uninstallEverything =
                [](const fs::path& program) { return macosFullUninstallScript(program.native()); },
            .packageManager = [](const fs::path&) { return std::optional<PackageManager>(); },
            .query = {"/bin/launchctl", "list", std::string(macos_helper::label)}};
}

ScriptedInstaller::ScriptedInstaller(Folders& folders, HelperScripts scripts, RunAsRoot runAsRoot)
    : folders_(folders), scripts_(std::move(scripts)), runAsRoot_(std::move(runAsRoot)) {}

bool ScriptedInstaller::isLoaded() {
    return runToTheEnd(scripts_.query) == 0;
}

std::optional<PackageManager> ScriptedInstaller::packageManager() {
    return scripts_.packageManager(folders_.program());
}

Result<void> ScriptedInstaller::install() {
    const auto resources = folders_.resources();
    const bool updates = scripts_.update != nullptr && isLoaded();
    const auto script = updates ? scripts_.update : scripts_.install;
    if (!resources || !runAsRoot_(script(*resources))) {
        return problem("the helper was not installed");
    }
    return {};
}

Result<void> ScriptedInstaller::uninstall() {
    return runAsRoot_(scripts_.uninstall()) ? Result<void>() : problem("the helper was not removed");
}

Result<void> ScriptedInstaller::uninstallEverything() {
    const auto script =
        packageManager() ? scripts_.uninstall() : scripts_.uninstallEverything(folders_.program());
    return runAsRoot_(script) ? Result<void>() : problem("the helper and the program were not removed");
}

} // namespace quelby
