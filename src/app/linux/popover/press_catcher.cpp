#include "app/linux/popover/press_catcher.h"

#include <QEnterEvent>
#include <QSurfaceFormat>

namespace quelby::app {

PressCatcher::PressCatcher(std::function<void()> pressed, std::function<void(QPointF place)> entered)
    : pressed_(std::move(pressed)), entered_(std::move(entered)) {
    QSurfaceFormat clear;
    clear.setAlphaBufferSize(8);
    setFormat(clear);
}

bool PressCatcher::event(QEvent* event) {
    const auto later = [this](std::function<void()> call) {
        QMetaObject::invokeMethod(this, std::move(call), Qt::QueuedConnection);
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        later(pressed_);
        return true;
    case QEvent::Enter:
        later([enter = entered_, place = static_cast<QEnterEvent*>(event)->position()] { enter(place); });
        return true;
    default:
        return QWindow::event(event);
    }
}

} // namespace quelby::app
