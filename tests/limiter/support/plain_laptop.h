// A laptop on external power whose one battery takes any level.
#pragma once

#include <gtest/gtest.h>

#include "limiter/support/makers.h"
#include "limiter/support/test_bench.h"

namespace quelby::limiter {

class PlainLaptop : public testing::Test, protected TestBench {
protected:
    PlainLaptop() {
        addLaptop(hardware);
        hardware[endThreshold].text = "100";
    }

    // Puts another battery in its place, which says nothing about limits.
    void changeBattery() {
        hardware.remove(supplies + "BAT0");
        addBattery(hardware, "BAT0");
    }

    // One that only the helper can hold.
    void useBehaviour() {
        changeBattery();
        addBehaviour(hardware, "BAT0", {"auto", "inhibit-charge"});
    }

    void calibrate() {
        wish.limit = true;
        wish.calibration = true;
    }
};

} // namespace quelby::limiter
