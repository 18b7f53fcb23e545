#include "platform/macos/apple_script_shell.h"

#include <gmock/gmock.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

using fake::frameworks;
using testing::ElementsAre;
using testing::IsEmpty;

class AppleScriptShellTest : public testing::Test {
protected:
    AppleScriptShellTest() { frameworks() = {}; }

    AppleScriptShell shell;
};

TEST_F(AppleScriptShellTest, RunsTheScriptAsItStands) {
    const std::string script = "do shell script \"echo \\\"Grüße\\\"\necho 2\" with administrator privileges";
    EXPECT_TRUE(shell.run(script));
    EXPECT_THAT(frameworks().scripts, ElementsAre(script));
}

TEST_F(AppleScriptShellTest, SaysWhereTheScriptOrTheUserFails) {
    frameworks().scriptsSucceed = false;
    EXPECT_FALSE(shell.run("error number -128"));
}

TEST_F(AppleScriptShellTest, SaysWhereTheTextIsNoScript) {
    frameworks().scriptsCompile = false;
    EXPECT_FALSE(shell.run("do what?"));
    EXPECT_THAT(frameworks().scripts, IsEmpty());
}

TEST_F(AppleScriptShellTest, RunsNothingThatIsNotUtf8) {
    EXPECT_FALSE(shell.run("do shell script \"echo \xFF\""));
    EXPECT_THAT(frameworks().scripts, IsEmpty());
}

TEST_F(AppleScriptShellTest, LeavesNoObjectBehind) {
    const auto run = [this] { static_cast<void>(shell.run("beep")); };
    EXPECT_EQ(fake::objectsLeftBy(run), 0);
    frameworks().scriptsSucceed = false;
    EXPECT_EQ(fake::objectsLeftBy(run), 0);
    frameworks().scriptsCompile = false;
    EXPECT_EQ(fake::objectsLeftBy(run), 0);
}

} // namespace
} // namespace quelby
