#include "platform/linux/processes/proc_process_lister.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "fake_proc.h"
#include "listing_lines.h"

namespace quelby {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

std::uint64_t ticks(double seconds) {
    return static_cast<std::uint64_t>(seconds * static_cast<double>(::sysconf(_SC_CLK_TCK)));
}

class ProcProcessListerTest : public testing::Test {
protected:
    ProcProcessListerTest() { proc_.setUptime(100); }

    void pass(double seconds) {
        time_.monotonicSeconds += seconds;
        proc_.setUptime(100 + time_.monotonicSeconds);
    }

    std::vector<ListedLine> scan() {
        static_cast<void>(lister_.cpuListing());
        return listed(lister_.topListing());
    }

    FakeProc proc_;
    ScanTime time_;
    ProcProcessLister lister_{proc_.root(), [this] { return time_; }};
};

TEST_F(ProcProcessListerTest, ListsEveryProcessInPssManner) {
    proc_.set({2, "editor", ticks(25), ticks(0)});
    proc_.set({10, "Web Content", ticks(25), ticks(50)});
    proc_.set({300, "idle one", 0, ticks(50)});
    EXPECT_EQ(lister_.cpuListing(), "%CPU\n25.00\n50.00\n");
    EXPECT_EQ(lister_.topListing(), " %CPU COMM\n50.00 Web Content\n25.00 editor\n 0.00 idle one\n");
}

TEST_F(ProcProcessListerTest, GivesTheSharesSinceThePreviousLook) {
    proc_.set({2, "editor", ticks(25)});
    proc_.set({3, "idler", ticks(25)});
    EXPECT_THAT(scan(), ElementsAre(ListedLine{25, "editor"}, ListedLine{25, "idler"}));
    pass(2);
    proc_.set({2, "editor", ticks(26.5)});
    EXPECT_THAT(scan(), ElementsAre(ListedLine{75, "editor"}, ListedLine{0, "idler"}));
}

TEST_F(ProcProcessListerTest, AnswersBothListingsFromTheSameLook) {
    proc_.set({2, "editor", ticks(25)});
    static_cast<void>(lister_.cpuListing());
    pass(2);
    proc_.set({2, "editor", ticks(27)});
    proc_.set({3, "newcomer"});
    EXPECT_THAT(listed(lister_.topListing()), ElementsAre(ListedLine{25, "editor"}));
}

TEST_F(ProcProcessListerTest, LooksForTheTopListingWhereNothingWasLookedAtYet) {
    proc_.set({2, "editor", ticks(25)});
    EXPECT_THAT(listed(lister_.topListing()), ElementsAre(ListedLine{25, "editor"}));
}

TEST_F(ProcProcessListerTest, StartsAnewWhereAPidIsReused) {
    proc_.set({2, "editor"});
    scan();
    pass(100);
    proc_.set({2, "compiler", ticks(50), ticks(100)});
    EXPECT_THAT(scan(), ElementsAre(ListedLine{50, "compiler"}));
}

TEST_F(ProcProcessListerTest, ForgetsProcessesThatHaveEnded) {
    proc_.set({2, "editor", ticks(25)});
    proc_.set({3, "idler"});
    scan();
    proc_.remove(2);
    EXPECT_THAT(scan(), ElementsAre(ListedLine{0, "idler"}));
}

TEST_F(ProcProcessListerTest, SkipsProcessesThatCannotBeRead) {
    proc_.set({2, "editor"});
    proc_.write(3, "stat", "");
    proc_.write(4, "stat", "4 (cut) S 1 1");
    proc_.write(5, "cmdline", "no stat");
    EXPECT_THAT(scan(), ElementsAre(ListedLine{0, "editor"}));
}

TEST_F(ProcProcessListerTest, SkipsWhatIsNoProcess) {
    std::filesystem::create_directory(proc_.root() / "12x");
    std::filesystem::create_directory(proc_.root() / "-1");
    std::filesystem::create_directory(proc_.root() / "99999999999");
    EXPECT_THAT(scan(), ElementsAre());
    EXPECT_EQ(lister_.cpuListing(), "%CPU\n");
}

TEST_F(ProcProcessListerTest, ResolvesANameOnceAndAnewAfterItChanged) {
    proc_.set({2, "network-manager"});
    proc_.setExecutable(2, "/usr/bin/network-manager-applet");
    EXPECT_THAT(scan(), ElementsAre(ListedLine{0, "network-manager-applet"}));
    std::filesystem::remove(proc_.folderOf(2) / "exe");
    EXPECT_THAT(scan(), ElementsAre(ListedLine{0, "network-manager-applet"}));
    proc_.set({2, "editor"});
    EXPECT_THAT(scan(), ElementsAre(ListedLine{0, "editor"}));
    proc_.set({2, "network-manager"});
    EXPECT_THAT(scan(), ElementsAre(ListedLine{0, "network-manager"}));
}

TEST_F(ProcProcessListerTest, NeverBreaksALineForAName) {
    proc_.set({2, "a\\nb"});
    proc_.set({3, ""});
    EXPECT_EQ(lister_.topListing(), " %CPU COMM\n 0.00 a?b\n 0.00 ?\n");
}

TEST_F(ProcProcessListerTest, TakesTheUptimeOfItsOwnClockWhereTheFileIsMissing) {
    std::filesystem::remove(proc_.root() / "uptime");
    time_.uptimeSeconds = 50;
    proc_.set({2, "editor", ticks(25)});
    EXPECT_THAT(scan(), ElementsAre(ListedLine{50, "editor"}));
}

TEST_F(ProcProcessListerTest, IsNothingWithoutTheDirectoryAndRecovers) {
    proc_.set({2, "editor", ticks(25)});
    scan();
    proc_.removeRoot();
    EXPECT_EQ(lister_.cpuListing(), std::nullopt);
    EXPECT_EQ(lister_.topListing(), std::nullopt);
    proc_.makeRoot();
    proc_.setUptime(100);
    proc_.set({2, "compiler", ticks(75)});
    EXPECT_THAT(scan(), ElementsAre(ListedLine{75, "compiler"}));
}

TEST_F(ProcProcessListerTest, CountsEveryConfiguredProcessor) {
    EXPECT_EQ(lister_.logicalProcessors(), ::sysconf(_SC_NPROCESSORS_CONF));
    EXPECT_GE(lister_.logicalProcessors(), 1);
}

TEST(SystemTime, ReadsTheUptime) {
    EXPECT_EQ(parseUptime("350735.47 234388.90\n"), 350735.47);
    EXPECT_EQ(parseUptime(""), std::nullopt);
    EXPECT_EQ(parseUptime("soon 1\n"), std::nullopt);
}

} // namespace
} // namespace quelby
