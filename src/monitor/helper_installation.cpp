// Installing and removing the charge-limit helper, and the whole program.

#include "helper/system_scripts.h"
#include "history/history_file.h"
#include "monitor/power_monitor.h"
#include "monitor/preference_keys.h"

namespace quelby {

void PowerMonitor::installDaemon() {
    const auto resources = platform_.folders.resources();
    if (!resources || !platform_.privilegedShell.run(helperInstallScript(*resources))) {
        return;
    }
    daemonInstalled = true;
    writeDaemonConfig();
}

void PowerMonitor::uninstallDaemon() {
    if (!platform_.privilegedShell.run(helperUninstallScript())) {
        return;
    }
    daemonInstalled = false;
    chargingInhibited = false;
    chargeLimitEnabled = false;
    chargeLimitStatus = "";
}

void PowerMonitor::fullUninstall(const std::function<void()>& then) {
    // Without the password the helper stays, and all else goes nevertheless.
    static_cast<void>(platform_.privilegedShell.run(fullUninstallScript(platform_.folders.program())));
    std::error_code ignored;
    std::filesystem::remove_all(historyFile(platform_.folders.applicationSupport()).parent_path(), ignored);
    platform_.preferences.removeAll();
    for (const auto key : preference_keys::all) {
        platform_.preferences.remove(key);
    }
    static_cast<void>(platform_.loginItem.unregisterProgram());
    then();
}

void PowerMonitor::setLaunchAtLogin(bool enabled) {
    launchAtLogin = enabled;
    platform_.preferences.setFlag(preference_keys::launchAtLogin, enabled);
    auto& item = platform_.loginItem;
    static_cast<void>(enabled ? item.registerProgram() : item.unregisterProgram());
}

} // namespace quelby
