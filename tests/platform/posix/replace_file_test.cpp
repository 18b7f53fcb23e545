#include "platform/posix/replace_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

std::ptrdiff_t filesIn(const std::filesystem::path& folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

TEST(ReplaceFile, MakesAndReplaces) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "it";
    EXPECT_TRUE(replaceFile(file, "first", 0600));
    EXPECT_EQ(folder.read("it"), "first");
    EXPECT_TRUE(replaceFile(file, "", 0666));
    EXPECT_EQ(folder.read("it"), "");

    struct stat status {};

    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0666U); // whatever the mask is
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST(ReplaceFile, LeavesEverythingAsItWasWhereItCannot) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "a folder");
    folder.write("a folder/inside", "");
    EXPECT_FALSE(replaceFile(folder.path() / "a folder", "text", 0600));
    EXPECT_FALSE(replaceFile(folder.path() / "missing" / "it", "text", 0600));
    EXPECT_EQ(filesIn(folder.path()), 1);
}

} // namespace
} // namespace quelby
