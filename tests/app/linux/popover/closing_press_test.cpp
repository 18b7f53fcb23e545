#include "app/linux/popover/closing_press.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

using namespace std::chrono_literals;

constexpr QPoint pressPlace(640, 5);
constexpr ClosingPress::Time pressTime(1h);

class ClosingPressTest : public testing::Test {
protected:
    ClosingPressTest() { press.happened(pressPlace, pressTime); }

    ClosingPress press;
};

TEST_F(ClosingPressTest, IsThePressThatTheItemHearsOfNext) {
    EXPECT_TRUE(press.isThePressOfTheItem(pressPlace, pressTime + 20ms));
}

TEST_F(ClosingPressTest, IsTheItemsOnlyOnceHoweverQuicklyTheNextOneComes) {
    EXPECT_TRUE(press.isThePressOfTheItem(pressPlace, pressTime + 20ms));
    EXPECT_FALSE(press.isThePressOfTheItem(pressPlace, pressTime + 21ms));
    EXPECT_FALSE(press.isThePressOfTheItem(std::nullopt, pressTime + 22ms));
}

TEST_F(ClosingPressTest, IsTheItemsForHalfASecond) {
    EXPECT_TRUE(press.isThePressOfTheItem(pressPlace, pressTime + 500ms));
    press.happened(pressPlace, pressTime);
    EXPECT_FALSE(press.isThePressOfTheItem(pressPlace, pressTime + 501ms));
}

TEST_F(ClosingPressTest, IsTheItemsWhereThePointerIsStillWithin32Pixels) {
    EXPECT_TRUE(press.isThePressOfTheItem(pressPlace + QPoint(16, -16), pressTime));
    press.happened(pressPlace, pressTime);
    EXPECT_FALSE(press.isThePressOfTheItem(pressPlace + QPoint(16, 17), pressTime));
}

TEST_F(ClosingPressTest, ElsewhereIsForgottenWithThePressOfTheItemThatFollows) {
    EXPECT_FALSE(press.isThePressOfTheItem(pressPlace + QPoint(300, 0), pressTime + 20ms));
    EXPECT_FALSE(press.isThePressOfTheItem(pressPlace, pressTime + 40ms));
}

TEST_F(ClosingPressTest, IsTakenForTheItemsWhereNobodyKnowsThePointer) {
    EXPECT_TRUE(press.isThePressOfTheItem(std::nullopt, pressTime + 20ms));
    press.happened(std::nullopt, pressTime);
    EXPECT_TRUE(press.isThePressOfTheItem(pressPlace, pressTime + 20ms));
}

TEST_F(ClosingPressTest, IsTheLastOneThatHappened) {
    press.happened(pressPlace, pressTime + 10s);
    EXPECT_TRUE(press.isThePressOfTheItem(pressPlace, pressTime + 10s));
}

TEST(NoClosingPress, IsNotThePressOfTheItem) {
    EXPECT_FALSE(ClosingPress().isThePressOfTheItem(pressPlace, pressTime));
    EXPECT_FALSE(ClosingPress().isThePressOfTheItem(std::nullopt, ClosingPress::Time()));
}

} // namespace
} // namespace quelby::app
