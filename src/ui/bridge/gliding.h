#pragma once

#include <QObject>
#include <qqmlintegration.h>

#include "ui/presentation/elements/glide.h"

namespace quelby {

// What glides to each new value, in a few steps. Whoever animates it runs `progress` evenly from 0 to 1 when it has
// departed. Where it is not animated, and where nobody would see it glide, the new value is shown at once.
class Gliding : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool animated READ animated WRITE setAnimated NOTIFY animatedChanged)
    Q_PROPERTY(qreal progress READ progress WRITE setProgress NOTIFY progressChanged)

public:
    using QObject::QObject;

    [[nodiscard]] bool animated() const { return animated_; }

    void setAnimated(bool animated) {
        if (animated != animated_) {
            animated_ = animated;
            Q_EMIT animatedChanged();
        }
    }

    [[nodiscard]] qreal progress() const { return progress_; }

    void setProgress(qreal progress) {
        if (progress != progress_) {
            progress_ = progress;
            show();
            Q_EMIT progressChanged();
        }
    }

Q_SIGNALS:
    void animatedChanged();
    void progressChanged();
    void departed();

protected:
    // To a new target. What does not glide has its target for its beginning as well, because the glide before it
    // may still go on.
    void setOut(bool glides) {
        progress_ = glides ? 0 : 1;
        show();
        if (glides) {
            Q_EMIT departed();
        }
    }

    [[nodiscard]] double shownProgress() const { return glided(progress_); }

    virtual void show() = 0;

private:
    bool animated_ = true;
    qreal progress_ = 1;
};

} // namespace quelby
