#include "ui/view/accent.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(Accent, StaysAsItIsWhereWhiteCanBeReadOnIt) {
    for (const std::uint32_t color : {0x000000U, 0x2F6FEBU, 0x9141ACU, 0x767676U}) {
        EXPECT_EQ(accentBelowWhite(color, false), color) << std::hex << color;
    }
    EXPECT_EQ(accentBelowWhite(0x595959U, true), 0x595959U);
}

TEST(Accent, IsDarkenedUntilWhiteCanBeReadOnIt) {
    EXPECT_EQ(accentBelowWhite(0xFFFFFFU, false), 0x767676U); // the lightest grey of 4.5 to 1
    EXPECT_EQ(accentBelowWhite(0xFFFFFFU, true), 0x595959U);  // and of 7 to 1
    EXPECT_EQ(accentBelowWhite(0x777777U, false), 0x767676U);
}

TEST(Accent, KeepsItsHue) {
    EXPECT_EQ(accentBelowWhite(0xFFFF00U, false) & 0xFFU, 0U);
    const auto sky = accentBelowWhite(0x3DAEE9U, false);
    EXPECT_LT(sky >> 16U, sky >> 8U & 0xFFU);
    EXPECT_LT(sky >> 8U & 0xFFU, sky & 0xFFU);
}

} // namespace
} // namespace quelby
