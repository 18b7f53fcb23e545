#include "monitor/power_monitor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/assignments.h"
#include "support/fake_platform.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PowerMonitorTest : public testing::Test {
protected:
    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
};

TEST_F(PowerMonitorTest, AsksForNothingBeforeItStarts) {
    EXPECT_EQ(computer.battery.readings, 0);
    EXPECT_THAT(computer.runLoop.intervals(), IsEmpty());
    EXPECT_EQ(monitor->predictedTime.get(), "collecting...");
}

TEST_F(PowerMonitorTest, RunsACycleAtOnceAndThenEveryThreeSeconds) {
    monitor->startMonitoring();
    EXPECT_EQ(computer.battery.readings, 1);
    EXPECT_THAT(computer.runLoop.intervals(), ElementsAre(3.0));
    computer.runLoop.fireTimers();
    EXPECT_EQ(computer.battery.readings, 2);
}

TEST_F(PowerMonitorTest, FollowsAnotherIntervalWhereOneIsAskedFor) {
    const auto quick =
        PowerMonitor::create(computer.platform(), {.interval = std::chrono::milliseconds(500)});
    quick->startMonitoring();
    EXPECT_THAT(computer.runLoop.intervals(), ElementsAre(0.5));
}

TEST_F(PowerMonitorTest, StopsAndKeepsItsValues) {
    computer.battery.reading = PropertyTable{{"AppleRawMaxCapacity", 100}, {"AppleRawCurrentCapacity", 42}};
    monitor->startMonitoring();
    monitor->stopMonitoring();
    monitor->stopMonitoring();
    EXPECT_THAT(computer.runLoop.intervals(), IsEmpty());
    EXPECT_EQ(monitor->batteryPercent, 42);
}

TEST_F(PowerMonitorTest, StopsWithoutATimer) {
    monitor->stopMonitoring();
    EXPECT_EQ(computer.battery.readings, 0);
}

TEST_F(PowerMonitorTest, StartsAgainAfterAStop) {
    monitor->startMonitoring();
    monitor->stopMonitoring();
    monitor->startMonitoring();
    EXPECT_THAT(computer.runLoop.intervals(), ElementsAre(3.0));
    EXPECT_EQ(computer.battery.readings, 2);
}

TEST_F(PowerMonitorTest, LeavesTwoTimersRunningWhenStartedTwice) {
    monitor->startMonitoring();
    monitor->startMonitoring();
    EXPECT_THAT(computer.runLoop.intervals(), ElementsAre(3.0, 3.0));
    monitor->stopMonitoring();
    EXPECT_THAT(computer.runLoop.intervals(), ElementsAre(3.0));
}

TEST_F(PowerMonitorTest, IsHeldWeaklyByItsTimer) {
    monitor->startMonitoring();
    monitor.reset();
    EXPECT_THAT(computer.runLoop.intervals(), ElementsAre(3.0)); // still there, and harmless
    computer.runLoop.fireTimers();
    EXPECT_EQ(computer.battery.readings, 1);
}

TEST_F(PowerMonitorTest, MayLoseItsOwnerWithinACycle) {
    monitor->startMonitoring();
    monitor->onUpdate = [this] { monitor.reset(); };
    computer.runLoop.fireTimers();
    computer.runLoop.fireTimers();
    EXPECT_EQ(computer.battery.readings, 2);
}

TEST_F(PowerMonitorTest, CallsOnUpdateAtTheEndOfEveryCycle) {
    int updates = 0;
    computer.processes.top = "%CPU COMM\n1.0 editor\n";
    monitor->onUpdate = [&] {
        ++updates;
        EXPECT_EQ(monitor->topProcesses.get().size(), 1U);
        EXPECT_EQ(monitor->predictedTime.get(), "collecting data...");
    };
    monitor->startMonitoring();
    computer.runLoop.fireTimers();
    EXPECT_EQ(updates, 2);
}

TEST_F(PowerMonitorTest, RenewsTheFieldsInOrder) {
    computer.battery.reading = PropertyTable{{"Temperature", 3000}};
    EXPECT_THAT(assignedDuring(*monitor, [&] { monitor->startMonitoring(); }),
                ElementsAre("launchAtLogin", "daemonInstalled", "hasBattery", "designCapacity",
                            "rawMaxCapacity", "rawCurrentCapacity", "cycleCount", "batteryPercent",
                            "isCharging", "isPluggedIn", "fullyCharged", "batteryHealth", "amperage",
                            "voltage", "realWatts", "batteryTemp", "timeRemaining", "cpuUsage", "cpuPower",
                            "gpuPower", "memPower", "diskPower", "netPower", "totalPower", "chargePower",
                            "acTotal", "efficiency", "powerHistory", "topProcesses", "predictedTime",
                            "batteryRateStr"));
}

