#include "ui/presentation/elements/elements.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

constexpr auto infinity = std::numeric_limits<double>::infinity();
constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Bar, ShowsThePartOfTheWhole) {
    EXPECT_EQ(bar(0, 40, ColorName::red), (Bar{0.0, ColorName::red}));
    EXPECT_EQ(bar(10, 40, ColorName::red), (Bar{0.25, ColorName::red}));
    EXPECT_EQ(bar(40, 40, Color(ColorName::blue, 0.5)), (Bar{1.0, Color(ColorName::blue, 0.5)}));
}

TEST(Bar, NeitherOverflowsNorFallsBelowEmpty) {
    for (const double part : {40.1, 60.0, 1e300, infinity}) {
        EXPECT_EQ(bar(part, 40, ColorName::red).fraction, 1.0) << part;
    }
    for (const double part : {-0.1, -1e300, -infinity, notANumber}) {
        EXPECT_EQ(bar(part, 40, ColorName::red).fraction, 0.0) << part;
    }
    EXPECT_FALSE(std::signbit(bar(-0.0, 40, ColorName::red).fraction)); // which would read as -0%
}

TEST(Bar, IsReadAsAPercentage) {
    EXPECT_EQ(percentText({0.0, ColorName::red}), "0%");
    EXPECT_EQ(percentText({0.124, ColorName::red}), "12%");
    EXPECT_EQ(percentText({1.0, ColorName::red}), "100%");
}

TEST(Text, IsNamedAfterItsColour) {
    EXPECT_EQ(primary("Battery"), (Text{"Battery", Color(ColorName::primary, 1)}));
    EXPECT_EQ(secondary("clock"), (Text{"clock", Color(ColorName::secondary, 1)}));
}

// Whoever draws them redraws what differs, so no part of them may be left out.
TEST(Elements, DifferInEachOfTheirParts) {
    EXPECT_NE(primary("a"), primary("b"));
    EXPECT_NE(primary("a"), secondary("a"));
    EXPECT_NE(Color(ColorName::green), Color(ColorName::green, 0.7));
    EXPECT_NE((Symbol{"clock", ColorName::blue}), (Symbol{"trash", ColorName::blue}));
    EXPECT_NE((Symbol{"clock", ColorName::blue}), (Symbol{"clock", ColorName::green}));
    EXPECT_NE((Label{{"clock", ColorName::blue}, primary("a")}),
              (Label{{"clock", ColorName::blue}, primary("b")}));
    EXPECT_NE((Bar{0.5, ColorName::red}), (Bar{0.6, ColorName::red}));
    EXPECT_NE((Bar{0.5, ColorName::red}), (Bar{0.5, ColorName::blue}));
    EXPECT_NE((Option{primary("a"), primary("b"), false}), (Option{primary("a"), primary("b"), true}));
    EXPECT_NE((Choice{"1h", false}), (Choice{"1h", true}));
}

} // namespace
} // namespace quelby
