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

constexpr StatusInk inLight{lightInk, std::nullopt};
constexpr StatusInk inDark{darkInk, std::nullopt};

// Of the ink itself, and not of an edge: in small pictures hardly a stroke fills a pixel.
auto isInk(const StatusInk& ink) {
    return [ink](const QColor& color) {
        return color.alpha() > 170 && std::abs(color.lightness() - QColor(ink.ink).lightness()) < 60;
    };
}

bool isOpaque(const QColor& color) {
    return color.alpha() == 255;
}

bool isSeen(const QColor& color) {
    return color.alpha() != 0;
}

MATCHER_P(IsDrawnIn, ink, "") {
    return countPixels(arg, isInk(ink)) > 5;
}

TEST(StatusIcon, IsASquareOfTheSideThatIsAskedFor) {
    for (const int side : {16, 22, 44}) {
        EXPECT_EQ(symbolIcon("bolt.fill", inLight, side).size(), QSize(side, side));
        EXPECT_EQ(compactIcon("bolt.fill", "12W", inLight, side).size(), QSize(side, side));
    }
}

TEST(StatusIcon, IsDrawnInItsInkForEverySymbol) {
    for (const auto& ink : {inLight, inDark, platedInk}) {
        for (const auto symbol : menuBarSymbols) {
            EXPECT_THAT(symbolIcon(symbol, ink, 22), IsDrawnIn(ink)) << symbol;
            EXPECT_THAT(compactIcon(symbol, "-12W", ink, 22), IsDrawnIn(ink)) << symbol;
            EXPECT_THAT(wideIcon(symbol, "-12W", ink, 22), IsDrawnIn(ink)) << symbol;
        }
    }
}

TEST(StatusIcon, HasNothingButInkWithoutAPlate) {
    for (const auto& ink : {inLight, inDark}) {
        const auto otherwise = [&](const QColor& color) {
            return color.alpha() > 250 && std::abs(color.lightness() - QColor(ink.ink).lightness()) > 3;
        };
        EXPECT_EQ(countPixels(compactIcon("bolt.fill", "-12W", ink, 44), otherwise), 0);
    }
}

TEST(StatusIcon, FillsItsPlateUpToTheRoundedCorners) {
    for (const auto& icon :
         {symbolIcon("bolt.fill", platedInk, 22), compactIcon("bolt.fill", "35W", platedInk, 22),
          wideIcon("bolt.fill", "35W", platedInk, 22)}) {
        EXPECT_GT(countPixels(icon, isOpaque), icon.width() * icon.height() * 9 / 10);
        EXPECT_EQ(icon.pixelColor(icon.width() / 2, 0).rgba(), *platedInk.plate);
        EXPECT_LT(icon.pixelColor(0, 0).alpha(), 128);
        EXPECT_LT(icon.pixelColor(icon.width() - 1, 21).alpha(), 128);
    }
}

TEST(StatusIcon, IsAnotherForEachOfTheSymbols) {
    for (const auto one : menuBarSymbols) {
        for (const auto other : menuBarSymbols) {
            EXPECT_EQ(symbolIcon(one, inLight, 44) == symbolIcon(other, inLight, 44), one == other)
                << one << ", " << other;
        }
    }
}

TEST(StatusIcon, OfASymbolThatNobodyKnowsIsEmpty) {
    EXPECT_EQ(countPixels(symbolIcon("unheard.of", inLight, 22), isSeen), 0);
    EXPECT_THAT(wideIcon("unheard.of", "12W", inLight, 22), IsDrawnIn(inLight)); // by its title
}

TEST(WideIcon, HasTheTitleBesideTheSymbol) {
    const auto icon = wideIcon("bolt.fill", "12W", inLight, 22);
    EXPECT_EQ(icon.height(), 22);
    EXPECT_GT(icon.width(), 2 * 22);
    EXPECT_EQ(icon.copy(0, 0, 22, 22), symbolIcon("bolt.fill", inLight, 22));
    EXPECT_THAT(icon.copy(24, 0, icon.width() - 24, 22), IsDrawnIn(inLight));
}

TEST(WideIcon, IsAsWideForEveryTitleOfOneLength) {
    for (const int height : {16, 22, 44}) {
        const int width = wideIcon("bolt.fill", "-88W", inLight, height).width();
        for (const auto* const title : {"-11W", "-47W", "-90W"}) {
            EXPECT_EQ(wideIcon("bolt.fill", title, inLight, height).width(), width)
                << title << ", " << height;
        }
        EXPECT_GT(wideIcon("bolt.fill", "-100W", inLight, height).width(), width);
    }
}

TEST(WideIcon, WithoutATitleIsTheSymbolAlone) {
    for (const auto& ink : {inLight, platedInk}) {
        EXPECT_EQ(wideIcon("bolt.fill", "", ink, 22), symbolIcon("bolt.fill", ink, 22));
        EXPECT_EQ(compactIcon("bolt.fill", "", ink, 22), symbolIcon("bolt.fill", ink, 22));
    }
}

constexpr std::string_view squareTitles[] = {"8W", "-12W", "-112W", "100%", "12.61V", "1520 mA", "31.4°C"};

TEST(CompactIcon, HasTheTitleInItsLowerHalf) {
    for (const int side : {16, 22, 24, 32, 44}) {
        for (const auto title : squareTitles) {
            const auto icon = compactIcon("unheard.of", title, inLight, side);
            EXPECT_THAT(icon.copy(0, side / 3, side, side), IsDrawnIn(inLight)) << title << ", " << side;
            EXPECT_EQ(countPixels(icon.copy(0, 0, side, side / 3), isSeen), 0) << title << ", " << side;
        }
    }
}

TEST(CompactIcon, CutsNothingOff) {
    for (const int side : {16, 22, 24, 32, 44}) {
        for (const auto title : squareTitles) {
            const auto icon = compactIcon("unheard.of", title, platedInk, side);
            const auto isTitle = [](const QColor& color) { return color.lightness() > 128; };
            EXPECT_EQ(countPixels(icon.copy(0, 0, 1, side), isTitle), 0) << title << ", " << side;
            EXPECT_EQ(countPixels(icon.copy(side - 1, 0, 1, side), isTitle), 0) << title << ", " << side;
            EXPECT_EQ(countPixels(icon.copy(0, side - 1, side, 1), isTitle), 0) << title << ", " << side;
        }
    }
}

TEST(CompactIcon, HasTheSymbolAboveTheTitle) {
    for (const auto symbol : menuBarSymbols) {
        const auto icon = compactIcon(symbol, "-12W", inLight, 22);
        EXPECT_GT(countPixels(icon.copy(0, 0, 22, 9), isSeen), 10) << symbol;
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
