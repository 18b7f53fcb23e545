#include "ui/bridge/bar_item.h"

#include <algorithm>

#include <QLinearGradient>
#include <QPainter>
#include <QQuickWindow>

#include "ui/presentation/elements/filled_width.h"

namespace quelby {

namespace {

void drawPill(QPainter& painter, const QRectF& area, const QBrush& brush) {
    const qreal radius = std::min(area.width(), area.height()) / 2;
    painter.setBrush(brush);
    painter.drawRoundedRect(area, radius, radius);
}

} // namespace

BarItem::BarItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void BarItem::setFraction(qreal fraction) {
    if (fraction != fraction_) {
        const bool looksDifferent = filled(fraction) != filled(fraction_);
        fraction_ = fraction;
        if (looksDifferent) {
            update();
        }
        Q_EMIT fractionChanged();
    }
}

qreal BarItem::filled(qreal fraction) const {
    return filledWidth(fraction, width(), window() ? window()->effectiveDevicePixelRatio() : 1);
}

void BarItem::setFromRight(bool fromRight) {
    if (fromRight != fromRight_) {
        fromRight_ = fromRight;
        update();
        Q_EMIT fromRightChanged();
    }
}

void BarItem::setColor(QColor& which, const QColor& color) {
    if (color != which) {
        which = color;
        update();
        Q_EMIT colorsChanged();
    }
}

void BarItem::paint(QPainter* painter) {
    const QRectF whole = boundingRect();
    QRectF fill = whole;
    fill.setWidth(filled(fraction_));
    if (fromRight_) {
        fill.moveRight(whole.right());
    }
    painter->setPen(Qt::NoPen);
    drawPill(*painter, whole, track_);
    if (fill.width() > 0) {
        QLinearGradient gradient(fill.topLeft(), fill.topRight());
        gradient.setColorAt(fromRight_ ? 1 : 0, first_);
        gradient.setColorAt(fromRight_ ? 0 : 1, last_);
        drawPill(*painter, fill, gradient);
    }
}

} // namespace quelby
