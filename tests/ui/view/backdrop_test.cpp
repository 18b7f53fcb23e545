// The dashboard on what shines through from behind.
#include <gtest/gtest.h>

#include "ui/support/shown_view.h"

namespace quelby {
namespace {

class BackdropTest : public testing::Test {
protected:
    // What is seen between the edge and the cards, where red is behind.
    [[nodiscard]] QColor seen(Backdrop backdrop) {
        ShownView view(dashboard, {.animated = false, .backdrop = backdrop});
        return seenIn(view);
    }

    [[nodiscard]] static QColor seenIn(ShownView& view) {
        view.window().setColor(Qt::red);
        view.settle();
        return view.picture().pixelColor(2, 2);
    }

    const QColor own{"#e9e9ee"};

    MadeUpDashboard dashboard;
};

TEST_F(BackdropTest, IsCoveredWhereItIsAnything) {
    EXPECT_EQ(seen(Backdrop::none), own);
}

TEST_F(BackdropTest, ShinesThroughALittleWhereItIsBlurred) {
    const auto color = seen(Backdrop::blurred);
    EXPECT_LT(color.blue(), own.blue());
    EXPECT_GT(color.blue(), own.blue() / 2);
}

TEST_F(BackdropTest, IsAllThatIsSeenWhereTheSystemMakesIt) {
    EXPECT_EQ(seen(Backdrop::material), QColor(Qt::red));
}

TEST_F(BackdropTest, IsFollowedWhenItChanges) {
    ShownView view(dashboard, {.animated = false, .backdrop = Backdrop::material});
    view.view().setAppearance({.animated = false});
    EXPECT_EQ(seenIn(view), own);
}

} // namespace
} // namespace quelby
