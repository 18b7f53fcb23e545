#pragma once

#include <QPointF>
#include <qqmlintegration.h>

#include "history/history_data_point.h"
#include "ui/bridge/chart_item.h"

namespace quelby {

// The curve of the consumption history, with its largest and smallest value.
// The base is named in full for the tools of QML, which do not look into namespaces.
class HistoryChartView : public quelby::ChartItem {
    Q_OBJECT
    QML_ELEMENT
    // Seconds since 1970-01-01 00:00 UTC and watts, oldest first.
    Q_PROPERTY(QList<QPointF> points READ points WRITE setPoints NOTIFY pointsChanged)

public:
    explicit HistoryChartView(QQuickItem* parent = nullptr) : ChartItem(parent) {}

    [[nodiscard]] QList<QPointF> points() const;
    void setPoints(const QList<QPointF>& points);

Q_SIGNALS:
    void pointsChanged();

private:
    [[nodiscard]] std::size_t count() const override { return data_.size(); }

    [[nodiscard]] std::vector<ChartPoint> curve() const override;
    [[nodiscard]] std::optional<HoverReadOut> readOutAt(std::size_t index) const override;
    void paintMarks(QPainter& painter, const ChartStyle& style) const override;

    std::vector<HistoryDataPoint> data_;
};

} // namespace quelby
