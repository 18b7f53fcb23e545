// What one helper does over time, on the plainest hardware.

#include "limiter/limiter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/support/test_bench.h"

namespace quelby::limiter {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string bat0 = supplies + "BAT0/";
const std::string endThreshold = bat0 + "charge_control_end_threshold";
const std::string behaviour = bat0 + "charge_behaviour";

class LimiterTest : public testing::Test, protected TestBench {
protected:
    LimiterTest() {
        addLaptop(hardware);
        addGalaxyBook(hardware); // of BAT1, which is not there
        hardware.remove(supplies + "BAT1");
        hardware[endThreshold].text = "100";
    }

    void useBehaviour() {
        hardware.remove(supplies + "BAT0");
        addBattery(hardware, "BAT0");
        addBehaviour(hardware, "BAT0", {"auto", "inhibit-charge"});
    }

    void calibrate() {
        wish.limit = true;
        wish.calibration = true;
    }
};

TEST_F(LimiterTest, TouchesNothingWhileTheLimitIsOff) {
    round();
    roundAfterSleep();
    EXPECT_THAT(writes(), IsEmpty());
    EXPECT_EQ(saves, 0);
    EXPECT_EQ(battery().wishedPercent, std::nullopt);
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_EQ(battery().foundPercent, 100);
    EXPECT_EQ(last.details.explanation, "The limit is off; this machine can hold its battery below full.");
}

TEST_F(LimiterTest, WritesOnceAndOnlyLooksAfterwards) {
    limitTo(80);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80"));
    for (int count = 0; count < 100; ++count) {
        round();
    }
    EXPECT_THAT(writes(), IsEmpty());
    EXPECT_EQ(last.details.explanation, "Charging stops at 80%.");
}

TEST_F(LimiterTest, WritesAgainAtItsStartAfterSleepAndForABatteryThatComesBack) {
    limitTo(80);
    writes();
    start();
    round();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80"));
    roundAfterSleep();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80"));
    set("BAT0/present", "0");
    round();
    EXPECT_THAT(last.details.batteries, IsEmpty());
    EXPECT_EQ(last.details.explanation, "This machine has no battery.");
    set("BAT0/present", "1");
    round();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80"));
}

TEST_F(LimiterTest, FindsAnInterfaceThatComesLaterThanTheBattery) {
    hardware.remove(supplies + "BAT0");
    addBattery(hardware, "BAT0");
    limitTo(80);
    EXPECT_EQ(last.details.mechanism, std::nullopt);
    hardware[endThreshold].text = "100";
    round();
    EXPECT_EQ(battery().inForcePercent, 80);
}

TEST_F(LimiterTest, TakesDownWhatItFindsBeforeItWrites) {
    hardware[endThreshold].text = "95";
    hardware[endThreshold].take = [this](const std::string& value) {
        EXPECT_EQ(saved.found.at("BAT0").end, 95);
        hardware[endThreshold].text = value;
        return std::errc();
    };
    limitTo(80);
    EXPECT_EQ(text(endThreshold), "80");
    EXPECT_EQ(battery().foundPercent, 95);
}

TEST_F(LimiterTest, RemembersWhatItFoundOverRestartsUntilTheLimitIsOff) {
    hardware[endThreshold].text = "95";
    limitTo(80);
    start();
    limitTo(60);
    start();
    round();
    EXPECT_EQ(battery().foundPercent, 95);
    switchOff();
    EXPECT_EQ(text(endThreshold), "95");
    EXPECT_THAT(saved.found, IsEmpty());
    writes();
    start();
    round();
    EXPECT_THAT(writes(), IsEmpty()); // from now on it is none of its business
}

TEST_F(LimiterTest, PutsBackLaterWhatItCouldNotPutBackAtOnce) {
    limitTo(80);
    hardware[endThreshold].take = [](const std::string&) { return std::errc::io_error; };
    switchOff();
    EXPECT_THAT(last.details.explanation, HasSubstr("The limit is off, but BAT0/"));
    EXPECT_FALSE(saved.found.empty());
    hardware[endThreshold].take = nullptr;
    round(60);
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_TRUE(saved.found.empty());
}

TEST_F(LimiterTest, SaysWhereTheHardwareAcceptsALevelAndIgnoresIt) {
    hardware[endThreshold].take = [](const std::string&) { return std::errc(); };
    limitTo(80);
    EXPECT_EQ(last.details.lastError, "BAT0 accepted 80% but stays at 100%");
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_FALSE(last.status.chargingInhibited);
    writes();
    for (int count = 0; count < 24 * 450; ++count) { // a day
        round();
    }
    EXPECT_LE(hardware.writes.size(), 40U); // patiently
    EXPECT_EQ(last.details.rival, std::nullopt);
}

TEST_F(LimiterTest, FightsThreeRoundsAndThenSaysWhichValueStands) {
    limitTo(80);
    for (int count = 0; count < 3; ++count) {
        hardware[endThreshold].text = "100";
        round();
        EXPECT_EQ(text(endThreshold), "80");
        EXPECT_EQ(last.details.rival, "UPower");
    }
    hardware[endThreshold].text = "100";
    round();
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_EQ(last.details.rival, "UPower");
    EXPECT_EQ(last.details.explanation,
              "The level was changed back again and again (UPower), so 100% stands.");
    writes();
    roundAfterSleep();
    EXPECT_THAT(writes(), IsEmpty());
    limitTo(70); // a new wish is worth a new try
    EXPECT_EQ(text(endThreshold), "70");
    EXPECT_EQ(last.details.rival, std::nullopt);
}

TEST_F(LimiterTest, FightsAgainTheNextDay) {
    limitTo(80);
    for (int count = 0; count < 4; ++count) {
        hardware[endThreshold].text = "100";
        round();
    }
    EXPECT_EQ(text(endThreshold), "100");
    round(Contest::memory);
    EXPECT_EQ(text(endThreshold), "80");
}

TEST_F(LimiterTest, CallsABatteryHeldOnTheSecondLook) {
    limitTo(80);
    EXPECT_FALSE(last.status.chargingInhibited);
    EXPECT_TRUE(last.isUndecided);
    round(3);
    EXPECT_TRUE(last.status.chargingInhibited);
    EXPECT_FALSE(last.isUndecided);
    set("BAT0/status", "Charging");
    round();
    EXPECT_FALSE(last.status.chargingInhibited);
}

TEST_F(LimiterTest, CallsNoBatteryHeldWhoseLimitIsOff) {
    round();
    round();
    hardware[endThreshold].text = "60"; // somebody else's
    round();
    round();
    EXPECT_FALSE(last.status.chargingInhibited);
}

TEST_F(LimiterTest, GoesByTheLevelInForceAndNotByTheWish) {
    hardware[endThreshold].take = [this](const std::string&) {
        hardware[endThreshold].text = "85"; // the hardware's own idea
        return std::errc();
    };
    limitTo(80);
    round();
    EXPECT_FALSE(last.status.chargingInhibited); // at 80%
    set("BAT0/capacity", "85");
    round();
    round();
    EXPECT_TRUE(last.status.chargingInhibited);
}

TEST_F(LimiterTest, CallsTwoBatteriesHeldOnlyWhereBothAre) {
    addBattery(hardware, "BAT1");
    hardware[supplies + "BAT1/charge_control_end_threshold"].text = "100";
    set("BAT1/status", "Charging");
    set("BAT1/capacity", "40");
    limitTo(80);
    round();
    EXPECT_FALSE(last.status.chargingInhibited);
    set("BAT1/status", "Not charging");
    set("BAT1/capacity", "80");
    round();
    round();
    EXPECT_TRUE(last.status.chargingInhibited);
}

TEST_F(LimiterTest, ReleasesChargingAtItsEndOnlyWhereHoldingNeedsIt) {
    limitTo(60);
    limiter->letGo();
    EXPECT_EQ(text(endThreshold), "60"); // the hardware holds it, also while the laptop is off

    limiter.reset();
    saved = {};
    useBehaviour();
    limitTo(60);
    EXPECT_EQ(text(behaviour), "auto [inhibit-charge]");
    limiter->letGo();
    EXPECT_EQ(text(behaviour), "[auto] inhibit-charge");
    EXPECT_FALSE(saved.found.empty()); // the limit is still wanted

    start();
    round();
    EXPECT_EQ(text(behaviour), "auto [inhibit-charge]");
    start(); // after a sudden end
    limiter->letGo();
    EXPECT_EQ(text(behaviour), "[auto] inhibit-charge");
}

TEST_F(LimiterTest, ReleasesNothingThatItNeverHeld) {
    useBehaviour();
    hardware[behaviour].text = "inhibit-charge"; // somebody else's
    start();
    limiter->letGo();
    EXPECT_EQ(text(behaviour), "auto [inhibit-charge]");
}

TEST_F(LimiterTest, GivesBackABatteryThatCanBeCharged) {
    useBehaviour();
    hardware[behaviour].text = "inhibit-charge";
    limitTo(60);
    switchOff();
    EXPECT_EQ(text(behaviour), "[auto] inhibit-charge");
}

TEST_F(LimiterTest, FightsForWhatItHoldsItself) {
    useBehaviour();
    limitTo(60);
    for (int count = 0; count < 4; ++count) {
        hardware[behaviour].text = "auto";
        round();
    }
    EXPECT_EQ(text(behaviour), "[auto] inhibit-charge");
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_FALSE(last.status.chargingInhibited);
    EXPECT_THAT(last.details.explanation, HasSubstr("(UPower), so 100% stands."));
}

TEST_F(LimiterTest, RestoresWhatWasFoundAndGivesUpACalibration) {
    hardware[endThreshold].text = "95";
    calibrate();
    round();
    EXPECT_TRUE(saved.calibration.has_value());
    start();
    EXPECT_TRUE(limiter->restore());
    EXPECT_EQ(text(endThreshold), "95");
    EXPECT_TRUE(saved.found.empty());
    EXPECT_FALSE(saved.calibration.has_value());
    writes();
    start();
    EXPECT_TRUE(limiter->restore());
    EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(LimiterTest, SaysWhatCouldNotBeRestored) {
    limitTo(80);
    hardware[endThreshold].take = [](const std::string&) { return std::errc::io_error; };
    start();
    const auto refused = limiter->restore();
    ASSERT_FALSE(refused);
    EXPECT_THAT(refused.error().sentence, HasSubstr("did not take 100: "));
    hardware.remove(supplies + "BAT0");
    start();
    const auto missing = limiter->restore();
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().sentence, "the level of BAT0 could not be put back: it is not there");
}

TEST_F(LimiterTest, CalibratesAndReturnsToTheLimit) {
    calibrate();
    wish.percent = 80;
    set("BAT0/status", "Charging");
    round();
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_TRUE(last.status.calibrationActive);
    EXPECT_EQ(last.status.calibrationPhase, "charging to 100%");
    EXPECT_EQ(last.details.explanation, "The limit is lifted for a calibration: charging to 100%.");
    set("BAT0/capacity", "100");
    set("BAT0/status", "Full");
    round();
    EXPECT_EQ(last.status.calibrationPhase, "holding at 100%, 60 min left");
    EXPECT_FALSE(last.status.chargingInhibited);
    round(1080);
    EXPECT_EQ(last.status.calibrationPhase, "holding at 100%, 42 min left");
    round(2520);
    EXPECT_FALSE(last.status.calibrationActive);
    EXPECT_EQ(last.status.calibrationPhase, std::nullopt);
    EXPECT_EQ(text(endThreshold), "80");
    EXPECT_EQ(limiter->lastCalibration(), now);
    EXPECT_EQ(saved.lastCalibration, now);
    round();
    EXPECT_FALSE(last.status.calibrationActive);
}

TEST_F(LimiterTest, LetsAThinkPadThatIsNearlyFullChargeForItsCalibration) {
    hardware.remove(supplies + "BAT0");
    addBattery(hardware, "BAT0");
    addThinkPad(hardware);
    set("BAT0/capacity", "97");
    calibrate();
    round();
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_EQ(text(bat0 + "charge_control_start_threshold"), "99");
}

TEST_F(LimiterTest, LetsADellChargeAsItDidBeforeForItsCalibration) {
    hardware.remove(supplies + "BAT0");
    addBattery(hardware, "BAT0");
    addDell(hardware);
    limitTo(80);
    calibrate();
    round();
    EXPECT_THAT(text(bat0 + "charge_types"), HasSubstr("[Adaptive]"));
    wish.calibration = false;
    round();
    EXPECT_THAT(text(bat0 + "charge_types"), HasSubstr("[Custom]"));
    EXPECT_EQ(text(endThreshold), "80");
}

TEST_F(LimiterTest, GoesOnWithACalibrationAfterASuddenEnd) {
    calibrate();
    set("BAT0/capacity", "100");
    round();
    round(1800);
    start(); // as after SIGKILL: what was not taken down is lost
    round();
    EXPECT_EQ(last.status.calibrationPhase, "holding at 100%, 30 min left");
    for (double minute = 0; minute < 30; ++minute) {
        round(60);
    }
    EXPECT_FALSE(last.status.calibrationActive);
    EXPECT_EQ(saved.lastCalibration, now);
}

TEST_F(LimiterTest, LosesNoMoreThanAMinuteOfACalibrationAndRarelyWrites) {
    calibrate();
    set("BAT0/capacity", "100");
    round();
    saves = 0;
    for (int count = 0; count < 225; ++count) { // half an hour
        round(8);
    }
    EXPECT_GE(saved.calibration->heldSeconds, 1800 - 64);
    EXPECT_LE(saves, 30);
}

TEST_F(LimiterTest, BelievesAnApplicationsMemoryOnlyWhereItHasNoneOfItsOwn) {
    calibrate();
    remembered = someTime - 3600;
    round();
    EXPECT_FALSE(last.status.calibrationActive);
    EXPECT_EQ(saved.lastCalibration, someTime - 3600);
    remembered = someTime - 90 * 86400.0; // an old one, written back
    round();
    EXPECT_FALSE(last.status.calibrationActive);
    EXPECT_EQ(limiter->lastCalibration(), someTime - 3600);
}

TEST_F(LimiterTest, DoesNotCalibrateWhatItCannotLimit) {
    hardware.remove(supplies + "BAT0");
    addBattery(hardware, "BAT0");
    calibrate();
    round();
    EXPECT_FALSE(last.status.calibrationActive);
    wish.limit = false;
    round();
    EXPECT_FALSE(last.status.calibrationActive);
}

TEST_F(LimiterTest, WorksOnWhereItCannotTakeDownWhatItFound) {
    saving = false;
    limitTo(80);
    EXPECT_EQ(text(endThreshold), "80");
    EXPECT_EQ(last.details.lastError, "what was found at first could not be taken down");
    saving = true;
    round();
    EXPECT_EQ(last.details.lastError, std::nullopt);
    EXPECT_EQ(saved.found.at("BAT0").end, 100);
}

TEST_F(LimiterTest, TellsTheChargeOfAllBatteriesTogether) {
    EXPECT_EQ(round().status.batteryPercent, 80);
    addBattery(hardware, "BAT1");
    set("BAT1/capacity", "40");
    EXPECT_EQ(round().status.batteryPercent, 60);
    set("BAT0/energy_now", "40000000");
    set("BAT0/energy_full", "50000000");
    set("BAT1/energy_now", "4000000");
    set("BAT1/energy_full", "10000000");
    EXPECT_EQ(round().status.batteryPercent, 73); // by their sizes
    set("BAT1/energy_full", "");
    set("BAT1/charge_now", "400000");
    set("BAT1/charge_full", "1000000");
    EXPECT_EQ(round().status.batteryPercent, 60); // energy and charge do not add up
}

} // namespace
} // namespace quelby::limiter
