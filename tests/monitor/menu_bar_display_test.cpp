#include "monitor/menu_bar_display.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(MenuBarDisplay, IsFoundByItsRawValue) {
    EXPECT_EQ(menuBarDisplay("Power (W)"), MenuBarDisplay::watts);
    EXPECT_EQ(menuBarDisplay("Battery %"), MenuBarDisplay::percentage);
    EXPECT_EQ(menuBarDisplay("Current (mA)"), MenuBarDisplay::mA);
    EXPECT_EQ(menuBarDisplay("Voltage (V)"), MenuBarDisplay::voltage);
    EXPECT_EQ(menuBarDisplay("Temperature"), MenuBarDisplay::temperature);
    EXPECT_EQ(menuBarDisplay("Icon Only"), MenuBarDisplay::iconOnly);
    for (const auto display : allMenuBarDisplays) {
        EXPECT_EQ(menuBarDisplay(rawValue(display)), display);
    }
}

TEST(MenuBarDisplay, IsFoundByNothingElse) {
    EXPECT_EQ(rawValue(MenuBarDisplay{9}), "");
    for (const auto* text : {"", "Power", "power (w)", "Battery% ", "Watts"}) {
        EXPECT_EQ(menuBarDisplay(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace quelby
