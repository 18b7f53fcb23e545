#include "app/linux/tray/tray_host.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

constexpr WheelHabit downByNotch{WheelUnit::notch, true};
constexpr WheelHabit upByNotch{WheelUnit::notch, false};
constexpr WheelHabit upByAngle{WheelUnit::angle, false};

TEST(TrayHost, OfGnomeHasALabelAndNoMenuAndMustNotSucceed) {
    const TrayHost expected{.icon = IconForm::symbol,
                            .showsLabel = true,
                            .wantsMenu = false,
                            .pressMustFail = true,
                            .knowsCoordinates = true,
                            .readsTipTitle = false,
                            .wheel = downByNotch,
                            .panel = PanelStyle::dark};
    EXPECT_EQ(trayHost("gnome-shell"), expected);
}

// The kernel keeps 15 bytes of "ayatana-indicator-application-service" and of "notification-area-applet".
TEST(TrayHost, OfTheIndicatorServiceReadsItsIconFromAFile) {
    const TrayHost expected{.icon = IconForm::file,
                            .showsLabel = true,
                            .wantsMenu = true,
                            .pressMustFail = false,
                            .knowsCoordinates = false,
                            .readsTipTitle = false,
                            .wheel = downByNotch,
                            .panel = PanelStyle::published};
    EXPECT_EQ(trayHost("ayatana-indicat"), expected);
    EXPECT_EQ(trayHost("ayatana-indicator-application-service"), expected);
}

TEST(TrayHost, OfMateAndOfWaybarHasRoomForAWideIconAndNoCoordinates) {
    TrayHost expected{.icon = IconForm::wide,
                      .showsLabel = false,
                      .wantsMenu = true,
                      .pressMustFail = false,
                      .knowsCoordinates = false,
                      .readsTipTitle = false,
                      .wheel = upByNotch,
                      .panel = PanelStyle::published};
    EXPECT_EQ(trayHost("notification-ar"), expected);
    EXPECT_EQ(trayHost("notification-area-applet"), expected);
    expected.wheel = downByNotch;
    expected.panel = PanelStyle::unknown;
    EXPECT_EQ(trayHost("waybar"), expected);
}

// A square with the title in it.
TrayHost square(WheelHabit wheel, PanelStyle panel) {
    return {.icon = IconForm::compact,
            .showsLabel = false,
            .wantsMenu = true,
            .pressMustFail = false,
            .knowsCoordinates = true,
            .readsTipTitle = false,
            .wheel = wheel,
            .panel = panel};
}

TEST(TrayHost, OfXfceAndCinnamonHasASquareAndAWheelThatCountsDownwards) {
    auto xfce = square(downByNotch, PanelStyle::unknown);
    xfce.readsAllAtOnce = true;
    EXPECT_EQ(trayHost("panel-6-systray"), xfce);
    EXPECT_EQ(trayHost("panel-12-systra"), xfce);
    EXPECT_EQ(trayHost("xfce4-panel"), xfce);
    EXPECT_EQ(trayHost("xapp-sn-watcher"), square(downByNotch, PanelStyle::unknown));
}

TEST(TrayHost, OfPlasmaAndLxqtHasASquareAndAFineWheel) {
    EXPECT_EQ(trayHost("kded5"), square(upByAngle, PanelStyle::plasma));
    EXPECT_EQ(trayHost("plasmashell"), square(upByAngle, PanelStyle::plasma));
    auto lxqt = square(upByAngle, PanelStyle::lxqt);
    lxqt.readsTipTitle = true;
    EXPECT_EQ(trayHost("lxqt-panel"), lxqt);
}

TEST(TrayHost, OfEveryOtherHasASquareOnAPanelThatNobodyKnows) {
    for (const auto* const name : {"gnome-shell-cal", "waybar-2", "ayatana", "panel", "", "unheard-of"}) {
        EXPECT_EQ(trayHost(name), square(upByNotch, PanelStyle::unknown)) << name;
    }
}

} // namespace
} // namespace quelby::app
