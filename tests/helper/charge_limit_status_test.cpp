#include "helper/charge_limit_status.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(ChargeLimitStatus, NamesTheCalibrationBeforeAllElse) {
    const ChargeLimitSituation calibrating{.calibrationActive = true,
                                           .chargingInhibited = true,
                                           .chargeLimitEnabled = true,
                                           .isPluggedIn = true,
                                           .batteryPercent = 50};
    EXPECT_EQ(chargeLimitStatus(calibrating), "Calibrating: in progress");
    auto inAPhase = calibrating;
    inAPhase.calibrationPhase = "Charging to 100%";
    EXPECT_EQ(chargeLimitStatus(inAPhase), "Calibrating: Charging to 100%");
    inAPhase.calibrationPhase = "";
    EXPECT_EQ(chargeLimitStatus(inAPhase), "Calibrating: ");
}

TEST(ChargeLimitStatus, IgnoresThePhaseOfNoCalibration) {
    EXPECT_EQ(chargeLimitStatus({.calibrationPhase = "left over", .chargingInhibited = true}),
              "Holding at 80%");
}

TEST(ChargeLimitStatus, SaysWhereTheBatteryIsHeldWhetherTheLimitIsOnOrNot) {
    EXPECT_EQ(chargeLimitStatus({.chargingInhibited = true, .chargeLimitPercent = 60}), "Holding at 60%");
    EXPECT_EQ(chargeLimitStatus({.chargingInhibited = true, .chargeLimitEnabled = true, .isPluggedIn = true}),
              "Holding at 80%");
    EXPECT_EQ(chargeLimitStatus({.chargingInhibited = true, .chargeLimitEnabled = true}), "Holding at 80%");
}

TEST(ChargeLimitStatus, ChargesUpToTheLimitAndFallsSilentThere) {
    ChargeLimitSituation charging{.chargeLimitEnabled = true, .isPluggedIn = true, .batteryPercent = 79};
    EXPECT_EQ(chargeLimitStatus(charging), "Charging to 80%");
    charging.batteryPercent = 80;
    EXPECT_EQ(chargeLimitStatus(charging), "");
    charging.batteryPercent = 85;
    EXPECT_EQ(chargeLimitStatus(charging), "");
}

TEST(ChargeLimitStatus, WaitsForAChargerWhateverTheCharge) {
    for (const int percent : {10, 80, 95}) {
        EXPECT_EQ(chargeLimitStatus({.chargeLimitEnabled = true, .batteryPercent = percent}),
                  "Waiting for charger");
    }
}

TEST(ChargeLimitStatus, SaysNothingWithoutALimit) {
    EXPECT_EQ(chargeLimitStatus({}), "");
    EXPECT_EQ(chargeLimitStatus({.isPluggedIn = true, .batteryPercent = 10}), "");
}

TEST(ChargeLimitStatus, CountsWholePercentsOfTheLimitOnly) {
    EXPECT_EQ(chargeLimitStatus({.chargingInhibited = true, .chargeLimitPercent = 79.9}), "Holding at 79%");
    ChargeLimitSituation charging{
        .chargeLimitEnabled = true, .isPluggedIn = true, .batteryPercent = 79, .chargeLimitPercent = 79.9};
    EXPECT_EQ(chargeLimitStatus(charging), "");
    charging.batteryPercent = 78;
    EXPECT_EQ(chargeLimitStatus(charging), "Charging to 79%");
}

TEST(ChargeLimitStatus, WritesTheLimitWithoutGrouping) {
    EXPECT_EQ(chargeLimitStatus({.chargingInhibited = true, .chargeLimitPercent = 1234567.0}),
              "Holding at 1234567%");
}

} // namespace
} // namespace quelby
