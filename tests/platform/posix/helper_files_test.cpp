#include "platform/posix/helper_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/file_mode.h"
#include "support/ordinary_user.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;

constexpr std::size_t longestText = 64 << 10;

class HelperFilesTest : public testing::Test {
protected:
    void SetUp() override { fs::permissions(folder.path(), fs::perms(0755)); }

    void TearDown() override { fs::permissions(folder.path(), fs::perms(0755)); }

    // Nobody may make, replace or remove a file in it.
    void closeFolder() const { fs::permissions(folder.path(), fs::perms(0555)); }

    // An ordinary user tries to replace the config, and is told whether that was done.
    void expectReplacingByAnOrdinaryUser(std::string_view text, bool isDone) {
        EXPECT_TRUE(doneByAnOrdinaryUser([&] { return files.replaceConfig(text).has_value() == isDone; }));
    }

    TemporaryFolder folder;
    HelperFiles files{folder.path()};
    fs::path config = folder.path() / "config.json";
};

TEST_F(HelperFilesTest, AreReadWhole) {
    folder.write("config.json", "the config\n");
    folder.write("status.json", "");
    EXPECT_EQ(files.config(), "the config\n");
    EXPECT_EQ(files.status(), "");
}

TEST_F(HelperFilesTest, AreReadThroughALink) {
    folder.write("elsewhere", "text");
    fs::create_symlink("elsewhere", folder.path() / "status.json");
    EXPECT_EQ(files.status(), "text");
}

TEST_F(HelperFilesTest, GiveNothingWhereThereIsNoRegularFile) {
    EXPECT_EQ(files.config(), std::nullopt);
    fs::create_directory(config);
    EXPECT_EQ(files.config(), std::nullopt);
    fs::create_symlink("missing", folder.path() / "status.json");
    EXPECT_EQ(files.status(), std::nullopt);
    EXPECT_EQ(HelperFiles("/nonexistent").status(), std::nullopt);
}

TEST_F(HelperFilesTest, DoNotWaitForAPipeNorReadADevice) {
    ASSERT_EQ(::mkfifo((folder.path() / "status.json").c_str(), 0666), 0);
    fs::create_symlink("/dev/zero", config);
    EXPECT_EQ(files.status(), std::nullopt);
    EXPECT_EQ(files.config(), std::nullopt);
}

TEST_F(HelperFilesTest, GiveNothingLongerThanARecord) {
    const std::string longest(longestText, ' ');
    folder.write("config.json", longest);
    folder.write("status.json", longest + ' ');
    EXPECT_EQ(files.config(), longest);
    EXPECT_EQ(files.status(), std::nullopt);
}

TEST_F(HelperFilesTest, TellAConfigThatChangedSinceItWasRead) {
    EXPECT_TRUE(files.configChanged()) << "it was not looked at";
    EXPECT_EQ(files.config(), std::nullopt);
    EXPECT_FALSE(files.configChanged());
    folder.write("config.json", "text");
    EXPECT_TRUE(files.configChanged());
    EXPECT_TRUE(files.configChanged()) << "until it is read";
    EXPECT_EQ(files.config(), "text");
    EXPECT_FALSE(files.configChanged());
    EXPECT_TRUE(HelperFiles(folder.path()).replaceConfig("news")); // as long
    EXPECT_TRUE(files.configChanged());
    EXPECT_EQ(files.config(), "news");
    EXPECT_TRUE(files.replaceConfig("mine"));
    EXPECT_TRUE(files.configChanged());
    EXPECT_EQ(files.config(), "mine");
    fs::remove(config);
    EXPECT_TRUE(files.configChanged());
}

TEST_F(HelperFilesTest, TellDetailsThatChangedSinceTheyWereRead) {
    EXPECT_TRUE(files.detailsChanged()) << "they were not looked at";
    EXPECT_EQ(files.details(), std::nullopt);
    EXPECT_FALSE(files.detailsChanged());
    folder.write("details.json", "{}");
    EXPECT_TRUE(files.detailsChanged());
    EXPECT_EQ(files.details(), "{}");
    EXPECT_FALSE(files.detailsChanged());
}

