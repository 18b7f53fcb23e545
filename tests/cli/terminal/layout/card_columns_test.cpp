#include "cli/terminal/layout/card_columns.h"

#include <gmock/gmock.h>

#include "cli/terminal/device/terminal_colors.h"

namespace quelby::cli {
namespace {

using testing::ElementsAre;

std::vector<std::string> plain(const Block& block) {
    std::vector<std::string> lines;
    for (const auto& line : block) {
        lines.push_back(withSequences(line, ColorDepth::none));
    }
    return lines;
}

Block card(const char* text, std::size_t rows) {
    return Block(rows, Line{{text, {}}});
}

TEST(CardColumns, AreOneTwoOrThree) {
    EXPECT_EQ(cardColumns(60).count, 1);
    EXPECT_EQ(cardColumns(92).count, 1);
    EXPECT_EQ(cardColumns(93).count, 2);
    EXPECT_EQ(cardColumns(139).count, 2);
    EXPECT_EQ(cardColumns(140).count, 3);
    EXPECT_EQ(cardColumns(1000).count, 3);
    EXPECT_EQ(cardColumns(1).count, 1);
}

TEST(CardColumns, TakeTheTerminalsWidthWithinReason) {
    for (int width = 1; width < 400; ++width) {
        const auto columns = cardColumns(width);
        EXPECT_LE(columns.width, 72);
        EXPECT_GE(columns.margin, 0);
        EXPECT_LE(columns.margin + columns.count * (columns.width + 1) - 1, width);
    }
    EXPECT_EQ(cardColumns(60).width, 60);
    EXPECT_EQ(cardColumns(200).width, 66);
}

TEST(CardColumns, PutEachCardBelowTheShortestColumn) {
    const std::vector<Block> cards{card("a", 3), card("b", 1), card("c", 1), card("d", 2)};
    EXPECT_THAT(plain(inColumns(cards, {.count = 2, .width = 2})),
                ElementsAre("a  b ", "a  c ", "a  d ", "   d "));
    EXPECT_THAT(plain(inColumns(cards, {.count = 1, .width = 1, .margin = 2})),
                ElementsAre("  a", "  a", "  a", "  b", "  c", "  d", "  d"));
}

} // namespace
} // namespace quelby::cli
