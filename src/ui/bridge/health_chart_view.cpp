#include "ui/bridge/health_chart_view.h"

#include <QPainter>

#include "ui/presentation/energy/health_chart.h"

namespace quelby {

void HealthChartView::setDays(const HealthPointSeries& days) {
    days_ = days;
    redraw();
    Q_EMIT daysChanged();
}

void HealthChartView::setLine(const HealthPointSeries& line) {
    line_ = line;
    redraw();
    Q_EMIT lineChanged();
}

std::vector<ChartPoint> HealthChartView::curve() const {
    return healthCurve(*days_, chartSize());
}

std::optional<HoverReadOut> HealthChartView::readOutAt(std::size_t index) const {
    return healthReadOut(*days_, chartSize(), index);
}

void HealthChartView::paintMarks(QPainter& painter, const ChartStyle& style) const {
    const auto ends = healthLine(*line_, *days_, chartSize());
    if (ends.size() == 2) {
        painter.setPen(QPen(style.axisColor, 1, Qt::DashLine));
        painter.drawLine(QPointF(ends[0].x, ends[0].y), QPointF(ends[1].x, ends[1].y));
    }
    const auto labels = healthLabels(*days_); // where a curve that falls leaves room
    painter.setFont(fontOf(style, style.axisSize, QFont::Normal));
    painter.setPen(style.axisColor);
    const QRectF chart(0, 0, chartSize().width, chartSize().height);
    painter.drawText(chart, Qt::AlignRight | Qt::AlignTop, QString::fromStdString(labels.maximum));
    painter.drawText(chart, Qt::AlignLeft | Qt::AlignBottom, QString::fromStdString(labels.minimum));
}

} // namespace quelby
