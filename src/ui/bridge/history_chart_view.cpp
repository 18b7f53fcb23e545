#include "ui/bridge/history_chart_view.h"

#include <QPainter>

#include "ui/presentation/charts/history_chart.h"

namespace quelby {

void HistoryChartView::setPoints(const HistoryDataPointSeries& points) {
    points_ = points;
    redraw();
    Q_EMIT pointsChanged();
}

std::vector<ChartPoint> HistoryChartView::curve() const {
    return historyCurve(*points_, chartSize());
}

std::optional<HoverReadOut> HistoryChartView::readOutAt(std::size_t index) const {
    return historyReadOut(*points_, chartSize(), index);
}

void HistoryChartView::paintMarks(QPainter& painter, const ChartStyle& style) const {
    const auto labels = historyAxisLabels(*points_);
    painter.setFont(fontOf(style, style.axisSize, QFont::Normal));
    painter.setPen(style.axisColor);
    const QRectF chart(0, 0, chartSize().width, chartSize().height);
    painter.drawText(chart, Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(labels.maximum));
    painter.drawText(chart, Qt::AlignLeft | Qt::AlignBottom, QString::fromStdString(labels.minimum));
}

} // namespace quelby
