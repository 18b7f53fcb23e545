#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/bridge/gliding_text.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GlidingTextItem : public testing::Test {
protected:
    GlidingTextItem() {
        clock.setTimed(false);
        gliding.setClock(&clock);
        QObject::connect(&gliding, &GlidingText::textChanged,
                         [this] { shown.push_back(gliding.text().toStdString()); });
    }

    void glide() {
        while (clock.isRunning()) {
            clock.tick();
        }
    }

    GlideClock clock;
    GlidingText gliding;
    std::vector<std::string> shown;
};

TEST_F(GlidingTextItem, ShowsItsFirstTextAtOnce) {
    gliding.setTarget("10W");
    EXPECT_FALSE(clock.isRunning());
    EXPECT_THAT(shown, ElementsAre("10W"));
}

TEST_F(GlidingTextItem, GlidesFromWhatIsShownAndEndsExactlyAtItsTarget) {
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    glide();
    EXPECT_THAT(shown, ElementsAre("10W", "16W", "19W", "20W"));
    gliding.setTarget("38W");
    clock.tick();
    EXPECT_EQ(gliding.text(), "36W");
    gliding.setTarget("0W"); // on its way
    EXPECT_EQ(gliding.text(), "16W");
    glide();
    EXPECT_EQ(gliding.text(), "0W");
}

TEST_F(GlidingTextItem, IsDrawnInFewStepsEachSmallerThanTheOneBefore) {
    gliding.setTarget("0");
    gliding.setTarget("900");
    glide();
    EXPECT_THAT(shown, ElementsAre("0", "500", "800", "900"));
}

TEST_F(GlidingTextItem, DepartsOnlyWhereItsFirstStepIsNotItsLast) {
    gliding.setTarget("10W");
    gliding.setTarget("11W");
    gliding.setTarget("full");
    EXPECT_FALSE(clock.isRunning());
    EXPECT_THAT(shown, ElementsAre("10W", "11W", "full"));
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    EXPECT_TRUE(clock.isRunning());
}

TEST_F(GlidingTextItem, KeepsToItsTargetWhileTheGlideBeforeItGoesOn) {
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    clock.tick();
    gliding.setTarget("full");
    clock.tick();
    EXPECT_THAT(shown, ElementsAre("10W", "16W", "19W", "full"));
}

TEST_F(GlidingTextItem, ShowsItsTargetAtOnceWhereItHasNoClock) {
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    gliding.setClock(nullptr); // on its way
    gliding.setTarget("30W");
    EXPECT_THAT(shown, ElementsAre("10W", "16W", "20W", "30W"));
}

TEST_F(GlidingTextItem, TellsNothingWhenNothingChanges) {
    gliding.setTarget("10W");
    shown.clear();
    int targets = 0;
    QObject::connect(&gliding, &GlidingText::targetChanged, [&] { ++targets; });
    gliding.setTarget("10W");
    clock.start();
    glide();
    EXPECT_THAT(shown, IsEmpty());
    EXPECT_EQ(targets, 0);
}

} // namespace
} // namespace quelby
