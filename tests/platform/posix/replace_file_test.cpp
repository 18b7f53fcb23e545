#include "platform/posix/replace_file.h"

#include <gmock/gmock.h>

#include "support/file_mode.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;

TEST(ReplaceFile, MakesAndReplaces) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "it";
    EXPECT_TRUE(replaceFile(file, "first", 0600));
    EXPECT_EQ(folder.read("it"), "first");
    EXPECT_TRUE(replaceFile(file, "", 0666));
    EXPECT_EQ(folder.read("it"), "");
    EXPECT_EQ(modeOf(file), 0666U); // whatever the mask is
    EXPECT_THAT(folder.names(), ElementsAre("it"));
}

TEST(ReplaceFile, LeavesEverythingAsItWasWhereItCannot) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "a folder");
    folder.write("a folder/inside", "");
    EXPECT_FALSE(replaceFile(folder.path() / "a folder", "text", 0600));
    EXPECT_FALSE(replaceFile(folder.path() / "missing" / "it", "text", 0600));
    EXPECT_THAT(folder.names(), ElementsAre("a folder"));
    EXPECT_THAT(folder.names("a folder"), ElementsAre("inside"));
}

} // namespace
} // namespace quelby
