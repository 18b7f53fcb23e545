#pragma once

#include <QQuickItem>
#include <QVariantAnimation>

namespace quelby::app {

// The popover's short way onto the screen: it comes out of the panel and becomes visible on the way.
class PopoverEntrance {
public:
    // The item outlives this object.
    explicit PopoverEntrance(QQuickItem& item);

    void begin(Qt::Edge panel);

    // It is there at once.
    void end();

private:
    void setProgress(double progress);

    QQuickItem& item_;
    QPointF from_; // points, in which direction it was away before
    QVariantAnimation progress_;
};

} // namespace quelby::app
