// Each maker's machine, from the first limit to its end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/support/test_bench.h"

namespace quelby::limiter {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Words = std::vector<std::string>;

class Makers : public testing::Test, protected TestBench {};

TEST_F(Makers, ThinkPadTakesTheOrderThatNeverHasTheStartAboveTheEnd) {
    addLaptop(hardware);
    addThinkPad(hardware);
    limitTo(40);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_start_threshold=35",
                                      "BAT0/charge_control_end_threshold=40"));
    limitTo(80);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80",
                                      "BAT0/charge_control_start_threshold=75"));
    limitTo(60);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_start_threshold=55",
                                      "BAT0/charge_control_end_threshold=60"));
    EXPECT_EQ(last.details.mechanism, "thresholds");
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(battery().inForceStartPercent, 55);
    EXPECT_EQ(battery().foundPercent, 100);
    EXPECT_EQ(battery().foundStartPercent, 0);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_start_threshold=0",
                                      "BAT0/charge_control_end_threshold=100"));
}

TEST_F(Makers, ThinkPadHoldsEachOfTwoBatteries) {
    addLaptop(hardware);
    addBattery(hardware, "BAT1");
    addThinkPad(hardware, "BAT0");
    addThinkPad(hardware, "BAT1");
    limitTo(70);
    EXPECT_EQ(text(supplies + "BAT0/charge_control_end_threshold"), "70");
    EXPECT_EQ(text(supplies + "BAT1/charge_control_end_threshold"), "70");
    EXPECT_EQ(last.details.batteries.size(), 2U);
    switchOff();
    EXPECT_EQ(text(supplies + "BAT0/charge_control_end_threshold"), "100");
    EXPECT_EQ(text(supplies + "BAT1/charge_control_end_threshold"), "100");
}

TEST_F(Makers, ThinkPadOfTheESeriesMayTellAStartAboveTheEndWhichCountsAsUnknown) {
    addLaptop(hardware);
    addThinkPad(hardware);
    hardware[supplies + "BAT0/charge_control_start_threshold"].give = [](const std::string&) {
        return "100";
    };
    limitTo(80);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, std::nullopt);
    EXPECT_EQ(battery().foundStartPercent, std::nullopt);
    EXPECT_EQ(last.details.lastError, std::nullopt);
}

TEST_F(Makers, ThinkPadThatGivesTheOldValueOnceMoreIsReadTwice) {
    addLaptop(hardware);
    addThinkPad(hardware);
    const auto end = supplies + "BAT0/charge_control_end_threshold";
    auto told = std::make_shared<std::string>("100");
    hardware[end].give = [told, give = hardware[end].give](const std::string& text) {
        return std::exchange(*told, give(text)); // the truth comes with the next reading
    };
    limitTo(80);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(Makers, ThinkPadWhoseControllerRefusesIsTriedAgainLater) {
    addLaptop(hardware);
    addThinkPad(hardware);
    const auto end = supplies + "BAT0/charge_control_end_threshold";
    const auto take = hardware[end].take;
    hardware[end].take = [](const std::string&) { return std::errc::io_error; };
    limitTo(80);
    EXPECT_THAT(last.details.lastError.value_or(""),
                HasSubstr("BAT0/charge_control_end_threshold did not take 80: "));
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_THAT(last.details.explanation, HasSubstr("The limit could not be set: BAT0/"));
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty()); // not in each round
    hardware[end].take = take;
    round(60);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(last.details.lastError, std::nullopt);
}

TEST_F(Makers, IdeaPadHasOneLevelThatItDoesNotTell) {
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

TEST_F(Makers, IdeaPadOfNewerKernelsIsSetByItsChargeTypes) {
    addLaptop(hardware);
    addNewIdeaPad(hardware);
    limitTo(80);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_types=Long_Life"));
    EXPECT_EQ(last.details.mechanism, "charge_types");
    EXPECT_EQ(battery().inForcePercent, std::nullopt);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_types=Standard"));
}

TEST_F(Makers, AsusIsWrittenWithoutHavingBeenRead) {
    addLaptop(hardware);
    addAsus(hardware, false);
    limitTo(60);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=60"));
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(battery().foundPercent, std::nullopt);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=100"));
}

TEST_F(Makers, AsusForgetsInItsSleepWhatItsDriverStillTells) {
    addLaptop(hardware);
    addAsus(hardware, true);
    limitTo(80);
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty());
    roundAfterSleep();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80"));
}

