#pragma once

#include <functional>

#include <QQuickItem>
#include <QVariantAnimation>

namespace quelby::app {

// The popover's short way onto the screen and off it again: it comes out of the panel and becomes visible on the way, and
// goes back likewise.
class PopoverTransition {
public:
    // The item outlives this object.
    explicit PopoverTransition(QQuickItem& item);

    void comeIn(Qt::Edge panel);

    // From wherever it is now. Tells when it is out of sight, unless it is told something else before.
    void goOut(Qt::Edge panel, std::function<void()> gone);

    // It is there at once.
    void end();

private:
    void begin(Qt::Edge panel, double from, double to, int milliseconds);
    void setProgress(double progress);

    QQuickItem& item_;
    QPointF from_; // points, in which direction it is away
    QVariantAnimation progress_;
    std::function<void()> gone_; // empty on the way in
};

} // namespace quelby::app
