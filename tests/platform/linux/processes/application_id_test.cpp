#include "platform/linux/processes/application_id.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

std::string idOf(const std::string& unit) {
    return applicationId("0::/user.slice/user-1000.slice/user@1000.service/app.slice/" + unit + "\n");
}

TEST(ApplicationId, StandsInTheScopeThatADesktopMakes) {
    EXPECT_EQ(idOf("app-gnome-org.gnome.Nautilus-4711.scope"), "org.gnome.Nautilus");
    EXPECT_EQ(idOf("app-org.kde.konsole-1f3a.scope"), "org.kde.konsole");
    EXPECT_EQ(idOf("app-flatpak-org.example.Maps-99.scope"), "org.example.Maps");
}

TEST(ApplicationId, HasItsEscapedCharactersAgain) {
    EXPECT_EQ(idOf("app-gnome-firefox\\x2desr-2345.scope"), "firefox-esr");
    EXPECT_EQ(idOf("app-gnome-a\\x2-1.scope"), "a\\x2") << "an escape that is cut is none";
    EXPECT_EQ(idOf("app-gnome-a\\xzz-1.scope"), "a\\xzz");
}

TEST(ApplicationId, StandsInTheServiceThatTheServiceManagerStarts) {
    EXPECT_EQ(idOf("app-firefox@autostart.service"), "firefox");
    EXPECT_EQ(idOf("app-gnome-org.gnome.Evolution\\x2dalarm@1.service"), "org.gnome.Evolution-alarm");
    EXPECT_EQ(idOf("app-mailer.service"), "mailer");
}

TEST(ApplicationId, IsThatOfTheInnermostUnit) {
    EXPECT_EQ(idOf("app-outer-1.scope/app-inner-2.scope/tab"), "inner");
    EXPECT_EQ(applicationId("12:cpu:/\n1:name=systemd:/user.slice/app-x11-editor-7.scope\n"), "editor");
}

TEST(ApplicationId, IsEmptyForWhatNoDesktopStarted) {
    for (const auto* unit : {"dbus.service", "vte-spawn-1.scope", "app-.slice", "app-gnome.slice",
                             "app-1.scope", "pipewire.service", "app-gnome-editor-1"}) {
        EXPECT_EQ(idOf(unit), "") << unit;
    }
    EXPECT_EQ(applicationId(""), "");
    EXPECT_EQ(applicationId("0::/\n"), "");
    EXPECT_EQ(applicationId("0::/system.slice/cron.service"), "");
}

TEST(DesktopEntryName, IsTheUntranslatedNameOfTheEntryItself) {
    EXPECT_EQ(desktopEntryName("# a comment\n[Desktop Entry]\nName[de]=Karten\nName = Maps \nName=Later\n"),
              "Maps");
    EXPECT_EQ(desktopEntryName("[Desktop Action New]\nName=New Window\n[Desktop Entry]\nName=Maps"), "Maps");
    EXPECT_EQ(desktopEntryName("[Desktop Entry]\nGenericName=Atlas\n[Desktop Action New]\nName=New\n"), "");
    EXPECT_EQ(desktopEntryName("Name=Nowhere\n"), "");
    EXPECT_EQ(desktopEntryName(""), "");
}

} // namespace
} // namespace quelby
