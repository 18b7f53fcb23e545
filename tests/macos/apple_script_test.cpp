#include "platform/macos/apple_script.h"

#include <gmock/gmock.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

using fake::frameworks;
using testing::ElementsAre;
using testing::IsEmpty;

class AppleScriptTest : public testing::Test {
protected:
    AppleScriptTest() { frameworks() = {}; }
};

TEST_F(AppleScriptTest, RunsTheScriptAsItStands) {
    const std::string script = "do shell script \"echo \\\"Grüße\\\"\necho 2\" with administrator privileges";
    EXPECT_TRUE(runAppleScript(script));
    EXPECT_THAT(frameworks().scripts, ElementsAre(script));
}

TEST_F(AppleScriptTest, SaysWhereTheScriptOrTheUserFails) {
    frameworks().scriptsSucceed = false;
    EXPECT_FALSE(runAppleScript("error number -128"));
}

TEST_F(AppleScriptTest, SaysWhereTheTextIsNoScript) {
    frameworks().scriptsCompile = false;
    EXPECT_FALSE(runAppleScript("do what?"));
    EXPECT_THAT(frameworks().scripts, IsEmpty());
}

TEST_F(AppleScriptTest, RunsNothingThatIsNotUtf8) {
    EXPECT_FALSE(runAppleScript("do shell script \"echo \xFF\""));
    EXPECT_THAT(frameworks().scripts, IsEmpty());
}

TEST_F(AppleScriptTest, LeavesNoObjectBehind) {
    const auto run = [] { static_cast<void>(runAppleScript("beep")); };
    EXPECT_EQ(fake::objectsLeftBy(run), 0);
    frameworks().scriptsSucceed = false;
    EXPECT_EQ(fake::objectsLeftBy(run), 0);
    frameworks().scriptsCompile = false;
    EXPECT_EQ(fake::objectsLeftBy(run), 0);
}

} // namespace
} // namespace quelby
