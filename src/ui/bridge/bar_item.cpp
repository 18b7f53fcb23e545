#include "ui/bridge/bar_item.h"

#include <algorithm>

#include <QLinearGradient>
#include <QPainter>

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
        fraction_ = fraction;
        update();
        Q_EMIT fractionChanged();
    }
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
    QRectF filled = whole;
    filled.setWidth(whole.width() * fraction_);
    if (fromRight_) {
        filled.moveRight(whole.right());
    }
    painter->setPen(Qt::NoPen);
    drawPill(*painter, whole, track_);
    if (filled.width() > 0) {
        QLinearGradient gradient(filled.topLeft(), filled.topRight());
        gradient.setColorAt(fromRight_ ? 1 : 0, first_);
        gradient.setColorAt(fromRight_ ? 0 : 1, last_);
        drawPill(*painter, filled, gradient);
    }
}

} // namespace quelby
