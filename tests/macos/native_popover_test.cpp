#include "app/macos/native_popover.h"

#include <gmock/gmock.h>

#include "app/macos/macos_status_item.h"
#include "app/macos/place_on_screen.h"
#include "macos/doubles/app_kit.h"
#include "macos/doubles/frameworks.h"

namespace quelby::app {
namespace {

using fake::appKit;
using testing::ElementsAre;
using testing::IsEmpty;

class NativePopoverTest : public testing::Test {
protected:
    NativePopoverTest() {
        fake::startAnew();
        item = std::make_unique<MacosStatusItem>();
        appKit().calls.clear();
    }

    [[nodiscard]] std::unique_ptr<NativePopover> makePopover() {
        return std::make_unique<NativePopover>(
            item->button(), NativePopoverListener{.closed = [this] { ++closings; },
                                                  .appearanceChanged = [this] { ++turns; }});
    }

    std::unique_ptr<MacosStatusItem> item;
    int closings = 0;
    int turns = 0;
};

const NativePopoverListener nobody{.closed = [] {}, .appearanceChanged = [] {}};

TEST_F(NativePopoverTest, IsMadeTransientAnimatedAndOfTheDashboardsSize) {
    const auto popover = makePopover();
    EXPECT_THAT(appKit().calls,
                ElementsAre("setContentSize 400x660", "setBehavior transient", "setAnimates YES",
                            "setContentViewController with a view of 400x660"));
    EXPECT_FALSE(popover->isShown());
    EXPECT_NE(popover->hostView(), nullptr);
    EXPECT_FALSE(popover->holdsContent());
}

TEST_F(NativePopoverTest, ShowsAtTheButtonsLowerEdgeThenComesInFrontThenTakesTheKeyboard) {
    const auto popover = makePopover();
    appKit().calls.clear();
    EXPECT_TRUE(popover->show());
    EXPECT_TRUE(popover->isShown());
    EXPECT_THAT(appKit().calls, ElementsAre("showRelativeToRect 60x24 of the button at the bottom",
                                            "activate", "makeKeyWindow"));
}

TEST_F(NativePopoverTest, ClosesInTheOrdinaryWayAndSaysSo) {
    const auto popover = makePopover();
    static_cast<void>(popover->show());
    appKit().calls.clear();
    popover->close();
    EXPECT_FALSE(popover->isShown());
    EXPECT_THAT(appKit().calls, ElementsAre("performClose from the button"));
    EXPECT_EQ(closings, 1);
}

TEST_F(NativePopoverTest, SaysWhereTheSystemHasClosedIt) {
    const auto popover = makePopover();
    static_cast<void>(popover->show());
    fake::clickElsewhere();
    EXPECT_FALSE(popover->isShown());
    EXPECT_EQ(closings, 1);
    static_cast<void>(popover->show());
    EXPECT_TRUE(popover->isShown());
}

TEST_F(NativePopoverTest, HearsNothingOfAnotherPopover) {
    const auto popover = makePopover();
    NativePopover other(item->button(), nobody);
    static_cast<void>(other.show());
    fake::clickElsewhere(); // which the one made last hears
    EXPECT_FALSE(other.isShown());
    EXPECT_EQ(closings, 0);
}

TEST_F(NativePopoverTest, IsAsDarkAsTheMenuBarWhileItIsShown) {
    const auto popover = makePopover();
    EXPECT_FALSE(popover->isDark());
    appKit().menuBarIsDark = true;
    static_cast<void>(popover->show());
    EXPECT_TRUE(popover->isDark());
}

TEST_F(NativePopoverTest, NeverShowsWithoutAButton) {
    NativePopover popover(nullptr, nobody);
    appKit().calls.clear();
    EXPECT_FALSE(popover.show());
    EXPECT_FALSE(popover.isShown());
    EXPECT_THAT(appKit().calls, IsEmpty());
}

TEST_F(NativePopoverTest, TellsWhenItsBackgroundTurnsDark) {
    const auto popover = makePopover();
    static_cast<void>(popover->show());
    fake::menuBarTurns(true);
    EXPECT_EQ(turns, 1);
    EXPECT_TRUE(popover->isDark());
}

TEST_F(NativePopoverTest, AsksNothingOfAButtonThatIsInNoWindow) {
    item.reset();
    appKit().buttonsAreInWindows = false;
    item = std::make_unique<MacosStatusItem>();
    const auto popover = makePopover();
    appKit().calls.clear();
    EXPECT_FALSE(popover->show());
    EXPECT_THAT(appKit().calls, IsEmpty());
    EXPECT_EQ(placeBelow(item->button()), std::nullopt);
}

TEST_F(NativePopoverTest, TakesNoKeyboardWhereTheMenuBarHasNoRoomForTheItem) {
    const auto popover = makePopover();
    appKit().itemsHaveRoom = false;
    appKit().calls.clear();
    EXPECT_FALSE(popover->show());
    EXPECT_FALSE(popover->isShown());
    EXPECT_THAT(appKit().calls, ElementsAre("showRelativeToRect 60x24 of the button at the bottom"));
    EXPECT_EQ(placeBelow(item->button()), std::nullopt);
    appKit().itemsHaveRoom = true;
    EXPECT_TRUE(popover->show());
}

TEST_F(NativePopoverTest, LeavesNoObjectBehind) {
    const auto life = [this] {
        const auto popover = makePopover();
        static_cast<void>(popover->show());
        static_cast<void>(popover->isDark());
        static_cast<void>(popover->holdsContent());
        fake::clickElsewhere();
        static_cast<void>(popover->show());
        popover->close();
        static_cast<void>(popover->show());
    };
    EXPECT_EQ(fake::objectsLeftBy(life), 0);
}

TEST_F(NativePopoverTest, HasItsPlaceCountedFromAboveInPointsOfTheFirstScreen) {
    EXPECT_EQ(placeBelow(item->button()), (PlaceOnScreen{1030, 24}));
}

} // namespace
} // namespace quelby::app
