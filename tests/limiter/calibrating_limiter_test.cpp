// A calibration on hardware.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/support/plain_laptop.h"

namespace quelby::limiter {
namespace {

using testing::HasSubstr;

class CalibratingLimiter : public PlainLaptop {};

TEST_F(CalibratingLimiter, CalibratesAndReturnsToTheLimit) {
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

TEST_F(CalibratingLimiter, LetsAThinkPadThatIsNearlyFullChargeForItsCalibration) {
    changeBattery();
    addThinkPad(hardware);
    set("BAT0/capacity", "97");
    calibrate();
    round();
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_EQ(text(bat0 + "charge_control_start_threshold"), "99");
}

TEST_F(CalibratingLimiter, LetsADellChargeAsItDidBeforeForItsCalibration) {
    changeBattery();
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

TEST_F(CalibratingLimiter, GoesOnWithACalibrationAfterASuddenEnd) {
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

TEST_F(CalibratingLimiter, LosesNoMoreThanAMinuteOfACalibrationAndRarelyWrites) {
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

TEST_F(CalibratingLimiter, BelievesAnApplicationsMemoryOnlyWhereItHasNoneOfItsOwn) {
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

TEST_F(CalibratingLimiter, DoesNotCalibrateWhatItCannotLimit) {
    changeBattery();
    calibrate();
    round();
    EXPECT_FALSE(last.status.calibrationActive);
    wish.limit = false;
    round();
    EXPECT_FALSE(last.status.calibrationActive);
}

} // namespace
} // namespace quelby::limiter
