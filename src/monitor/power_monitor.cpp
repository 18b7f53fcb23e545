#include "monitor/power_monitor.h"

#include "monitor/battery_reading.h"
#include "monitor/component_power.h"
#include "monitor/cpu_usage.h"
#include "monitor/top_processes.h"

namespace quelby {

std::shared_ptr<PowerMonitor> PowerMonitor::create(const Platform& platform, Interval interval) {
    return std::make_shared<PowerMonitor>(Private{}, platform, interval);
}

PowerMonitor::PowerMonitor(Private, const Platform& platform, Interval interval)
    : platform_(platform), interval_(interval) {}

void PowerMonitor::startMonitoring() {
    restorePreferences();
    collectAllData();
    scheduleCycles();
}

void PowerMonitor::stopMonitoring() {
    if (const auto timer = std::exchange(dataTimer_, nullptr)) {
        timer->invalidate();
    }
}

void PowerMonitor::restorePreferences() {
    const auto stored = platform_.preferences.text("menuBarDisplay");
    if (const auto display = stored ? quelby::menuBarDisplay(*stored) : std::nullopt) {
        menuBarDisplay = *display;
    }
    launchAtLogin = platform_.preferences.flag("launchAtLogin");
}

void PowerMonitor::scheduleCycles() {
    dataTimer_ = platform_.runLoop.repeat(interval_, [weak = weak_from_this()] {
        if (const auto monitor = weak.lock()) {
            monitor->collectAllData();
        }
    });
}

// The order of the steps is fixed: each uses what the ones before it have published.
void PowerMonitor::collectAllData() {
    readBatteryIOKit();
    readCPUUsage();
    calculatePower();
    readTopProcesses();
    sampleBattery();
    predictBattery();
    if (onUpdate) {
        onUpdate();
    }
}

void PowerMonitor::readBatteryIOKit() {
    publishBatteryReading(platform_.battery.readBattery(), *this);
}

void PowerMonitor::readCPUUsage() {
    const auto listing = platform_.processes.cpuListing();
    if (!listing) {
        return;
    }
    if (const auto usage = quelby::cpuUsage(*listing, platform_.processes.logicalProcessors())) {
        cpuUsage = *usage;
    }
}

void PowerMonitor::calculatePower() {
    quelby::calculatePower(*this, platform_.storageDraw);
}

void PowerMonitor::readTopProcesses() {
    const auto listing = platform_.processes.topListing();
    if (!listing) {
        return;
    }
    if (auto processes = quelby::topProcesses(*listing, cpuUsage, cpuPower)) {
        topProcesses = std::move(*processes);
    }
}

void PowerMonitor::sampleBattery() {
    quelby::sampleBattery(batteryRecord_, platform_.clock.now(), batteryPercent);
}

void PowerMonitor::predictBattery() {
    quelby::predictBattery(batteryRecord_, *this);
}

} // namespace quelby
