// Two programs of one user, or of two, that change the helper's settings in the same folder.

#include <gtest/gtest.h>

#include "helper/daemon_config.h"
#include "monitor/power_monitor.h"
#include "platform/posix/helper_files.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

// A program that runs on a computer of its own, but for the folder.
struct Program {
    explicit Program(const std::filesystem::path& folder) : files(folder) {
        auto platform = computer.platform();
        platform.helperFolder = files;
        monitor = PowerMonitor::create(platform);
        monitor->startMonitoring();
    }

    void cycle() { computer.runLoop.fireTimers(); }

    HelperFiles files;
    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor;
};

class TwoWriters : public testing::Test {
protected:
    [[nodiscard]] DaemonConfig config() const {
        return decodeDaemonConfig(folder.read("config.json")).value_or(DaemonConfig{});
    }

    TemporaryFolder folder;
    Program tray{folder.path()};
    Program command{folder.path()};
};

TEST_F(TwoWriters, LeaveWhatTheOtherChanged) {
    EXPECT_TRUE(command.monitor->setChargeLimit(90));
    EXPECT_TRUE(tray.monitor->toggleChargeLimit(true));
    EXPECT_TRUE(command.monitor->updateCalibrationSettings(true, 14));
    EXPECT_TRUE(tray.monitor->setChargeLimit(95));
    EXPECT_EQ(config(), (DaemonConfig{.chargeLimitEnabled = true,
                                      .chargeLimitPercent = 95,
                                      .calibrationEnabled = true,
                                      .calibrationIntervalDays = 14}));
}

TEST_F(TwoWriters, ShowWhatTheOtherChangedInTheirNextCycle) {
    EXPECT_TRUE(tray.monitor->setChargeLimit(85));
    tray.cycle();
    EXPECT_TRUE(command.monitor->setChargeLimit(90)); // as long a text as before
    EXPECT_EQ(tray.monitor->chargeLimitPercent, 85.0);
    tray.cycle();
    EXPECT_EQ(tray.monitor->chargeLimitPercent, 90.0);
    EXPECT_TRUE(command.monitor->toggleChargeLimit(true));
    tray.cycle();
    EXPECT_TRUE(tray.monitor->chargeLimitEnabled);
    EXPECT_FALSE(tray.monitor->shouldShowChargingTip) << "whoever switches it on raises the tip";
}

TEST_F(TwoWriters, ShowWhatTheOtherChangedOnceTheyWriteThemselves) {
    EXPECT_TRUE(command.monitor->updateCalibrationSettings(true, 60));
    EXPECT_TRUE(tray.monitor->setChargeLimit(85));
    EXPECT_TRUE(tray.monitor->calibrationEnabled);
    EXPECT_EQ(tray.monitor->calibrationIntervalDays, 60);
}

} // namespace
} // namespace quelby
