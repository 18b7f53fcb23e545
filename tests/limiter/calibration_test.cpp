#include "limiter/decisions/calibration.h"

#include <gtest/gtest.h>

namespace quelby::limiter {
namespace {

constexpr double someTime = 1'700'000'000;
constexpr double day = 86400;

class CalibrationTest : public testing::Test {
protected:
    void advance(double seconds = 60) {
        moment.now += seconds;
        moment.elapsed = seconds;
        calibration.advance(moment);
    }

    Calibration calibration{0, std::nullopt};
    CalibrationMoment moment{.wanted = true, .intervalDays = 30, .charger = true, .now = someTime};
};

TEST_F(CalibrationTest, BeginsAtOnceWhereThereWasNone) {
    advance();
    EXPECT_TRUE(calibration.isActive());
    EXPECT_EQ(calibration.phase(), "charging to 100%");
}

TEST_F(CalibrationTest, BeginsWhenTheIntervalHasPassedAndNotASecondEarlier) {
    calibration = Calibration(someTime, std::nullopt);
    moment.now = someTime + 30 * day - 2;
    advance(1);
    EXPECT_FALSE(calibration.isActive());
    advance(1);
    EXPECT_TRUE(calibration.isActive());
}

TEST_F(CalibrationTest, WaitsForTheCharger) {
    moment.charger = false;
    advance();
    EXPECT_FALSE(calibration.isActive());
    moment.charger = true;
    advance();
    EXPECT_TRUE(calibration.isActive());
}

TEST_F(CalibrationTest, DoesNotBeginWhereItIsNotWanted) {
    moment.wanted = false;
    advance();
    EXPECT_FALSE(calibration.isActive());
}

TEST_F(CalibrationTest, HoldsTheFullBatteryForAnHourAndTakesTheTimeDown) {
    advance();
    advance();
    EXPECT_EQ(calibration.phase(), "charging to 100%");
    moment.full = true;
    advance();
    EXPECT_EQ(calibration.phase(), "holding at 100%, 60 min left");
    advance(18 * 60);
    EXPECT_EQ(calibration.phase(), "holding at 100%, 42 min left");
    advance(42 * 60 - 1);
    EXPECT_EQ(calibration.phase(), "holding at 100%, 1 min left");
    EXPECT_EQ(calibration.last(), 0);
    advance(1);
    EXPECT_FALSE(calibration.isActive());
    EXPECT_EQ(calibration.last(), moment.now);
    advance(30 * day - 1);
    EXPECT_FALSE(calibration.isActive());
    advance(1);
    EXPECT_TRUE(calibration.isActive());
}

TEST_F(CalibrationTest, GoesOnHoldingWhereTheFullBatteryTakesALittleNowAndThen) {
    moment.full = true;
    advance();
    advance(600);
    moment.full = false;
    advance(600);
    EXPECT_EQ(calibration.phase(), "holding at 100%, 40 min left");
}

TEST_F(CalibrationTest, PausesWithoutItsChargerAndGoesOnWhereItWas) {
    moment.full = true;
    advance();
    advance(600);
    moment.charger = false;
    moment.full = false;
    advance(8);
    EXPECT_TRUE(calibration.isActive());
    EXPECT_EQ(calibration.phase(), "paused: charger unplugged");
    advance(7200);
    moment.charger = true;
    advance(8);
    EXPECT_EQ(calibration.phase(), "charging to 100%");
    advance(7200); // not full: nothing of it counts
    moment.full = true;
    advance(0);
    EXPECT_EQ(calibration.phase(), "holding at 100%, 50 min left");
}

TEST_F(CalibrationTest, GoesOnAfterARestartWhereItWas) {
    calibration = Calibration(0, CalibrationProgress{.reachedFull = true, .heldSeconds = 1800});
    moment.elapsed = 0;
    calibration.advance(moment);
    EXPECT_EQ(calibration.phase(), "holding at 100%, 30 min left");
    advance(1800);
    EXPECT_FALSE(calibration.isActive());
    EXPECT_EQ(calibration.last(), moment.now);
}

TEST_F(CalibrationTest, EndsUndoneWhereItIsNoLongerWanted) {
    moment.full = true;
    advance();
    advance(1800);
    moment.wanted = false;
    advance();
    EXPECT_FALSE(calibration.isActive());
    EXPECT_EQ(calibration.last(), 0);
    moment.wanted = true;
    advance();
    EXPECT_EQ(calibration.phase(), "holding at 100%, 60 min left"); // from its beginning
}

TEST_F(CalibrationTest, TakesAWornBatteryThatStaysBelowFullForFullAfterHalfAnHour) {
    advance();
    moment.stalled = true;
    advance(1799);
    EXPECT_EQ(calibration.phase(), "charging to 100%");
    advance(1);
    EXPECT_EQ(calibration.phase(), "holding at 100%, 60 min left");
}

TEST_F(CalibrationTest, CountsTheHalfHourAnewWhereTheBatteryTakesChargeInBetween) {
    advance();
    moment.stalled = true;
    advance(1799);
    moment.stalled = false;
    advance(8);
    moment.stalled = true;
    advance(1799);
    EXPECT_EQ(calibration.phase(), "charging to 100%");
}

TEST_F(CalibrationTest, CountsTheHalfHourAnewWhereTheChargerWasAwayInBetween) {
    moment.stalled = true;
    advance();
    advance(1799);
    moment.charger = false;
    advance(8);
    moment.charger = true;
    advance(1799);
    EXPECT_EQ(calibration.phase(), "charging to 100%");
    advance(1);
    EXPECT_EQ(calibration.phase(), "holding at 100%, 60 min left");
}

TEST_F(CalibrationTest, TrustsNoClockThatHasLostItsTime) {
    moment.now = 0;
    advance();
    EXPECT_FALSE(calibration.isActive());
    moment.now = 1'577'836'798; // two seconds before 2020
    advance(1);
    EXPECT_FALSE(calibration.isActive());
    advance(1);
    EXPECT_TRUE(calibration.isActive());
}

TEST_F(CalibrationTest, ForgetsATimeThatAClockAheadHasTakenDown) {
    calibration = Calibration(someTime + 1000 * day, std::nullopt);
    advance();
    EXPECT_TRUE(calibration.isActive());
    calibration = Calibration(moment.now + 1 + day, std::nullopt);
    advance(1);
    EXPECT_FALSE(calibration.isActive());
    calibration = Calibration(someTime + 3600, std::nullopt); // within the clock's usual corrections
    advance();
    EXPECT_FALSE(calibration.isActive());
}

} // namespace
} // namespace quelby::limiter
