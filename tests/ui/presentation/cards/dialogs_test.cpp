#include "ui/presentation/cards/dialogs.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

TEST(Dialogs, TellOfTheChargeLimitsOfTheDesktopAndOfOtherPrograms) {
    const auto dialog = chargingTip(linuxWords);
    EXPECT_EQ(dialog.title, "Disable Other Charge Limits");
    EXPECT_EQ(dialog.message, "For Quelby's charge limit to work properly, disable the charge limit in the "
                              "desktop's power settings, and that of any other program.");
    EXPECT_EQ(dialog.action, "Open Power Settings");
    EXPECT_EQ(dialog.cancel, "Got it");
}

TEST(Dialogs, TellOnAMacOfItsOwnCharging) {
    const auto dialog = chargingTip(macosWords);
    EXPECT_EQ(dialog.title, "Disable Optimized Battery Charging");
    EXPECT_EQ(dialog.message, "For Quelby's charge limit to work properly, disable macOS Optimized Battery "
                              "Charging in System Settings → Battery.");
    EXPECT_EQ(dialog.action, "Open Battery Settings");
    EXPECT_FALSE(dialog.destructive);
    EXPECT_EQ(dialog.cancel, "Got it");
}

TEST(Dialogs, AskBeforeEverythingIsRemoved) {
    const auto dialog = uninstallConfirmation();
    EXPECT_EQ(dialog.title, "Uninstall Quelby?");
    EXPECT_EQ(dialog.message, "This will remove the charge helper, all settings, history data, and the app "
                              "itself. This cannot be undone.");
    EXPECT_EQ(dialog.action, "Uninstall Everything");
    EXPECT_TRUE(dialog.destructive);
    EXPECT_EQ(dialog.cancel, "Cancel");
}

TEST(Dialogs, SayHowAPackageIsRemovedAndThatNobodyElseDoesIt) {
    const auto question = [](const char* command) {
        return std::string(
                   "This will remove the charge helper, all settings and history data, but not the app "
                   "itself, which came as a package: \"") +
               command + "\" removes it. This cannot be undone.";
    };
    EXPECT_EQ(uninstallConfirmation(PackageManager::apt).message, question("sudo apt remove quelby"));
    EXPECT_EQ(uninstallConfirmation(PackageManager::rpm).message, question("sudo rpm -e quelby"));
    EXPECT_EQ(uninstallConfirmation(PackageManager::pacman).message, question("sudo pacman -R quelby"));
    EXPECT_EQ(uninstallConfirmation(PackageManager::apt).action, uninstallConfirmation().action);
}

} // namespace
} // namespace quelby
