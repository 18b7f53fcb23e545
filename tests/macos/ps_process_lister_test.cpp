#include "platform/macos/ps_process_lister.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

// A lister of processes that is a script of the shell.
class PsDouble {
public:
    explicit PsDouble(const std::string& commands)
        : script_(folder_.write("ps", "#!/bin/sh\n" + commands + "\n")) {
        fs::permissions(script_, fs::perms::owner_all);
    }

    [[nodiscard]] PsProcessLister lister() const { return PsProcessLister(8, script_); }

private:
    TemporaryFolder folder_;
    fs::path script_;
};

const std::string printWords = R"(for word in "$@"; do echo "$word"; done)";

TEST(PsProcessLister, AsksForEveryProcessAndItsShareAlone) {
    EXPECT_EQ(PsDouble(printWords).lister().cpuListing(), "-A\n-o\n%cpu\n");
}

TEST(PsProcessLister, AsksForSharesAndShortNamesInOrder) {
    EXPECT_EQ(PsDouble(printWords).lister().topListing(), "-Arco\n%cpu,comm\n");
}

TEST(PsProcessLister, HandsOnTheOutputAsItStandsHoweverTheRunEnds) {
    EXPECT_EQ(PsDouble(R"(printf '%%CPU\n 12.5\n\377'; echo secret >&2; exit 3)").lister().cpuListing(),
              "%CPU\n 12.5\n\377");
}

TEST(PsProcessLister, ReadsMoreThanAPipeHolds) {
    const auto listing = PsDouble("head -c 1000000 /dev/zero").lister().topListing();
    ASSERT_TRUE(listing);
    EXPECT_EQ(listing->size(), 1'000'000U);
}

TEST(PsProcessLister, GivesNothingWhereTheListerCannotBeStarted) {
    PsProcessLister lister(8, "/nonexistent/ps");
    EXPECT_EQ(lister.cpuListing(), std::nullopt);
    EXPECT_EQ(lister.topListing(), std::nullopt);
}

TEST(PsProcessLister, HasNumbersPrintedPlainlyInEveryLanguage) {
    EXPECT_EQ(PsDouble("echo $LC_NUMERIC").lister().cpuListing(), "C\n");
    EXPECT_EQ(PsDouble("echo $LC_NUMERIC").lister().topListing(), "C\n");
}

TEST(PsProcessLister, KnowsTheNumberOfProcessors) {
    EXPECT_EQ(PsDouble("true").lister().logicalProcessors(), 8);
}

} // namespace
} // namespace quelby
