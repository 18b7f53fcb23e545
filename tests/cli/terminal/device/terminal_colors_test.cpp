#include "cli/terminal/device/terminal_colors.h"

#include <gtest/gtest.h>

namespace quelby::cli {
namespace {

TEST(ColorDepth, IsWhatTheTerminalSaysOfItself) {
    EXPECT_EQ(colorDepth("xterm", "", ""), ColorDepth::sixteen);
    EXPECT_EQ(colorDepth("linux", "", ""), ColorDepth::sixteen);
    EXPECT_EQ(colorDepth("xterm-256color", "", ""), ColorDepth::twoHundredFiftySix);
    EXPECT_EQ(colorDepth("xterm-256color", "truecolor", ""), ColorDepth::full);
    EXPECT_EQ(colorDepth("xterm", "24bit", ""), ColorDepth::full);
    EXPECT_EQ(colorDepth("xterm-direct", "", ""), ColorDepth::full);
    EXPECT_EQ(colorDepth("xterm", "yes", ""), ColorDepth::sixteen);
}

TEST(ColorDepth, IsNoneForWhoWantsNoneAndForWhoCannot) {
    EXPECT_EQ(colorDepth("xterm-256color", "truecolor", "1"), ColorDepth::none);
    EXPECT_EQ(colorDepth("dumb", "truecolor", ""), ColorDepth::none);
    EXPECT_EQ(colorDepth("", "truecolor", ""), ColorDepth::none);
}

TEST(TerminalColors, DependOnHowManyThereAre) {
    const Line line{{"hot", {.color = ColorName::red, .bold = true}}};
    EXPECT_EQ(withSequences(line, ColorDepth::none), "hot");
    EXPECT_EQ(withSequences(line, ColorDepth::sixteen), "\x1b[1;31mhot\x1b[0m");
    EXPECT_EQ(withSequences(line, ColorDepth::twoHundredFiftySix), "\x1b[1;38;5;167mhot\x1b[0m");
    EXPECT_EQ(withSequences(line, ColorDepth::full), "\x1b[1;38;2;226;72;61mhot\x1b[0m");
}

TEST(TerminalColors, LeaveTheTerminalsOwnInkAlone) {
    for (const auto depth : {ColorDepth::sixteen, ColorDepth::twoHundredFiftySix, ColorDepth::full}) {
        EXPECT_EQ(withSequences({{"plain", {.color = ColorName::primary}}}, depth), "plain");
        EXPECT_EQ(withSequences({{"bold", {.bold = true}}}, depth), "\x1b[1mbold\x1b[0m");
        EXPECT_EQ(withSequences({{"", {.color = ColorName::red}}}, depth), "");
    }
}

TEST(TerminalColors, OfEveryNameDiffer) {
    for (const auto depth : {ColorDepth::twoHundredFiftySix, ColorDepth::full}) {
        std::set<std::string> sequences;
        for (const auto name : {ColorName::secondary, ColorName::green, ColorName::yellow, ColorName::orange,
                                ColorName::red, ColorName::blue, ColorName::purple, ColorName::cyan}) {
            sequences.insert(withSequences({{"x", {.color = name}}}, depth));
        }
        EXPECT_EQ(sequences.size(), 8U);
    }
}

TEST(TerminalColors, RunAlongTheGradient) {
    const auto at = [](double position) {
        return withSequences({{"x", {.gradient = position}}}, ColorDepth::full);
    };
    const auto of = [](ColorName name) { return withSequences({{"x", {.color = name}}}, ColorDepth::full); };
    EXPECT_EQ(at(0), of(ColorName::green));
    EXPECT_EQ(at(1.0 / 3), of(ColorName::yellow));
    EXPECT_EQ(at(1), of(ColorName::red));
    EXPECT_EQ(at(7), of(ColorName::red));
    EXPECT_EQ(at(0.5), "\x1b[38;2;217;132;17mx\x1b[0m"); // halfway from yellow to orange
}

TEST(TerminalColors, AreWrittenOnceForNeighboursOfOneStyle) {
    const Style red{.color = ColorName::red};
    EXPECT_EQ(withSequences({{"a", red}, {"b", red}, {"c", {}}}, ColorDepth::sixteen), "\x1b[31mab\x1b[0mc");
}

} // namespace
} // namespace quelby::cli
