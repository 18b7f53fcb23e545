#include "platform/linux/processes/stat_reader.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include "fake_proc.h"
#include "platform/linux/processes/stat_text.h"
#include "support/child_process.h"

namespace quelby {
namespace {

class StatReaderTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(directory_.listPids(pids_));
        reader_.beginLook();
    }

    std::optional<pid_t> pidRead(pid_t pid, FileDescriptor& kept) {
        const auto text = reader_.read(pid, kept);
        return text && parseStat(*text) ? std::optional(std::stoi(std::string(*text))) : std::nullopt;
    }

    std::vector<pid_t> pids_;
    ProcDirectory directory_{"/proc"};
    StatReader reader_{directory_};
};

TEST_F(StatReaderTest, ReadsTheSameFileAgain) {
    FileDescriptor kept;
    EXPECT_EQ(pidRead(::getpid(), kept), ::getpid());
    const int number = kept.number();
    EXPECT_TRUE(kept.isOpen());
    EXPECT_EQ(pidRead(::getpid(), kept), ::getpid());
    EXPECT_EQ(kept.number(), number);
}

TEST_F(StatReaderTest, KeptFilesAreNotForPrograms) {
    FileDescriptor kept;
    ASSERT_TRUE(reader_.read(::getpid(), kept));
    EXPECT_EQ(::fcntl(kept.number(), F_GETFD), FD_CLOEXEC);
}

TEST_F(StatReaderTest, LetsGoOfTheFileOfAProcessThatHasEnded) {
    ChildProcess child(rest);
    const auto pid = child.pid();
    FileDescriptor kept;
    ASSERT_EQ(pidRead(pid, kept), pid);
    child.end();
    EXPECT_EQ(pidRead(pid, kept), std::nullopt);
    EXPECT_FALSE(kept.isOpen());
}

TEST_F(StatReaderTest, ReadsWhoeverHasThePidOfAProcessThatHasEnded) {
    ChildProcess child(rest);
    FileDescriptor kept;
    ASSERT_EQ(pidRead(child.pid(), kept), child.pid());
    child.end();
    EXPECT_EQ(pidRead(::getpid(), kept), ::getpid()); // with the file of the dead
    EXPECT_TRUE(kept.isOpen());
}

TEST(StatReader, KeepsNothingBeforeItKnowsTheLimit) {
    const FakeProc proc;
    proc.set({7});
    ProcDirectory directory(proc.root());
    std::vector<pid_t> pids;
    ASSERT_TRUE(directory.listPids(pids));
    FileDescriptor kept;
    EXPECT_EQ(StatReader(directory).read(7, kept), statOf({7}));
    EXPECT_FALSE(kept.isOpen());
}

} // namespace
} // namespace quelby
