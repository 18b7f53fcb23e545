#include "ui/presentation/cards/power_badge.h"

#include <limits>

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

PowerBadge drawBadge(const Symbol& symbol, const char* figure, const char* caption) {
    return {.symbol = symbol,
            .sign = std::nullopt,
            .figure = primary(figure),
            .unit = secondary("W"),
            .caption = secondary(caption),
            .extra = {}};
}

PowerBadge fullBadge(const char* figure) {
    return drawBadge({"checkmark.circle.fill", ColorName::green}, figure,
                     "Fully Charged — System Power Draw");
}

PowerBadge heldBadge(const char* caption) {
    return drawBadge({"bolt.badge.checkmark.fill", ColorName::green}, "12.3", caption);
}

const PowerBadge restingBadge =
    drawBadge({"powerplug.fill", ColorName::secondary}, "12.3", "Not Charging — System Power Draw");

PowerBadge chargingBadge(const char* figure, const char* system, const char* input) {
    return {.symbol = {"bolt.fill", ColorName::green},
            .sign = std::nullopt,
            .figure = {figure, ColorName::green},
            .unit = {"W", Color(ColorName::green, 0.7)},
            .caption = secondary("Charging Battery"),
            .extra = {{{"desktopcomputer", ColorName::secondary}, secondary(system)},
                      {{"powerplug.fill", ColorName::secondary}, secondary(input)}}};
}

PowerBadge drainBadge(const char* figure, ColorName color) {
    return {.symbol = {"battery.75percent", color},
            .sign = Text{"-", color},
            .figure = {figure, color},
            .unit = secondary("W"),
            .caption = secondary("Battery Drain"),
            .extra = {}};
}

class PowerBadgeTest : public testing::Test {
protected:
    PowerBadgeTest() {
        fields.totalPower = 12.34;
        fields.chargePower = 21.98;
        fields.acTotal = 83.4;
    }

    PublishedFields fields;
};

// The adapter decides, not what the battery says of itself.
TEST_F(PowerBadgeTest, ShowsTheDrainWithoutAnAdapterAndWithOneWhatTheSystemOrTheBatteryTakes) {
    for (int state = 0; state < 8; ++state) {
        fields.isPluggedIn = (state & 1) != 0;
        fields.fullyCharged = (state & 2) != 0;
        fields.isCharging = (state & 4) != 0;
        auto expected = drainBadge("12.3", ColorName::yellow);
        if (fields.isPluggedIn) {
            expected = fields.fullyCharged ? fullBadge("12.3")
                                           : chargingBadge("22.0", "12W system", "83W total input");
        }
        EXPECT_EQ(powerBadge(fields), expected) << state;
    }
}

TEST_F(PowerBadgeTest, ShowsWhatAMachineWithoutABatteryDraws) {
    fields.hasBattery = false;
    for (const bool plugged : {false, true}) {
        fields.isPluggedIn = plugged;
        auto expected = drawBadge({"desktopcomputer", ColorName::primary}, "12.3", "System Power Draw");
        expected.figure = {"12.3", ColorName::yellow};
        EXPECT_EQ(powerBadge(fields), expected) << plugged;
    }
}

TEST_F(PowerBadgeTest, SaysThatABatteryIsHeldAtTheLimit) {
    fields.isPluggedIn = true;
    fields.chargingInhibited = true;
    fields.chargeLimitPercent = 82.9;
    EXPECT_EQ(powerBadge(fields), heldBadge("Holding at 82% — System Power Draw"));
    fields.isCharging = true; // as a gauge may go on to say
    EXPECT_EQ(powerBadge(fields), heldBadge("Holding at 82% — System Power Draw"));
    fields.fullyCharged = true;
    EXPECT_EQ(powerBadge(fields), fullBadge("12.3"));
    fields.fullyCharged = false;
    fields.isPluggedIn = false;
    EXPECT_EQ(powerBadge(fields), drainBadge("12.3", ColorName::yellow));
}

TEST_F(PowerBadgeTest, SaysThatABatteryOnTheAdapterTakesNothing) {
    const auto charging = chargingBadge("22.0", "12W system", "83W total input");
    fields.isPluggedIn = true;
    fields.voltage = 12;
    for (const double watts : {0.0, 0.5}) {
        fields.realWatts = watts;
        EXPECT_EQ(powerBadge(fields), restingBadge) << watts;
    }
    fields.realWatts = 0.51;
    EXPECT_EQ(powerBadge(fields), charging);
    fields.realWatts = 0.5;
    fields.isCharging = true;
    EXPECT_EQ(powerBadge(fields), charging);
    fields.isCharging = false;
    fields.voltage = 0.01;
    EXPECT_EQ(powerBadge(fields), restingBadge);
    fields.voltage = 0; // nothing has been read
    EXPECT_EQ(powerBadge(fields), charging);
}

TEST_F(PowerBadgeTest, ColoursTheDrainByItsSize) {
    const std::tuple<double, const char*, ColorName> expected[] = {
        {9.94, "9.9", ColorName::green},
        {9.96, "10.0", ColorName::green},
        {10.0, "10.0", ColorName::yellow},
        {19.9, "19.9", ColorName::yellow},
        {20.0, "20.0", ColorName::orange},
        {29.9, "29.9", ColorName::orange},
        {30.0, "30.0", ColorName::red},
        {123.4, "123.4", ColorName::red},
        {std::numeric_limits<double>::quiet_NaN(), "nan", ColorName::red}};
    for (const auto& [watts, figure, color] : expected) {
        fields.totalPower = watts;
        EXPECT_EQ(powerBadge(fields), drainBadge(figure, color)) << watts;
    }
}

TEST_F(PowerBadgeTest, RoundsHalvesToEven) {
    fields.totalPower = 12.25;
    EXPECT_EQ(powerBadge(fields), drainBadge("12.2", ColorName::yellow));
    fields.isPluggedIn = true;
    fields.chargePower = 12.75;
    fields.totalPower = 12.5;
    fields.acTotal = 25.5;
    EXPECT_EQ(powerBadge(fields), chargingBadge("12.8", "12W system", "26W total input"));
}

} // namespace
} // namespace quelby
