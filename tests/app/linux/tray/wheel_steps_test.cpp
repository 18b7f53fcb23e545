#include "app/linux/tray/wheel_steps.h"

#include <climits>

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

struct HostNotch {
    const char* host;
    int down; // what it sends for one notch towards the person
};

// As the hosts were seen to do it.
constexpr HostNotch hostNotches[] = {{"gnome-shell", 1},     {"waybar", 1},          {"panel-6-systray", 1},
                                     {"xapp-sn-watcher", 1}, {"ayatana-indicat", 1}, {"kded5", -120},
                                     {"plasmashell", -120},  {"lxqt-panel", -120},   {"notification-ar", -1},
                                     {"unheard-of", -1}};

TEST(WheelSteps, GoOnDownwardsAndBackUpwardsWithEveryHost) {
    for (const auto& notch : hostNotches) {
        WheelSteps wheel;
        const auto habit = trayHost(notch.host).wheel;
        EXPECT_EQ(wheel.turned(notch.down, "vertical", habit), 1) << notch.host;
        EXPECT_EQ(wheel.turned(-notch.down, "vertical", habit), -1) << notch.host;
        EXPECT_EQ(wheel.turned(0, "vertical", habit), 0) << notch.host;
    }
}

TEST(WheelSteps, LeaveTheWheelThatTurnsSidewaysAlone) {
    for (const auto& notch : hostNotches) {
        WheelSteps wheel;
        for (const auto* const sideways : {"horizontal", "Horizontal"}) {
            EXPECT_EQ(wheel.turned(notch.down, sideways, trayHost(notch.host).wheel), 0) << notch.host;
        }
    }
}

constexpr WheelHabit fineWheel{WheelUnit::angle, false};
constexpr WheelHabit coarseWheel{WheelUnit::notch, true};

TEST(WheelSteps, AddUpWhatIsLessThanAStep) {
    WheelSteps wheel;
    EXPECT_EQ(wheel.turned(-40, "vertical", fineWheel), 0);
    EXPECT_EQ(wheel.turned(-79, "vertical", fineWheel), 0);
    EXPECT_EQ(wheel.turned(-1, "vertical", fineWheel), 1);
    EXPECT_EQ(wheel.turned(-119, "vertical", fineWheel), 0);
    EXPECT_EQ(wheel.turned(-121, "vertical", fineWheel), 2);
    EXPECT_EQ(wheel.turned(-360, "vertical", fineWheel), 3);
}

TEST(WheelSteps, ForgetTheRestWhereTheWheelTurnsBack) {
    WheelSteps wheel;
    EXPECT_EQ(wheel.turned(-119, "vertical", fineWheel), 0);
    EXPECT_EQ(wheel.turned(1, "vertical", fineWheel), 0);
    EXPECT_EQ(wheel.turned(-1, "vertical", fineWheel), 0);
    EXPECT_EQ(wheel.turned(-119, "vertical", fineWheel), 1);
    EXPECT_EQ(wheel.turned(119, "vertical", fineWheel), 0);
    EXPECT_EQ(wheel.turned(1, "vertical", fineWheel), -1);
}

TEST(WheelSteps, AreOneForANotchWhateverNumberComesWithIt) {
    WheelSteps wheel;
    for (const int delta : {1, 3, 15, 120, INT_MAX}) {
        EXPECT_EQ(wheel.turned(delta, "vertical", coarseWheel), 1);
        EXPECT_EQ(wheel.turned(-delta, "vertical", coarseWheel), -1);
    }
    EXPECT_EQ(wheel.turned(INT_MIN, "vertical", coarseWheel), -1);
}

TEST(WheelSteps, SurviveAnglesThatNoWheelTurns) {
    WheelSteps wheel;
    EXPECT_EQ(wheel.turned(INT_MIN, "vertical", fineWheel), 100);
    EXPECT_EQ(wheel.turned(INT_MAX, "vertical", fineWheel), -100);
}

} // namespace
} // namespace quelby::app
