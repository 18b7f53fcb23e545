// What the monitor tells the charge-limit helper, and hears from it.

#include "base/arithmetic.h"
#include "base/version.h"
#include "helper/charge_limit_status.h"
#include "helper/daemon_config.h"
#include "helper/daemon_status.h"
#include "helper/helper_version.h"
#include "monitor/power_monitor.h"
#include "monitor/preference_keys.h"

namespace quelby {

void PowerMonitor::loadDaemonConfig() {
    const auto text = platform_.helperFolder->config();
    const auto config = text ? decodeDaemonConfig(*text) : std::nullopt;
    if (!config) {
        return;
    }
    chargeLimitEnabled = config->chargeLimitEnabled;
    chargeLimitPercent = static_cast<double>(config->chargeLimitPercent);
    calibrationEnabled = config->calibrationEnabled;
    calibrationIntervalDays = config->calibrationIntervalDays;
    if (config->lastCalibrationTimestamp > 0) {
        lastCalibrationDate = config->lastCalibrationTimestamp;
    }
}

// The file has other writers. One of them is this program itself: what it wrote is read again as well, so
// that nothing is missed which came right behind.
void PowerMonitor::noticeDaemonConfig() {
    if (due_.helperSettings || platform_.helperFolder->configChanged()) {
        due_.helperSettings = true;
        loadDaemonConfig();
        due_.helperSettings = false;
    }
}

Result<void> PowerMonitor::writeDaemonConfig() {
    const auto replaced = platform_.helperFolder->config();
    const auto text = encode(DaemonConfig{.chargeLimitEnabled = chargeLimitEnabled,
                                          .chargeLimitPercent = truncated(chargeLimitPercent),
                                          .calibrationEnabled = calibrationEnabled,
                                          .calibrationIntervalDays = calibrationIntervalDays,
                                          .lastCalibrationTimestamp = lastCalibrationDate.get().value_or(0)},
                             replaced.value_or(""));
    return text ? platform_.helperFolder->replaceConfig(*text)
                : problem("the last calibration has no time that the helper could be told");
}

void PowerMonitor::checkDaemonInstalled() {
    setDaemonInstalled(platform_.helperInstaller->isLoaded());
}

// A helper that was just brought is taken for this program's own, until it says otherwise.
void PowerMonitor::setDaemonInstalled(bool installed) {
    if (due_.helperVersion || platform_.helperFolder->detailsChanged()) {
        due_.helperVersion = true;
        helperIsCurrent_ = isHelperOf(platform_.helperFolder->details(), version());
        due_.helperVersion = false;
    }
    helperOutdated = installed && !helperIsCurrent_;
    daemonInstalled = installed;
}

// A helper that no longer writes leaves its last words standing: how old they are is not looked at.
void PowerMonitor::readDaemonStatus() {
    const auto text = platform_.helperFolder->status();
    auto status = text ? decodeDaemonStatus(*text) : std::nullopt;
    if (!status) {
        return;
    }
    chargingInhibited = status->chargingInhibited;
    calibrationActive = status->calibrationActive;
    setDaemonInstalled(status->daemonRunning);
    chargeLimitStatus = quelby::chargeLimitStatus({.calibrationActive = calibrationActive,
                                                   .calibrationPhase = std::move(status->calibrationPhase),
                                                   .chargingInhibited = chargingInhibited,
                                                   .chargeLimitEnabled = chargeLimitEnabled,
                                                   .isPluggedIn = isPluggedIn,
                                                   .batteryPercent = batteryPercent,
                                                   .chargeLimitPercent = chargeLimitPercent});
}

Result<void> PowerMonitor::toggleChargeLimit(bool enabled) {
    noticeDaemonConfig();
    chargeLimitEnabled = enabled;
    auto told = writeDaemonConfig();
    if (enabled && !platform_.preferences->flag(preference_keys::hasShownChargingTip)) {
        platform_.preferences->setFlag(preference_keys::hasShownChargingTip, true);
        shouldShowChargingTip = true;
    }
    return told;
}

Result<void> PowerMonitor::setChargeLimit(double percent) {
    noticeDaemonConfig();
    chargeLimitPercent = percent;
    return writeDaemonConfig();
}

Result<void> PowerMonitor::updateCalibrationSettings(bool enabled, Int days) {
    noticeDaemonConfig();
    calibrationEnabled = enabled;
    calibrationIntervalDays = days;
    return writeDaemonConfig();
}

} // namespace quelby
