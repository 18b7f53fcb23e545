// A laptop with its monitor, whose clock sleeps, is set, and travels.
#pragma once

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "history/energy/energy_reader.h"
#include "history/history_file.h"
#include "history/support/tables.h"
#include "monitor/power_monitor.h"
#include "platform/local_day.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"
#include "support/time_zone.h"

namespace quelby {

inline constexpr double midnight = 1'700'006'400; // 2023-11-15 00:00 UTC

struct LivingClock final : Clock {
    Date time = midnight + 9 * 3600;
    TimeSinceBoot boot{.awake = 1000, .asleep = 0};

    Date now() override { return time; }

    Date startOfDay() override { return startOfLocalDay(time); }

    std::optional<TimeSinceBoot> sinceBoot() override { return boot; }
};

// A laptop on battery that draws 12 W, half of its processor for a browser.
class MonitoredEnergy : public testing::Test {
protected:
    MonitoredEnergy() {
        computer.folders.support = folder.path();
        computer.processes.cpu = "%CPU\n25.0\n25.0\n";
        computer.processes.top = "%CPU COMM\n25.0 browser\n25.0 editor\n";
        setBattery(2500, false);
    }

    void setBattery(Int milliampereHours, bool pluggedIn, bool charging = false) {
        computer.battery.reading =
            PropertyTable{{"DesignCapacity", 5200},
                          {"AppleRawMaxCapacity", 5000},
                          {"AppleRawCurrentCapacity", milliampereHours},
                          {"CycleCount", 30},
                          {"ExternalConnected", pluggedIn},
                          {"IsCharging", charging},
                          {"InstantAmperage", pluggedIn ? (charging ? 1000 : 0) : -1000},
                          {"Voltage", 12000},
                          {"Temperature", 3050}};
    }

    void start() {
        auto platform = computer.platform();
        platform.clock = clock;
        monitor.reset();
        computer.runLoop = fake::Loop();
        monitor = PowerMonitor::create(platform, {.history = HistoryAccess::recording});
        monitor->startMonitoring();
        used += monitor->totalPower * 3 / 3600;
    }

    void pass(double awake, double asleep = 0) {
        clock.time += awake + asleep;
        clock.boot.awake += awake;
        clock.boot.asleep += asleep;
    }

    void cycle(int count = 1) {
        for (; count > 0; --count) {
            pass(3);
            fire();
        }
    }

    void fire() {
        computer.runLoop.fireTimers();
        used += monitor->totalPower * 3 / 3600;
    }

    // Ends with what has been added up.
    [[nodiscard]] EnergyReader kept() {
        monitor->stopMonitoring();
        return {folder.path(), clock};
    }

    static double sumOf(const std::vector<NamedEnergy>& energy) {
        double sum = 0;
        for (const auto& part : energy) {
            sum += part.wattHours;
        }
        return sum;
    }

    void expectTodayOf(const EnergyReader& reader, double wattHours, double tolerance = 1e-9) {
        EXPECT_NEAR(sumOf(reader.byApp(EnergyRange::today)), wattHours, tolerance);
        EXPECT_NEAR(sumOf(reader.byComponent(EnergyRange::today)), wattHours, tolerance);
    }

    void expectTheHistorysToday(const EnergyReader& reader) {
        monitor->selectHistoryRange(TimeRange::oneHour);
        const double today = monitor->todayWh;
        EXPECT_GT(today, 0.009);
        expectTodayOf(reader, today, today / 100);
    }

    TimeZone utc{"UTC0"};
    TemporaryFolder folder;
    fake::Computer computer;
    LivingClock clock;
    std::shared_ptr<PowerMonitor> monitor;
    double used = 0; // Wh, since the test began
};

} // namespace quelby
