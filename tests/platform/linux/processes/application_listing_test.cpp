#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "fake_proc.h"
#include "listing_lines.h"
#include "platform/linux/processes/proc_process_lister.h"

namespace quelby {
namespace {

using testing::ElementsAre;

// A /proc a hundred seconds after the start, whose processes belong to applications with desktop entries.
class ApplicationListing : public testing::Test {
protected:
    ApplicationListing() { proc_.setUptime(100); }

    // A process of all its life that has used so much of a processor.
    void run(pid_t pid, const std::string& comm, double percent, const std::string& unit = "session.slice") {
        const auto ticks = percent * static_cast<double>(::sysconf(_SC_CLK_TCK));
        proc_.set({pid, comm, static_cast<std::uint64_t>(ticks)});
        move(pid, unit);
    }

    void move(pid_t pid, const std::string& unit) {
        proc_.write(pid, "cgroup", "0::/user.slice/app.slice/" + unit + "\n");
    }

    std::vector<ListedLine> listing() {
        static_cast<void>(lister_.cpuListing());
        return listed(lister_.applicationListing());
    }

    FakeProc proc_;
    TemporaryFolder entries_;
    ScanTime time_;
    ProcProcessLister lister_{
        proc_.root(), [this] { return time_; }, {entries_.path() / "own", entries_.path() / "shared"}};
};

TEST_F(ApplicationListing, HasTheProcessesOfAnApplicationUnderItsName) {
    entries_.write("shared/org.example.Browser.desktop", "[Desktop Entry]\nName=Browser\n");
    run(2, "browser-bin", 20, "app-gnome-org.example.Browser-1.scope");
    run(3, "Web Content", 25, "app-gnome-org.example.Browser-1.scope");
    run(4, "editor", 30);
    run(5, "sleeper", 0);
    EXPECT_THAT(listing(),
                ElementsAre(ListedLine{20, "Browser"}, ListedLine{25, "Browser"}, ListedLine{30, "editor"}));
}

TEST_F(ApplicationListing, TakesTheUsersOwnEntryBeforeThoseOfTheSystem) {
    entries_.write("own/maps.desktop", "[Desktop Entry]\nName=My Maps\n");
    entries_.write("shared/maps.desktop", "[Desktop Entry]\nName=Maps\n");
    run(2, "maps", 10, "app-maps-1.scope");
    EXPECT_THAT(listing(), ElementsAre(ListedLine{10, "My Maps"}));
}

TEST_F(ApplicationListing, FindsAnEntryInAFolderOfItsOwn) {
    entries_.write("shared/kde/konsole.desktop", "[Desktop Entry]\nName=Konsole\n");
    run(2, "konsole", 10, "app-kde\\x2dkonsole-1.scope");
    EXPECT_THAT(listing(), ElementsAre(ListedLine{10, "Konsole"}));
}

TEST_F(ApplicationListing, KeepsShortNamesWhereNoEntryTellsABetterOne) {
    run(2, "unknown", 10, "app-unknown-1.scope");
    run(3, "escape", 8, "app-..\\x2fescape-1.scope");
    proc_.set({4, "bare", static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK))}); // without a control group
    EXPECT_THAT(listing(),
                ElementsAre(ListedLine{10, "unknown"}, ListedLine{8, "escape"}, ListedLine{1, "bare"}));
}

TEST_F(ApplicationListing, NoticesThatADesktopMovesWhatItHasJustStarted) {
    entries_.write("shared/maps.desktop", "[Desktop Entry]\nName=Maps\n");
    run(2, "maps", 10);
    EXPECT_THAT(listing(), ElementsAre(ListedLine{10, "maps"}));
    move(2, "app-maps-1.scope");
    EXPECT_THAT(listing(), ElementsAre(ListedLine{10, "Maps"}));
    move(2, "app-other-1.scope");
    EXPECT_THAT(listing(), ElementsAre(ListedLine{10, "Maps"})) << "looked at twice, and no more";
}

TEST_F(ApplicationListing, LooksAnewAtAProcessThatHasBecomeAnotherProgram) {
    entries_.write("shared/maps.desktop", "[Desktop Entry]\nName=Maps\n");
    run(2, "launcher", 10);
    static_cast<void>(listing());
    static_cast<void>(listing());
    run(2, "maps", 10, "app-maps-1.scope");
    EXPECT_THAT(listing(), ElementsAre(ListedLine{10, "Maps"}));
}

TEST_F(ApplicationListing, IsNothingBeforeThereWasALook) {
    EXPECT_EQ(lister_.applicationListing(), std::nullopt);
    proc_.removeRoot();
    EXPECT_EQ(lister_.cpuListing(), std::nullopt);
    EXPECT_EQ(lister_.applicationListing(), std::nullopt);
}

} // namespace
} // namespace quelby
