#include "ui/presentation/elements/filled_width.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(FilledWidth, IsOfWholePixels) {
    EXPECT_EQ(filledWidth(0, 200, 1), 0);
    EXPECT_EQ(filledWidth(0.25, 200, 1), 50);
    EXPECT_EQ(filledWidth(1, 200, 1), 200);
    EXPECT_EQ(filledWidth(0.2524, 200, 1), 50);
    EXPECT_EQ(filledWidth(0.2525, 200, 1), 51);
    EXPECT_EQ(filledWidth(0.2475, 200, 1), 50);
    EXPECT_EQ(filledWidth(0.2474, 200, 1), 49);
}

TEST(FilledWidth, IsTheFinerTheMorePixelsThereAre) {
    EXPECT_EQ(filledWidth(0.2525, 200, 2), 50.5);
    EXPECT_EQ(filledWidth(0.5, 101, 2), 50.5);
    EXPECT_NEAR(filledWidth(0.25, 199, 1.5), 50, 1e-9);
}

} // namespace
} // namespace quelby
