// The recorded machines that come with the program show what their names say.

#include <gtest/gtest.h>

#include "monitor/power_monitor.h"
#include "platform/replay/replayed_machine.h"
#include "support/fake_platform.h"
#include "support/playing.h"

namespace quelby {
namespace {

class Recordings : public testing::Test {
protected:
    // Calls visit(monitor) after each cycle; gives the number of cycles.
    template <typename Visit>
    int play(const std::string& name, Visit visit) {
        auto opened = ReplayedMachine::open(QUELBY_SOURCE_DIR "/resources/recordings/" + name + ".jsonl");
        EXPECT_TRUE(opened) << opened.error().sentence;
        auto& machine = *opened;
        fake::Computer rest;
        rest.helper.configText = machine.helperConfig();
        rest.helper.statusText = machine.helperStatus();
        const auto monitor = PowerMonitor::create(playing(machine, rest));
        int cycles = 0;
        monitor->onUpdate = [&] {
            ++cycles;
            visit(*monitor);
        };
        monitor->startMonitoring();
        while (!machine.isAtLastLine()) {
            rest.runLoop.fireTimers();
        }
        return cycles;
    }

    static constexpr int fourMinutes = 80; // cycles
};

TEST_F(Recordings, ALaptopOnBatteryDischargesUnderChangingLoad) {
    double least = 1000;
    double most = 0;
    Int first = 0;
    Int last = 0;
    const int cycles = play("laptop-on-battery", [&](const PowerMonitor& monitor) {
        EXPECT_FALSE(monitor.isPluggedIn);
        EXPECT_EQ(monitor.totalPower, monitor.realWatts); // measured
        EXPECT_EQ(monitor.topProcesses.get().size(), 5U);
        least = std::min(least, monitor.totalPower.get());
        most = std::max(most, monitor.totalPower.get());
        first = first == 0 ? monitor.batteryPercent.get() : first;
        last = monitor.batteryPercent;
    });
    EXPECT_GE(cycles, fourMinutes);
    EXPECT_GT(most, 2 * least);
    EXPECT_LT(last, first);
}

TEST_F(Recordings, AChargingLaptopBecomesFull) {
    bool charged = false;
    const int cycles = play("laptop-charging-to-full", [&](const PowerMonitor& monitor) {
        EXPECT_TRUE(monitor.isPluggedIn);
        EXPECT_NE(monitor.isCharging, monitor.fullyCharged);
        EXPECT_FALSE(charged && monitor.isCharging);
        charged = monitor.fullyCharged;
    });
    EXPECT_GE(cycles, fourMinutes);
    EXPECT_TRUE(charged);
}

TEST_F(Recordings, AHeldLaptopStaysAtItsLimit) {
    const int cycles = play("laptop-held-at-limit", [&](const PowerMonitor& monitor) {
        EXPECT_TRUE(monitor.isPluggedIn);
        EXPECT_FALSE(monitor.isCharging);
        EXPECT_EQ(monitor.batteryPercent, 80);
        EXPECT_TRUE(monitor.chargeLimitEnabled);
        EXPECT_EQ(monitor.chargeLimitPercent, 80);
        EXPECT_TRUE(monitor.chargingInhibited);
        EXPECT_TRUE(monitor.daemonInstalled);
    });
    EXPECT_GE(cycles, fourMinutes);
}

TEST_F(Recordings, ADesktopHasNoBattery) {
    const int cycles = play("desktop-without-battery", [&](const PowerMonitor& monitor) {
        EXPECT_FALSE(monitor.hasBattery);
        EXPECT_GT(monitor.totalPower, 10);
    });
    EXPECT_GE(cycles, fourMinutes);
}

} // namespace
} // namespace quelby
