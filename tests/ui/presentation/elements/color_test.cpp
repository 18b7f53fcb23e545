#include "ui/presentation/elements/color.h"

#include <limits>

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

TEST(ColorNames, AreTheWordsOfTheirColours) {
    const std::string_view words[] = {"primary", "secondary", "green", "yellow", "orange", "red",
                                      "blue",    "purple",    "cyan",  "accent", "white"};
    ASSERT_EQ(allColorNames.size(), std::size(words));
    for (std::size_t index = 0; index < allColorNames.size(); ++index) {
        EXPECT_EQ(text(allColorNames[index]), words[index]);
    }
}

TEST(Color, IsOpaqueUnlessToldOtherwise) {
    EXPECT_EQ(Color(ColorName::green).opacity, 1.0);
    EXPECT_EQ(Color(ColorName::green, 0.7).opacity, 0.7);
    EXPECT_EQ(Color(), Color(ColorName::primary, 1));
}

TEST(PowerColor, GoesToTheNextBandOnEachBoundary) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, ColorName> expected[] = {
        {-infinity, ColorName::green}, {-1, ColorName::green},      {0, ColorName::green},
        {9.999, ColorName::green},     {10.0, ColorName::yellow},   {19.999, ColorName::yellow},
        {20.0, ColorName::orange},     {29.999, ColorName::orange}, {30.0, ColorName::red},
        {100, ColorName::red},         {infinity, ColorName::red}};
    for (const auto& [watts, color] : expected) {
        EXPECT_EQ(Color::power(watts), Color(color)) << watts;
    }
}

TEST(PowerColor, OfWhatIsNoNumberIsRed) {
    EXPECT_EQ(Color::power(std::numeric_limits<double>::quiet_NaN()), Color(ColorName::red));
}

TEST(BatteryColor, GoesToTheNextBandOnEachBoundary) {
    const std::pair<std::int64_t, ColorName> expected[] = {
        {100, ColorName::green}, {61, ColorName::green},  {60, ColorName::yellow},
        {41, ColorName::yellow}, {40, ColorName::orange}, {21, ColorName::orange},
        {20, ColorName::red},    {0, ColorName::red},     {-1, ColorName::red}};
    for (const auto& [percent, color] : expected) {
        EXPECT_EQ(Color::battery(percent), Color(color)) << percent;
    }
}

TEST(EfficiencyColor, GoesToTheNextBandOnEachBoundary) {
    const std::pair<std::int64_t, ColorName> expected[] = {
        {100, ColorName::green}, {86, ColorName::green},  {85, ColorName::cyan},   {71, ColorName::cyan},
        {70, ColorName::yellow}, {51, ColorName::yellow}, {50, ColorName::orange}, {31, ColorName::orange},
        {30, ColorName::red},    {0, ColorName::red}};
    for (const auto& [score, color] : expected) {
        EXPECT_EQ(Color::efficiency(score), Color(color)) << score;
    }
}

} // namespace
} // namespace quelby
