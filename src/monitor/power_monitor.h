// The one object at the centre: it holds the published fields and, while it is monitoring, renews them in a
// cycle every 3 seconds.
//
// No step of a cycle reports an error: a reader that cannot get its data leaves its fields as they were.
// Everything runs on the main thread, in the run loop of the platform, and observers are called there.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "monitor/battery_prediction.h"
#include "monitor/published_fields.h"
#include "platform/platform.h"

namespace quelby {

class PowerMonitor : public PublishedFields, public std::enable_shared_from_this<PowerMonitor> {
    struct Private {
        explicit Private() = default;
    };

public:
    using Interval = std::chrono::duration<double>;
    static constexpr Interval cycleInterval = std::chrono::seconds(3);

    // A monitor at rest, every field at its default; asks the platform for nothing yet. The platform's parts
    // outlive the monitor. Shared, because whoever shows the figures shares it, and because the timer holds
    // it weakly.
    [[nodiscard]] static std::shared_ptr<PowerMonitor> create(const Platform& platform,
                                                              Interval interval = cycleInterval);

    PowerMonitor(Private, const Platform& platform, Interval interval);

    // Restores the preferences, runs one cycle at once, and then one each interval. Called again while it
    // runs, it leaves two timers running.
    void startMonitoring();

    // No further cycles; the fields keep their values. Harmless when nothing runs.
    void stopMonitoring();

    // Called at the end of every cycle.
    std::function<void()> onUpdate;

private:
    void restorePreferences();
    void scheduleCycles();
    void collectAllData();
    void readBatteryIOKit();
    void readCPUUsage();
    void calculatePower();
    void readTopProcesses();
    void sampleBattery();
    void predictBattery();

    Platform platform_;
    Interval interval_;
    std::shared_ptr<RepeatingTimer> dataTimer_;
    BatteryRecord batteryRecord_;
};

} // namespace quelby
