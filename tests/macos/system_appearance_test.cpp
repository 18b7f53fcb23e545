#include "app/macos/system_appearance.h"

#include <gtest/gtest.h>

#include "macos/doubles/app_kit.h"
#include "macos/doubles/frameworks.h"

namespace quelby::app {
namespace {

using fake::appKit;

class SystemAppearanceTest : public testing::Test {
protected:
    SystemAppearanceTest() { fake::startAnew(); }
};

TEST_F(SystemAppearanceTest, IsLightAnimatedAndOnTheMaterialBeforeAnybodyHasChangedIt) {
    const auto appearance = systemAppearance();
    EXPECT_FALSE(appearance.dark);
    EXPECT_TRUE(appearance.animated);
    EXPECT_FALSE(appearance.contrast);
    EXPECT_EQ(appearance.backdrop, Backdrop::material);
}

TEST_F(SystemAppearanceTest, IsWhatThePersonHasChosen) {
    appKit().systemIsDark = true;
    appKit().reducesMotion = true;
    appKit().increasesContrast = true;
    appKit().reducesTransparency = true;
    const auto appearance = systemAppearance();
    EXPECT_TRUE(appearance.dark);
    EXPECT_FALSE(appearance.animated);
    EXPECT_TRUE(appearance.contrast);
    EXPECT_EQ(appearance.backdrop, Backdrop::none);
}

TEST_F(SystemAppearanceTest, HasTheUsersAccentColor) {
    appKit().accent = {{0, 0.5, 1}};
    EXPECT_EQ(systemAppearance().accent, 0x0080FFU);
    appKit().accent = {{1.2, -0.1, 0.2}}; // of a screen that shows more than sRGB
    EXPECT_EQ(systemAppearance().accent, 0xFF0033U);
    appKit().accent.reset();
    EXPECT_EQ(systemAppearance().accent, std::nullopt);
}

TEST_F(SystemAppearanceTest, IsHeardWhenItChangesAndAsLongAsSomebodyListens) {
    int changes = 0;
    {
        const SystemAppearanceListener listener([&] { ++changes; });
        fake::systemTurns(true);
        EXPECT_EQ(changes, 1);
        fake::colorsChange();
        EXPECT_EQ(changes, 2);
        fake::accessibilityChanges();
        EXPECT_EQ(changes, 3);
    }
    fake::systemTurns(false);
    fake::colorsChange();
    fake::accessibilityChanges();
    EXPECT_EQ(changes, 3);
}

TEST_F(SystemAppearanceTest, LeavesNoObjectBehind) {
    EXPECT_EQ(fake::objectsLeftBy([] {
                  const SystemAppearanceListener listener([] { static_cast<void>(systemAppearance()); });
                  fake::systemTurns(true);
                  fake::colorsChange();
                  fake::accessibilityChanges();
              }),
              0);
}

} // namespace
} // namespace quelby::app
