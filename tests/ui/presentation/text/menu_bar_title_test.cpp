#include "ui/presentation/text/menu_bar_title.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

class MenuBarTitleTest : public testing::Test {
protected:
    void expectTitle(MenuBarDisplay display, const std::string& title) const {
        EXPECT_EQ(menuBarTitle(fields, display), title);
    }

    PublishedFields fields;
};

TEST_F(MenuBarTitleTest, ShowsTheDrawOnBatteryWithAMinus) {
    fields.totalPower = 12.4;
    expectTitle(MenuBarDisplay::watts, " -12W");
    fields.chargingInhibited = true; // matters on power only
    expectTitle(MenuBarDisplay::watts, " -12W");
    fields.acTotal = 40;
    expectTitle(MenuBarDisplay::watts, " -12W");
}

TEST_F(MenuBarTitleTest, ShowsTheDrawOfADesktopWithoutASign) {
    fields.hasBattery = false;
    fields.totalPower = 14.6;
    expectTitle(MenuBarDisplay::watts, " 15W");
    fields.isPluggedIn = true;
    fields.acTotal = 35;
    expectTitle(MenuBarDisplay::watts, " 35W");
}

TEST_F(MenuBarTitleTest, ShowsTheAdaptersPowerWhereItIsKnown) {
    fields.isPluggedIn = true;
    fields.totalPower = 12;
    fields.acTotal = 0.1;
    expectTitle(MenuBarDisplay::watts, " 12W");
    fields.acTotal = 0.11;
    expectTitle(MenuBarDisplay::watts, " 0W");
    fields.acTotal = 35.2;
    expectTitle(MenuBarDisplay::watts, " 35W");
}

TEST_F(MenuBarTitleTest, ShowsTheLevelWhileTheChargeIsHeld) {
    fields.isPluggedIn = true;
    fields.chargingInhibited = true;
    fields.batteryPercent = 80;
    fields.acTotal = 35;
    expectTitle(MenuBarDisplay::watts, " 80%");
}

TEST_F(MenuBarTitleTest, ShowsTheOtherFigures) {
    fields.batteryPercent = 80;
    fields.amperage = -1520.4;
    fields.voltage = 12.614;
    fields.batteryTemp = 31.44;
    expectTitle(MenuBarDisplay::percentage, " 80%");
    expectTitle(MenuBarDisplay::mA, " 1520 mA");
    expectTitle(MenuBarDisplay::voltage, " 12.61V");
    expectTitle(MenuBarDisplay::temperature, " 31.4°C");
    expectTitle(MenuBarDisplay::iconOnly, "");
    fields.amperage = 1520;
    expectTitle(MenuBarDisplay::mA, " 1520 mA");
    fields.batteryTemp = -3.5;
    expectTitle(MenuBarDisplay::temperature, " -3.5°C");
}

TEST_F(MenuBarTitleTest, RoundsHalvesToEvenAsPrintfDoes) {
    fields.isPluggedIn = true;
    fields.totalPower = 12.5;
    expectTitle(MenuBarDisplay::watts, " 12W");
    fields.totalPower = 13.5;
    expectTitle(MenuBarDisplay::watts, " 14W");
}

TEST(MenuBarSymbol, OfADesktopIsAlwaysTheComputer) {
    PublishedFields fields;
    fields.hasBattery = false;
    fields.isPluggedIn = true;
    fields.fullyCharged = true;
    EXPECT_EQ(menuBarSymbol(fields), "desktopcomputer");
}

TEST(MenuBarSymbol, FollowsTheLevelOnBattery) {
    PublishedFields fields;
    const std::pair<Int, const char*> expected[] = {{100, "battery.75percent"}, {76, "battery.75percent"},
                                                    {75, "battery.50percent"},  {51, "battery.50percent"},
                                                    {50, "battery.25percent"},  {26, "battery.25percent"},
                                                    {25, "battery.0percent"},   {0, "battery.0percent"}};
    for (const auto& [percent, symbol] : expected) {
        fields.batteryPercent = percent;
        EXPECT_EQ(menuBarSymbol(fields), symbol) << percent;
    }
}

// Every state in which the battery can be: the first that applies gives the symbol.
TEST(MenuBarSymbol, OfTheWholeGridOfStatesIsTheFirstThatApplies) {
    for (int state = 0; state < 16; ++state) {
        PublishedFields fields;
        fields.batteryPercent = 60;
        fields.isPluggedIn = (state & 1) != 0;
        fields.fullyCharged = (state & 2) != 0;
        fields.isCharging = (state & 4) != 0;
        fields.chargingInhibited = (state & 8) != 0;
        std::string expected = "battery.50percent";
        if (fields.isPluggedIn && fields.chargingInhibited) {
            expected = "bolt.badge.checkmark.fill";
        }
        if (fields.isPluggedIn && fields.isCharging) {
            expected = "bolt.fill";
        }
        if (fields.isPluggedIn && fields.fullyCharged) {
            expected = "battery.100percent.bolt";
        }
        EXPECT_EQ(menuBarSymbol(fields), expected) << state;
    }
}

TEST(MenuBarToolTip, SaysBatteryAndPower) {
    PublishedFields fields;
    fields.batteryPercent = 82;
    fields.predictedTime = "~3h 12m\nremaining";
    fields.totalPower = 12.34;
    fields.cpuUsage = 7.5;
    EXPECT_EQ(menuBarToolTip(fields), "82 % discharging, ~3h 12m?remaining, 12.3 W");
    EXPECT_EQ(statusBarToolTip(fields), "82 % discharging, ~3h 12m?remaining, 12.3 W, CPU 7.5 %");
    fields.hasBattery = false;
    EXPECT_EQ(menuBarToolTip(fields), "no battery, 12.3 W");
}

} // namespace
} // namespace quelby
