// The main thread's run loop. Everything happens in it; an action that runs out of memory ends there.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quelby {

class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;

    // The action is not called again. Harmless when repeated, and from within the action.
    virtual void invalidate() = 0;
};

class RunLoop {
public:
    virtual ~RunLoop() = default;

    // Calls the action again and again, the first time after one interval, until the timer is invalidated or
    // the run loop ends. The run loop owns the timer: letting go of the handle does not stop it.
    virtual std::shared_ptr<RepeatingTimer> repeat(std::chrono::duration<double> interval,
                                                   std::function<void()> action) = 0;

    // Calls the action once, on the main thread, after what is being done now.
    virtual void post(std::function<void()> action) = 0;
};

} // namespace quelby
