#include "platform/qt/qt_preferences.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

class QtPreferencesTest : public testing::Test {
protected:
    [[nodiscard]] QtPreferences with(std::string_view content) const {
        return QtPreferences(folder.write("preferences.conf", content));
    }

    TemporaryFolder folder;
};

TEST_F(QtPreferencesTest, ReadsTextsAndFlags) {
    auto preferences =
        with("[General]\nmenuBarDisplay=Current (mA)\nlaunchAtLogin=true\nhasShownChargingTip=false\n");
    EXPECT_EQ(preferences.text("menuBarDisplay"), "Current (mA)");
    EXPECT_TRUE(preferences.flag("launchAtLogin"));
    EXPECT_FALSE(preferences.flag("hasShownChargingTip"));
}

TEST_F(QtPreferencesTest, HaveNothingUnderAnAbsentKey) {
    auto preferences = with("");
    EXPECT_EQ(preferences.text("menuBarDisplay"), std::nullopt);
    EXPECT_FALSE(preferences.flag("launchAtLogin"));
}

TEST_F(QtPreferencesTest, CountAValueOfAnotherTypeAsAbsent) {
    auto preferences = with("[General]\nmenuBarDisplay=a, list\nlaunchAtLogin=yes please\n");
    EXPECT_EQ(preferences.text("menuBarDisplay"), std::nullopt);
    EXPECT_FALSE(preferences.flag("launchAtLogin"));
}

TEST_F(QtPreferencesTest, KeepWhatIsSet) {
    {
        auto preferences = with("");
        preferences.setText("menuBarDisplay", "Battery %");
        preferences.setFlag("launchAtLogin", true);
        preferences.setText("other", "a, \"quoted\" list; ünïcode \\ \n");
    }
    QtPreferences again(folder.path() / "preferences.conf");
    EXPECT_EQ(again.text("menuBarDisplay"), "Battery %");
    EXPECT_TRUE(again.flag("launchAtLogin"));
    EXPECT_EQ(again.text("other"), "a, \"quoted\" list; ünïcode \\ \n");
    again.setFlag("launchAtLogin", false);
    again.remove("other");
    QtPreferences third(folder.path() / "preferences.conf");
    EXPECT_FALSE(third.flag("launchAtLogin"));
    EXPECT_EQ(third.text("other"), std::nullopt);
    third.removeAll();
    EXPECT_EQ(QtPreferences(folder.path() / "preferences.conf").text("menuBarDisplay"), std::nullopt);
}

TEST_F(QtPreferencesTest, GoWithTheirFileButNotWithItsFolderWhichSomebodyNamed) {
    const auto file = folder.write("named/preferences.conf", "[General]\nlaunchAtLogin=true\n");
    {
        QtPreferences preferences(file);
        preferences.removeAll();
        preferences.remove("launchAtLogin");
        EXPECT_FALSE(preferences.flag("launchAtLogin"));
    }
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(std::filesystem::exists(file.parent_path()));
}

TEST_F(QtPreferencesTest, GoWithTheirOwnFolderUnlessSomethingElseIsInIt) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(folder.path().string()));
    const auto own = folder.path() / "Quelby";
    for (const bool shared : {true, false}) {
        {
            QtPreferences preferences(std::nullopt);
            preferences.setFlag("launchAtLogin", true);
            ASSERT_TRUE(std::filesystem::exists(own / "Quelby.conf"));
            if (shared) {
                folder.write("Quelby/of somebody else", "");
            }
            preferences.removeAll();
            preferences.remove("launchAtLogin");
        }
        EXPECT_FALSE(std::filesystem::exists(own / "Quelby.conf"));
        EXPECT_EQ(std::filesystem::exists(own / "of somebody else"), shared);
        EXPECT_EQ(std::filesystem::exists(own), shared);
        std::filesystem::remove_all(own);
    }
}

TEST_F(QtPreferencesTest, DoNotWriteWhatIsStoredAlready) {
    auto preferences = with("[General]\n; a comment\nmenuBarDisplay=Battery %\nlaunchAtLogin=true\n");
    preferences.setText("menuBarDisplay", "Battery %");
    preferences.setFlag("launchAtLogin", true);
    EXPECT_EQ(folder.read("preferences.conf"),
              "[General]\n; a comment\nmenuBarDisplay=Battery %\nlaunchAtLogin=true\n");
}

TEST_F(QtPreferencesTest, AreSilentWhereNothingCanBeStored) {
    QtPreferences nowhere(folder.write("a file", "") / "preferences.conf");
    nowhere.setText("menuBarDisplay", "Battery %");
    EXPECT_EQ(folder.read("a file"), "");
}

TEST_F(QtPreferencesTest, HoldNothingWhereTheFileIsMissingOrRubbish) {
    QtPreferences missing(folder.path() / "nowhere" / "preferences.conf");
    EXPECT_EQ(missing.text("menuBarDisplay"), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "nowhere"));
    auto rubbish = with(std::string_view("\x7F\x00\xFF[[[\n===", 10));
    EXPECT_EQ(rubbish.text("menuBarDisplay"), std::nullopt);
}

} // namespace
} // namespace quelby
