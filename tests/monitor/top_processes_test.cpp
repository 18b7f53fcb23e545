#include "monitor/top_processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Row = ProcessInfo_Energy;

TEST(TopProcesses, GetTheirPartOfTheCpuPowerInTheListersOrder) {
    const auto rows = topProcesses("%CPU COMM\n 25.0 editor\n 12.5 mailer\n  0.0 indexer\n", 10.0, 2.0);
    EXPECT_THAT(*rows,
                ElementsAre(Row{"editor", 25.0, 5.0}, Row{"mailer", 12.5, 2.5}, Row{"indexer", 0.0, 0.0}));
}

TEST(TopProcesses, AreNotSortedAgain) {
    const auto rows = topProcesses("%CPU COMM\n1.0 a\n3.0 b\n2.0 c\n", 1.0, 1.0);
    EXPECT_THAT(*rows, ElementsAre(Row{"a", 1.0, 1.0}, Row{"b", 3.0, 3.0}, Row{"c", 2.0, 2.0}));
}

TEST(TopProcesses, GetNoWattsWithoutCpuUsage) {
    EXPECT_THAT(*topProcesses("%CPU COMM\n25.0 editor\n", 0.0, 2.0), ElementsAre(Row{"editor", 25.0, 0.0}));
    EXPECT_THAT(*topProcesses("%CPU COMM\n25.0 editor\n", -1.0, 2.0), ElementsAre(Row{"editor", 25.0, 0.0}));
}

TEST(TopProcesses, GetWattsForTheSmallestShareAndNoneForLess) {
    EXPECT_THAT(*topProcesses("%CPU COMM\n0.1 a\n-0.1 b\n", 0.1, 2.0),
                ElementsAre(Row{"a", 0.1, 2.0}, Row{"b", -0.1, 0.0}));
}

TEST(TopProcesses, KeepTheBlanksWithinTheirNames) {
    const auto rows = topProcesses("%CPU COMM\n 3.2 Web Content Helper\n1.0  two before\n", 1.0, 1.0);
    EXPECT_THAT(*rows, ElementsAre(Row{"Web Content Helper", 3.2, 3.2}, Row{" two before", 1.0, 1.0}));
}

TEST(TopProcesses, PassOverLinesWithoutAShareAndAName) {
    const auto rows =
        topProcesses("%CPU COMM\n9.0\n8.0 \nabc def\n\n \t\n7x name\n6.0\tname\n5.0 good\n", 1.0, 1.0);
    EXPECT_THAT(*rows, ElementsAre(Row{"good", 5.0, 5.0}));
}

TEST(TopProcesses, AreTheFirstFiveGoodLines) {
    const auto rows = topProcesses("%CPU COMM\n7 a\nx\n6 b\n5 c\n4 d\n3 e\n2 f\n1 g\n", 100.0, 0.0);
    ASSERT_EQ(rows->size(), 5U);
    EXPECT_EQ(rows->back().name, "e");
}

TEST(TopProcesses, OfAListingWithoutDataLinesAreNone) {
    EXPECT_THAT(*topProcesses("%CPU COMM\n", 1.0, 1.0), IsEmpty());
    EXPECT_THAT(*topProcesses("%CPU COMM", 1.0, 1.0), IsEmpty());
    EXPECT_THAT(*topProcesses("", 1.0, 1.0), IsEmpty());
}

TEST(TopProcesses, OfAListingThatIsNotUtf8AreUnknown) {
    EXPECT_EQ(topProcesses("%CPU COMM\n1.0 a\n1.0 \xC3(\n", 1.0, 1.0), std::nullopt);
}

} // namespace
} // namespace quelby
