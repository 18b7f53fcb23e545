#include "app/linux/session/exit_guard.h"

#include <cstdio>
#include <cstdlib>
#include <optional>

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

// Runs in a process of its own.
[[noreturn]] void exitWithinGuard() {
    const ExitGuard guard([] { std::fputs("the last things", stderr); });
    std::exit(1); // NOLINT(concurrency-mt-unsafe): as a library would
}

[[noreturn]] void exitAfterGuard() {
    std::optional<ExitGuard> guard;
    guard.emplace([] { std::fputs("the last things", stderr); });
    guard.reset();
    std::exit(3); // NOLINT(concurrency-mt-unsafe)
}

TEST(ExitGuardDeathTest, DoesTheLastThingsAndEndsWell) {
    EXPECT_EXIT(exitWithinGuard(), testing::ExitedWithCode(0), "^the last things$");
}

TEST(ExitGuardDeathTest, LeavesAnExitAloneOnceItIsGone) {
    EXPECT_EXIT(exitAfterGuard(), testing::ExitedWithCode(3), "^$");
}

} // namespace
} // namespace quelby::app
