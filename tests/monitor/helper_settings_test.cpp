#include <algorithm>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "helper/daemon_config.h"
#include "monitor/power_monitor.h"
#include "support/assignments.h"
#include "support/fake_platform.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HelperSettings : public testing::Test {
protected:
    [[nodiscard]] DaemonConfig written() const {
        const auto config = decodeDaemonConfig(computer.helper.configText.value_or(""));
        EXPECT_TRUE(config);
        return config.value_or(DaemonConfig{});
    }

    void cycle() { computer.runLoop.fireTimers(); }

    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor = PowerMonitor::create(computer.platform());
};

constexpr const char* helperHolds =
    R"({"daemonRunning":true,"chargingInhibited":true,"calibrationActive":false,"batteryPercent":1,"lastUpdate":0})";

TEST_F(HelperSettings, AreLoadedAtTheStart) {
    computer.helper.configText =
        R"({"chargeLimitEnabled":true,"chargeLimitPercent":85,"calibrationEnabled":true,)"
        R"("calibrationIntervalDays":14,"lastCalibrationTimestamp":1700000000.5})";
    monitor->startMonitoring();
    EXPECT_TRUE(monitor->chargeLimitEnabled);
    EXPECT_EQ(monitor->chargeLimitPercent, 85.0);
    EXPECT_TRUE(monitor->calibrationEnabled);
    EXPECT_EQ(monitor->calibrationIntervalDays, 14);
    EXPECT_EQ(monitor->lastCalibrationDate.get(), 1700000000.5);
    EXPECT_EQ(computer.helper.writes, 0);
}

TEST_F(HelperSettings, KeepALastCalibrationThatTheFileDoesNotKnow) {
    monitor->lastCalibrationDate = 5.0;
    for (const auto* time : {"0", "-3"}) {
        computer.helper.configText =
            R"({"chargeLimitEnabled":true,"chargeLimitPercent":85,"calibrationEnabled":true,)"
            R"("calibrationIntervalDays":14,"lastCalibrationTimestamp":)" +
            std::string(time) + "}";
        monitor->startMonitoring();
        EXPECT_EQ(monitor->lastCalibrationDate.get(), 5.0);
        EXPECT_EQ(monitor->chargeLimitPercent, 85.0);
    }
}

TEST_F(HelperSettings, KeepTheirDefaultsWithoutAWholeFile) {
    for (const auto& text : std::vector<std::optional<std::string>>{
             std::nullopt, "", R"({"chargeLimitEnabled":true,"chargeLimitPercent":85})"}) {
        computer.helper.configText = text;
        monitor->startMonitoring();
        EXPECT_FALSE(monitor->chargeLimitEnabled);
        EXPECT_EQ(monitor->chargeLimitPercent, 80.0);
        EXPECT_EQ(monitor->calibrationIntervalDays, 30);
    }
}

TEST_F(HelperSettings, AreWrittenWholeAtEveryChange) {
    monitor->lastCalibrationDate = 1700000000.0;
    EXPECT_TRUE(monitor->setChargeLimit(79.9));
    EXPECT_EQ(written(), (DaemonConfig{.chargeLimitPercent = 79, .lastCalibrationTimestamp = 1700000000.0}));
    for (const double percent : {85.0, 90.0, 95.0}) {
        EXPECT_TRUE(monitor->setChargeLimit(percent));
        EXPECT_EQ(written().chargeLimitPercent, static_cast<std::int64_t>(percent));
    }
    EXPECT_EQ(computer.helper.writes, 4);
}

TEST_F(HelperSettings, AreReadAgainOnlyWhereTheFileChanged) {
    computer.helper.configText = encode(DaemonConfig{});
    monitor->startMonitoring();
    cycle();
    cycle();
    EXPECT_EQ(computer.helper.reads, 1);
    computer.helper.configText = encode(DaemonConfig{.chargeLimitEnabled = true,
                                                     .chargeLimitPercent = 85,
                                                     .calibrationEnabled = true,
                                                     .calibrationIntervalDays = 7,
                                                     .lastCalibrationTimestamp = 5});
    computer.helper.statusText = helperHolds;
    cycle();
    EXPECT_TRUE(monitor->chargeLimitEnabled);
    EXPECT_EQ(monitor->chargeLimitPercent, 85.0);
    EXPECT_TRUE(monitor->calibrationEnabled);
    EXPECT_EQ(monitor->calibrationIntervalDays, 7);
    EXPECT_EQ(monitor->lastCalibrationDate.get(), 5.0);
    EXPECT_EQ(monitor->chargeLimitStatus.get(), "Holding at 85%") << "in the same cycle";
    cycle();
    EXPECT_EQ(computer.helper.reads, 2);
    EXPECT_EQ(computer.helper.writes, 0);
}

