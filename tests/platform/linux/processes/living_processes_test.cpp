// The lister on the computer's own /proc, with children of the test.
#include <chrono>
#include <cstring>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include "listing_lines.h"
#include "platform/linux/processes/proc_process_lister.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::Not;

std::string uniqueName(std::string_view kind) {
    return fmt::format("{}-{}", kind, ::getpid());
}

auto has(const std::string& name) {
    return testing::Contains(testing::Field(&ListedLine::name, name));
}

auto restingAs(const std::string& name) {
    return [name](FileDescriptor ready) {
        ::prctl(PR_SET_NAME, name.c_str());
        rest(std::move(ready));
    };
}

// Looks again and again until what is looked for is there; false where it never is.
template <typename IsThere>
bool looksUntil(const IsThere& isThere) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < deadline) {
        if (isThere()) {
            return true;
        }
    }
    return false;
}

class LivingProcesses : public testing::Test {
protected:
    std::vector<ListedLine> scan() {
        static_cast<void>(lister_.cpuListing());
        return listed(lister_.topListing());
    }

    ProcProcessLister lister_{"/proc"};
};

TEST_F(LivingProcesses, AreListedUntilTheyEnd) {
    const auto name = uniqueName("rest");
    ChildProcess child(restingAs(name));
    EXPECT_THAT(scan(), has(name));
    EXPECT_THAT(scan(), has(name));
    child.end();
    EXPECT_THAT(scan(), Not(has(name)));
}

TEST_F(LivingProcesses, HaveTheirShareSinceThePreviousLook) {
    const auto name = uniqueName("busy");
    const ChildProcess child([&](FileDescriptor ready) {
        ::prctl(PR_SET_NAME, name.c_str());
        ready.close();
        for (volatile unsigned work = 0;;) {
            work = work + 1;
        }
    });
    EXPECT_TRUE(looksUntil([&] {
        scan();
        return shareOf(name, lister_.topListing()).value_or(0) > 20;
    }));
}

TEST_F(LivingProcesses, StayAtZeroWhileTheySleep) {
    const auto name = uniqueName("idle");
    const ChildProcess child(restingAs(name));
    const auto before = std::chrono::steady_clock::now();
    EXPECT_TRUE(looksUntil([&] {
        scan();
        return std::chrono::steady_clock::now() - before > std::chrono::milliseconds(300);
    }));
    EXPECT_EQ(shareOf(name, lister_.topListing()), 0);
}

TEST_F(LivingProcesses, ChangeTheirNames) {
    Pipe go = makePipe();
    const auto before = uniqueName("old");
    const auto after = uniqueName("new");
    const ChildProcess child([&](FileDescriptor ready) {
        go.writeEnd.close();
        ::prctl(PR_SET_NAME, before.c_str());
        ready.close();
        waitForEnd(go.readEnd);
        restingAs(after)({});
    });
    EXPECT_THAT(scan(), has(before));
    go.writeEnd.close();
    EXPECT_TRUE(looksUntil([&] { return testing::Value(scan(), has(after)); }));
    EXPECT_THAT(scan(), Not(has(before)));
}

// Runs a copy of `cat`, which waits for input that never comes.
class LongNamed {
public:
    [[nodiscard]] const std::filesystem::path& program() const { return program_; }

    [[nodiscard]] std::string name() const { return program_.filename(); }

    void run(const char* argument) {
        child_.emplace([&](const FileDescriptor&) {
            ::dup2(input_.readEnd.number(), STDIN_FILENO);
            ::execl(program().c_str(), argument, nullptr);
            ::_exit(1);
        });
    }

private:
    TemporaryFolder folder_;
    std::filesystem::path program_ = folder_.path() / uniqueName("a-program-with-a-name-of-length");
    Pipe input_ = makePipe(); // nothing is ever written
    std::optional<ChildProcess> child_;
};

TEST_F(LivingProcesses, HaveTheWholeNameOfTheirProgram) {
    LongNamed longNamed;
    std::filesystem::copy_file("/bin/cat", longNamed.program());
    longNamed.run("cat");
    EXPECT_THAT(scan(), has(longNamed.name()));
}

TEST_F(LivingProcesses, HaveTheWholeNameOfALinkToTheirProgram) {
    LongNamed longNamed;
    std::filesystem::create_symlink("/bin/cat", longNamed.program());
    longNamed.run(longNamed.program().c_str());
    EXPECT_THAT(scan(), has(longNamed.name()));
}

TEST_F(LivingProcesses, HaveTheWholeNameOfAProgramThatWasDeleted) {
    LongNamed longNamed;
    std::filesystem::copy_file("/bin/cat", longNamed.program());
    longNamed.run("cat");
    std::filesystem::remove(longNamed.program());
    EXPECT_THAT(scan(), has(longNamed.name()));
}

TEST_F(LivingProcesses, HaveTheNameTheyChoseWhereItIsNotTheirPrograms) {
    const std::string fifteenBytes = "my own long nam";
    const ChildProcess child(restingAs(fifteenBytes));
    EXPECT_THAT(scan(), has(fifteenBytes));
}

TEST_F(LivingProcesses, CountThisProgramToo) {
    EXPECT_THAT(scan(), has("linux_processes_tests"));
}

} // namespace
} // namespace quelby
