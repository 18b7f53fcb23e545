#pragma once

#include <QObject>

#include "platform/run_loop.h"

namespace quelby {

// Qt's event loop of the thread that made this object. Intervals of a second and more may be off by a
// twentieth, so that the system can let several timers wake the processor together.
class QtRunLoop final : public RunLoop {
public:
    std::shared_ptr<RepeatingTimer> repeat(std::chrono::duration<double> interval,
                                           std::function<void()> action) override;
    void post(std::function<void()> action) override;

private:
    QObject owner_; // of the timers; what is posted goes with it
};

} // namespace quelby
