// Installing and removing the charge-limit helper, and the whole program.

#include "history/history_file.h"
#include "monitor/power_monitor.h"
#include "monitor/preference_keys.h"

namespace quelby {

Result<void> PowerMonitor::installDaemon() {
    if (auto installed = platform_.helperInstaller->install(); !installed) {
        return installed;
    }
    static_cast<void>(platform_.helperFolder->details()); // of the one before
    helperIsCurrent_ = true;
    setDaemonInstalled(true);
    noticeDaemonConfig(); // the question may have been open for long
    return writeDaemonConfig();
}

Result<void> PowerMonitor::uninstallDaemon() {
    if (auto removed = platform_.helperInstaller->uninstall(); !removed) {
        return removed;
    }
    setDaemonInstalled(false);
    chargingInhibited = false;
    chargeLimitEnabled = false;
    chargeLimitStatus = "";
    return {};
}

std::optional<PackageManager> PowerMonitor::packageManager() const {
    return platform_.helperInstaller->packageManager();
}

void PowerMonitor::fullUninstall(const std::function<void()>& then) const {
    // Without the password the helper stays, and all else goes nevertheless.
    static_cast<void>(platform_.helperInstaller->uninstallEverything());
    std::error_code ignored;
    std::filesystem::remove_all(historyFile(platform_.folders->applicationSupport()).parent_path(), ignored);
    platform_.preferences->removeAll();
    for (const auto key : preference_keys::all) {
        platform_.preferences->remove(key);
    }
    static_cast<void>(platform_.loginItem->unregisterProgram());
    then();
}

void PowerMonitor::setLaunchAtLogin(bool enabled) {
    launchAtLogin = enabled;
    platform_.preferences->setFlag(preference_keys::launchAtLogin, enabled);
    auto& item = *platform_.loginItem;
    static_cast<void>(enabled ? item.registerProgram() : item.unregisterProgram());
}

} // namespace quelby
