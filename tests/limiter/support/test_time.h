// Time that passes only when the helper sleeps.
#pragma once

#include <functional>

#include "limiter/program/clock.h"
#include "limiter/program/wakeups.h"

namespace quelby::limiter {

class TestTime final : public Clock, public Wakeups {
public:
    double now() override { return now_; }

    double awake() override { return awake_; }

    void watch(const Folder&) override { ++watches; }

    Wake wait(double seconds, bool listens) override {
        ++waits;
        return sleep ? sleep(seconds, listens) : Wake::stop;
    }

    bool forgetFolder() override { return std::exchange(configWasWritten, false); }

    void pass(double seconds) {
        now_ += seconds;
        awake_ += seconds;
    }

    void passAsleep(double seconds) { now_ += seconds; }

    // What the test makes of a pause; it lets the time pass itself. Stops the helper where there is none.
    std::function<Wake(double seconds, bool listens)> sleep;
    bool configWasWritten = false;
    int watches = 0;
    int waits = 0;

private:
    double now_ = 1'700'000'000;
    double awake_ = 500;
};

} // namespace quelby::limiter
