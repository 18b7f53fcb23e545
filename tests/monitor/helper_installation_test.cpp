#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "helper/daemon_config.h"
#include "monitor/power_monitor.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HelperInstallation : public testing::Test {
protected:
    HelperInstallation() { computer.folders.support = folder.path(); }

    TemporaryFolder folder;
    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
};

TEST_F(HelperInstallation, InstallsAndTellsTheHelperTheSettings) {
    monitor->chargeLimitPercent = 85;
    EXPECT_TRUE(monitor->installDaemon());
    EXPECT_THAT(computer.installer.wishes, ElementsAre("install"));
    EXPECT_TRUE(monitor->daemonInstalled);
    EXPECT_EQ(decodeDaemonConfig(*computer.helper.configText)->chargeLimitPercent, 85);
}

TEST_F(HelperInstallation, ChangesNothingWithoutThePassword) {
    computer.installer.agrees = false;
    EXPECT_EQ(monitor->installDaemon().error().sentence, "the administrator did not agree");
    EXPECT_FALSE(monitor->daemonInstalled);
    EXPECT_EQ(computer.helper.writes, 0);
}

TEST_F(HelperInstallation, SaysWhereTheNewHelperCannotBeTold) {
    computer.helper.writable = false;
    EXPECT_FALSE(monitor->installDaemon());
    EXPECT_TRUE(monitor->daemonInstalled);
}

TEST_F(HelperInstallation, IsUndoneByTheRemoval) {
    monitor->chargeLimitPercent = 85;
    monitor->chargeLimitEnabled = true;
    monitor->daemonInstalled = true;
    monitor->chargingInhibited = true;
    monitor->chargeLimitStatus = "Holding at 85%";
    EXPECT_TRUE(monitor->uninstallDaemon());
    EXPECT_THAT(computer.installer.wishes, ElementsAre("uninstall"));
    EXPECT_FALSE(monitor->daemonInstalled);
    EXPECT_FALSE(monitor->chargingInhibited);
    EXPECT_FALSE(monitor->chargeLimitEnabled);
    EXPECT_EQ(monitor->chargeLimitStatus.get(), "");
    EXPECT_EQ(monitor->chargeLimitPercent, 85.0);
    EXPECT_EQ(computer.helper.writes, 0);
}

TEST_F(HelperInstallation, StaysWithoutThePassword) {
    monitor->chargeLimitEnabled = true;
    monitor->daemonInstalled = true;
    computer.installer.agrees = false;
    EXPECT_FALSE(monitor->uninstallDaemon());
    EXPECT_TRUE(monitor->daemonInstalled);
    EXPECT_TRUE(monitor->chargeLimitEnabled);
}

class FullUninstall : public HelperInstallation, public testing::WithParamInterface<bool> {};

TEST_P(FullUninstall, RemovesEverythingAndAlwaysCallsBackOnce) {
    computer.installer.agrees = GetParam();
    computer.login.works = false;
    computer.preferences.setText("menuBarDisplay", "Battery %");
    computer.preferences.setFlag("hasShownChargingTip", true);
    folder.write("Quelby/history.db", "kept until now");
    folder.write("Other/file", "of somebody else");
    int calls = 0;
    monitor->fullUninstall([&] { ++calls; });
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(computer.installer.wishes, ElementsAre("uninstall everything"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Quelby"));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Other" / "file"));
    EXPECT_THAT(computer.preferences.texts, IsEmpty());
    EXPECT_THAT(computer.preferences.flags, IsEmpty());
    EXPECT_THAT(computer.login.wishes, ElementsAre("unregister"));
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutThePassword, FullUninstall, testing::Values(true, false),
                         [](const auto& agrees) { return agrees.param ? "With" : "Without"; });

TEST_F(HelperInstallation, IsForgottenWithAllElseSoThatTheTipComesAgain) {
    EXPECT_TRUE(monitor->toggleChargeLimit(true));
    monitor->fullUninstall([] {});
    monitor->shouldShowChargingTip = false;
    EXPECT_TRUE(monitor->toggleChargeLimit(true));
    EXPECT_TRUE(monitor->shouldShowChargingTip);
}

TEST_F(HelperInstallation, KnowsWhoBroughtTheProgram) {
    EXPECT_EQ(monitor->packageManager(), std::nullopt);
    computer.installer.manager = PackageManager::apt;
    EXPECT_EQ(monitor->packageManager(), PackageManager::apt);
}

class LaunchAtLogin : public HelperInstallation {};

TEST_F(LaunchAtLogin, IsKeptAndHandedToTheSystem) {
    monitor->setLaunchAtLogin(true);
    EXPECT_TRUE(monitor->launchAtLogin);
    EXPECT_TRUE(computer.preferences.flags.at("launchAtLogin"));
    monitor->setLaunchAtLogin(false);
    EXPECT_FALSE(monitor->launchAtLogin);
    EXPECT_FALSE(computer.preferences.flags.at("launchAtLogin"));
    EXPECT_THAT(computer.login.wishes, ElementsAre("register", "unregister"));
}

TEST_F(LaunchAtLogin, StaysChosenWhereTheSystemRefuses) {
    computer.login.works = false;
    monitor->setLaunchAtLogin(true);
    EXPECT_TRUE(monitor->launchAtLogin);
    EXPECT_TRUE(computer.preferences.flags.at("launchAtLogin"));
}

TEST_F(LaunchAtLogin, IsRestoredWithoutAskingTheSystem) {
    computer.preferences.setFlag("launchAtLogin", true);
    monitor->startMonitoring();
    EXPECT_TRUE(monitor->launchAtLogin);
    EXPECT_THAT(computer.login.wishes, IsEmpty());
}

} // namespace
} // namespace quelby
