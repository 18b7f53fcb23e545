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
        QObject::connect(&gliding, &GlidingText::textChanged,
                         [this] { shown.push_back(gliding.text().toStdString()); });
    }

    // As an animation does it.
    void glide() {
        for (const double progress : {0.0, 0.5, 1.0}) {
            gliding.setProgress(progress);
        }
    }

    GlidingText gliding;
    std::vector<std::string> shown;
};

TEST_F(GlidingTextItem, ShowsItsFirstTextAtOnce) {
    gliding.setTarget("10W");
    glide();
    EXPECT_THAT(shown, ElementsAre("10W"));
}

TEST_F(GlidingTextItem, GlidesFromWhatIsShownAndEndsExactlyAtItsTarget) {
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    glide();
    EXPECT_THAT(shown, ElementsAre("10W", "16W", "20W"));
    gliding.setTarget("36W");
    gliding.setProgress(0.25);
    EXPECT_EQ(gliding.text(), "34W");
    gliding.setTarget("0W"); // on its way
    EXPECT_EQ(gliding.text(), "14W");
    gliding.setProgress(1);
    EXPECT_EQ(gliding.text(), "0W");
}

TEST_F(GlidingTextItem, IsDrawnInFewStepsEachSmallerThanTheOneBefore) {
    gliding.setTarget("0");
    gliding.setTarget("1000");
    for (int time = 0; time <= 100; ++time) {
        gliding.setProgress(time / 100.0);
    }
    EXPECT_THAT(shown, ElementsAre("0", "578", "875", "984", "1000"));
}

TEST_F(GlidingTextItem, DepartsOnlyWhereItsFirstStepIsNotItsLast) {
    int departures = 0;
    QObject::connect(&gliding, &GlidingText::departed, [&] { ++departures; });
    gliding.setTarget("10W");
    gliding.setTarget("11W");
    gliding.setTarget("full");
    EXPECT_EQ(departures, 0);
    EXPECT_THAT(shown, ElementsAre("10W", "11W", "full"));
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    EXPECT_EQ(departures, 1);
}

TEST_F(GlidingTextItem, KeepsToItsTargetWhileTheGlideBeforeItGoesOn) {
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    gliding.setProgress(0.25);
    gliding.setTarget("full");
    gliding.setProgress(0.5);
    EXPECT_THAT(shown, ElementsAre("10W", "16W", "19W", "full"));
}

TEST_F(GlidingTextItem, ShowsItsTargetAtOnceWhereItIsNotAnimated) {
    gliding.setTarget("10W");
    gliding.setTarget("20W");
    gliding.setAnimated(false);
    gliding.setTarget("30W"); // on its way
    EXPECT_THAT(shown, ElementsAre("10W", "16W", "30W"));
}

TEST_F(GlidingTextItem, TellsNothingWhenNothingChanges) {
    gliding.setTarget("10W");
    shown.clear();
    int targets = 0;
    QObject::connect(&gliding, &GlidingText::targetChanged, [&] { ++targets; });
    gliding.setTarget("10W");
    glide();
    EXPECT_THAT(shown, IsEmpty());
    EXPECT_EQ(targets, 0);
}

} // namespace
} // namespace quelby