TEST_F(PowerMonitorTest, UsesTheLoadOfTheSameCycle) {
    computer.battery.reading =
        PropertyTable{{"InstantAmperage", -1000}, {"Voltage", 14500}, {"ExternalConnected", false}};
    computer.processes.processors = 2;
    computer.processes.cpu = "%CPU\n40.0\n";
    computer.processes.top = "%CPU COMM\n40.0 editor\n";
    monitor->startMonitoring();
    const double cpuWeight = 20 * 35.0 / 100 + 3;
    const double sum = cpuWeight + 20 * 12.0 / 100 + 1 + 3 + 1.5 + 1 + 5;
    EXPECT_EQ(monitor->cpuUsage, 20.0);
    EXPECT_DOUBLE_EQ(monitor->cpuPower, 14.5 * cpuWeight / sum);
    EXPECT_DOUBLE_EQ(monitor->topProcesses.get().at(0).estimatedWatts, monitor->cpuPower * 40.0 / 20.0);
}

TEST_F(PowerMonitorTest, KeepsWhatAListerThatCannotStartLeavesUnknown) {
    computer.processes.cpu = "%CPU\n40.0\n";
    computer.processes.top = "%CPU COMM\n40.0 editor\n";
    monitor->startMonitoring();
    computer.processes.cpu = std::nullopt;
    computer.processes.top = std::nullopt;
    computer.runLoop.fireTimers();
    EXPECT_EQ(monitor->cpuUsage, 40.0);
    EXPECT_EQ(monitor->topProcesses.get().size(), 1U);
    computer.processes.cpu = "%CPU\n\xFF\n";
    computer.processes.top = "%CPU COMM\n1.0 \xFF\n";
    computer.runLoop.fireTimers();
    EXPECT_EQ(monitor->cpuUsage, 40.0);
    EXPECT_EQ(monitor->topProcesses.get().at(0).name, "editor");
}

TEST_F(PowerMonitorTest, PredictsAfterThreeSamples) {
    int remaining = 80;
    const auto drain = [&] {
        computer.battery.reading =
            PropertyTable{{"AppleRawMaxCapacity", 100}, {"AppleRawCurrentCapacity", remaining--}};
    };
    drain();
    monitor->startMonitoring();
    for (int cycle = 0; cycle < 2; ++cycle) {
        drain();
        computer.clock.time += 30;
        computer.runLoop.fireTimers();
    }
    EXPECT_EQ(monitor->batteryRateStr.get(), "-120.0%/hr");
    EXPECT_EQ(monitor->predictedTime.get(), "~0h 39m remaining");
}

TEST_F(PowerMonitorTest, RestoresThePreferences) {
    computer.preferences.texts["menuBarDisplay"] = "Battery %";
    computer.preferences.flags["launchAtLogin"] = true;
    monitor->startMonitoring();
    EXPECT_EQ(monitor->menuBarDisplay, MenuBarDisplay::percentage);
    EXPECT_TRUE(monitor->launchAtLogin);
}

TEST_F(PowerMonitorTest, StoresEveryChoiceOfTheTitle) {
    monitor->menuBarDisplay = MenuBarDisplay::iconOnly;
    EXPECT_EQ(computer.preferences.texts.at("menuBarDisplay"), "Icon Only");
    monitor->menuBarDisplay = MenuBarDisplay::iconOnly;
    EXPECT_EQ(computer.preferences.writes, 2); // also of an equal value
}

TEST_F(PowerMonitorTest, StoresNothingWhereNothingWasStored) {
    monitor->startMonitoring();
    EXPECT_EQ(computer.preferences.writes, 0);
}

TEST_F(PowerMonitorTest, KeepsTheDefaultDisplayForAnUnknownPreference) {
    computer.preferences.texts["menuBarDisplay"] = "Battery";
    monitor->startMonitoring();
    EXPECT_EQ(monitor->menuBarDisplay, MenuBarDisplay::watts);
    EXPECT_FALSE(monitor->launchAtLogin);
}

} // namespace
} // namespace quelby
