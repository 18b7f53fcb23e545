// Each maker's machine that has a way of its own, from the first limit to its end; and those that have none.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/mechanisms/firmware_switch.h"
#include "limiter/mechanisms/long_life.h"
#include "limiter/support/makers.h"
#include "limiter/support/test_bench.h"

namespace quelby::limiter {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MakersWithSwitches : public testing::Test, protected TestBench {};

TEST_F(MakersWithSwitches, IdeaPadHasOneLevelThatItDoesNotTell) {
    addLaptop(hardware);
    addIdeaPad(hardware);
    limitTo(75);
    EXPECT_THAT(writes(), ElementsAre("VPC2004:00/conservation_mode=1"));
    EXPECT_EQ(last.details.mechanism, "conservation_mode");
    EXPECT_EQ(battery().inForcePercent, std::nullopt);
    EXPECT_EQ(battery().foundPercent, 100);
    EXPECT_THAT(last.details.explanation, HasSubstr("the firmware's own level, which it does not tell"));
    limitTo(100);
    EXPECT_THAT(writes(), ElementsAre("VPC2004:00/conservation_mode=0"));
    limitTo(60);
    switchOff();
    EXPECT_EQ(text("bus/platform/drivers/ideapad_acpi/VPC2004:00/conservation_mode"), "0");
}

TEST_F(MakersWithSwitches, IdeaPadOfNewerKernelsIsSetByItsChargeTypes) {
    addLaptop(hardware);
    addNewIdeaPad(hardware);
    limitTo(80);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_types=Long_Life"));
    EXPECT_EQ(last.details.mechanism, "charge_types");
    EXPECT_EQ(battery().inForcePercent, std::nullopt);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_types=Standard"));
}

TEST_F(MakersWithSwitches, HuaweiTakesBothLevelsAtOnceAndHasToForgetThemFirst) {
    addLaptop(hardware);
    addHuawei(hardware);
    limitTo(80);
    EXPECT_THAT(writes(), ElementsAre("huawei-wmi/charge_control_thresholds=75 80"));
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, 75);
    EXPECT_THAT(pauses, IsEmpty());
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("huawei-wmi/charge_control_thresholds=0 0",
                                      "huawei-wmi/charge_control_thresholds=0 100"));
    EXPECT_THAT(pauses, ElementsAre(std::chrono::seconds(1)));
    EXPECT_EQ(text("devices/platform/huawei-wmi/charge_control_thresholds"), "0 100");
}

TEST_F(MakersWithSwitches, HuaweiThatHasForgottenItsLevelsHasNone) {
    addLaptop(hardware);
    addHuawei(hardware);
    hardware["devices/platform/huawei-wmi/charge_control_thresholds"].text = "0 0";
    limitTo(80);
    EXPECT_EQ(battery().foundPercent, 100);
    EXPECT_THAT(writes(), ElementsAre("huawei-wmi/charge_control_thresholds=75 80"));
    limitTo(100);
    EXPECT_THAT(writes(), ElementsAre("huawei-wmi/charge_control_thresholds=0 0",
                                      "huawei-wmi/charge_control_thresholds=0 100"));
}

TEST_F(MakersWithSwitches, AreLiftedToWhatChargesFullyAndTellNothingWhereTheyCannotBeRead) {
    addLaptop(hardware);
    addNewIdeaPad(hardware);
    const auto types = longLife(hardware, supplies + "BAT0");
    ASSERT_TRUE(types);
    EXPECT_EQ(types->lifted({}).mode, "Standard");
    EXPECT_EQ(types->lifted({.mode = "Long_Life"}).mode, "Standard");
    EXPECT_EQ(types->lifted({.mode = "Fast"}).mode, "Fast");
    const auto single = firmwareSwitch(hardware, "a/switch", "switch", 80);
    EXPECT_EQ(single->lifted({}).mode, "0");
    for (const auto* const mechanism : {types.get(), single.get()}) {
        EXPECT_FALSE(mechanism->levelOf({}, 80).limits);
        EXPECT_EQ(mechanism->levelOf({}, 80).percent, std::nullopt);
    }
}

TEST_F(MakersWithSwitches, OlderSamsungHasASwitchForEightyPercent) {
    addLaptop(hardware);
    addOlderSamsung(hardware);
    limitTo(60);
    EXPECT_THAT(writes(), ElementsAre("samsung/battery_life_extender=1"));
    EXPECT_EQ(last.details.mechanism, "battery_life_extender");
    EXPECT_EQ(battery().inForcePercent, 80);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("samsung/battery_life_extender=0"));
}

