#include "platform/battery_settings.h"

#include <gmock/gmock.h>

#include "macos/doubles/frameworks.h"

namespace quelby {
namespace {

TEST(OpenBatterySettings, OpensTheirPaneOfTheSystemSettings) {
    fake::frameworks() = {};
    openBatterySettings();
    EXPECT_THAT(fake::frameworks().openedUrls,
                testing::ElementsAre("x-apple.systempreferences:com.apple.Battery-Settings.extension"));
}

TEST(OpenBatterySettings, LeavesNoObjectBehind) {
    EXPECT_EQ(fake::objectsLeftBy(openBatterySettings), 0);
}

} // namespace
} // namespace quelby
