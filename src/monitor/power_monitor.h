// The one object at the centre: it holds the published fields and, while it is monitoring, renews them in a
// cycle every 3 seconds.
//
// No step of a cycle reports an error: a reader that cannot get its data leaves its fields as they were, and
// so does a step without memory. What a person asks for says whether it was done; the monitor shows and logs
// nothing. All runs on the main thread, in the run loop of the platform, and observers are called there.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "base/cycle_interval.h"
#include "history/energy/energy_reader.h"
#include "history/history_store.h"
#include "monitor/battery_prediction.h"
#include "monitor/energy_recorder.h"
#include "monitor/published_fields.h"
#include "platform/platform.h"

namespace quelby {

struct MonitorOptions {
    std::chrono::duration<double> interval = cycleInterval; // from one cycle to the next
    std::optional<HistoryAccess> history; // none: no history. Two recorders would count energy twice.

    // Asked once a cycle while the history is only read: whether to record from now on. None: never.
    std::function<bool()> mayRecordNow;

    // Each cycle loads the shown range again, so that its curve fills before one's eyes. For a demonstration,
    // whose history begins with nothing; otherwise the cycles never do it.
    bool renewsShownHistory = false;
};

class PowerMonitor : public PublishedFields, public std::enable_shared_from_this<PowerMonitor> {
    struct Private {
        explicit Private() = default;
    };

public:
    // A monitor at rest, every field at its default; asks the platform for nothing yet. The platform's parts
    // outlive the monitor. Shared, because whoever shows the figures shares it, and because the timer holds
    // it weakly.
    [[nodiscard]] static std::shared_ptr<PowerMonitor> create(Platform platform, MonitorOptions options = {});

    PowerMonitor(Private, Platform platform, MonitorOptions options);

    // Restores the preferences, opens the history, runs one cycle at once, loads the history that is shown,
    // and then runs a cycle each interval. Called again while it runs, it leaves two timers running.
    void startMonitoring();

    // No further cycles; the fields keep their values. Harmless when nothing runs.
    void stopMonitoring();

    // Each of the next three keeps the setting and tells the helper; what another program has told it in the
    // meantime stays, and is shown. The problem is that it could not be told; the setting holds nevertheless.

    // The first time that the limit is switched on, ever, the charging tip is to be shown.
    [[nodiscard]] Result<void> toggleChargeLimit(bool enabled);

    // In % of full charge.
    [[nodiscard]] Result<void> setChargeLimit(double percent);

    // The days are those from one calibration to the next.
    [[nodiscard]] Result<void> updateCalibrationSettings(bool enabled, Int days);

    // Asks for the administrator's password, and waits for it. A helper that was installed gets the settings
    // at once. The problem is that it was not installed, and then nothing changes, or that it could not be
    // told.
    [[nodiscard]] Result<void> installDaemon();

    // Asks and waits as well. The limit is off afterwards; the other settings stay in memory. The problem is
    // that the helper was not removed, and then nothing changes.
    [[nodiscard]] Result<void> uninstallDaemon();

    // Who brought this program, where it came as a package; nothing where no package manager did.
    [[nodiscard]] std::optional<PackageManager> packageManager() const;

    // Removes the helper, if the user agrees, the history, all preferences, the start at login and the
    // program itself, unless it came as a package, and calls `then` at the end, whatever could not be removed.
    void fullUninstall(const std::function<void()>& then) const;

    // Starts the program at login, or no longer. The choice is kept also where the system does not follow it.
    void setLaunchAtLogin(bool enabled);

    // Shows another range of the history, or the same one renewed.
    void selectHistoryRange(TimeRange range);

    // Where the energy went, up to now; empty without a history.
    [[nodiscard]] EnergyReport energyReport(EnergyRange range);

    // Minutes until charging will stop at the limit; nothing where it will not, or cannot be said yet.
    [[nodiscard]] std::optional<double> minutesToLimit() const;

    // Called at the end of every cycle.
    std::function<void()> onUpdate;

private:
    void restorePreferences();
    void loadDaemonConfig();
    void noticeDaemonConfig();
    void checkDaemonInstalled();
    [[nodiscard]] Result<void> writeDaemonConfig();
    void readDaemonStatus();
    void setDaemonInstalled(bool installed);
    void openHistory();
    void takeOverHistory();
    void loadHistory();
    void scheduleCycles();
    void collectAllData();
    void unlessOutOfMemory(void (PowerMonitor::*step)());
    void readBatteryIOKit();
    void readCPUUsage();
    void calculatePower();
    void readTopProcesses();
    void sampleBattery();
    void predictBattery();
    void recordReading();
    void recordEnergy();
    void keepEnergy();
    void renewShownHistory();
    void tellOfCycle();

    Platform platform_;
    MonitorOptions options_;
    std::shared_ptr<RepeatingTimer> dataTimer_;
    std::optional<HistoryStore> historyStore_;
    std::optional<EnergyRecorder> energyRecorder_; // while the history is recorded
    std::optional<std::string> topListing_;        // of the cycle under way
    BatteryRecord batteryRecord_;

    // What a step had no memory for, and the next one makes up for.
    struct Due {
        bool helperSettings = false;
        bool helperVersion = false;
        bool history = false;
    } due_;

    bool helperIsCurrent_ = true; // of this program's version, by what it said last
    Subscription storeDisplay_;   // keeps every choice of what the title shows
};

} // namespace quelby
