#include "platform/posix/file_lock.h"

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/file_mode.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

bool isFree(const std::filesystem::path& file) {
    return std::holds_alternative<FileLock>(FileLock::take(file));
}

TEST(FileLock, HasOneHolderAtATime) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "below" / "the.lock";
    {
        const auto lock = FileLock::take(file);
        ASSERT_TRUE(std::holds_alternative<FileLock>(lock));
        EXPECT_TRUE(std::holds_alternative<FileLock::HeldByAnother>(FileLock::take(file)));
    }
    EXPECT_TRUE(isFree(file));
}

TEST(FileLock, IsForItsUserAlone) {
    const TemporaryFolder folder;
    const Umask open(0);
    const auto file = folder.path() / "the.lock";
    ASSERT_TRUE(isFree(file));
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
}

TEST(FileLock, EndsWithItsProcessHoweverThatEnds) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "the.lock";
    ChildProcess holder([&](FileDescriptor ready) {
        const auto lock = FileLock::take(file);
        rest(std::move(ready));
    });
    EXPECT_FALSE(isFree(file));
    holder.end();
    EXPECT_TRUE(isFree(file));
}

TEST(FileLock, IsImpossibleWhereNoFileCanBe) {
    const TemporaryFolder folder;
    const auto file = folder.write("a file", "");
    EXPECT_TRUE(std::holds_alternative<FileLock::Impossible>(FileLock::take(file / "the.lock")));
    EXPECT_TRUE(std::holds_alternative<FileLock::Impossible>(FileLock::take(folder.path())));
}

} // namespace
} // namespace quelby
