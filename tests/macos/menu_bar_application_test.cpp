#include "app/macos/menu_bar_application.h"

#include <gmock/gmock.h>

#include "macos/doubles/app_kit.h"
#include "macos/doubles/frameworks.h"

namespace quelby::app {
namespace {

using fake::appKit;
using testing::ElementsAre;

class MenuBarApplicationTest : public testing::Test {
protected:
    MenuBarApplicationTest() { fake::startAnew(); }
};

TEST_F(MenuBarApplicationTest, HasNeitherDockIconNorMenus) {
    becomeAccessory();
    EXPECT_THAT(appKit().calls, ElementsAre("setActivationPolicy accessory"));
}

TEST_F(MenuBarApplicationTest, ComesInFrontAndEndsAsTheSystemWouldDoIt) {
    activateApplication();
    terminateApplication();
    EXPECT_THAT(appKit().calls, ElementsAre("activate", "terminate"));
}

TEST_F(MenuBarApplicationTest, IsToldOfItsBeginningAndItsEndAsItsDelegateWouldBe) {
    std::vector<std::string> told;
    {
        const ApplicationEvents events({.didFinishLaunching = [&] { told.emplace_back("launched"); },
                                        .willTerminate = [&] { told.emplace_back("terminating"); }});
        fake::finishLaunching();
        fake::willTerminate();
    }
    EXPECT_THAT(told, ElementsAre("launched", "terminating"));
    fake::finishLaunching();
    fake::willTerminate();
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(MenuBarApplicationTest, LeavesNoObjectBehind) {
    EXPECT_EQ(fake::objectsLeftBy([] {
                  const ApplicationEvents events({.didFinishLaunching = [] {}, .willTerminate = [] {}});
                  fake::finishLaunching();
                  becomeAccessory();
                  activateApplication();
                  terminateApplication();
              }),
              0);
}

} // namespace
} // namespace quelby::app
