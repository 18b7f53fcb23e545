// Installing and removing the helper by scripts, which is how both systems do it.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/folders.h"
#include "platform/helper_installer.h"

namespace quelby {

// What one system does, in its own language of scripts.
struct HelperScripts {
    std::string (*install)(const std::filesystem::path& resources);

    // In place of installing, where a helper is loaded; null where installing does it as well.
    std::string (*update)(const std::filesystem::path& resources);

    std::string (*uninstall)();
    std::string (*uninstallEverything)(const std::filesystem::path& program);

    // Who brought the program, where it came as a package.
    std::optional<PackageManager> (*packageManager)(const std::filesystem::path& program);

    // A program (a path, or a name to be looked up in PATH) and its arguments, to be run as the user. It
    // exits with 0 if the helper is loaded, and only then.
    std::vector<std::string> query;
};

[[nodiscard]] HelperScripts linuxHelperScripts(); // for /bin/sh and systemd
[[nodiscard]] HelperScripts macosHelperScripts(); // for AppleScript and launchd

class ScriptedInstaller final : public HelperInstaller {
public:
    // Waits for the user and for the script. False where it could not be run, where the user did not agree,
    // and where it ended with a failure.
    using RunAsRoot = std::function<bool(const std::string& script)>;

    // The folders, which outlive the installer, say where the helper and the program lie.
    ScriptedInstaller(Folders& folders, HelperScripts scripts, RunAsRoot runAsRoot);

    [[nodiscard]] bool isLoaded() override;
    [[nodiscard]] std::optional<PackageManager> packageManager() override;
    [[nodiscard]] Result<void> install() override;
    [[nodiscard]] Result<void> uninstall() override;
    [[nodiscard]] Result<void> uninstallEverything() override;

private:
    Folders& folders_;
    HelperScripts scripts_;
    RunAsRoot runAsRoot_;
};

} // namespace quelby
