#pragma once

#include <QObject>
#include <QPointer>
#include <qqmlintegration.h>

#include "ui/bridge/glide_clock.h"
#include "ui/presentation/elements/glide.h"

namespace quelby {

// What glides to each new value, a step further with each beat of its clock. Where it has no clock, and where nobody
// would see it glide, the new value is shown at once.
class Gliding : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(quelby::GlideClock* clock READ clock WRITE setClock NOTIFY clockChanged) // may be null

public:
    using QObject::QObject;

    [[nodiscard]] GlideClock* clock() const { return clock_; }

    // Without one, what is under way is there at once.
    void setClock(GlideClock* clock) {
        if (clock == clock_) {
            return;
        }
        if (clock_) {
            clock_->disconnect(this);
        }
        clock_ = clock;
        if (clock_) {
            QObject::connect(clock_, &GlideClock::beat, this, &Gliding::advance);
        } else {
            arrive();
        }
        Q_EMIT clockChanged();
    }

Q_SIGNALS:
    void clockChanged();

protected:
    [[nodiscard]] bool canGlide() const { return clock_ != nullptr; }

    // To a new target.
    void setOut(bool glides) {
        steps_ = glides ? 1 : glideSteps;
        show();
        if (glides) {
            clock_->start();
        }
    }

    [[nodiscard]] double shownProgress() const { return glided(steps_); }

    virtual void show() = 0;

private:
    void advance() {
        if (steps_ < glideSteps) {
            ++steps_;
            show();
        }
    }

    void arrive() {
        if (steps_ < glideSteps) {
            steps_ = glideSteps;
            show();
        }
    }

    QPointer<GlideClock> clock_;
    int steps_ = glideSteps; // of the last glide that are shown
};

} // namespace quelby