TEST_F(HelperSettings, StayWhereTheFileBecomesUnreadable) {
    computer.helper.configText = encode(DaemonConfig{.chargeLimitEnabled = true, .chargeLimitPercent = 85});
    monitor->startMonitoring();
    for (const auto& text : {std::optional<std::string>(), std::optional<std::string>("{\"chargeLim")}) {
        computer.helper.configText = text;
        cycle();
        EXPECT_TRUE(monitor->chargeLimitEnabled);
        EXPECT_EQ(monitor->chargeLimitPercent, 85.0);
    }
    EXPECT_TRUE(monitor->setChargeLimit(90));
    EXPECT_EQ(written(), (DaemonConfig{.chargeLimitEnabled = true, .chargeLimitPercent = 90}));
}

TEST_F(HelperSettings, ChangeOnlyWhatTheyAreAskedToInAFileOfSomebodyElse) {
    monitor->startMonitoring();
    computer.helper.configText =
        R"({"note":"mine","chargeLimitPercent":90.0,"chargeLimitEnabled":true,"calibrationEnabled":false,)"
        R"("calibrationIntervalDays":14,"lastCalibrationTimestamp":1700000000.5})";
    EXPECT_TRUE(monitor->updateCalibrationSettings(true, 60));
    EXPECT_EQ(computer.helper.configText,
              R"({"chargeLimitEnabled":true,"chargeLimitPercent":90,"calibrationEnabled":true,)"
              R"("calibrationIntervalDays":60,"lastCalibrationTimestamp":1700000000.5,"note":"mine"})");
    EXPECT_EQ(monitor->chargeLimitPercent, 90.0);
    EXPECT_EQ(monitor->lastCalibrationDate.get(), 1700000000.5);
}

TEST_F(HelperSettings, AreWrittenWithTheNextChangeWhereOneCouldNotBe) {
    computer.helper.configText = encode(DaemonConfig{});
    monitor->startMonitoring();
    computer.helper.writable = false;
    EXPECT_FALSE(monitor->setChargeLimit(90));
    cycle();
    EXPECT_EQ(monitor->chargeLimitPercent, 90.0) << "the file is as it was";
    computer.helper.writable = true;
    EXPECT_TRUE(monitor->toggleChargeLimit(true));
    EXPECT_EQ(written(), (DaemonConfig{.chargeLimitEnabled = true, .chargeLimitPercent = 90}));
}

TEST_F(HelperSettings, RaiseTheChargingTipTheFirstTimeThatTheLimitIsSwitchedOn) {
    EXPECT_TRUE(monitor->toggleChargeLimit(false));
    EXPECT_FALSE(monitor->shouldShowChargingTip);
    EXPECT_THAT(computer.preferences.flags, IsEmpty());
    EXPECT_TRUE(monitor->toggleChargeLimit(true));
    EXPECT_TRUE(written().chargeLimitEnabled);
    EXPECT_TRUE(monitor->shouldShowChargingTip);
    EXPECT_TRUE(computer.preferences.flags.at("hasShownChargingTip"));
    monitor->shouldShowChargingTip = false;
    EXPECT_TRUE(monitor->toggleChargeLimit(false));
    EXPECT_FALSE(written().chargeLimitEnabled);
    EXPECT_TRUE(monitor->toggleChargeLimit(true));
    EXPECT_FALSE(monitor->shouldShowChargingTip);
}

