#include "ui/bridge/glide_clock.h"

namespace quelby {

void GlideClock::start() {
    beatsLeft_ = glideSteps - 1;
    if (timed_ && !timer_.isActive()) {
        timer_.start(glideStepDuration, Qt::PreciseTimer, this);
    }
}

void GlideClock::tick() {
    if (!isRunning()) {
        return;
    }
    --beatsLeft_;
    if (!isRunning()) {
        timer_.stop();
    }
    Q_EMIT beat();
}

void GlideClock::timerEvent(QTimerEvent* /*event*/) {
    tick();
}

} // namespace quelby
