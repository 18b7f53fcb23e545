#include "platform/linux/battery/natural_order.h"

#include <array>

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(NaturalOrder, IsTheOneInWhichPeopleCount) {
    constexpr std::array ordered = {"",       "ACAD",   "BAT",    "BAT0",       "BAT2",
                                    "BAT10",  "BAT10a", "BAT10b", "BAT10b0c1",  "CMB1",
                                    "CMB1 2", "CMB1 x", "bat1",   "sbs-4-000b", "sbs-12-000b"};
    for (const auto& first : ordered) {
        for (const auto& second : ordered) {
            EXPECT_EQ(comesBefore(first, second), &first < &second) << first << " and " << second;
        }
    }
}

TEST(NaturalOrder, TellsNamesOfEqualNumbersApart) {
    EXPECT_TRUE(comesBefore("BAT01", "BAT1"));
    EXPECT_FALSE(comesBefore("BAT1", "BAT01"));
    EXPECT_FALSE(comesBefore("BAT1", "BAT1"));
}

TEST(NaturalOrder, TakesNumbersOfAnyLength) {
    EXPECT_TRUE(comesBefore("BAT99999999999999999999", "BAT100000000000000000000"));
    EXPECT_TRUE(comesBefore("BAT0", "BAT000000000000000000001"));
}

} // namespace
} // namespace quelby
