// What a helper leaves behind: when it ends, when the limit is off, and when it is removed.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/support/plain_laptop.h"

namespace quelby::limiter {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class LettingGo : public PlainLaptop {};

TEST_F(LettingGo, ReleasesChargingAtItsEndOnlyWhereHoldingNeedsIt) {
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

TEST_F(LettingGo, ReleasesNothingThatItNeverHeld) {
    useBehaviour();
    hardware[behaviour].text = "inhibit-charge"; // somebody else's
    start();
    limiter->letGo();
    EXPECT_EQ(text(behaviour), "auto [inhibit-charge]");
}

TEST_F(LettingGo, GivesBackABatteryThatCanBeCharged) {
    useBehaviour();
    hardware[behaviour].text = "inhibit-charge";
    limitTo(60);
    switchOff();
    EXPECT_EQ(text(behaviour), "[auto] inhibit-charge");
}

TEST_F(LettingGo, FightsForWhatItHoldsItself) {
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

TEST_F(LettingGo, RestoresWhatWasFoundAndGivesUpACalibration) {
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

TEST_F(LettingGo, SaysWhatCouldNotBeRestored) {
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

} // namespace
} // namespace quelby::limiter