TEST_F(Makers, DellLooksAtItsLevelsOnlyInCustomMode) {
    addLaptop(hardware);
    addDell(hardware);
    limitTo(80);
    EXPECT_EQ(text(supplies + "BAT0/charge_types"), "Trickle Fast Standard Adaptive [Custom]");
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, 75);
    switchOff();
    EXPECT_EQ(text(supplies + "BAT0/charge_types"), "Trickle Fast Standard [Adaptive] Custom");
    EXPECT_EQ(text(supplies + "BAT0/charge_control_end_threshold"), "100");
    EXPECT_EQ(text(supplies + "BAT0/charge_control_start_threshold"), "50");
}

TEST_F(Makers, DellClampsWithoutAWordAndItsOwnLevelIsTold) {
    addLaptop(hardware);
    addDell(hardware);
    limitTo(30);
    EXPECT_EQ(battery().wishedPercent, 30);
    EXPECT_EQ(battery().inForcePercent, 55);
    EXPECT_EQ(battery().inForceStartPercent, 50);
    EXPECT_EQ(last.details.explanation,
              "Charging stops at 55%, the nearest to 30% that this machine offers.");
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty()); // that is how it is, and no reason to write again
    limitTo(95);
    EXPECT_EQ(battery().inForcePercent, 95);
    EXPECT_EQ(battery().inForceStartPercent, 90);
}

TEST_F(Makers, DellWithAPasswordInItsFirmwareSaysSo) {
    addLaptop(hardware);
    addDell(hardware);
    for (const char* const name : {"charge_control_end_threshold", "charge_types"}) {
        hardware[supplies + "BAT0/" + name].take = [](const std::string&) {
            return std::errc::permission_denied;
        };
    }
    limitTo(80);
    EXPECT_THAT(last.details.lastError.value_or(""), HasSubstr("a password of the firmware's setup"));
    EXPECT_EQ(battery().inForcePercent, 100);
}

TEST_F(Makers, FrameworkIsSetByItsLevelsThoughItCouldInhibitAsWell) {
    addLaptop(hardware, "BAT1");
    addFramework(hardware);
    limitTo(60);
    EXPECT_EQ(last.details.mechanism, "thresholds");
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(text(supplies + "BAT1/charge_behaviour"), "[auto] inhibit-charge force-discharge");
}

TEST_F(Makers, FrameworkWhoseStartIsItsEndIsFineWithoutAStart) {
    addLaptop(hardware, "BAT1");
    addFrameworkWithoutStart(hardware);
    limitTo(60);
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(battery().inForceStartPercent, std::nullopt);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    switchOff();
    EXPECT_EQ(text(supplies + "BAT1/charge_control_end_threshold"), "100");
}

TEST_F(Makers, HuaweiTakesBothLevelsAtOnceAndHasToForgetThemFirst) {
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

TEST_F(Makers, LgHasTwoLevelsAndRefusesAllOthers) {
    addLaptop(hardware, "CMB0");
    addLg(hardware);
    limitTo(60);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty());
    limitTo(95);
    EXPECT_EQ(battery().inForcePercent, 100);
    limitTo(80);
    EXPECT_EQ(battery().inForcePercent, 80);
}

TEST_F(Makers, SamsungTakesAnyLevel) {
    addLaptop(hardware, "BAT1");
    addGalaxyBook(hardware);
    limitTo(65);
    EXPECT_THAT(writes(), ElementsAre("BAT1/charge_control_end_threshold=65"));
    EXPECT_EQ(battery().inForcePercent, 65);
}

TEST_F(Makers, OlderSamsungHasASwitchForEightyPercent) {
    addLaptop(hardware);
    addOlderSamsung(hardware);
    limitTo(60);
    EXPECT_THAT(writes(), ElementsAre("samsung/battery_life_extender=1"));
    EXPECT_EQ(last.details.mechanism, "battery_life_extender");
    EXPECT_EQ(battery().inForcePercent, 80);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("samsung/battery_life_extender=0"));
}

