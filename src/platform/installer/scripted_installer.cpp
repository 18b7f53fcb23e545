#include "platform/installer/scripted_installer.h"

#include <utility>

#include "platform/helper_names.h"
#include "platform/installer/linux_helper_scripts.h"
#include "platform/installer/macos_helper_scripts.h"
#include "platform/posix/child_process.h"

namespace quelby {

namespace {

namespace fs = std::filesystem;

} // namespace

HelperScripts linuxHelperScripts() {
    return {.install = [](const fs::path& resources) { return linuxInstallScript(resources); },
            .uninstall = [] { return linuxUninstallScript(); },
            .uninstallEverything = [](const fs::path& program) { return linuxFullUninstallScript(program); },
            .query = {"systemctl", "is-active", "--quiet", std::string(linux_helper::service)}};
}

HelperScripts macosHelperScripts() {
    return {.install = [](const fs::path& resources) { return macosInstallScript(resources.native()); },
            .uninstall = macosUninstallScript,
            .uninstallEverything =
                [](const fs::path& program) { return macosFullUninstallScript(program.native()); },
            .query = {"/bin/launchctl", "list", std::string(macos_helper::label)}};
}

ScriptedInstaller::ScriptedInstaller(Folders& folders, HelperScripts scripts, RunAsRoot runAsRoot)
    : folders_(folders), scripts_(std::move(scripts)), runAsRoot_(std::move(runAsRoot)) {}

bool ScriptedInstaller::isLoaded() {
    return runToTheEnd(scripts_.query) == 0;
}

Result<void> ScriptedInstaller::install() {
    const auto resources = folders_.resources();
    if (!resources || !runAsRoot_(scripts_.install(*resources))) {
        return problem("the helper was not installed");
    }
    return {};
}

Result<void> ScriptedInstaller::uninstall() {
    return runAsRoot_(scripts_.uninstall()) ? Result<void>() : problem("the helper was not removed");
}

Result<void> ScriptedInstaller::uninstallEverything() {
    return runAsRoot_(scripts_.uninstallEverything(folders_.program()))
               ? Result<void>()
               : problem("the helper and the program were not removed");
}

} // namespace quelby
