#pragma once

#include <qqmlintegration.h>

#include "ui/bridge/chart_item.h"
#include "ui/bridge/values.h"

namespace quelby {

// The curve of the battery's health, with the line through it where there is one.
// The base is named in full for the tools of QML, which do not look into namespaces.
class HealthChartView : public quelby::ChartItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quelby::HealthPointSeries days READ days WRITE setDays NOTIFY daysChanged)
    Q_PROPERTY(quelby::HealthPointSeries line READ line WRITE setLine NOTIFY lineChanged)

public:
    explicit HealthChartView(QQuickItem* parent = nullptr) : ChartItem(parent) {}

    [[nodiscard]] HealthPointSeries days() const { return days_; }

    void setDays(const HealthPointSeries& days);

    [[nodiscard]] HealthPointSeries line() const { return line_; }

    void setLine(const HealthPointSeries& line);

Q_SIGNALS:
    void daysChanged();
    void lineChanged();

private:
    [[nodiscard]] std::size_t count() const override { return days_->size(); }

    [[nodiscard]] std::vector<ChartPoint> curve() const override;
    [[nodiscard]] std::optional<HoverReadOut> readOutAt(std::size_t index) const override;
    void paintMarks(QPainter& painter, const ChartStyle& style) const override;

    HealthPointSeries days_;
    HealthPointSeries line_;
};

} // namespace quelby
