#include "platform/macos/main_app_login_item.h"

#include <gmock/gmock.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

using fake::frameworks;
using testing::ElementsAre;

class MainAppLoginItemTest : public testing::Test {
protected:
    MainAppLoginItemTest() { frameworks() = {}; }

    MainAppLoginItem item;
};

TEST_F(MainAppLoginItemTest, RegistersTheMainApplication) {
    EXPECT_TRUE(item.registerProgram());
    EXPECT_THAT(frameworks().registrations, ElementsAre("register"));
}

TEST_F(MainAppLoginItemTest, UnregistersTheMainApplication) {
    EXPECT_TRUE(item.unregisterProgram());
    EXPECT_THAT(frameworks().registrations, ElementsAre("unregister"));
}

TEST_F(MainAppLoginItemTest, SaysWhereTheServiceManagerRefuses) {
    frameworks().registrationWorks = false;
    EXPECT_FALSE(item.registerProgram());
    EXPECT_FALSE(item.unregisterProgram());
}

TEST_F(MainAppLoginItemTest, LeavesNoObjectBehind) {
    const auto bothWays = [this] {
        static_cast<void>(item.registerProgram());
        static_cast<void>(item.unregisterProgram());
    };
    EXPECT_EQ(fake::objectsLeftBy(bothWays), 0);
    frameworks().registrationWorks = false;
    EXPECT_EQ(fake::objectsLeftBy(bothWays), 0);
}

} // namespace
} // namespace quelby
