#include <cmath>

#include <gtest/gtest.h>

#include "limiter/decisions/contest.h"
#include "limiter/decisions/hold_watch.h"
#include "limiter/decisions/reaction_rate.h"
#include "limiter/decisions/wish.h"

namespace quelby::limiter {
namespace {

TEST(WishTest, IsKeptWithinItsBounds) {
    EXPECT_EQ(wishFrom({.chargeLimitPercent = 19}).percent, 20);
    EXPECT_EQ(wishFrom({.chargeLimitPercent = 20}).percent, 20);
    EXPECT_EQ(wishFrom({.chargeLimitPercent = 100}).percent, 100);
    EXPECT_EQ(wishFrom({.chargeLimitPercent = 101}).percent, 100);
    EXPECT_EQ(wishFrom({.chargeLimitPercent = INT64_MIN}).percent, 20);
    EXPECT_EQ(wishFrom({.chargeLimitPercent = INT64_MAX}).percent, 100);
    EXPECT_EQ(wishFrom({.calibrationIntervalDays = 0}).intervalDays, 1);
    EXPECT_EQ(wishFrom({.calibrationIntervalDays = -7}).intervalDays, 1);
    EXPECT_EQ(wishFrom({.calibrationIntervalDays = 60}).intervalDays, 60);
    EXPECT_EQ(wishFrom({.calibrationIntervalDays = INT64_MAX}).intervalDays, 365);
}

TEST(WishTest, BelievesARememberedTimeOnlyWhereItCanBeTrue) {
    EXPECT_EQ(credibleCalibration({.lastCalibrationTimestamp = 1000}, 1000), 1000);
    EXPECT_EQ(credibleCalibration({.lastCalibrationTimestamp = 1001}, 1000), 0);
    EXPECT_EQ(credibleCalibration({.lastCalibrationTimestamp = -0.5}, 1000), 0);
    EXPECT_EQ(credibleCalibration({.lastCalibrationTimestamp = 1e308}, 1000), 0);
}

class LooksHeld : public testing::Test {
protected:
    Battery battery{.name = "BAT0", .charging = Charging::notCharging, .percent = 80};
    Level level{.limits = true, .percent = 80};
    bool externalPower = true;

    [[nodiscard]] bool held() const { return looksHeld(externalPower, battery, level); }
};

TEST_F(LooksHeld, AtTheLevelAndAboveButNotBelow) {
    EXPECT_TRUE(held());
    battery.percent = 81;
    EXPECT_TRUE(held());
    battery.percent = 79;
    EXPECT_FALSE(held());
    battery.percent = std::nullopt;
    EXPECT_FALSE(held());
}

TEST_F(LooksHeld, OnExternalPowerOnly) {
    externalPower = false;
    EXPECT_FALSE(held());
}

TEST_F(LooksHeld, WhileItTakesNoCharge) {
    battery.charging = Charging::charging;
    EXPECT_FALSE(held());
    battery.flowsNot = true; // firmware that calls it charging for ever
    EXPECT_TRUE(held());
    battery.flowsNot = false;
    battery.charging = Charging::unknown;
    EXPECT_FALSE(held()); // unknown is not guessed at
    battery.flowsNot = true;
    EXPECT_TRUE(held());
    battery.charging = Charging::full;
    EXPECT_TRUE(held());
}

TEST_F(LooksHeld, WhereALevelIsInForce) {
    level.limits = false;
    EXPECT_FALSE(held());
    level = {.limits = true}; // the firmware's own, 55% or more
    EXPECT_TRUE(held());
    battery.percent = 54;
    EXPECT_FALSE(held());
}

TEST(HoldWatchTest, NeedsTwoLooksThatAreApart) {
    HoldWatch watch;
    watch.look(true, 100);
    EXPECT_FALSE(watch.isHeld());
    EXPECT_TRUE(watch.isUndecided());
    watch.look(true, 102.9);
    EXPECT_FALSE(watch.isHeld());
    watch.look(true, 103);
    EXPECT_TRUE(watch.isHeld());
    EXPECT_FALSE(watch.isUndecided());
    watch.look(true, 103.1);
    EXPECT_TRUE(watch.isHeld());
    watch.look(false, 104);
    EXPECT_FALSE(watch.isHeld());
    EXPECT_FALSE(watch.isUndecided());
}

TEST(HoldWatchTest, IsNotTakenInByAPauseOfTheCharger) {
    HoldWatch watch;
    for (int second = 0; second < 600; second += 8) {
        watch.look(second % 16 == 0, second);
        EXPECT_FALSE(watch.isHeld());
    }
}

TEST(ContestTest, IsFoughtThreeTimesADay) {
    Contest contest;
    EXPECT_FALSE(contest.isLost(0));
    EXPECT_TRUE(contest.fightAgain(0));
    EXPECT_TRUE(contest.fightAgain(10));
    EXPECT_TRUE(contest.fightAgain(20));
    EXPECT_FALSE(contest.isLost(25));
    EXPECT_FALSE(contest.fightAgain(30));
    EXPECT_TRUE(contest.isLost(30));
    EXPECT_TRUE(contest.isLost(Contest::memory - 1));
    EXPECT_FALSE(contest.isLost(Contest::memory)); // the first one is forgotten
    EXPECT_TRUE(contest.fightAgain(Contest::memory));
    EXPECT_FALSE(contest.fightAgain(Contest::memory + 1));
}

TEST(ContestTest, IsLostForADayWhereverTheClockBegan) {
    Contest contest;
    for (int count = 0; count < 4; ++count) {
        static_cast<void>(contest.fightAgain(Contest::memory + count));
    }
    EXPECT_TRUE(contest.isLost(2 * Contest::memory - 1));
    EXPECT_FALSE(contest.isLost(2 * Contest::memory));
}

TEST(ContestTest, BeginsAnewWhenItIsForgotten) {
    Contest contest;
    for (int count = 0; count < 4; ++count) {
        static_cast<void>(contest.fightAgain(count));
    }
    EXPECT_TRUE(contest.isLost(5));
    contest.forget();
    EXPECT_FALSE(contest.isLost(5));
    EXPECT_TRUE(contest.fightAgain(5));
}

TEST(ReactionRateTest, AllowsAFewInARowAndThenOneEveryFiveSeconds) {
    ReactionRate rate;
    for (int count = 0; count < 5; ++count) {
        EXPECT_EQ(rate.wait(100), 0);
        rate.react(100);
    }
    EXPECT_NEAR(rate.wait(100), 5, 1e-9);
    EXPECT_NEAR(rate.wait(103), 2, 1e-9);
    EXPECT_EQ(rate.wait(105), 0);
    rate.react(105);
    EXPECT_NEAR(rate.wait(105), 5, 1e-9);
    EXPECT_EQ(rate.wait(1000), 0);
}

TEST(ReactionRateTest, CountsNoTimeWhereTheClockWentBack) {
    ReactionRate rate;
    for (int count = 0; count < 5; ++count) {
        rate.react(100);
    }
    EXPECT_EQ(rate.wait(99), rate.wait(100));
}

TEST(ReactionRateTest, LetsAFloodHaveTwelveAMinute) {
    ReactionRate rate;
    int reactions = 0;
    for (int step = 0; step < 36'000; ++step) { // an hour of ten changes a second
        const double time = step / 10.0;
        if (rate.wait(time) <= 0) {
            rate.react(time);
            ++reactions;
        }
    }
    EXPECT_LE(reactions, 3600 / 5 + ReactionRate::burst);
    EXPECT_GE(reactions, 3600 / 5 - 20);
}

} // namespace
} // namespace quelby::limiter
