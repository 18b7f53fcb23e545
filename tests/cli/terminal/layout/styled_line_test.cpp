#include "cli/terminal/layout/styled_line.h"

#include <gmock/gmock.h>

#include "cli/terminal/device/terminal_colors.h"

namespace quelby::cli {
namespace {

using testing::ElementsAre;

std::string plain(const Line& line) {
    return withSequences(line, ColorDepth::none);
}

const Line greeting{{"Guten ", {}}, {"Tag", {.bold = true}}};

TEST(StyledLine, FillsExactlyTheColumnsThatThereAre) {
    EXPECT_EQ(plain(fitted(greeting, 12)), "Guten Tag   ");
    EXPECT_EQ(plain(fitted(greeting, 9)), "Guten Tag");
    EXPECT_EQ(plain(fitted(greeting, 8)), "Guten T…");
    EXPECT_EQ(plain(fitted(greeting, 0)), "");
    EXPECT_EQ(plain(fitted(greeting, -3)), "");
}

TEST(StyledLine, CountsWideCharactersAsTwoColumns) {
    EXPECT_EQ(displayWidth(Line{{"編集", {}}, {"x", {}}}), 5);
    EXPECT_EQ(plain(fitted({{"編集者", {}}}, 4)), "編… ");
}

TEST(StyledLine, SpreadsTwoEndsOrKeepsTheLeftOne) {
    EXPECT_EQ(plain(spread({{"left", {}}}, {{"right", {}}}, 12)), "left   right");
    EXPECT_EQ(plain(spread({{"left", {}}}, {{"right", {}}}, 10)), "left right");
    EXPECT_EQ(plain(spread({{"left", {}}}, {{"right", {}}}, 9)), "left     ");
    EXPECT_EQ(plain(spread({}, {{"right", {}}}, 7)), "  right");
}

TEST(StyledLine, LosesOnlyTheBlanksAtItsEnd) {
    EXPECT_EQ(plain(withoutEnd({{" a ", {}}, {"  ", {}}, {"", {}}})), " a");
    EXPECT_TRUE(withoutEnd({{"  ", {}}}).empty());
}

TEST(StyledLine, HoldsNothingThatATerminalWouldObey) {
    EXPECT_EQ(span(primary("a\x1b[2Jb\n")).text, "a?[2Jb?");
    EXPECT_EQ(bold(primary("\x07")).text, "?");
}

TEST(Sentences, BreakAtBlanks) {
    EXPECT_THAT(wrapped("one two three", 7), ElementsAre("one two", "three"));
    EXPECT_THAT(wrapped("one two three", 13), ElementsAre("one two three"));
    EXPECT_THAT(wrapped("one two three", 12), ElementsAre("one two", "three"));
    EXPECT_THAT(wrapped("extraordinary", 5), ElementsAre("extraordinary"));
    EXPECT_THAT(wrapped("", 5), ElementsAre(""));
}

} // namespace
} // namespace quelby::cli
