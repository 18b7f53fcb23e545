#include "platform/linux/processes/process_listings.h"

#include <clocale>

#include <gtest/gtest.h>

namespace quelby {
namespace {

// On a scale of 10000 ticks a second, a lifetime of one second makes each tick a hundredth of a percent.
void add(std::vector<Process>& processes, std::uint64_t hundredths, const std::string& name) {
    auto& process = processes.emplace_back();
    process.pid = static_cast<pid_t>(processes.size());
    process.name = name;
    process.share.update({0, hundredths}, {1, 1}, {10000, 32});
}

std::vector<Process> someProcesses() {
    std::vector<Process> processes;
    add(processes, 0, "init");
    add(processes, 33, "terminal");
    add(processes, 5, "Web Content");
    add(processes, 0, "daemon");
    add(processes, 12345, "compiler");
    add(processes, 33, "editor");
    return processes;
}

TEST(CpuListing, HasAHeadingAndTheShareOfWhoeverHasUsedAny) {
    EXPECT_EQ(cpuListingText(someProcesses()), "%CPU\n 0.33\n 0.05\n123.45\n 0.33\n");
}

TEST(TopListing, HasTheHighestShareFirstAndEqualSharesByPid) {
    EXPECT_EQ(topListingText(someProcesses()), " %CPU COMM\n"
                                               "123.45 compiler\n"
                                               " 0.33 terminal\n"
                                               " 0.33 editor\n"
                                               " 0.05 Web Content\n"
                                               " 0.00 init\n"
                                               " 0.00 daemon\n");
}

TEST(TopListing, SortsByTheSharesAsTheyArePrinted) {
    std::vector<Process> processes(2);
    processes[0].name = "first";
    processes[0].share.update({0, 100'001}, {1, 1}, {1'000'000, 1});
    processes[1].name = "second";
    processes[1].share.update({0, 100'002}, {1, 1}, {1'000'000, 1});
    EXPECT_EQ(topListingText(processes), " %CPU COMM\n10.00 first\n10.00 second\n");
}

TEST(Listings, AreTheHeadingAloneWithoutProcesses) {
    EXPECT_EQ(cpuListingText({}), "%CPU\n");
    EXPECT_EQ(topListingText({}), " %CPU COMM\n");
}

TEST(Listings, DoNotFollowTheLocale) {
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    const auto text = cpuListingText(someProcesses());
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(text, cpuListingText(someProcesses()));
    EXPECT_EQ(text.find(','), std::string::npos);
}

} // namespace
} // namespace quelby
