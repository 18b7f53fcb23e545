#include "platform/posix/child_process.h"

#include <cstdlib>
#include <filesystem>

#include <gmock/gmock.h>

#include "support/descriptor_limit.h"
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

TEST(OutputOf, GivesTheStandardOutputAlone) {
    EXPECT_EQ(outputOf({"/bin/sh", "-c", "echo one; echo two >&2; exit 3"}, {}), "one\n");
    EXPECT_EQ(outputOf({"/bin/sh", "-c", "true"}, {}), "");
}

TEST(OutputOf, WaitsForOutputLongerThanAPipeAndForTheEnd) {
    const auto output = outputOf({"/bin/sh", "-c", "head -c 300000 /dev/zero; echo last"}, {});
    ASSERT_TRUE(output);
    EXPECT_EQ(output->size(), 300'005U);
}

TEST(OutputOf, HandsOnTheEnvironmentThatItIsGiven) {
    EXPECT_EQ(outputOf({"/usr/bin/env"}, {"FIRST=1", "SECOND=a b"}), "FIRST=1\nSECOND=a b\n");
}

TEST(OutputOf, LetsTheProgramReadNothing) {
    EXPECT_EQ(outputOf({"/bin/sh", "-c", "read line || echo end"}, {}), "end\n");
}

TEST(OutputOf, GivesNothingWhereTheProgramCannotBeStarted) {
    EXPECT_EQ(outputOf({"/nonexistent/program"}, environmentVariables()), std::nullopt);
    EXPECT_EQ(outputOf({}, environmentVariables()), std::nullopt);
}

TEST(OutputOf, IsNothingWhereNoMoreFilesMayBeOpen) {
    const DescriptorLimit none(0);
    EXPECT_EQ(outputOf({"true"}, {}), std::nullopt);
}

TEST(OutputOf, LeavesNoDescriptorBehind) {
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const auto before = openFiles();
    EXPECT_TRUE(outputOf({"/bin/sh", "-c", "echo"}, {}));
    EXPECT_FALSE(outputOf({"/nonexistent/program"}, {}));
    EXPECT_EQ(openFiles(), before);
}

TEST(OutputOf, LetsTheChildInheritNoEndOfThePipe) {
    const TemporaryFolder folder;
    const auto list = (folder.path() / "list").string();
    EXPECT_EQ(runToTheEnd({"/bin/sh", "-c", "exec ls /proc/self/fd >" + list}), 0);
    EXPECT_EQ(outputOf({"/bin/sh", "-c", "exec ls /proc/self/fd"}, environmentVariables()),
              folder.read("list"));
}

TEST(EnvironmentVariables, AreThisProcessesOwn) {
    ::setenv("QUELBY_TEST", "a=b", 1);
    EXPECT_THAT(environmentVariables(), testing::Contains("QUELBY_TEST=a=b"));
    ::unsetenv("QUELBY_TEST");
}

} // namespace
} // namespace quelby