TEST_F(MakersWithSwitches, SonyHasThreeLevels) {
    addLaptop(hardware);
    addSony(hardware);
    limitTo(60);
    EXPECT_THAT(writes(), ElementsAre("sony-laptop/battery_care_limiter=50"));
    EXPECT_EQ(last.details.mechanism, "battery_care_limiter");
    EXPECT_EQ(battery().inForcePercent, 50);
    limitTo(65);
    EXPECT_EQ(battery().inForcePercent, 50); // of two equally near ones the gentler
    limitTo(70);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().foundPercent, 100);
    switchOff();
    EXPECT_EQ(text("devices/platform/sony-laptop/battery_care_limiter"), "100");
}

TEST_F(MakersWithSwitches, AppleIsHeldByTheHelperItself) {
    addLaptop(hardware, "macsmc-battery");
    addAppleMainline(hardware);
    set("macsmc-battery/capacity", "79");
    limitTo(80);
    EXPECT_EQ(last.details.mechanism, "charge_behaviour");
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(text(supplies + "macsmc-battery/charge_behaviour"), "[auto] inhibit-charge force-discharge");
    EXPECT_EQ(last.details.explanation, "Charging stops at 80% for as long as this helper runs.");
    set("macsmc-battery/capacity", "80");
    round();
    EXPECT_EQ(text(supplies + "macsmc-battery/charge_behaviour"), "auto [inhibit-charge] force-discharge");
    set("macsmc-battery/capacity", "76");
    round();
    EXPECT_EQ(text(supplies + "macsmc-battery/charge_behaviour"), "auto [inhibit-charge] force-discharge");
    set("macsmc-battery/capacity", "75");
    round();
    EXPECT_EQ(text(supplies + "macsmc-battery/charge_behaviour"), "[auto] inhibit-charge force-discharge");
    EXPECT_EQ(last.details.rival, std::nullopt);
}

TEST_F(MakersWithSwitches, AChargerThatDoesNotFollowIsTriedAgainLater) {
    addLaptop(hardware);
    addBehaviour(hardware, "BAT0", {"auto", "inhibit-charge", "force-discharge"});
    const auto take = hardware[behaviour].take;
    hardware[behaviour].take = [](const std::string&) { return std::errc::io_error; };
    limitTo(60);
    EXPECT_THAT(last.details.lastError.value_or(""),
                HasSubstr("BAT0/charge_behaviour did not take inhibit-charge: "));
    hardware[behaviour].take = take;
    round(60);
    EXPECT_EQ(text(behaviour), "auto [inhibit-charge] force-discharge");
    EXPECT_EQ(last.details.lastError, std::nullopt);
}

TEST_F(MakersWithSwitches, OneThatIsLeftDischargingIsSetToCharging) {
    addLaptop(hardware);
    addBehaviour(hardware, "BAT0", {"auto", "inhibit-charge", "force-discharge"});
    hardware[behaviour].text = "force-discharge";
    limitTo(90);
    EXPECT_EQ(text(behaviour), "[auto] inhibit-charge force-discharge");
}

TEST_F(MakersWithSwitches, SomeChargersAreInhibitedOnlyWhileTheComputerIsAwake) {
    addLaptop(hardware);
    addBehaviour(hardware, "BAT0", {"auto", "inhibit-charge-awake"});
    limitTo(60);
    EXPECT_EQ(text(behaviour), "auto [inhibit-charge-awake]");
}

TEST_F(MakersWithSwitches, SurfaceSaysThatItsFirmwareDoesNot) {
    addLaptop(hardware);
    hardware["class/dmi/id/sys_vendor"].text = "Microsoft Corporation";
    hardware["class/dmi/id/product_name"].text = "Surface Laptop 5";
    limitTo(80);
    EXPECT_TRUE(last.status.daemonRunning);
    EXPECT_FALSE(last.status.chargingInhibited);
    EXPECT_EQ(last.details.mechanism, std::nullopt);
    EXPECT_EQ(battery().mechanism, std::nullopt);
    EXPECT_THAT(last.details.explanation, HasSubstr("lets no operating system limit the charge"));
    EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(MakersWithSwitches, AMachineWithoutABatteryIsFineToo) {
    hardware[supplies + "AC/type"].text = "Mains";
    hardware[supplies + "AC/online"].text = "1";
    limitTo(80);
    EXPECT_TRUE(last.status.daemonRunning);
    EXPECT_EQ(last.details.explanation, "This machine has no battery.");
    EXPECT_THAT(last.details.batteries, IsEmpty());
}

TEST_F(MakersWithSwitches, TheBatteryOfAMouseIsNobodysConcern) {
    addLaptop(hardware);
    addBattery(hardware, "hidpp_battery_0");
    set("hidpp_battery_0/scope", "Device");
    hardware[supplies + "hidpp_battery_0/charge_control_end_threshold"].text = "100";
    limitTo(80);
    EXPECT_EQ(last.details.batteries.size(), 1U);
    EXPECT_EQ(text(supplies + "hidpp_battery_0/charge_control_end_threshold"), "100");
}

} // namespace
} // namespace quelby::limiter
