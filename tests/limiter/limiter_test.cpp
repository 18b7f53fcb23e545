// What one helper does over time, on the plainest hardware.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/support/plain_laptop.h"

namespace quelby::limiter {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class LimiterTest : public PlainLaptop {};

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
    changeBattery();
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
