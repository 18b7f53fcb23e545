#include "ui/bridge/glide_clock.h"

#include <QCoreApplication>
#include <QTimerEvent>
#include <gtest/gtest.h>

namespace quelby {
namespace {

class GlideClockTest : public testing::Test {
protected:
    GlideClockTest() {
        clock.setTimed(false);
        QObject::connect(&clock, &GlideClock::beat, [this] { ++beats; });
    }

    GlideClock clock;
    int beats = 0;
};

TEST_F(GlideClockTest, StandsStillUntilItIsStarted) {
    EXPECT_FALSE(clock.isRunning());
    clock.tick();
    EXPECT_EQ(beats, 0);
}

TEST_F(GlideClockTest, BeatsForTheStepsThatFollowTheFirstAndStops) {
    clock.start();
    for (int beat = 1; beat < glideSteps; ++beat) {
        EXPECT_TRUE(clock.isRunning());
        clock.tick();
        EXPECT_EQ(beats, beat);
    }
    EXPECT_FALSE(clock.isRunning());
    clock.tick();
    EXPECT_EQ(beats, glideSteps - 1);
}

TEST_F(GlideClockTest, GoesOnForWhatSetsOutLater) {
    clock.start();
    clock.tick();
    clock.start();
    for (int beat = 1; beat < glideSteps; ++beat) {
        EXPECT_TRUE(clock.isRunning());
        clock.tick();
    }
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(beats, glideSteps);
}

TEST_F(GlideClockTest, MayBeStartedAgainByItsLastBeat) {
    clock.start();
    QObject::connect(&clock, &GlideClock::beat, [this] {
        if (beats == glideSteps - 1) {
            clock.start();
        }
    });
    for (int beat = 1; beat < glideSteps; ++beat) {
        clock.tick();
    }
    EXPECT_TRUE(clock.isRunning());
}

// Its timer's event, which a test need not wait for.
TEST(GlideClock, IsTickedByItsTimer) {
    GlideClock clock;
    int beats = 0;
    QObject::connect(&clock, &GlideClock::beat, [&] { ++beats; });
    clock.start();
    QTimerEvent event(0);
    QCoreApplication::sendEvent(&clock, &event);
    EXPECT_EQ(beats, 1);
}

} // namespace
} // namespace quelby
