#include "platform/linux/processes/stat_text.h"

#include <gtest/gtest.h>

#include "fake_proc.h"

namespace quelby {
namespace {

const std::string beforeTimes = "7 (editor) S 1 1 1 0 -1 4194560 99 98 97 96";

std::string statWithTimes(std::string_view user, std::string_view system, std::string_view start) {
    return fmt::format("{} {} {} 88 77 20 0 3 0 {} 0\n", beforeTimes, user, system, start);
}

TEST(StatText, GivesTheNameAndTheTimes) {
    const auto text = statOf({7, "editor", 301, 12345});
    const auto stat = parseStat(text);
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->escapedComm, "editor");
    EXPECT_EQ(stat->counters, (CpuCounters{12345, 301}));
}

TEST(StatText, KeepsBlanksBracketsAndNewlinesOfAName) {
    for (const std::string comm :
         {"Web Content", "a) S 1 (b", ")", "(", "", "(sd-pam)", "a\nb", "kworker/0:1-events"}) {
        const auto text = statOf({7, comm, 301, 12345});
        const auto stat = parseStat(text);
        ASSERT_TRUE(stat) << comm;
        EXPECT_EQ(stat->escapedComm, comm);
        EXPECT_EQ(stat->counters, (CpuCounters{12345, 301}));
    }
}

TEST(StatText, ReadsCountersOf64Bits) {
    const auto stat = parseStat(beforeTimes + " 9223372036854775808 1 0 0 20 0 1 0 18446744073709551615 0\n");
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->counters, (CpuCounters{18446744073709551615U, 9223372036854775809U}));
}

TEST(StatText, IsNothingWhereverItIsCutBeforeTheEndOfTheStartTime) {
    const std::string whole = beforeTimes + " 150 151 88 77 20 0 3 0 12345 ";
    ASSERT_TRUE(parseStat(whole));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(parseStat(whole.substr(0, length))) << length;
    }
}

TEST(StatText, NeedsNothingBehindTheStartTime) {
    EXPECT_TRUE(parseStat(beforeTimes + " 150 151 88 77 20 0 3 0 12345\n"));
}

TEST(StatText, IsNothingWhereATimeIsNoNumber) {
    ASSERT_TRUE(parseStat(statWithTimes("150", "151", "12345")));
    for (const std::string time : {"-1", "x", "1x", "+1", "", "1.5", "18446744073709551616"}) {
        EXPECT_FALSE(parseStat(statWithTimes(time, "151", "12345"))) << time;
        EXPECT_FALSE(parseStat(statWithTimes("150", time, "12345"))) << time;
        EXPECT_FALSE(parseStat(statWithTimes("150", "151", time))) << time;
    }
}

TEST(StatText, IsNothingWithoutTheBracketsOfAName) {
    EXPECT_FALSE(parseStat("7 editor S 1 1 1 0 -1 0 99 98 97 96 1 1 0 0 20 0 3 0 12345 0\n"));
    EXPECT_FALSE(parseStat(") 7 (editor S 1 1 1 0 -1 0 99 98 97 96 1 1 0 0 20 0 3 0 12345 0\n"));
}

TEST(UnescapedComm, UndoesWhatTheKernelWritesForNewlinesAndBackslashes) {
    EXPECT_EQ(unescapedComm(R"(a\nb)"), "a\nb");
    EXPECT_EQ(unescapedComm(R"(a\\nb)"), R"(a\nb)");
    EXPECT_EQ(unescapedComm(R"(\\\\)"), R"(\\)");
}

TEST(UnescapedComm, KeepsEveryOtherBackslash) {
    EXPECT_EQ(unescapedComm(R"(a\tb\)"), R"(a\tb\)");
    EXPECT_EQ(unescapedComm(""), "");
}

} // namespace
} // namespace quelby
