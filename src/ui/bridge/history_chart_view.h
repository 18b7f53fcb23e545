#pragma once

#include <qqmlintegration.h>

#include "ui/bridge/chart_item.h"
#include "ui/bridge/values.h"

namespace quelby {

// The curve of the consumption history, with its largest and smallest value.
// The base is named in full for the tools of QML, which do not look into namespaces.
class HistoryChartView : public quelby::ChartItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quelby::HistoryDataPointSeries points READ points WRITE setPoints NOTIFY pointsChanged)

public:
    explicit HistoryChartView(QQuickItem* parent = nullptr) : ChartItem(parent) {}

    [[nodiscard]] HistoryDataPointSeries points() const { return points_; }

    void setPoints(const HistoryDataPointSeries& points);

Q_SIGNALS:
    void pointsChanged();

private:
    [[nodiscard]] std::size_t count() const override { return points_->size(); }

    [[nodiscard]] std::vector<ChartPoint> curve() const override;
    [[nodiscard]] std::optional<HoverReadOut> readOutAt(std::size_t index) const override;
    void paintMarks(QPainter& painter, const ChartStyle& style) const override;

    HistoryDataPointSeries points_;
};

} // namespace quelby
