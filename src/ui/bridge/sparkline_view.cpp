#include "ui/bridge/sparkline_view.h"

#include <QPainter>

#include "ui/presentation/charts/sparkline.h"

namespace quelby {

void SparklineView::setSamples(const WattsSeries& samples) {
    samples_ = samples;
    redraw();
    Q_EMIT samplesChanged();
}

ColorValue SparklineView::dotInk() const {
    const auto dot = newestDot(*samples_, chartSize());
    return dot ? ColorValue(dot->color) : ColorValue();
}

void SparklineView::setDotColor(const QColor& color) {
    dotColor_ = color;
    update();
    Q_EMIT dotColorChanged();
}

std::vector<ChartPoint> SparklineView::curve() const {
    return sparkline(*samples_, chartSize());
}

std::optional<HoverReadOut> SparklineView::readOutAt(std::size_t index) const {
    return sparklineReadOut(*samples_, chartSize(), index);
}

void SparklineView::paintMarks(QPainter& painter, const ChartStyle& style) const {
    const auto dot = newestDot(*samples_, chartSize());
    if (!dot || hoverIndex() >= 0) {
        return;
    }
    const qreal radius = style.dotDiameter / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(dotColor_);
    painter.drawEllipse(QPointF(dot->point.x, dot->point.y), radius, radius);
}

} // namespace quelby
