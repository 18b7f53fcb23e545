// Each maker's machine that takes a level, from the first limit to its end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/support/test_bench.h"

namespace quelby::limiter {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MakersWithLevels : public testing::Test, protected TestBench {};

TEST_F(MakersWithLevels, AsusIsWrittenWithoutHavingBeenRead) {
    addLaptop(hardware);
    addAsus(hardware, false);
    limitTo(60);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=60"));
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(battery().foundPercent, std::nullopt);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=100"));
}

TEST_F(MakersWithLevels, AsusForgetsInItsSleepWhatItsDriverStillTells) {
    addLaptop(hardware);
    addAsus(hardware, true);
    limitTo(80);
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty());
    roundAfterSleep();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80"));
}

TEST_F(MakersWithLevels, DellLooksAtItsLevelsOnlyInCustomMode) {
    addLaptop(hardware);
    addDell(hardware);
    limitTo(80);
    EXPECT_EQ(text(bat0 + "charge_types"), "Trickle Fast Standard Adaptive [Custom]");
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, 75);
    switchOff();
    EXPECT_EQ(text(bat0 + "charge_types"), "Trickle Fast Standard [Adaptive] Custom");
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_EQ(text(startThreshold), "50");
}

TEST_F(MakersWithLevels, DellClampsWithoutAWordAndItsOwnLevelIsTold) {
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

TEST_F(MakersWithLevels, DellWithAPasswordInItsFirmwareSaysSo) {
    addLaptop(hardware);
    addDell(hardware);
    for (const char* const name : {"charge_control_end_threshold", "charge_types"}) {
        hardware[bat0 + name].take = [](const std::string&) { return std::errc::permission_denied; };
    }
    limitTo(80);
    EXPECT_THAT(last.details.lastError.value_or(""), HasSubstr("a password of the firmware's setup"));
    EXPECT_EQ(battery().inForcePercent, 100);
}

TEST_F(MakersWithLevels, FrameworkIsSetByItsLevelsThoughItCouldInhibitAsWell) {
    addLaptop(hardware, "BAT1");
    addFramework(hardware);
    limitTo(60);
    EXPECT_EQ(last.details.mechanism, "thresholds");
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(text(supplies + "BAT1/charge_behaviour"), "[auto] inhibit-charge force-discharge");
}

TEST_F(MakersWithLevels, FrameworkWhoseStartIsItsEndIsFineWithoutAStart) {
    addLaptop(hardware, "BAT1");
    addFrameworkWithoutStart(hardware);
    limitTo(60);
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(battery().inForceStartPercent, std::nullopt);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    switchOff();
    EXPECT_EQ(text(supplies + "BAT1/charge_control_end_threshold"), "100");
}

TEST_F(MakersWithLevels, LgHasTwoLevelsAndRefusesAllOthers) {
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

TEST_F(MakersWithLevels, SamsungTakesAnyLevelButSwitchesOffBelowThirty) {
    addLaptop(hardware, "BAT1");
    addGalaxyBook(hardware);
    limitTo(65);
    EXPECT_THAT(writes(), ElementsAre("BAT1/charge_control_end_threshold=65"));
    EXPECT_EQ(battery().inForcePercent, 65);
    limitTo(20);
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_EQ(last.details.lastError, "BAT1 accepted 20% but stays at 100%");
}

TEST_F(MakersWithLevels, MsiMovesTheEndWithTheStartSoTheEndIsSetOnceMore) {
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

TEST_F(MakersWithLevels, ToshibaRoundsToOneOfTwoLevels) {
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

TEST_F(MakersWithLevels, FujitsuRefusesWhatIsBelowHalf) {
    addLaptop(hardware, "CMB1");
    addFujitsu(hardware);
    limitTo(30);
    EXPECT_EQ(battery().inForcePercent, 50);
    limitTo(65);
    EXPECT_EQ(battery().inForcePercent, 65);
}

TEST_F(MakersWithLevels, System76TakesAnyPair) {
    addLaptop(hardware);
    addSystem76(hardware);
    limitTo(20);
    EXPECT_EQ(battery().inForcePercent, 20);
    EXPECT_EQ(battery().inForceStartPercent, 15);
    switchOff();
    EXPECT_EQ(text(startThreshold), "0");
    EXPECT_EQ(text(endThreshold), "100");
}

TEST_F(MakersWithLevels, TuxedoListsItsLevels) {
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
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_EQ(text(startThreshold), "95");
    EXPECT_EQ(text(bat0 + "charge_type"), "Standard");
}

TEST_F(MakersWithLevels, WilcoHasItsLevelsOnTheCharger) {
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

TEST_F(MakersWithLevels, AppleUnderAsahiHasTwoLevelsAndAFixedStart) {
    addLaptop(hardware, "macsmc-battery");
    addAppleAsahi(hardware);
    limitTo(65);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, 75);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    switchOff();
    EXPECT_EQ(text(supplies + "macsmc-battery/charge_control_end_threshold"), "100");
}

} // namespace
} // namespace quelby::limiter
