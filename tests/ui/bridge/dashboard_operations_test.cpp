// What the controls ask for, done by a real monitor on a made-up computer.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "helper/daemon_config.h"
#include "support/temporary_folder.h"
#include "ui/support/made_up_dashboard.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DashboardOperations : public testing::Test {
protected:
    [[nodiscard]] DaemonConfig written() const {
        return decodeDaemonConfig(computer.helper.configText.value_or("")).value_or(DaemonConfig{});
    }

    MadeUpDashboard dashboard;
    fake::Computer& computer = dashboard.computer;
    PowerMonitor& monitor = *dashboard.monitor;
    DashboardModel& model = dashboard.model;
};

TEST_F(DashboardOperations, SwitchTheChargeLimitAndRaiseTheTipOnce) {
    model.setWatched(true);
    model.toggleChargeLimit(true);
    EXPECT_TRUE(monitor.chargeLimitEnabled);
    EXPECT_EQ(written(), (DaemonConfig{.chargeLimitEnabled = true}));
    finishTurn();
    EXPECT_TRUE(model.shouldShowChargingTip());
    EXPECT_TRUE(computer.preferences.flags.at("hasShownChargingTip"));
    model.setShouldShowChargingTip(false);
    model.toggleChargeLimit(false);
    EXPECT_FALSE(written().chargeLimitEnabled);
    model.toggleChargeLimit(true);
    finishTurn();
    EXPECT_FALSE(model.shouldShowChargingTip());
}

TEST_F(DashboardOperations, WriteTheStopLevelAtEveryStep) {
    for (const double percent : {20.0, 75.0, 100.0}) {
        model.setChargeLimit(percent);
        EXPECT_EQ(monitor.chargeLimitPercent, percent);
        EXPECT_EQ(written().chargeLimitPercent, static_cast<std::int64_t>(percent));
    }
    EXPECT_EQ(computer.helper.writes, 3);
    EXPECT_THAT(*computer.helper.configText, HasSubstr(R"("chargeLimitPercent")"));
}

TEST_F(DashboardOperations, InstallAndUninstallTheHelper) {
    model.installDaemon();
    EXPECT_TRUE(monitor.daemonInstalled);
    EXPECT_EQ(computer.helper.writes, 1);
    monitor.chargeLimitEnabled = true;
    model.uninstallDaemon();
    EXPECT_FALSE(monitor.daemonInstalled);
    EXPECT_FALSE(monitor.chargeLimitEnabled);
    EXPECT_THAT(computer.installer.wishes, ElementsAre("install", "uninstall"));
}

TEST_F(DashboardOperations, LeaveTheHelperAsItIsWithoutTheAdministrator) {
    computer.installer.agrees = false;
    model.installDaemon();
    EXPECT_FALSE(monitor.daemonInstalled);
    EXPECT_EQ(computer.helper.writes, 0);
    monitor.daemonInstalled = true;
    model.uninstallDaemon();
    EXPECT_TRUE(monitor.daemonInstalled);
}

TEST_F(DashboardOperations, SelectTheRangeOfEachButton) {
    for (const int index : {3, 2, 1, 0}) {
        model.selectHistoryRange(index);
        EXPECT_EQ(monitor.historyRange.get(), allTimeRanges.at(static_cast<std::size_t>(index)));
    }
}

TEST_F(DashboardOperations, SelectTheDisplayOfEachButtonAndKeepIt) {
    for (const int index : {5, 4, 3, 2, 1, 0}) {
        model.selectMenuBarDisplay(index);
        const auto display = allMenuBarDisplays.at(static_cast<std::size_t>(index));
        EXPECT_EQ(monitor.menuBarDisplay.get(), display);
        EXPECT_EQ(computer.preferences.texts.at("menuBarDisplay"), rawValue(display));
    }
}

TEST_F(DashboardOperations, SwitchTheCalibrationWithTheIntervalThatIsSet) {
    monitor.calibrationIntervalDays = 14;
    for (const bool enabled : {true, false}) {
        model.setAutoCalibrate(enabled);
        EXPECT_EQ(monitor.calibrationEnabled, enabled);
        EXPECT_EQ(written(), (DaemonConfig{.calibrationEnabled = enabled, .calibrationIntervalDays = 14}));
    }
}

TEST_F(DashboardOperations, SwitchTheCalibrationOnWithTheIntervalOfEachButton) {
    const std::pair<int, Int> intervals[] = {{0, 7}, {1, 14}, {2, 30}, {3, 60}};
    for (const auto& [index, days] : intervals) {
        monitor.calibrationEnabled = false;
        model.selectCalibrationInterval(index);
        EXPECT_TRUE(monitor.calibrationEnabled);
        EXPECT_EQ(written(), (DaemonConfig{.calibrationEnabled = true, .calibrationIntervalDays = days}));
    }
}

TEST_F(DashboardOperations, IgnoreAnIndexBeyondTheRowOfButtons) {
    for (const int index : {-1, 6, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        model.selectHistoryRange(index);
        model.selectMenuBarDisplay(index);
        model.selectCalibrationInterval(index);
    }
    model.selectHistoryRange(4);
    model.selectCalibrationInterval(4);
    EXPECT_EQ(monitor.historyRange.get(), TimeRange::thirtyMinutes);
    EXPECT_EQ(monitor.menuBarDisplay.get(), MenuBarDisplay::watts);
    EXPECT_FALSE(monitor.calibrationEnabled);
    EXPECT_EQ(computer.helper.writes, 0);
    EXPECT_EQ(computer.preferences.writes, 0);
}

TEST_F(DashboardOperations, StartTheProgramAtLoginOrNoLonger) {
    for (const bool enabled : {true, false}) {
        model.setLaunchAtLogin(enabled);
        EXPECT_EQ(monitor.launchAtLogin, enabled);
        EXPECT_EQ(computer.preferences.flags.at("launchAtLogin"), enabled);
    }
    EXPECT_THAT(computer.login.wishes, ElementsAre("register", "unregister"));
}

TEST_F(DashboardOperations, UninstallEverythingAndQuit) {
    const TemporaryFolder folder;
    computer.folders.support = folder.path();
    folder.write("Quelby/history.db", "");
    computer.preferences.setFlag("launchAtLogin", true);
    model.fullUninstall();
    EXPECT_THAT(computer.installer.wishes, ElementsAre("uninstall everything"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Quelby"));
    EXPECT_THAT(computer.preferences.flags, IsEmpty());
    EXPECT_THAT(computer.login.wishes, ElementsAre("unregister"));
    EXPECT_EQ(dashboard.quits, 1);
}

TEST_F(DashboardOperations, AskTheProgramAroundThem) {
    model.openBatterySettings();
    EXPECT_EQ(dashboard.batterySettingsOpened, 1);
    model.quit();
    EXPECT_EQ(dashboard.quits, 1);
    EXPECT_THAT(computer.installer.wishes, IsEmpty());
}

} // namespace
} // namespace quelby
