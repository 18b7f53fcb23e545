#include "cli/terminal/layout/block_charts.h"

#include <gtest/gtest.h>

#include "cli/terminal/device/terminal_colors.h"

namespace quelby::cli {
namespace {

std::string plain(const Line& line) {
    return withSequences(line, ColorDepth::none);
}

std::string plainBar(double fraction, int columns) {
    return plain(barLine({fraction, ColorName::green}, columns));
}

TEST(TerminalBar, FillsInEighthsOfACharacter) {
    EXPECT_EQ(plainBar(0, 4), "····");
    EXPECT_EQ(plainBar(1, 4), "████");
    EXPECT_EQ(plainBar(0.5, 4), "██··");
    EXPECT_EQ(plainBar(0.5, 1), "▌");
    EXPECT_EQ(plainBar(1.0 / 32, 4), "▏···");
    EXPECT_EQ(plainBar(31.0 / 32, 4), "███▉");
    EXPECT_EQ(plainBar(0.5, 0), "");
}

TEST(TerminalSlider, ShowsWhereItStands) {
    const auto slider = [](double fraction) { return plain(sliderLine(fraction, ColorName::green, 5)); };
    EXPECT_EQ(slider(0), "●────");
    EXPECT_EQ(slider(0.75), "━━━●─");
    EXPECT_EQ(slider(1), "━━━━●");
    EXPECT_EQ(slider(-2), "●────");
    EXPECT_EQ(slider(9), "━━━━●");
}

std::vector<std::string> plainCurve(const std::vector<double>& values, int columns, int rows) {
    std::vector<std::string> lines;
    for (const auto& line : curve(values, columns, rows)) {
        lines.push_back(plain(line));
    }
    return lines;
}

TEST(TerminalCurve, RunsFromTheSmallestToTheLargestValue) {
    EXPECT_EQ(plainCurve({10, 20}, 2, 2), (std::vector<std::string>{" █", "▁█"}));
    EXPECT_EQ(plainCurve({10, 15, 20}, 3, 1), (std::vector<std::string>{"▁▅█"}));
}

TEST(TerminalCurve, OfEqualValuesLiesAtTheBottom) {
    EXPECT_EQ(plainCurve({7, 7, 7}, 3, 2), (std::vector<std::string>{"   ", "▁▁▁"}));
}

TEST(TerminalCurve, GivesAValueAsManyColumnsAsThereAre) {
    EXPECT_EQ(plainCurve({10, 20}, 5, 1), (std::vector<std::string>{"▁▁▁██"}));
}

TEST(TerminalCurve, ShowsTheMeanOfWhatFallsIntoAColumn) {
    EXPECT_EQ(plainCurve({0, 20, 20, 20, 0, 0}, 3, 1), (std::vector<std::string>{"▅█▁"}));
}

TEST(TerminalCurve, OfNothingIsBlank) {
    EXPECT_EQ(plainCurve({}, 3, 2), (std::vector<std::string>{"", ""}));
}

} // namespace
} // namespace quelby::cli
