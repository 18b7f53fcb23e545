#include "monitor/power_monitor.h"

#include <new>
#include <utility>

#include "monitor/battery_reading.h"
#include "monitor/component_power.h"
#include "monitor/cpu_usage.h"
#include "monitor/preference_keys.h"
#include "monitor/top_processes.h"

namespace quelby {

std::shared_ptr<PowerMonitor> PowerMonitor::create(Platform platform, MonitorOptions options) {
    return std::make_shared<PowerMonitor>(Private{}, platform, std::move(options));
}

PowerMonitor::PowerMonitor(Private, Platform platform, MonitorOptions options)
    : platform_(platform)
    , options_(std::move(options))
    , storeDisplay_(menuBarDisplay.observe([preferences = platform_.preferences](MenuBarDisplay coming) {
        preferences->setText(preference_keys::menuBarDisplay, rawValue(coming));
    })) {}

void PowerMonitor::startMonitoring() {
    restorePreferences();
    loadDaemonConfig();
    checkDaemonInstalled();
    openHistory();
    collectAllData();
    loadHistory();
    scheduleCycles();
}

void PowerMonitor::stopMonitoring() {
    if (const auto timer = std::exchange(dataTimer_, nullptr)) {
        timer->invalidate();
    }
    unlessOutOfMemory(&PowerMonitor::keepEnergy); // the program may be about to end
}

void PowerMonitor::restorePreferences() {
    const auto stored = platform_.preferences->text(preference_keys::menuBarDisplay);
    if (const auto display = stored ? quelby::menuBarDisplay(*stored) : std::nullopt) {
        menuBarDisplay = *display;
    }
    launchAtLogin = platform_.preferences->flag(preference_keys::launchAtLogin);
}

void PowerMonitor::openHistory() {
    energyRecorder_.reset();
    historyStore_.reset(); // before its successor opens the same file
    if (!options_.history) {
        return;
    }
    const auto folder = platform_.folders->applicationSupport();
    historyStore_.emplace(folder, *platform_.clock, *options_.history);
    if (options_.history == HistoryAccess::recording) {
        energyRecorder_.emplace(folder, *platform_.clock);
    }
}

void PowerMonitor::takeOverHistory() {
    const bool reads = options_.history == HistoryAccess::readOnly;
    if (reads && options_.mayRecordNow && options_.mayRecordNow()) {
        options_.history = HistoryAccess::recording;
        due_.history = true;
    }
    if (due_.history) {
        openHistory();
        due_.history = false;
    }
}

void PowerMonitor::loadHistory() {
    if (!historyStore_) {
        return;
    }
    auto result = historyStore_->loadData(historyRange);
    historyData = std::move(result.points);
    historyAvg = result.avg;
    historyMin = result.min;
    historyMax = result.max;
    todayWh = historyStore_->todayWh();
}

void PowerMonitor::selectHistoryRange(TimeRange range) {
    historyRange = range;
    loadHistory();
}

void PowerMonitor::scheduleCycles() {
    dataTimer_ = platform_.runLoop->repeat(options_.interval, [weak = weak_from_this()] {
        if (const auto monitor = weak.lock()) {
            monitor->collectAllData();
        }
    });
}

// The order of the steps is fixed: each uses what the ones before it have published.
void PowerMonitor::collectAllData() {
    for (const auto step :
         {&PowerMonitor::readBatteryIOKit, &PowerMonitor::readCPUUsage, &PowerMonitor::calculatePower,
          &PowerMonitor::readTopProcesses, &PowerMonitor::sampleBattery, &PowerMonitor::predictBattery,
          &PowerMonitor::noticeDaemonConfig, &PowerMonitor::readDaemonStatus, &PowerMonitor::recordReading,
          &PowerMonitor::recordEnergy, &PowerMonitor::renewShownHistory, &PowerMonitor::tellOfCycle}) {
        unlessOutOfMemory(step);
    }
}

void PowerMonitor::unlessOutOfMemory(void (PowerMonitor::*step)()) {
    try {
        (this->*step)();
    } catch (const std::bad_alloc&) { // the next cycle may have more
    }
}

void PowerMonitor::readBatteryIOKit() {
    publishBatteryReading(platform_.battery->readBattery(), *this);
}

void PowerMonitor::readCPUUsage() {
    const auto listing = platform_.processes->cpuListing();
    if (!listing) {
        return;
    }
    if (const auto usage = quelby::cpuUsage(*listing, platform_.processes->logicalProcessors())) {
        cpuUsage = *usage;
    }
}

void PowerMonitor::calculatePower() {
    quelby::calculatePower(*this, *platform_.storageDraw);
}

void PowerMonitor::readTopProcesses() {
    topListing_ = platform_.processes->topListing();
    if (!topListing_) {
        return;
    }
    if (auto processes = quelby::topProcesses(*topListing_, cpuUsage, cpuPower)) {
        topProcesses = std::move(*processes);
    }
}

void PowerMonitor::sampleBattery() {
    quelby::sampleBattery(batteryRecord_, platform_.clock->now(), batteryPercent);
}

void PowerMonitor::predictBattery() {
    quelby::predictBattery(batteryRecord_, *this);
}

void PowerMonitor::recordReading() {
    takeOverHistory();
    if (historyStore_) {
        historyStore_->addReading(totalPower, batteryPercent, isCharging, cpuUsage);
    }
}

void PowerMonitor::recordEnergy() {
    const auto processes = std::exchange(topListing_, std::nullopt);
    if (energyRecorder_) {
        const auto applications = platform_.processes->applicationListing();
        energyRecorder_->addCycle(*this, applications ? applications : processes);
    }
}

void PowerMonitor::keepEnergy() {
    if (energyRecorder_) {
        energyRecorder_->write();
    }
}

void PowerMonitor::renewShownHistory() {
    if (options_.renewsShownHistory) {
        loadHistory();
    }
}

void PowerMonitor::tellOfCycle() {
    if (onUpdate) {
        onUpdate();
    }
}

EnergyReport PowerMonitor::energyReport(EnergyRange range) {
    if (!options_.history) {
        return {.range = range};
    }
    keepEnergy();
    return EnergyReader(platform_.folders->applicationSupport(), *platform_.clock).report(range);
}

std::optional<double> PowerMonitor::minutesToLimit() const {
    return quelby::minutesToLimit(batteryRecord_, *this);
}

} // namespace quelby
