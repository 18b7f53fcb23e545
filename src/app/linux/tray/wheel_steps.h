#pragma once

#include <QString>

#include "app/linux/tray/tray_host.h"

namespace quelby::app {

// Turns of a wheel over the item, in steps of the figures.
class WheelSteps {
public:
    // How many figures further on, or back where negative, this turn leads: as its host sends it. What is less
    // than a step is kept for the next turn. Only the wheel that scrolls up and down counts.
    [[nodiscard]] int turned(int delta, const QString& orientation, WheelHabit habit);

private:
    int rest_ = 0; // of an angle, towards further on
};

} // namespace quelby::app
