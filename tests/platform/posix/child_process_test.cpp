#include "platform/posix/child_process.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quelby {
namespace {

TEST(RunToTheEnd, GivesTheExitStatus) {
    EXPECT_EQ(runToTheEnd({"/bin/sh", "-c", "exit 0"}), 0);
    EXPECT_EQ(runToTheEnd({"/bin/sh", "-c", "exit 7"}), 7);
    EXPECT_EQ(runToTheEnd({"/bin/sh", "-c", "kill -TERM $$"}), 128 + 15);
}

TEST(RunToTheEnd, LooksForThePathlessProgramAndHandsOnEveryWord) {
    EXPECT_EQ(runToTheEnd({"test", "a b", "=", "a b"}), 0);
    EXPECT_EQ(runToTheEnd({"test", "a", "=", "b"}), 1);
}

TEST(RunToTheEnd, GivesNothingWhereTheProgramCannotBeStarted) {
    EXPECT_EQ(runToTheEnd({"/nonexistent/program"}), std::nullopt);
    EXPECT_EQ(runToTheEnd({"no-such-program-anywhere"}), std::nullopt);
    EXPECT_EQ(runToTheEnd({}), std::nullopt);
}

TEST(RunToTheEnd, LetsTheProgramReadNothing) {
    EXPECT_EQ(runToTheEnd({"/bin/sh", "-c", "! read line"}), 0);
}

} // namespace
} // namespace quelby
