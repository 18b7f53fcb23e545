#include "ui/presentation/cards/battery_card.h"

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

TEST(BatteryCard, ShowsLevelRateTimeAndHealth) {
    PublishedFields fields;
    fields.batteryPercent = 57;
    fields.batteryHealth = 91;
    fields.batteryRateStr = "-12.0%/hr";
    fields.predictedTime = "~4h 45m remaining";
    const BatteryCard expected{.symbol = {"battery.100percent", ColorName::primary},
                               .title = primary("Battery"),
                               .level = {"57%", ColorName::yellow},
                               .bar = {0.57, ColorName::yellow},
                               .rate = {"-12.0%/hr", ColorName::orange},
                               .time = {{"clock", ColorName::secondary}, secondary("~4h 45m remaining")},
                               .health = {{"heart.fill", ColorName::green}, secondary("Health: 91%")}};
    EXPECT_EQ(batteryCard(fields), expected);
}

TEST(BatteryCard, ColoursLevelAndBarAlike) {
    const std::tuple<Int, const char*, Bar> expected[] = {
        {0, "0%", {0.0, ColorName::red}},       {20, "20%", {0.2, ColorName::red}},
        {21, "21%", {0.21, ColorName::orange}}, {40, "40%", {0.4, ColorName::orange}},
        {41, "41%", {0.41, ColorName::yellow}}, {60, "60%", {0.6, ColorName::yellow}},
        {61, "61%", {0.61, ColorName::green}},  {100, "100%", {1.0, ColorName::green}}};
    PublishedFields fields;
    for (const auto& [percent, level, bar] : expected) {
        fields.batteryPercent = percent;
        const auto card = batteryCard(fields);
        EXPECT_EQ(card.level, (Text{level, bar.color}));
        EXPECT_EQ(card.bar, bar);
    }
}

TEST(BatteryCard, ColoursTheRateByWhetherTheBatteryIsCharging) {
    PublishedFields fields;
    fields.batteryRateStr = "+30.0%/hr";
    fields.isCharging = true;
    EXPECT_EQ(batteryCard(fields).rate, (Text{"+30.0%/hr", ColorName::green}));
    fields.isCharging = false;
    fields.isPluggedIn = true;
    EXPECT_EQ(batteryCard(fields).rate, (Text{"+30.0%/hr", ColorName::orange}));
}

TEST(BatteryCard, HasAnOrangeHeartForAWornBattery) {
    const std::tuple<Int, const char*, ColorName> expected[] = {{0, "Health: 0%", ColorName::orange},
                                                                {79, "Health: 79%", ColorName::orange},
                                                                {80, "Health: 80%", ColorName::orange},
                                                                {81, "Health: 81%", ColorName::green},
                                                                {100, "Health: 100%", ColorName::green}};
    PublishedFields fields;
    for (const auto& [health, words, color] : expected) {
        fields.batteryHealth = health;
        EXPECT_EQ(batteryCard(fields).health, (Label{{"heart.fill", color}, secondary(words)}));
    }
}

} // namespace
} // namespace quelby
