#include "app/linux/tray/wheel_steps.h"

#include <algorithm>

namespace quelby::app {

namespace {

constexpr int wholeStep = 120;
constexpr int farthest = 100 * wholeStep; // no wheel turns that far at once

} // namespace

int WheelSteps::turned(int delta, const QString& orientation, WheelHabit habit) {
    if (delta == 0 || orientation.compare(QLatin1String("horizontal"), Qt::CaseInsensitive) == 0) {
        return 0;
    }
    const int down = std::clamp(delta, -farthest, farthest) * (habit.downIsPositive ? 1 : -1);
    if (habit.unit == WheelUnit::notch) {
        return down > 0 ? 1 : -1;
    }
    const bool turnedBack = (rest_ > 0) != (down > 0);
    const int angle = (turnedBack ? 0 : rest_) + down;
    rest_ = angle % wholeStep;
    return angle / wholeStep;
}

} // namespace quelby::app
