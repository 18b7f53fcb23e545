#include "app/linux/tray/repeated_press.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

using namespace std::chrono_literals;

constexpr auto doublePress = 400ms;
constexpr RepeatedPress::Time firstPress{1h};

TEST(RepeatedPress, IsOneWithinTheTimeOfADoublePress) {
    RepeatedPress press;
    EXPECT_FALSE(press.isOne(firstPress, doublePress));
    EXPECT_TRUE(press.isOne(firstPress, doublePress));
    EXPECT_TRUE(press.isOne(firstPress + 399ms, doublePress)); // the third of a double press
    EXPECT_FALSE(press.isOne(firstPress + 400ms, doublePress));
    EXPECT_TRUE(press.isOne(firstPress + 799ms, doublePress));
    EXPECT_FALSE(press.isOne(firstPress + 800ms, doublePress));
}

TEST(RepeatedPress, IsNoneWhereTheDesktopHasNoDoublePresses) {
    RepeatedPress press;
    EXPECT_FALSE(press.isOne(firstPress, 0ms));
    EXPECT_FALSE(press.isOne(firstPress, 0ms));
}

} // namespace
} // namespace quelby::app
