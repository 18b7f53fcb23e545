#include "app/macos/window_fade.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace quelby::app {
namespace {

class WindowFadeTest : public testing::Test {
protected:
    static void turnUntil(const std::function<bool()>& holds) {
        while (!holds()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    QWindow window;
    int goings = 0;
    WindowFade fade{window, [this] { ++goings; }};
};

TEST_F(WindowFadeTest, BeginsClearAndBecomesVisible) {
    EXPECT_FALSE(fade.isIn());
    fade.in(true);
    EXPECT_TRUE(fade.isIn());
    EXPECT_TRUE(window.isVisible());
    EXPECT_LT(window.opacity(), 1);
    turnUntil([this] { return window.opacity() == 1; });
    EXPECT_EQ(goings, 0);
}

TEST_F(WindowFadeTest, IsGoneForThePersonAtOnceAndForTheSystemWhenItIsClear) {
    fade.in(false);
    fade.out(true);
    EXPECT_FALSE(fade.isIn());
    EXPECT_TRUE(window.isVisible());
    turnUntil([this] { return goings > 0; });
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.opacity(), 0);
    EXPECT_EQ(goings, 1);
}

TEST_F(WindowFadeTest, DoesNotMoveWhereNothingIsTo) {
    fade.in(false);
    EXPECT_EQ(window.opacity(), 1);
    EXPECT_TRUE(window.isVisible());
    fade.out(false);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(goings, 1);
}

TEST_F(WindowFadeTest, TurnsBackWhenItIsWantedAgainOnItsWay) {
    fade.in(false);
    fade.out(true);
    fade.in(true);
    EXPECT_TRUE(fade.isIn());
    turnUntil([this] { return window.opacity() == 1; });
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(goings, 0);
}

TEST_F(WindowFadeTest, GoesOnlyOnce) {
    fade.out(false);
    EXPECT_EQ(goings, 0);
    fade.in(false);
    fade.out(false);
    fade.out(false);
    EXPECT_EQ(goings, 1);
}

} // namespace
} // namespace quelby::app
