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
        QObject::connect(&gliding, &GlidingNumber::valueChanged,
                         [this] { shown.push_back(gliding.value()); });
    }

    GlidingNumber gliding;
    std::vector<double> shown;
};

TEST_F(GlidingNumberItem, ShowsItsFirstValueAtOnce) {
    gliding.setTarget(0.72);
    gliding.setProgress(0);
    gliding.setProgress(0.5);
    EXPECT_THAT(shown, ElementsAre(0.72));
}

TEST_F(GlidingNumberItem, GlidesFromWhatIsShownAndEndsExactlyAtItsTarget) {
    gliding.setTarget(0.5);
    gliding.setTarget(0.1);
    for (const double progress : {0.0, 0.25, 0.49, 1.0}) {
        gliding.setProgress(progress);
    }
    ASSERT_EQ(shown.size(), 4);
    EXPECT_NEAR(shown[1], 0.26875, 1e-9);
    EXPECT_NEAR(shown[2], 0.15, 1e-9);
    EXPECT_EQ(shown[3], 0.1);
}

TEST_F(GlidingNumberItem, ShowsAtOnceWhatNobodyWouldSeeGlide) {
    int departures = 0;
    QObject::connect(&gliding, &GlidingNumber::departed, [&] { ++departures; });
    gliding.setTarget(0.5);
    gliding.setTarget(0.509);
    gliding.setProgress(0); // of a glide before
    gliding.setProgress(0.5);
    EXPECT_THAT(shown, ElementsAre(0.5, 0.509));
    EXPECT_EQ(departures, 0);
    gliding.setTarget(0.6);
    EXPECT_EQ(departures, 1);
}

TEST_F(GlidingNumberItem, ShowsItsTargetAtOnceWhereItIsNotAnimated) {
    gliding.setTarget(0.5);
    gliding.setAnimated(false);
    gliding.setTarget(0.2);
    EXPECT_THAT(shown, ElementsAre(0.5, 0.2));
}

} // namespace
} // namespace quelby
