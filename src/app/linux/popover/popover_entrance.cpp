#include "app/linux/popover/popover_entrance.h"

namespace quelby::app {

namespace {

constexpr int milliseconds = 140;
constexpr double way = 10; // points

QPointF towards(Qt::Edge panel) {
    switch (panel) {
    case Qt::TopEdge:
        return {0, -way};
    case Qt::BottomEdge:
        return {0, way};
    case Qt::LeftEdge:
        return {-way, 0};
    case Qt::RightEdge:
        break;
    }
    return {way, 0};
}

} // namespace

PopoverEntrance::PopoverEntrance(QQuickItem& item) : item_(item) {
    progress_.setStartValue(0.0);
    progress_.setEndValue(1.0);
    progress_.setDuration(milliseconds);
    progress_.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&progress_, &QVariantAnimation::valueChanged, &progress_,
                     [this](const QVariant& value) { setProgress(value.toDouble()); });
}

void PopoverEntrance::begin(Qt::Edge panel) {
    progress_.stop();
    from_ = towards(panel);
    setProgress(0);
    progress_.start();
}

void PopoverEntrance::end() {
    progress_.stop();
    setProgress(1);
}

void PopoverEntrance::setProgress(double progress) {
    item_.setPosition(from_ * (1 - progress));
    item_.setOpacity(progress);
}

} // namespace quelby::app
