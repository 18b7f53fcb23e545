#include "app/linux/tray/status_icon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/support/printing.h"

namespace quelby::app {
namespace {

using testing::Not;

constexpr std::string_view menuBarSymbols[] = {
    "desktopcomputer",   "battery.100percent.bolt", "bolt.fill",         "bolt.badge.checkmark.fill",
    "battery.75percent", "battery.50percent",       "battery.25percent", "battery.0percent"};

template <typename Condition>
int countPixels(const QImage& image, const Condition& condition) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += condition(image.pixelColor(x, y)) ? 1 : 0;
        }
    }
    return count;
}

bool isLight(const QColor& color) {
    return color.alpha() > 200 && color.lightness() > 230;
}

bool isDark(const QColor& color) {
    return color.alpha() > 60 && color.lightness() < 60;
}

MATCHER(ReadableOnEveryPanel, "") {
    return countPixels(arg, isLight) > 5 && countPixels(arg, isDark) > 5;
}

TEST(StatusIcon, IsASquareOfTheSideThatIsAskedFor) {
    for (const int side : {16, 22, 44}) {
        EXPECT_EQ(symbolIcon("bolt.fill", side).size(), QSize(side, side));
        EXPECT_EQ(compactIcon("bolt.fill", "12W", side).size(), QSize(side, side));
    }
}

TEST(StatusIcon, IsLightWithADarkEdgeForEverySymbol) {
    for (const auto symbol : menuBarSymbols) {
        EXPECT_THAT(symbolIcon(symbol, 22), ReadableOnEveryPanel()) << symbol;
        EXPECT_THAT(compactIcon(symbol, "-12W", 22), ReadableOnEveryPanel()) << symbol;
        EXPECT_THAT(wideIcon(symbol, "-12W", 22), ReadableOnEveryPanel()) << symbol;
    }
}

TEST(StatusIcon, IsAnotherForEachOfTheSymbols) {
    for (const auto one : menuBarSymbols) {
        for (const auto other : menuBarSymbols) {
            EXPECT_EQ(symbolIcon(one, 44) == symbolIcon(other, 44), one == other) << one << ", " << other;
        }
    }
}

TEST(StatusIcon, OfASymbolThatNobodyKnowsIsEmpty) {
    const auto nothing = [](const QColor& color) { return color.alpha() != 0; };
    EXPECT_EQ(countPixels(symbolIcon("unheard.of", 22), nothing), 0);
    EXPECT_THAT(wideIcon("unheard.of", "12W", 22), ReadableOnEveryPanel()); // by its title
}

TEST(WideIcon, HasTheTitleBesideTheSymbol) {
    const auto icon = wideIcon("bolt.fill", "12W", 22);
    EXPECT_EQ(icon.height(), 22);
    EXPECT_GT(icon.width(), 2 * 22);
    EXPECT_EQ(icon.copy(0, 0, 22, 22), symbolIcon("bolt.fill", 22));
    EXPECT_THAT(icon.copy(24, 0, icon.width() - 24, 22), ReadableOnEveryPanel());
}

TEST(WideIcon, IsAsWideForEveryTitleOfOneLength) {
    for (const int height : {16, 22, 44}) {
        const int width = wideIcon("bolt.fill", "-88W", height).width();
        for (const auto* const title : {"-11W", "-47W", "-90W"}) {
            EXPECT_EQ(wideIcon("bolt.fill", title, height).width(), width) << title << ", " << height;
        }
        EXPECT_GT(wideIcon("bolt.fill", "-100W", height).width(), width);
    }
}

TEST(WideIcon, WithoutATitleIsTheSymbolAlone) {
    EXPECT_EQ(wideIcon("bolt.fill", "", 22), symbolIcon("bolt.fill", 22));
    EXPECT_EQ(compactIcon("bolt.fill", "", 22), symbolIcon("bolt.fill", 22));
}

TEST(CompactIcon, HasTheTitleInItsLowerHalfHoweverLongItIs) {
    const auto blank = compactIcon("unheard.of", "8W", 22).copy(0, 0, 22, 10);
    EXPECT_THAT(blank, Not(ReadableOnEveryPanel()));
    for (const auto* const title : {"8W", "-12W", "12.61V", "1520 mA", "31.4°C"}) {
        const auto icon = compactIcon("unheard.of", title, 22);
        EXPECT_THAT(icon.copy(0, 10, 22, 12), ReadableOnEveryPanel()) << title;
        EXPECT_EQ(countPixels(icon.copy(0, 0, 1, 22), isLight), 0) << title << " is cut off at the left";
        EXPECT_EQ(countPixels(icon.copy(21, 0, 1, 22), isLight), 0) << title << " is cut off at the right";
    }
}

struct ThemeIcon {
    std::string_view symbol;
    std::int64_t level;
    std::string_view name;
};

constexpr ThemeIcon themeIcons[] = {
    {"desktopcomputer", 0, "computer-symbolic"},
    {"battery.100percent.bolt", 100, "battery-level-100-charged-symbolic"},
    {"battery.100percent.bolt", 96, "battery-level-100-charged-symbolic"},
    {"battery.75percent", 100, "battery-level-80-symbolic"},
    {"battery.75percent", 76, "battery-level-80-symbolic"},
    {"battery.50percent", 75, "battery-level-50-symbolic"},
    {"battery.50percent", 51, "battery-level-50-symbolic"},
    {"battery.25percent", 50, "battery-level-30-symbolic"},
    {"battery.25percent", 26, "battery-level-30-symbolic"},
    {"battery.0percent", 25, "battery-level-0-symbolic"},
    {"battery.0percent", 0, "battery-level-0-symbolic"},
    {"bolt.fill", 0, "battery-level-0-charging-symbolic"},
    {"bolt.fill", 9, "battery-level-0-charging-symbolic"},
    {"bolt.fill", 10, "battery-level-10-charging-symbolic"},
    {"bolt.fill", 59, "battery-level-50-charging-symbolic"},
    {"bolt.fill", 99, "battery-level-90-charging-symbolic"},
    {"bolt.fill", 100, "battery-level-90-charging-symbolic"},
    {"bolt.fill", -1, "battery-level-0-charging-symbolic"},
    {"bolt.badge.checkmark.fill", 20, "battery-level-20-symbolic"},
    {"bolt.badge.checkmark.fill", 80, "battery-level-80-symbolic"},
    {"bolt.badge.checkmark.fill", 100, "battery-level-90-symbolic"},
    {"unheard.of", 50, ""},
};

TEST(ThemeIconName, SaysWhatTheSymbolSaysAndTheLevelWhereItSaysNothingOfIt) {
    for (const auto& icon : themeIcons) {
        EXPECT_EQ(themeIconName(icon.symbol, icon.level), icon.name) << icon.symbol << " at " << icon.level;
    }
}

TEST(ThemeIconName, IsOfAFullBatteryForTheFullOneAlone) {
    for (const auto symbol : menuBarSymbols) {
        for (std::int64_t level = 0; level <= 100; ++level) {
            const auto name = themeIconName(symbol, level);
            EXPECT_TRUE(name.ends_with("-symbolic")) << symbol;
            const bool full = name.find("full") != std::string::npos || name.find("100") != std::string::npos;
            EXPECT_EQ(full, symbol == "battery.100percent.bolt") << symbol << " at " << level;
        }
    }
}

} // namespace
} // namespace quelby::app
