// A /proc in which one may not see everybody, and one whose processes are others at each look.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_proc.h"
#include "listing_lines.h"
#include "platform/linux/processes/proc_process_lister.h"
#include "support/ordinary_user.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

class CrowdedProc : public testing::Test {
protected:
    CrowdedProc() { crowd.setUptime(1000); }

    [[nodiscard]] static std::ptrdiff_t openDescriptors() {
        return std::distance(fs::directory_iterator("/proc/self/fd"), {});
    }

    FakeProc crowd;
    ScanTime now;
};

// As the kernel's "hidepid=noaccess" does it: the folder of another user's process is there and closed.
TEST_F(CrowdedProc, ShowsThoseThatMayBeSeen) {
    for (pid_t pid = 1; pid <= 3; ++pid) {
        crowd.set({pid, "editor"});
    }
    fs::permissions(crowd.root().parent_path(), fs::perms(0755));
    fs::permissions(crowd.folderOf(2), fs::perms::none);
    EXPECT_TRUE(doneByAnOrdinaryUser([&] {
        ProcProcessLister lister(crowd.root(), [this] { return now; });
        return lister.cpuListing() == "%CPU\n" &&
               lister.topListing() == " %CPU COMM\n 0.00 editor\n 0.00 editor\n";
    }));
    fs::permissions(crowd.folderOf(2), fs::perms::owner_all);
}

// As "hidepid=invisible" does it for somebody who has no process of his own there.
TEST_F(CrowdedProc, MayBeEmpty) {
    ProcProcessLister lister(crowd.root(), [this] { return now; });
    EXPECT_EQ(lister.cpuListing(), "%CPU\n");
    EXPECT_EQ(lister.topListing(), " %CPU COMM\n");
}

TEST_F(CrowdedProc, OfAForkBombCostsNothingThatStays) {
    constexpr int atATime = 100;
    ProcProcessLister lister(crowd.root(), [this] { return now; });
    static_cast<void>(lister.cpuListing());
    const auto before = openDescriptors();
    for (int look = 0; look < 20; ++look) {
        const pid_t first = 1 + look * atATime;
        for (pid_t pid = first; pid < first + atATime; ++pid) {
            crowd.set({pid, "bomb", 1});
        }
        fs::create_directory(crowd.folderOf(first + atATime)); // ended between being listed and being read
        now.monotonicSeconds += 3;
        static_cast<void>(lister.cpuListing());
        EXPECT_EQ(listed(lister.topListing()).size(), static_cast<std::size_t>(atATime));
        for (pid_t pid = first; pid <= first + atATime; ++pid) {
            crowd.remove(pid);
        }
    }
    static_cast<void>(lister.cpuListing());
    EXPECT_EQ(listed(lister.topListing()).size(), 0U);
    EXPECT_EQ(openDescriptors(), before);
}

} // namespace
} // namespace quelby