TEST_F(HelperFilesTest, TellAConfigThatWasRewrittenInPlaceByItsTimeAndItsSize) {
    folder.write("config.json", "text");
    fs::last_write_time(config, fs::file_time_type(std::chrono::seconds(1)));
    EXPECT_EQ(files.config(), "text");
    folder.write("config.json", "longer text");
    fs::last_write_time(config, fs::file_time_type(std::chrono::seconds(1)));
    EXPECT_TRUE(files.configChanged());
    EXPECT_EQ(files.config(), "longer text");
    fs::last_write_time(config, fs::file_time_type(std::chrono::nanoseconds(1'000'000'001)));
    EXPECT_TRUE(files.configChanged());
}

TEST_F(HelperFilesTest, TellAConfigThatChangedBehindALink) {
    folder.write("elsewhere", "text");
    fs::create_symlink("elsewhere", config);
    EXPECT_EQ(files.config(), "text");
    folder.write("elsewhere", "longer text");
    EXPECT_TRUE(files.configChanged());
}

TEST_F(HelperFilesTest, GiveNothingThatMayNotBeRead) {
    folder.write("status.json", "secret");
    fs::permissions(folder.path() / "status.json", fs::perms(0));
    EXPECT_TRUE(doneByAnOrdinaryUser([&] { return !files.status(); }));
}

TEST_F(HelperFilesTest, OpenFolderAndFileToEverybodyWhateverTheUmask) {
    const Umask mask(0077);
    const auto shared = folder.path() / "made" / "shared";
    EXPECT_TRUE(HelperFiles(shared).replaceConfig("text"));
    EXPECT_EQ(folder.read("made/shared/config.json"), "text");
    EXPECT_EQ(modeOf(shared), 0777U);
    EXPECT_EQ(modeOf(shared / "config.json"), 0666U);
    EXPECT_EQ(modeOf(shared.parent_path()), 0700U);
}

TEST_F(HelperFilesTest, MakeAFolderThatIsNamedWithASlash) {
    EXPECT_TRUE(HelperFiles(folder.path() / "shared/").replaceConfig("text"));
    EXPECT_EQ(folder.read("shared/config.json"), "text");
    EXPECT_EQ(modeOf(folder.path() / "shared"), 0777U);
}

TEST_F(HelperFilesTest, LeaveTheModeOfAFolderThatIsThere) {
    EXPECT_TRUE(files.replaceConfig("text"));
    EXPECT_EQ(modeOf(folder.path()), 0755U);
}

TEST_F(HelperFilesTest, ReplaceTheConfigAndLeaveNothingBesideIt) {
    folder.write("config.json", "an older and longer text");
    fs::permissions(config, fs::perms(0600));
    fs::create_hard_link(config, folder.path() / "the old one");
    EXPECT_TRUE(files.replaceConfig("new"));
    EXPECT_EQ(folder.read("config.json"), "new");
    EXPECT_EQ(modeOf(config), 0666U);
    EXPECT_EQ(folder.read("the old one"), "an older and longer text");
    fs::remove(folder.path() / "the old one");
    EXPECT_THAT(folder.names(), ElementsAre("config.json"));
}

TEST_F(HelperFilesTest, ReplaceWhateverElseLiesThere) {
    ASSERT_EQ(::mkfifo(config.c_str(), 0666), 0);
    EXPECT_TRUE(files.replaceConfig("text"));
    EXPECT_EQ(files.config(), "text");
}

// Anybody may lay a link into the folder, and root may be the one who writes.
TEST_F(HelperFilesTest, LeaveAloneWhatALinkLeadsTo) {
    folder.write("precious", "untouched");
    fs::create_symlink("precious", config);
    EXPECT_TRUE(files.replaceConfig("text"));
    EXPECT_EQ(folder.read("precious"), "untouched");
    EXPECT_EQ(files.config(), "text");
    EXPECT_FALSE(fs::is_symlink(config));
}

TEST_F(HelperFilesTest, AreRewrittenInPlaceWhereTheFolderIsClosed) {
    folder.write("config.json", "an older and longer text");
    fs::permissions(config, fs::perms(0666));
    closeFolder();
    expectReplacingByAnOrdinaryUser("new", true);
    EXPECT_EQ(folder.read("config.json"), "new");
    expectReplacingByAnOrdinaryUser("and longer again", true);
    EXPECT_EQ(folder.read("config.json"), "and longer again");
    EXPECT_THAT(folder.names(), ElementsAre("config.json"));
}

TEST_F(HelperFilesTest, FollowNoLinkInAClosedFolder) {
    folder.write("precious", "untouched");
    fs::permissions(folder.path() / "precious", fs::perms(0666));
    fs::create_symlink("precious", config);
    closeFolder();
    expectReplacingByAnOrdinaryUser("text", false);
    EXPECT_EQ(folder.read("precious"), "untouched");
}

TEST_F(HelperFilesTest, DoNotWaitForAPipeInAClosedFolder) {
    ASSERT_EQ(::mkfifo(config.c_str(), 0666), 0);
    fs::permissions(config, fs::perms(0666));
    closeFolder();
    expectReplacingByAnOrdinaryUser("text", false);
    EXPECT_TRUE(fs::is_fifo(config));
}

TEST_F(HelperFilesTest, StayAsTheyWereWhereNothingMayBeWritten) {
    folder.write("config.json", "old");
    fs::permissions(config, fs::perms(0444));
    closeFolder();
    expectReplacingByAnOrdinaryUser("new", false);
    EXPECT_EQ(folder.read("config.json"), "old");
}

TEST_F(HelperFilesTest, PassOverAFolderThatCannotBe) {
    folder.write("a file", "content");
    EXPECT_EQ(HelperFiles(folder.path() / "a file").replaceConfig("text").error().sentence,
              "cannot write the helper's settings to \"" + (folder.path() / "a file").string() + '"');
    EXPECT_FALSE(HelperFiles(folder.path() / "a file" / "below").replaceConfig("text"));
    EXPECT_EQ(folder.read("a file"), "content");
    fs::create_directories(config / "not empty");
    EXPECT_FALSE(files.replaceConfig("text"));
    EXPECT_TRUE(fs::is_directory(config));
    EXPECT_THAT(folder.names(), ElementsAre("a file", "config.json"));
}

} // namespace
} // namespace quelby
