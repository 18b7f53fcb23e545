#pragma once

#include <qqmlintegration.h>

#include "ui/bridge/chart_item.h"
#include "ui/bridge/values.h"

namespace quelby {

// The live trend, with a dot at its newest sample while no other is looked at.
// The base is named in full for the tools of QML, which do not look into namespaces.
class SparklineView : public quelby::ChartItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        quelby::WattsSeries samples READ samples WRITE setSamples NOTIFY samplesChanged) // W, newest last
    Q_PROPERTY(quelby::ColorValue dotInk READ dotInk NOTIFY samplesChanged)
    Q_PROPERTY(QColor dotColor READ dotColor WRITE setDotColor NOTIFY dotColorChanged)

public:
    explicit SparklineView(QQuickItem* parent = nullptr) : ChartItem(parent) {}

    [[nodiscard]] WattsSeries samples() const { return samples_; }

    void setSamples(const WattsSeries& samples);

    // What the dot's colour means; what it looks like is said by dotColor.
    [[nodiscard]] ColorValue dotInk() const;

    [[nodiscard]] QColor dotColor() const { return dotColor_; }

    void setDotColor(const QColor& color);

Q_SIGNALS:
    void samplesChanged();
    void dotColorChanged();

private:
    [[nodiscard]] std::size_t count() const override { return samples_->size(); }

    [[nodiscard]] std::vector<ChartPoint> curve() const override;
    [[nodiscard]] std::optional<HoverReadOut> readOutAt(std::size_t index) const override;
    void paintMarks(QPainter& painter, const ChartStyle& style) const override;

    WattsSeries samples_;
    QColor dotColor_;
};

} // namespace quelby