TEST_F(Makers, MsiMovesTheEndWithTheStartSoTheEndIsSetOnceMore) {
    addLaptop(hardware, "BAT1");
    addMsi(hardware);
    limitTo(80);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, 70);
    EXPECT_EQ(battery().foundStartPercent, std::nullopt); // -10 is none
    EXPECT_EQ(last.details.lastError, std::nullopt);
    limitTo(60);
    EXPECT_EQ(battery().inForcePercent, 60);
    switchOff();
    EXPECT_EQ(text(supplies + "BAT1/charge_control_end_threshold"), "100");
}

TEST_F(Makers, ToshibaRoundsToOneOfTwoLevels) {
    addLaptop(hardware, "BAT1");
    addToshiba(hardware);
    limitTo(60);
    EXPECT_EQ(battery().inForcePercent, 80);
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty());
    limitTo(90);
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_EQ(last.details.lastError, "BAT1 accepted 90% but stays at 100%");
}

TEST_F(Makers, FujitsuRefusesWhatIsBelowHalf) {
    addLaptop(hardware, "CMB1");
    addFujitsu(hardware);
    limitTo(30);
    EXPECT_EQ(battery().inForcePercent, 50);
    limitTo(65);
    EXPECT_EQ(battery().inForcePercent, 65);
}

TEST_F(Makers, System76TakesAnyPair) {
    addLaptop(hardware);
    addSystem76(hardware);
    limitTo(20);
    EXPECT_EQ(battery().inForcePercent, 20);
    EXPECT_EQ(battery().inForceStartPercent, 15);
    switchOff();
    EXPECT_EQ(text(supplies + "BAT0/charge_control_start_threshold"), "0");
    EXPECT_EQ(text(supplies + "BAT0/charge_control_end_threshold"), "100");
}

TEST_F(Makers, SonyHasThreeLevels) {
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

TEST_F(Makers, TuxedoListsItsLevels) {
    addLaptop(hardware);
    addTuxedo(hardware);
    limitTo(78);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_type=Custom", "BAT0/charge_control_start_threshold=70",
                                      "BAT0/charge_control_end_threshold=80"));
    EXPECT_EQ(battery().inForcePercent, 80);
    limitTo(20);
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(battery().inForceStartPercent, 50);
    switchOff();
    EXPECT_EQ(text(supplies + "BAT0/charge_control_end_threshold"), "100");
    EXPECT_EQ(text(supplies + "BAT0/charge_control_start_threshold"), "95");
    EXPECT_EQ(text(supplies + "BAT0/charge_type"), "Standard");
}

TEST_F(Makers, WilcoHasItsLevelsOnTheCharger) {
    addBattery(hardware, "BAT0");
    addWilco(hardware);
    limitTo(80);
    EXPECT_EQ(last.details.mechanism, "thresholds");
    EXPECT_EQ(battery().name, "BAT0");
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(text(supplies + "wilco-charger/charge_type"), "Custom");
    switchOff();
    EXPECT_EQ(text(supplies + "wilco-charger/charge_type"), "Standard");
    EXPECT_EQ(text(supplies + "wilco-charger/charge_control_end_threshold"), "55");
}

TEST_F(Makers, AppleIsHeldByTheHelperItself) {
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

TEST_F(Makers, AppleUnderAsahiHasTwoLevelsAndAFixedStart) {
    addLaptop(hardware, "macsmc-battery");
    addAppleAsahi(hardware);
    limitTo(65);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, 75);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    switchOff();
    EXPECT_EQ(text(supplies + "macsmc-battery/charge_control_end_threshold"), "100");
}

TEST_F(Makers, SomeChargersAreInhibitedOnlyWhileTheComputerIsAwake) {
    addLaptop(hardware);
    addBehaviour(hardware, "BAT0", {"auto", "inhibit-charge-awake"});
    limitTo(60);
    EXPECT_EQ(text(supplies + "BAT0/charge_behaviour"), "auto [inhibit-charge-awake]");
}

TEST_F(Makers, SurfaceSaysThatItsFirmwareDoesNot) {
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

TEST_F(Makers, AMachineWithoutABatteryIsFineToo) {
    hardware[supplies + "AC/type"].text = "Mains";
    hardware[supplies + "AC/online"].text = "1";
    limitTo(80);
    EXPECT_TRUE(last.status.daemonRunning);
    EXPECT_EQ(last.details.explanation, "This machine has no battery.");
    EXPECT_THAT(last.details.batteries, IsEmpty());
}

TEST_F(Makers, TheBatteryOfAMouseIsNobodysConcern) {
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
