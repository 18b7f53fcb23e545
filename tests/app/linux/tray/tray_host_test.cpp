#include "app/linux/tray/tray_host.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

TEST(TrayHost, OfGnomeHasALabelAndNoMenuAndMustNotSucceed) {
    const TrayHost expected{.icon = IconForm::symbol,
                            .showsLabel = true,
                            .wantsMenu = false,
                            .pressMustFail = true,
                            .knowsCoordinates = true};
    EXPECT_EQ(trayHost("gnome-shell"), expected);
}

// The kernel keeps 15 bytes of "ayatana-indicator-application-service" and of "notification-area-applet".
TEST(TrayHost, OfTheIndicatorServiceReadsItsIconFromAFile) {
    const TrayHost expected{.icon = IconForm::file,
                            .showsLabel = true,
                            .wantsMenu = true,
                            .pressMustFail = false,
                            .knowsCoordinates = false};
    EXPECT_EQ(trayHost("ayatana-indicat"), expected);
    EXPECT_EQ(trayHost("ayatana-indicator-application-service"), expected);
}

TEST(TrayHost, OfMateAndOfWaybarHasRoomForAWideIconAndNoCoordinates) {
    const TrayHost expected{.icon = IconForm::wide,
                            .showsLabel = false,
                            .wantsMenu = true,
                            .pressMustFail = false,
                            .knowsCoordinates = false};
    EXPECT_EQ(trayHost("notification-ar"), expected);
    EXPECT_EQ(trayHost("notification-area-applet"), expected);
    EXPECT_EQ(trayHost("waybar"), expected);
}

TEST(TrayHost, OfEveryOtherHasASquareWithTheTitleInIt) {
    const TrayHost expected{.icon = IconForm::compact,
                            .showsLabel = false,
                            .wantsMenu = true,
                            .pressMustFail = false,
                            .knowsCoordinates = true};
    for (const auto* const name : {"panel-6-systray", "lxqt-panel", "kded5", "plasmashell", "xapp-sn-watcher",
                                   "gnome-shell-cal", "waybar-2", "ayatana", "", "unheard-of"}) {
        EXPECT_EQ(trayHost(name), expected) << name;
    }
}

} // namespace
} // namespace quelby::app
