#include "cli/terminal/layout/display_width.h"

#include <gtest/gtest.h>

namespace quelby::cli {
namespace {

TEST(DisplayWidth, CountsColumnsAndNotBytes) {
    EXPECT_EQ(displayWidth(""), 0);
    EXPECT_EQ(displayWidth("plain"), 5);
    EXPECT_EQ(displayWidth("Größe °C"), 8);
    EXPECT_EQ(displayWidth("█▏…"), 3);
    EXPECT_EQ(displayWidth("電池"), 4);
    EXPECT_EQ(displayWidth("🔋"), 2);
    EXPECT_EQ(displayWidth("e\u0301"), 1);
    EXPECT_EQ(displayWidth("\xFF\xFE"), 2);
}

TEST(Fitted, FillsWithBlanks) {
    EXPECT_EQ(fitted("ab", 4), "ab  ");
    EXPECT_EQ(fitted("電", 3), "電 ");
    EXPECT_EQ(fitted("", 0), "");
}

TEST(Fitted, CutsAtTheEnd) {
    EXPECT_EQ(fitted("abcdef", 4), "abc…");
    EXPECT_EQ(fitted("abcd", 4), "abcd");
    EXPECT_EQ(fitted("電池電池", 4), "電… "); // half a character is no character
    EXPECT_EQ(fitted("e\u0301e\u0301e\u0301", 2), "e\u0301…");
    EXPECT_EQ(fitted("abc", 1), "…");
    EXPECT_EQ(fitted("abc", 0), "");
    EXPECT_EQ(fitted("abc", -5), "");
}

} // namespace
} // namespace quelby::cli
