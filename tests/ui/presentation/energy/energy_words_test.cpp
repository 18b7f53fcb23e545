#include "ui/presentation/energy/energy_words.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(EnergyWords, TellAsManyDigitsAsCanBeTold) {
    EXPECT_EQ(wattHoursText(0), "0.00 Wh");
    EXPECT_EQ(wattHoursText(0.084), "0.08 Wh");
    EXPECT_EQ(wattHoursText(0.994), "0.99 Wh");
    EXPECT_EQ(wattHoursText(0.995), "1.0 Wh");
    EXPECT_EQ(wattHoursText(8.24), "8.2 Wh");
    EXPECT_EQ(wattHoursText(99.94), "99.9 Wh");
    EXPECT_EQ(wattHoursText(99.95), "100 Wh");
    EXPECT_EQ(wattHoursText(-2.4), "-2.4 Wh");
}

TEST(EnergyWords, TellTheShareOfACharge) {
    EXPECT_EQ(chargeShareText(8.2, 48.0), "17 %");
    EXPECT_EQ(chargeShareText(0.24, 48.0), "1 %");
    EXPECT_EQ(chargeShareText(0.23, 48.0), "<1 %");
    EXPECT_EQ(chargeShareText(96, 48.0), "200 %");
    EXPECT_EQ(chargeShareText(8.2, std::nullopt), "");
    EXPECT_EQ(chargeShareText(8.2, 0.0), "");
}

TEST(EnergyWords, TellDurationsInTheirTwoLargestUnits) {
    EXPECT_EQ(durationText(59.9), "59 s");
    EXPECT_EQ(durationText(60), "1 min");
    EXPECT_EQ(durationText(3599), "59 min");
    EXPECT_EQ(durationText(3600), "1 h 0 min");
    EXPECT_EQ(durationText(86399), "23 h 59 min");
    EXPECT_EQ(durationText(86400 + 4 * 3600), "1 d 4 h");
}

TEST(EnergyWords, TellTheTimeToTheLimit) {
    EXPECT_EQ(timeToLimitText(85.9, 80), "~1h 25m to the limit of 80%");
    EXPECT_EQ(timeToLimitText(0.5, 75.0), "~0h 0m to the limit of 75%");
}

Sleep eightHours(double percentAfter) {
    return {.seconds = 28'800, .percentBefore = 80, .percentAfter = percentAfter, .wattHours = 3.2};
}

TEST(ASleep, SaysWhenItDrainedMoreThanOnePercentAnHour) {
    EXPECT_EQ(percentPerHour(eightHours(76)), 0.5);
    EXPECT_FALSE(drainedMuch(eightHours(72))); // exactly 1
    EXPECT_TRUE(drainedMuch(eightHours(71.9)));
    EXPECT_FALSE(drainedMuch(eightHours(95)));
    EXPECT_DOUBLE_EQ(meanWatts(eightHours(76)).value(), 0.4);
}

TEST(ASleep, HasNoMeanOfWhatIsNotKnown) {
    EXPECT_EQ(meanWatts({.seconds = 3600}), std::nullopt);
    EXPECT_EQ(meanWatts({.seconds = 0, .wattHours = 1}), std::nullopt);
    EXPECT_EQ(percentPerHour({.seconds = 0, .percentBefore = 5}), 0);
}

TEST(ASession, HasAName) {
    for (const auto kind : {SessionKind::discharge, SessionKind::charge, SessionKind::calibration}) {
        EXPECT_FALSE(sessionName(kind).empty());
    }
}

TEST(EnergyWords, NameTheButtonByItsFigureAndByWhatItShows) {
    EXPECT_EQ(energyButtonName("31.4 Wh today"), "31.4 Wh today, Show Where the Energy Went");
}

} // namespace
} // namespace quelby
