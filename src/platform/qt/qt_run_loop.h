#pragma once

#include <QObject>

#include "platform/run_loop.h"

namespace quelby {

// Qt's event loop of the thread that made this object. Timers are precise to the millisecond or so, and do
// not drift: energy is counted by intervals that are taken to be what was asked for.
class QtRunLoop final : public RunLoop {
public:
    std::shared_ptr<RepeatingTimer> repeat(std::chrono::duration<double> interval,
                                           std::function<void()> action) override;
    void post(std::function<void()> action) override;

private:
    QObject owner_; // of the timers; what is posted goes with it
};

} // namespace quelby
