#include "ui/presentation/text/text_between.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(GlidingText, IsAsFarBetweenTheTwoAsItHasCome) {
    EXPECT_EQ(textBetween("12.0", "14.0", 0), "12.0");
    EXPECT_EQ(textBetween("12.0", "14.0", 0.5), "13.0");
    EXPECT_EQ(textBetween("12.0", "14.0", 1), "14.0");
    EXPECT_EQ(textBetween("80%", "60%", 0.25), "75%");
    EXPECT_EQ(textBetween("-15W", "-5W", 0.1), "-14W");
}

TEST(GlidingText, HasTheDecimalsOfWhereItGoes) {
    EXPECT_EQ(textBetween("9.5", "10", 0.5), "10");
    EXPECT_EQ(textBetween("9", "10.25", 0.2), "9.25");
}

TEST(GlidingText, EndsExactlyWithTheText) {
    EXPECT_EQ(textBetween("1.0", "0012.50", 1), "0012.50");
    EXPECT_EQ(textBetween("1.0", "2.0", 7), "2.0");
    EXPECT_EQ(textBetween("1.0", "2.0", -1), "1.0");
}

TEST(GlidingText, DoesNotGlideBetweenDifferentThings) {
    EXPECT_EQ(textBetween("12%", "14W", 0.5), "14W");
    EXPECT_EQ(textBetween("-12", "14", 0.5), "14");
    EXPECT_EQ(textBetween("", "14", 0.5), "14");
    EXPECT_EQ(textBetween("12", "inf", 0.5), "inf");
    EXPECT_EQ(textBetween("1 of 2", "2 of 3", 0.5), "2 of 3");
    EXPECT_EQ(textBetween("1.2.3", "1.2.4", 0.5), "1.2.4");
}

} // namespace
} // namespace quelby
