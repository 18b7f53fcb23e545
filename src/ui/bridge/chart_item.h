// What both charts have in common: a filled area below a curve, and what is shown of the sample under the
// pointer. Where everything lies is decided by the presentation.
//
// The item is larger than its chart, by an overhang on each side, because dots and lines at the chart's very
// edge would otherwise be cut.
#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QQuickPaintedItem>
#include <qqmlintegration.h>

#include "ui/bridge/chart_style.h"
#include "ui/presentation/charts/chart_scale.h"

namespace quelby {

[[nodiscard]] QFont fontOf(const ChartStyle& style, qreal size, QFont::Weight weight);

class ChartItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the two charts are made of it")
    Q_PROPERTY(int hoverIndex READ hoverIndex NOTIFY hoverIndexChanged)
    Q_PROPERTY(QString readOut READ readOut NOTIFY hoverIndexChanged)
    Q_PROPERTY(qreal overhang READ overhang CONSTANT)
    Q_PROPERTY(
        quelby::ChartStyle* style READ style WRITE setStyle NOTIFY styleChanged) // none: nothing is drawn
    // From the top to the bottom of the area, at equal distances.
    Q_PROPERTY(QList<QColor> areaColors READ areaColors WRITE setAreaColors NOTIFY areaColorsChanged)

public:
    explicit ChartItem(QQuickItem* parent = nullptr);

    // The sample under the pointer; -1, as QML has it, for none.
    [[nodiscard]] int hoverIndex() const { return hoverIndex_; }

    [[nodiscard]] static qreal overhang() { return 4; }

    // What is shown of that sample, in words; empty for none.
    [[nodiscard]] QString readOut() const;

    // Moves the read-out as the pointer would; beyond the last sample shows none. For the keyboard.
    Q_INVOKABLE void hover(int index);

    [[nodiscard]] ChartStyle* style() const { return style_; }

    // The chart follows the style's changes as long as there is the style.
    void setStyle(ChartStyle* style);

    [[nodiscard]] QList<QColor> areaColors() const { return areaColors_; }

    void setAreaColors(const QList<QColor>& colors);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void hoverIndexChanged();
    void styleChanged();
    void areaColorsChanged();

protected:
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;

    // Of the chart, without the overhang.
    [[nodiscard]] ChartSize chartSize() const;

    // The data are others now.
    void redraw();

private:
    [[nodiscard]] virtual std::size_t count() const = 0;
    [[nodiscard]] virtual std::vector<ChartPoint> curve() const = 0;
    [[nodiscard]] virtual std::optional<HoverReadOut> readOutAt(std::size_t index) const = 0;

    // What belongs to one of the charts only, over the curve and below the read-out.
    virtual void paintMarks(QPainter& painter, const ChartStyle& style) const = 0;

    [[nodiscard]] std::optional<HoverReadOut> currentReadOut() const;
    void pointAt(QPointF position);
    void setHoverIndex(int index);
    void paintCurve(QPainter& painter, const ChartStyle& style) const;
    void paintReadOut(QPainter& painter, const ChartStyle& style, const HoverReadOut& readOut) const;

    int hoverIndex_ = -1;
    QPointer<ChartStyle> style_;
    QList<QColor> areaColors_;
};

} // namespace quelby
