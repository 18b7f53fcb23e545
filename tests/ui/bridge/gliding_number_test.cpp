#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/bridge/gliding_number.h"

namespace quelby {
namespace {

using testing::ElementsAre;

class GlidingNumberItem : public testing::Test {
protected:
    GlidingNumberItem() {
        clock.setTimed(false);
        gliding.setClock(&clock);
        QObject::connect(&gliding, &GlidingNumber::valueChanged,
                         [this] { shown.push_back(gliding.value()); });
    }

    GlideClock clock;
    GlidingNumber gliding;
    std::vector<double> shown;
};

TEST_F(GlidingNumberItem, ShowsItsFirstValueAtOnce) {
    gliding.setTarget(0.72);
    EXPECT_FALSE(clock.isRunning());
    EXPECT_THAT(shown, ElementsAre(0.72));
}

TEST_F(GlidingNumberItem, GlidesFromWhatIsShownAndEndsExactlyAtItsTarget) {
    gliding.setTarget(0.5);
    gliding.setTarget(0.1);
    while (clock.isRunning()) {
        clock.tick();
    }
    ASSERT_EQ(shown.size(), 4);
    EXPECT_NEAR(shown[1], 0.5 - 0.4 * glided(1), 1e-9);
    EXPECT_NEAR(shown[2], 0.5 - 0.4 * glided(2), 1e-9);
    EXPECT_EQ(shown[3], 0.1);
}

TEST_F(GlidingNumberItem, ShowsAtOnceWhatNobodyWouldSeeGlide) {
    gliding.setTarget(0.5);
    gliding.setTarget(0.509);
    EXPECT_FALSE(clock.isRunning());
    EXPECT_THAT(shown, ElementsAre(0.5, 0.509));
    gliding.setTarget(0.6);
    EXPECT_TRUE(clock.isRunning());
}

TEST_F(GlidingNumberItem, KeepsToItsTargetWhileTheClockBeatsForOthers) {
    gliding.setTarget(0.5);
    gliding.setTarget(0.1);
    gliding.setTarget(gliding.value() + 0.001);
    const auto number = shown.size();
    clock.tick();
    clock.tick();
    EXPECT_EQ(shown.size(), number);
}

TEST_F(GlidingNumberItem, ShowsItsTargetAtOnceWhereItHasNoClock) {
    gliding.setTarget(0.5);
    gliding.setTarget(0.1);
    gliding.setClock(nullptr); // on its way
    EXPECT_EQ(gliding.value(), 0.1);
    gliding.setTarget(0.7);
    EXPECT_EQ(gliding.value(), 0.7);
    clock.tick();
    EXPECT_EQ(gliding.value(), 0.7);
}

TEST_F(GlidingNumberItem, OutlivesItsClock) {
    {
        GlideClock other;
        gliding.setClock(&other);
        gliding.setTarget(0.5);
    }
    gliding.setTarget(0.2);
    EXPECT_EQ(gliding.value(), 0.2);
}

} // namespace
} // namespace quelby
