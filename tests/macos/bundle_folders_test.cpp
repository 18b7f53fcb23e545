#include "platform/macos/bundle_folders.h"

#include <gtest/gtest.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

using fake::frameworks;

class BundleFoldersTest : public testing::Test {
protected:
    BundleFoldersTest() { frameworks() = {}; }

    // A program for the terminal that lies beside others: what the system calls its bundle is their folder.
    static void leaveTheApplication() {
        frameworks().bundlePath = "/usr/local/bin";
        frameworks().executablePath = "/usr/local/bin/quelbyctl";
        frameworks().resourcePath = "/usr/local/bin";
    }

    BundleFolders folders;
};

TEST_F(BundleFoldersTest, AreTheUsersOwn) {
    EXPECT_EQ(folders.applicationSupport().filename(), "ApplicationSupport"); // on a Mac, two words
    EXPECT_TRUE(folders.applicationSupport().is_absolute());
    EXPECT_EQ(folders.configuration(), folders.applicationSupport().parent_path() / "Preferences");
}

TEST_F(BundleFoldersTest, ShareOneFolderWithTheHelper) {
    EXPECT_EQ(folders.helper(), "/Library/Application Support/Quelby");
}

TEST_F(BundleFoldersTest, TakeTheApplicationForTheProgram) {
    EXPECT_EQ(folders.program(), "/Applications/Quelby.app");
    EXPECT_EQ(folders.resources(), "/Applications/Quelby.app/Contents/Resources");
}

TEST_F(BundleFoldersTest, NeverTakeAFolderOfOtherProgramsForTheProgram) {
    leaveTheApplication();
    EXPECT_EQ(folders.program(), "/usr/local/bin/quelbyctl");
    EXPECT_EQ(folders.resources(), std::nullopt);
}

TEST_F(BundleFoldersTest, MayLackResources) {
    frameworks().resourcePath.reset();
    EXPECT_EQ(folders.resources(), std::nullopt);
}

TEST_F(BundleFoldersTest, LeaveNoObjectBehind) {
    EXPECT_EQ(fake::objectsLeftBy([this] {
                  static_cast<void>(folders.applicationSupport());
                  static_cast<void>(folders.configuration());
                  static_cast<void>(folders.resources());
                  static_cast<void>(folders.program());
              }),
              0);
}

} // namespace
} // namespace quelby
