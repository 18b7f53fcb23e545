#pragma once

#include <cmath>
#include <optional>

#include "ui/bridge/gliding.h"

namespace quelby {

// A part of a whole (0 to 1) that glides to each new value. The first one is shown at once.
// The base is named in full for the tools of QML, which do not look into namespaces.
class GlidingNumber : public quelby::Gliding {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(qreal value READ value NOTIFY valueChanged)

public:
    using Gliding::Gliding;

    [[nodiscard]] qreal target() const { return target_.value_or(0); }

    void setTarget(qreal target) {
        if (target == target_) {
            return;
        }
        const bool glides = canGlide() && target_ && std::abs(target - value_) >= smallestGlide;
        from_ = glides ? value_ : target;
        target_ = target;
        setOut(glides);
        Q_EMIT targetChanged();
    }

    [[nodiscard]] qreal value() const { return value_; }

Q_SIGNALS:
    void targetChanged();
    void valueChanged();

protected:
    void show() override {
        const double progress = shownProgress();
        const qreal value = progress < 1 ? from_ + (target() - from_) * progress : target();
        if (value != value_) {
            value_ = value;
            Q_EMIT valueChanged();
        }
    }

private:
    qreal from_ = 0;
    std::optional<qreal> target_; // none yet
    qreal value_ = 0;
};

} // namespace quelby
