#include "platform/posix/file_lock.h"

#include <csignal>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "support/started.h"
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

TEST(FileLock, EndsWithItsProcessHoweverThatEnds) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "the.lock";
    int ready[2] = {};
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t holder = started(::fork());
    if (holder == 0) {
        const auto lock = FileLock::take(file);
        const char held = std::holds_alternative<FileLock>(lock) ? 'y' : 'n';
        static_cast<void>(::write(ready[1], &held, 1) == 1);
        ::pause();
        ::_exit(0);
    }
    char held = 'n';
    ASSERT_EQ(::read(ready[0], &held, 1), 1);
    ::close(ready[0]);
    ::close(ready[1]);
    EXPECT_EQ(held, 'y');
    EXPECT_FALSE(isFree(file));
    ::kill(holder, SIGKILL);
    ::waitpid(holder, nullptr, 0);
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
