#pragma once

#include <QBasicTimer>
#include <QObject>
#include <qqmlintegration.h>

#include "ui/presentation/elements/glide.h"

namespace quelby {

// The beat of all that glides in a view, so that it moves together and each of its steps is drawn once. The clock
// stands still while nothing glides.
class GlideClock : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    // Beats once for each step of a glide that is still to come, from now on.
    void start();

    [[nodiscard]] bool isRunning() const { return beatsLeft_ > 0; }

    // What its timer does. Nothing while it stands still.
    void tick();

    // Whether it has a timer, as it has at first. Without one it beats only when it is ticked.
    void setTimed(bool timed) { timed_ = timed; }

Q_SIGNALS:
    void beat();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer timer_;
    int beatsLeft_ = 0;
    bool timed_ = true;
};

} // namespace quelby
