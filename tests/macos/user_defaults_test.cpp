#include "platform/macos/user_defaults.h"

#include <gtest/gtest.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

class UserDefaultsTest : public testing::Test {
protected:
    UserDefaultsTest() {
        fake::frameworks() = {};
        fake::frameworks().bundleIdentifier = fake::defaultsDomain();
        defaults.removeAll();
    }

    UserDefaults defaults{ProgramKind::tool};
};

TEST_F(UserDefaultsTest, KeepTextsAndFlags) {
    defaults.setText("menuBarDisplay", "Temperature °C");
    defaults.setFlag("launchAtLogin", true);
    EXPECT_EQ(defaults.text("menuBarDisplay"), "Temperature °C");
    EXPECT_TRUE(defaults.flag("launchAtLogin"));
    defaults.setFlag("launchAtLogin", false);
    EXPECT_FALSE(defaults.flag("launchAtLogin"));
}

TEST_F(UserDefaultsTest, TakeTextsThatEndWithinOthers) {
    defaults.setText(std::string_view("keys").substr(0, 3), std::string_view("values").substr(0, 5));
    EXPECT_EQ(defaults.text("key"), "value");
}

TEST_F(UserDefaultsTest, KnowNothingOfAnAbsentKey) {
    EXPECT_EQ(defaults.text("menuBarDisplay"), std::nullopt);
    EXPECT_FALSE(defaults.flag("launchAtLogin"));
}

TEST_F(UserDefaultsTest, TakeAValueOfAnotherTypeForAnAbsentOne) {
    fake::setNumber("menuBarDisplay", 7);
    EXPECT_EQ(defaults.text("menuBarDisplay"), std::nullopt);
    defaults.setText("launchAtLogin", "YES");
    EXPECT_FALSE(defaults.flag("launchAtLogin"));
}

TEST_F(UserDefaultsTest, IgnoreATextThatIsNotUtf8) {
    defaults.setText("menuBarDisplay", "\xFF");
    EXPECT_EQ(defaults.text("menuBarDisplay"), std::nullopt);
}

TEST_F(UserDefaultsTest, RemoveOneKeyOrAll) {
    for (const auto* const key : {"one", "two", "three"}) {
        defaults.setText(key, key);
    }
    defaults.remove("one");
    EXPECT_EQ(defaults.text("one"), std::nullopt);
    EXPECT_EQ(defaults.text("two"), "two");
    defaults.removeAll();
    EXPECT_EQ(defaults.text("two"), std::nullopt);
    EXPECT_EQ(defaults.text("three"), std::nullopt);
}

TEST_F(UserDefaultsTest, RemoveNoDomainWithoutAnIdentifier) {
    defaults.setText("one", "one");
    fake::frameworks().bundleIdentifier.reset();
    defaults.removeAll();
    EXPECT_EQ(defaults.text("one"), "one");
}

TEST_F(UserDefaultsTest, AreOnTheDiskBeforeAToolEnds) {
    fake::frameworks().writtenDefaults = 0;
    defaults.setText("one", "one");
    EXPECT_EQ(fake::frameworks().writtenDefaults, 1);
    defaults.setFlag("flag", true);
    defaults.remove("one");
    defaults.removeAll();
    EXPECT_EQ(fake::frameworks().writtenDefaults, 4);
}

TEST_F(UserDefaultsTest, AreLeftToTheSystemByAnApplication) {
    UserDefaults ofApplication(ProgramKind::application);
    fake::frameworks().writtenDefaults = 0;
    ofApplication.setText("one", "one");
    ofApplication.setFlag("flag", true);
    ofApplication.remove("flag");
    EXPECT_EQ(ofApplication.text("one"), "one");
    ofApplication.removeAll();
    EXPECT_EQ(fake::frameworks().writtenDefaults, 0);
}

TEST_F(UserDefaultsTest, LeaveNoObjectBehind) {
    EXPECT_EQ(fake::objectsLeftBy([this] {
                  defaults.setText("text", "text");
                  defaults.setFlag("flag", true);
                  static_cast<void>(defaults.text("text"));
                  static_cast<void>(defaults.flag("flag"));
                  static_cast<void>(defaults.text("absent"));
                  defaults.remove("text");
                  defaults.removeAll();
              }),
              0);
}

} // namespace
} // namespace quelby
