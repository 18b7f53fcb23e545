#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_proc.h"
#include "listing_lines.h"
#include "platform/linux/processes/proc_process_lister.h"
#include "support/descriptor_limit.h"

namespace quelby {
namespace {

// Every descriptor that is left.
std::vector<FileDescriptor> allDescriptors() {
    std::vector<FileDescriptor> all;
    for (;;) {
        FileDescriptor next(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        if (!next.isOpen()) {
            return all;
        }
        all.push_back(std::move(next));
    }
}

class DescriptorShortage : public testing::Test {
protected:
    DescriptorShortage() { proc_.setUptime(1000); }

    void setProcesses(int count, std::uint64_t usedTicks) {
        for (int pid = 1; pid <= count; ++pid) {
            proc_.set({pid, "editor", usedTicks});
        }
    }

    std::vector<ListedLine> lookAfter(double seconds) {
        time_.monotonicSeconds += seconds;
        static_cast<void>(lister_.cpuListing());
        return listed(lister_.topListing());
    }

    // Counters that grow show that no file is read from a stale place.
    void expectAllIn(const std::vector<ListedLine>& lines, std::size_t count, double share) {
        EXPECT_EQ(lines.size(), count);
        EXPECT_THAT(lines, testing::Each(ListedLine{share, "editor"}));
    }

    FakeProc proc_;
    ScanTime time_;
    ProcProcessLister lister_{proc_.root(), [this] { return time_; }};
    const std::uint64_t second_ = static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK));
};

TEST_F(DescriptorShortage, DoesNotHinderManyProcesses) {
    const DescriptorLimit limit(1024);
    setProcesses(10'000, 0);
    expectAllIn(lookAfter(0), 10'000, 0);
    setProcesses(10'000, second_);
    expectAllIn(lookAfter(2), 10'000, 50);
}

TEST_F(DescriptorShortage, LeavesAReserveToTheRestOfTheProgram) {
    const DescriptorLimit limit(512);
    setProcesses(600, 0);
    expectAllIn(lookAfter(0), 600, 0);
    EXPECT_EQ(allDescriptors().size(), 128U);
}

TEST_F(DescriptorShortage, KeepsNothingOpenWhereTheReserveIsAll) {
    const DescriptorLimit limit(100);
    setProcesses(200, 0);
    const auto before = allDescriptors().size();
    expectAllIn(lookAfter(0), 200, 0);
    EXPECT_EQ(allDescriptors().size(), before - 2); // the directory, and the spare one
}

TEST_F(DescriptorShortage, ByOthersIsEndured) {
    const DescriptorLimit limit(256);
    setProcesses(300, 0);
    expectAllIn(lookAfter(0), 300, 0);
    const auto others = allDescriptors();
    expectAllIn(lookAfter(2), 300, 0);
}

TEST_F(DescriptorShortage, ByOthersHidesNoNewProcess) {
    const DescriptorLimit limit(256);
    setProcesses(100, 0);
    expectAllIn(lookAfter(0), 100, 0);
    setProcesses(300, 0);
    auto others = allDescriptors();
    expectAllIn(lookAfter(2), 300, 0);
    expectAllIn(lookAfter(2), 300, 0);
    others.clear();
    setProcesses(300, second_);
    expectAllIn(lookAfter(2), 300, 50);
}

TEST_F(DescriptorShortage, PassesWithTheDescriptorsOfProcessesThatEnded) {
    const DescriptorLimit limit(256);
    const auto before = allDescriptors().size();
    setProcesses(50, 0);
    expectAllIn(lookAfter(0), 50, 0);
    EXPECT_LT(allDescriptors().size(), before - 50);
    for (int pid = 1; pid <= 50; ++pid) {
        proc_.remove(pid);
    }
    expectAllIn(lookAfter(2), 0, 0);
    EXPECT_EQ(allDescriptors().size(), before - 2);
}

} // namespace
} // namespace quelby
