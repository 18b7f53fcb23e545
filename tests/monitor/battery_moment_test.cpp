#include "monitor/battery_moment.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace quelby {
namespace {

constexpr Date midnight = 1'700'006'400; // of UTC

// Half full, on a computer that has been awake for an hour.
BatteryMoment moment(Date time, double asleep, double wattHours = 25) {
    return {.time = time,
            .sinceBoot = TimeSinceBoot{.awake = 3600 + (time - midnight - asleep), .asleep = asleep},
            .percent = wattHours * 2,
            .wattHours = wattHours};
}

TEST(BatteryMoment, IsAsFineAsTheBatteryTellsIt) {
    fake::WallClock clock;
    PublishedFields fields;
    fields.batteryPercent = 50;
    EXPECT_EQ(batteryMoment(fields, clock).percent, 50.0);
    EXPECT_EQ(batteryMoment(fields, clock).wattHours, std::nullopt);
    fields.rawMaxCapacity = 4000;
    fields.rawCurrentCapacity = 2010;
    fields.voltage = 12;
    EXPECT_EQ(batteryMoment(fields, clock).percent, 50.25);
    EXPECT_DOUBLE_EQ(batteryMoment(fields, clock).wattHours.value(), 24.12);
    fields.rawMaxCapacity = 100; // a percentage
    EXPECT_EQ(batteryMoment(fields, clock).percent, 50.0);
    fields.hasBattery = false;
    EXPECT_EQ(batteryMoment(fields, clock).percent, std::nullopt);
    EXPECT_EQ(batteryMoment(fields, clock).time, clock.time);
}

TEST(BatteryMoment, IsFullAtTheMostAndAsCoarseAsTheBatteryWhereNothingIsLeft) {
    fake::WallClock clock;
    PublishedFields fields;
    fields.batteryPercent = 3;
    fields.rawMaxCapacity = 4000;
    fields.rawCurrentCapacity = 4001;
    EXPECT_EQ(batteryMoment(fields, clock).percent, 100.0);
    fields.rawCurrentCapacity = 1;
    EXPECT_EQ(batteryMoment(fields, clock).percent, 0.025);
    fields.rawCurrentCapacity = 0;
    EXPECT_EQ(batteryMoment(fields, clock).percent, 3.0);
    EXPECT_EQ(batteryMoment(fields, clock).wattHours, std::nullopt);
}

TEST(FullChargeWattHours, TakeACapacityThatIsNoPercentageAndAVoltage) {
    PublishedFields fields;
    fields.rawMaxCapacity = 4000;
    EXPECT_EQ(fullChargeWattHours(fields), std::nullopt);
    fields.voltage = 0.5;
    EXPECT_EQ(fullChargeWattHours(fields), 2.0);
    fields.rawMaxCapacity = 101;
    EXPECT_DOUBLE_EQ(fullChargeWattHours(fields).value(), 0.0505);
    fields.rawMaxCapacity = 100;
    EXPECT_EQ(fullChargeWattHours(fields), std::nullopt);
    fields.rawMaxCapacity = 4000;
    fields.hasBattery = false;
    EXPECT_EQ(fullChargeWattHours(fields), std::nullopt);
}

TEST(SleepBetween, TellsWhatTheNightTook) {
    const auto sleep = sleepBetween(moment(midnight - 7200, 0, 25), moment(midnight + 7200, 14390, 23));
    ASSERT_TRUE(sleep);
    EXPECT_EQ(*sleep, (Sleep{.start = 1'699'999'200,
                             .end = 1'700'013'600,
                             .seconds = 14390,
                             .percentBefore = 50,
                             .percentAfter = 46,
                             .wattHours = 2.0}));
}

TEST(SleepBetween, LastsAMinuteOrMore) {
    EXPECT_FALSE(sleepBetween(moment(midnight, 0), moment(midnight + 62.9, 59.9)));
    EXPECT_TRUE(sleepBetween(moment(midnight, 0), moment(midnight + 63, 60)));
}

TEST(SleepBetween, IsNoJumpOfTheWallClock) {
    auto after = moment(midnight + 3, 0);
    after.time += 86400;
    EXPECT_FALSE(sleepBetween(moment(midnight, 0), after));
    auto backwards = moment(midnight + 3600, 3597);
    backwards.time -= 86400; // set while it slept
    EXPECT_EQ(sleepBetween(moment(midnight, 0), backwards)->seconds, 3597);
}

TEST(SleepBetween, IsNoRestartAndNoPauseOfTheRecorder) {
    auto anotherBoot = moment(midnight + 36000, 0);
    anotherBoot.sinceBoot = TimeSinceBoot{.awake = 30, .asleep = 0};
    EXPECT_FALSE(sleepBetween(moment(midnight, 5000), anotherBoot));
    EXPECT_FALSE(sleepBetween(moment(midnight, 0), moment(midnight + 36000, 0)));
    auto unknown = moment(midnight + 36000, 36000);
    unknown.sinceBoot = std::nullopt;
    EXPECT_FALSE(sleepBetween(moment(midnight, 0), unknown));
}

TEST(SleepBetween, NeedsABatteryButNotItsWattHours) {
    auto before = moment(midnight, 0);
    before.wattHours = std::nullopt;
    EXPECT_EQ(sleepBetween(before, moment(midnight + 3600, 3597))->wattHours, std::nullopt);
    before.percent = std::nullopt;
    EXPECT_FALSE(sleepBetween(before, moment(midnight + 3600, 3597)));
}

TEST(SecondsBetween, AreThoseOfTheComputersOwnClocks) {
    auto after = moment(midnight + 100, 60);
    after.time -= 5000;
    EXPECT_EQ(secondsBetween(moment(midnight, 0), after), 100);
}

TEST(SecondsBetween, AreThoseOfTheWallClockWhereEitherOfTheComputersClocksWentBack) {
    const BatteryMoment before{.time = midnight, .sinceBoot = TimeSinceBoot{.awake = 3600, .asleep = 600}};
    const auto since = [&](double awake, double asleep) {
        return secondsBetween(before, {.time = midnight + 7, .sinceBoot = TimeSinceBoot{awake, asleep}});
    };
    EXPECT_EQ(since(3600, 600), 0);
    EXPECT_EQ(since(3599.5, 700), 7);
    EXPECT_EQ(since(3700, 599.5), 7);
}

TEST(SecondsBetween, AreThoseOfTheWallClockWhereNothingElseTells) {
    auto after = moment(midnight + 100, 60);
    after.sinceBoot = std::nullopt;
    EXPECT_EQ(secondsBetween(moment(midnight, 0), after), 100);
    after.time = midnight - 50;
    EXPECT_EQ(secondsBetween(moment(midnight, 0), after), 0);
}

} // namespace
} // namespace quelby
