#include "platform/linux/processes/cpu_clock.h"
#include "support/child_process.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace quelby {
namespace {

TEST(CpuClock, MovesWhileTheProcessRuns) {
    const auto clock = CpuClock::of(::getpid());
    ASSERT_TRUE(clock);
    const auto before = clock->nanoseconds();
    EXPECT_GT(clock->nanoseconds(), before);
}

TEST(CpuClock, TellsNothingOfAProcessThatHasEnded) {
    ChildProcess child(rest);
    const auto clock = CpuClock::of(child.pid());
    ASSERT_TRUE(clock);
    EXPECT_TRUE(clock->nanoseconds());
    child.end();
    EXPECT_FALSE(clock->nanoseconds());
}

TEST(CpuClock, IsMissingWhereThereIsNoProcess) {
    ChildProcess child(rest);
    const auto pid = child.pid();
    child.end();
    EXPECT_FALSE(CpuClock::of(pid));
}

} // namespace
} // namespace quelby
