#include "ui/bridge/history_chart_view.h"

#include <QPainter>

#include "base/arithmetic.h"
#include "ui/presentation/history_chart.h"

namespace quelby {

QList<QPointF> HistoryChartView::points() const {
    QList<QPointF> points;
    for (const auto& point : data_) {
        points.append({point.date(), point.watts});
    }
    return points;
}

void HistoryChartView::setPoints(const QList<QPointF>& points) {
    data_.clear();
    for (const auto& point : points) {
        data_.push_back({truncated(point.x()), point.y()});
    }
    redraw();
    Q_EMIT pointsChanged();
}

std::vector<ChartPoint> HistoryChartView::curve() const {
    return historyCurve(data_, chartSize());
}

std::optional<HoverReadOut> HistoryChartView::readOutAt(std::size_t index) const {
    return historyReadOut(data_, chartSize(), index);
}

void HistoryChartView::paintMarks(QPainter& painter, const ChartStyle& style) const {
    const auto labels = historyAxisLabels(data_);
    painter.setFont(fontOf(style, style.axisSize, QFont::Normal));
    painter.setPen(style.axisColor);
    const QRectF chart(0, 0, chartSize().width, chartSize().height);
    painter.drawText(chart, Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(labels.maximum));
    painter.drawText(chart, Qt::AlignLeft | Qt::AlignBottom, QString::fromStdString(labels.minimum));
}

} // namespace quelby
