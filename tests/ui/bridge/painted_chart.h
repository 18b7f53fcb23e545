// A chart of a known size and style, what it paints, and a pointer above it.
#pragma once

#include <QCoreApplication>
#include <QHoverEvent>
#include <QImage>
#include <QPainter>

#include "ui/bridge/chart_item.h"

namespace quelby {

constexpr int overhang = 4;
constexpr int width = 376; // of the chart: the width against which the pointer is measured
constexpr int height = 60;

inline const QList<QColor> curveColors{Qt::green, Qt::yellow, QColor(255, 128, 0), Qt::red};
inline const QColor areaColor(0, 0, 255, 100);

inline void fill(ChartStyle& style) {
    style.curveColors = curveColors;
    style.curveWidth = 2;
    style.dotDiameter = 6;
    style.axisColor = Qt::black;
    style.axisSize = 8;
    style.lineColor = QColor(255, 255, 255, 102);
    style.lineWidth = 1;
    style.circleColor = Qt::white;
    style.circleDiameter = 7;
    style.haloColor = Qt::transparent;
    style.haloWidth = 2;
    style.labelColor = Qt::white;
    style.labelBackground = QColor(0, 0, 0, 204);
    style.labelSize = 10;
    style.labelHorizontalPadding = 6;
    style.labelVerticalPadding = 3;
    style.labelRadius = 4;
}

inline void setUp(ChartItem& chart, ChartStyle& style) {
    fill(style);
    chart.setSize({width + 2 * overhang, height + 2 * overhang});
    chart.setStyle(&style);
    chart.setAreaColors({areaColor, areaColor});
}

inline QImage painted(ChartItem& chart) {
    QImage picture(QSizeF(chart.width(), chart.height()).toSize(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    chart.paint(&painter);
    return picture;
}

// At a place of the chart, which lies within the item.
inline QColor at(const QImage& picture, int x, int y) {
    return picture.pixelColor(x + overhang, y + overhang);
}

inline bool isEmpty(const QImage& picture) {
    QImage nothing(picture.size(), picture.format());
    nothing.fill(Qt::transparent);
    return picture == nothing;
}

// Antialiasing and a gradient leave no pixel exactly as it was asked for.
inline bool similar(const QColor& one, const QColor& other) {
    const auto near = [](int a, int b) { return std::abs(a - b) <= 16; };
    return near(one.red(), other.red()) && near(one.green(), other.green()) &&
           near(one.blue(), other.blue()) && near(one.alpha(), other.alpha());
}

inline void pointAt(ChartItem& chart, double x, double y = height / 2.0) {
    const QPointF place(x + overhang, y + overhang);
    QHoverEvent event(QEvent::HoverMove, place, place, place);
    QCoreApplication::sendEvent(&chart, &event);
}

inline void leave(ChartItem& chart) {
    QHoverEvent event(QEvent::HoverLeave, {-1, -1}, {-1, -1}, {0, 0});
    QCoreApplication::sendEvent(&chart, &event);
}

} // namespace quelby
