#include "platform/linux/settings_program.h"

#include <gmock/gmock.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(BatterySettingsCommands, AreThoseOfTheDesktop) {
    EXPECT_THAT(batterySettingsCommands("GNOME"), ElementsAre(CommandWords{"gnome-control-center", "power"}));
    EXPECT_THAT(batterySettingsCommands("XFCE"), ElementsAre(CommandWords{"xfce4-power-manager-settings"}));
    EXPECT_THAT(batterySettingsCommands("MATE"), ElementsAre(CommandWords{"mate-power-preferences"}));
    EXPECT_THAT(batterySettingsCommands("LXQt"), ElementsAre(CommandWords{"lxqt-config-powermanagement"}));
    EXPECT_THAT(batterySettingsCommands("X-Cinnamon"),
                ElementsAre(CommandWords{"cinnamon-settings", "power"}));
}

TEST(BatterySettingsCommands, NameFormerReleasesAfterPresentOnes) {
    EXPECT_THAT(batterySettingsCommands("KDE"),
                ElementsAre(CommandWords{"systemsettings", "kcm_powerdevilprofilesconfig"},
                            CommandWords{"systemsettings5", "kcm_powerdevilprofilesconfig"}));
}

TEST(BatterySettingsCommands, FollowTheNamesFromTheMostSpecialToTheMostGeneral) {
    EXPECT_THAT(batterySettingsCommands("ubuntu:GNOME"),
                ElementsAre(CommandWords{"gnome-control-center", "power"}));
    const auto both = batterySettingsCommands("MATE:XFCE");
    EXPECT_THAT(both, ElementsAre(CommandWords{"mate-power-preferences"},
                                  CommandWords{"xfce4-power-manager-settings"}));
    EXPECT_EQ(batterySettingsCommands("Budgie:GNOME").front(),
              (CommandWords{"budgie-control-center", "power"}));
}

TEST(BatterySettingsCommands, AreNoneForADesktopThatIsNotKnown) {
    for (const auto* const desktop : {"", ":", "sway", "gnome", "GNOME-Flashback", "KDE4"}) {
        EXPECT_THAT(batterySettingsCommands(desktop), IsEmpty()) << desktop;
    }
}

class FirstCommandFound : public testing::Test {
protected:
    void install(const std::string& name) const {
        std::filesystem::permissions(folder.write(name, "#!/bin/sh\n"), std::filesystem::perms::owner_all);
    }

    [[nodiscard]] std::string path(const std::string& name) const { return (folder.path() / name).string(); }

    [[nodiscard]] std::string folders() const { return path("first") + ":" + path("second"); }

    TemporaryFolder folder;
};

TEST_F(FirstCommandFound, HasThePathAndKeepsTheArguments) {
    install("second/settings");
    EXPECT_THAT(firstCommandFound({{"settings", "power"}}, folders()),
                ElementsAre(path("second/settings"), "power"));
}

TEST_F(FirstCommandFound, IsTheFirstInTheOrderOfTheCommands) {
    install("first/former");
    install("second/present");
    EXPECT_THAT(firstCommandFound({{"present"}, {"former"}}, folders()), ElementsAre(path("second/present")));
    EXPECT_THAT(firstCommandFound({{"missing"}, {"former"}}, folders()), ElementsAre(path("first/former")));
}

TEST_F(FirstCommandFound, IsTheFirstInTheOrderOfTheFolders) {
    install("first/settings");
    install("second/settings");
    EXPECT_THAT(firstCommandFound({{"settings"}}, folders()), ElementsAre(path("first/settings")));
}

TEST_F(FirstCommandFound, IsNoneWhereNothingCanBeRun) {
    folder.write("first/settings", "not for running");
    std::filesystem::create_directories(folder.path() / "second" / "settings");
    EXPECT_THAT(firstCommandFound({{"settings"}}, folders()), IsEmpty());
    EXPECT_THAT(firstCommandFound({}, folders()), IsEmpty());
    EXPECT_THAT(firstCommandFound({{"settings"}}, ""), IsEmpty());
}

TEST_F(FirstCommandFound, IsNotLookedForInTheWorkingFolder) {
    install("settings");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    EXPECT_THAT(firstCommandFound({{"settings"}}, ":."), IsEmpty());
    std::filesystem::current_path(before);
}

} // namespace
} // namespace quelby