TEST_F(HelperSettings, HoldAndSaySoWhereTheHelperCannotBeTold) {
    computer.helper.writable = false;
    EXPECT_EQ(monitor->toggleChargeLimit(true).error().sentence, "the helper's folder cannot be written to");
    EXPECT_FALSE(monitor->setChargeLimit(85));
    EXPECT_FALSE(monitor->updateCalibrationSettings(true, 60));
    EXPECT_TRUE(monitor->chargeLimitEnabled);
    EXPECT_TRUE(monitor->shouldShowChargingTip);
    EXPECT_EQ(monitor->chargeLimitPercent, 85.0);
    EXPECT_EQ(monitor->calibrationIntervalDays, 60);
    computer.helper.writable = true;
    monitor->lastCalibrationDate = std::numeric_limits<Date>::infinity();
    EXPECT_FALSE(monitor->setChargeLimit(90));
    EXPECT_EQ(computer.helper.writes, 3);
}

TEST_F(HelperSettings, OfTheCalibrationAreWrittenAsTheyAreGiven) {
    EXPECT_TRUE(monitor->updateCalibrationSettings(true, 60));
    EXPECT_TRUE(written().calibrationEnabled);
    EXPECT_EQ(written().calibrationIntervalDays, 60);
    EXPECT_TRUE(monitor->updateCalibrationSettings(false, monitor->calibrationIntervalDays));
    EXPECT_FALSE(written().calibrationEnabled);
    EXPECT_EQ(written().calibrationIntervalDays, 60);
}

TEST_F(HelperSettings, AskOnceWhetherTheHelperIsLoaded) {
    computer.installer.loaded = true;
    monitor->startMonitoring();
    cycle();
    EXPECT_TRUE(monitor->daemonInstalled);
    EXPECT_EQ(computer.installer.questions, 1);
}

TEST_F(HelperSettings, LetTheHelpersOwnWordDecideWhetherItIsThere) {
    computer.installer.loaded = false;
    computer.helper.statusText = helperHolds;
    monitor->startMonitoring();
    EXPECT_TRUE(monitor->daemonInstalled);
    EXPECT_TRUE(monitor->chargingInhibited);
    EXPECT_EQ(monitor->chargeLimitStatus.get(), "Holding at 80%");
}

TEST_F(HelperSettings, KeepTheLastGoodStatus) {
    computer.helper.statusText = helperHolds;
    monitor->startMonitoring();
    for (const auto& torn :
         std::vector<std::optional<std::string>>{std::nullopt, "", std::string(helperHolds).substr(0, 40)}) {
        computer.helper.statusText = torn;
        cycle();
        EXPECT_TRUE(monitor->chargingInhibited);
        EXPECT_EQ(monitor->chargeLimitStatus.get(), "Holding at 80%");
    }
}

TEST_F(HelperSettings, ReadTheStatusInOrderAndAfterTheBattery) {
    computer.helper.statusText = helperHolds;
    monitor->startMonitoring();
    auto order = assignedDuring(*monitor, [this] { cycle(); });
    order.erase(order.begin(), std::find(order.begin(), order.end(), "predictedTime"));
    EXPECT_THAT(order, ElementsAre("predictedTime", "batteryRateStr", "chargingInhibited",
                                   "calibrationActive", "daemonInstalled", "chargeLimitStatus"));
}

TEST_F(HelperSettings, ComposeTheStatusFromTheFieldsOfTheCycle) {
    computer.battery.reading = PropertyTable{{"ExternalConnected", true}, {"CurrentCapacity", 60}};
    computer.helper.statusText =
        R"({"daemonRunning":true,"chargingInhibited":false,"calibrationActive":false,"batteryPercent":99,"lastUpdate":0})";
    EXPECT_TRUE(monitor->toggleChargeLimit(true));
    monitor->startMonitoring();
    EXPECT_EQ(monitor->chargeLimitStatus.get(), "Charging to 80%");
    computer.battery.reading = PropertyTable{{"ExternalConnected", true}, {"CurrentCapacity", 85}};
    cycle();
    EXPECT_EQ(monitor->chargeLimitStatus.get(), "");
    computer.battery.reading = PropertyTable{{"ExternalConnected", false}, {"CurrentCapacity", 85}};
    cycle();
    EXPECT_EQ(monitor->chargeLimitStatus.get(), "Waiting for charger");
}

} // namespace
} // namespace quelby
