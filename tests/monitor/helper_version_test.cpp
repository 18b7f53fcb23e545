// A helper that came with another version of the program.
#include <gtest/gtest.h>

#include "base/version.h"
#include "monitor/power_monitor.h"
#include "support/fake_platform.h"

namespace quelby {
namespace {

class HelperOfAVersion : public testing::Test {
protected:
    HelperOfAVersion() {
        computer.installer.loaded = true;
        computer.helper.statusText =
            R"({"daemonRunning":true,"chargingInhibited":false,"calibrationActive":false,"batteryPercent":1,"lastUpdate":0})";
    }

    void cycle() { computer.runLoop.fireTimers(); }

    static std::string detailsOf(std::string_view version) {
        return R"({"version":")" + std::string(version) + R"("})";
    }

    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
};

TEST_F(HelperOfAVersion, IsTheProgramsOwnWhereBothAreTheSame) {
    computer.helper.sayDetails(detailsOf(version()));
    monitor->startMonitoring();
    EXPECT_TRUE(monitor->daemonInstalled);
    EXPECT_FALSE(monitor->helperOutdated);
}

TEST_F(HelperOfAVersion, IsNoticedWhereItIsAnotherOrSaysNothing) {
    for (const auto& details : {std::optional(detailsOf("0.9.0")), std::optional<std::string>("{}"),
                                std::optional<std::string>()}) {
        computer.helper.sayDetails(details);
        monitor->startMonitoring();
        EXPECT_TRUE(monitor->helperOutdated) << details.value_or("none");
    }
}

TEST_F(HelperOfAVersion, IsNotOutdatedWhereThereIsNone) {
    computer.installer.loaded = false;
    computer.helper.statusText.reset();
    computer.helper.sayDetails(std::nullopt);
    monitor->startMonitoring();
    EXPECT_FALSE(monitor->helperOutdated);
}

TEST_F(HelperOfAVersion, IsNoticedWhileTheProgramRuns) {
    computer.helper.sayDetails(detailsOf(version()));
    monitor->startMonitoring();
    computer.helper.sayDetails(detailsOf("0.9.0")); // somebody has put back the one before
    cycle();
    EXPECT_TRUE(monitor->helperOutdated);
    computer.helper.sayDetails(detailsOf(version()));
    cycle();
    EXPECT_FALSE(monitor->helperOutdated);
}

TEST_F(HelperOfAVersion, IsTakenForThisOneOnceItWasUpdatedUntilItSaysOtherwise) {
    computer.helper.sayDetails(detailsOf("0.9.0"));
    monitor->startMonitoring();
    ASSERT_TRUE(monitor->helperOutdated);
    EXPECT_TRUE(monitor->installDaemon());
    EXPECT_FALSE(monitor->helperOutdated);
    cycle();
    EXPECT_FALSE(monitor->helperOutdated) << "the words of the one before are still there";
    computer.helper.sayDetails(detailsOf("0.9.0"));
    cycle();
    EXPECT_TRUE(monitor->helperOutdated) << "it was brought, but another one was started";
}

TEST_F(HelperOfAVersion, StaysOutdatedWhereNobodyAgreedToTheUpdate) {
    computer.helper.sayDetails(detailsOf("0.9.0"));
    monitor->startMonitoring();
    computer.installer.agrees = false;
    EXPECT_FALSE(monitor->installDaemon());
    EXPECT_TRUE(monitor->helperOutdated);
}

TEST_F(HelperOfAVersion, IsForgottenWithTheHelper) {
    computer.helper.sayDetails(detailsOf("0.9.0"));
    monitor->startMonitoring();
    EXPECT_TRUE(monitor->uninstallDaemon());
    EXPECT_FALSE(monitor->helperOutdated);
}

} // namespace
} // namespace quelby
