#include "app/linux/popover/popover_transition.h"

#include <utility>

namespace quelby::app {

namespace {

constexpr int wayIn = 140;  // ms
constexpr int wayOut = 100; // ms
constexpr double way = 10;  // points

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

PopoverTransition::PopoverTransition(QQuickItem& item) : item_(item) {
    progress_.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&progress_, &QVariantAnimation::valueChanged, &progress_,
                     [this](const QVariant& value) { setProgress(value.toDouble()); });
    QObject::connect(&progress_, &QVariantAnimation::finished, &progress_, [this] {
        if (const auto gone = std::exchange(gone_, nullptr)) {
            gone();
        }
    });
}

void PopoverTransition::comeIn(Qt::Edge panel) {
    gone_ = nullptr;
    begin(panel, 0, 1, wayIn);
}

void PopoverTransition::goOut(Qt::Edge panel, std::function<void()> gone) {
    gone_ = std::move(gone);
    begin(panel, item_.opacity(), 0, wayOut);
}

void PopoverTransition::begin(Qt::Edge panel, double from, double to, int milliseconds) {
    progress_.stop();
    from_ = towards(panel);
    progress_.setStartValue(from);
    progress_.setEndValue(to);
    progress_.setDuration(milliseconds);
    setProgress(from);
    progress_.start();
}

void PopoverTransition::end() {
    gone_ = nullptr;
    progress_.stop();
    setProgress(1);
}

void PopoverTransition::setProgress(double progress) {
    item_.setPosition(from_ * (1 - progress));
    item_.setOpacity(progress);
}

} // namespace quelby::app
