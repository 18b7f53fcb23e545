// When a battery is called held.

#include <gtest/gtest.h>

#include "limiter/support/plain_laptop.h"

namespace quelby::limiter {
namespace {

class Holding : public PlainLaptop {};

TEST_F(Holding, CallsABatteryHeldOnTheSecondLook) {
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

TEST_F(Holding, CallsNoBatteryHeldWhoseLimitIsOff) {
    round();
    round();
    hardware[endThreshold].text = "60"; // somebody else's
    round();
    round();
    EXPECT_FALSE(last.status.chargingInhibited);
}

TEST_F(Holding, GoesByTheLevelInForceAndNotByTheWish) {
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

TEST_F(Holding, CallsTwoBatteriesHeldOnlyWhereBothAre) {
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

} // namespace
} // namespace quelby::limiter
