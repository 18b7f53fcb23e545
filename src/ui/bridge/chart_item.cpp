#include "ui/bridge/chart_item.h"

#include <QHoverEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace quelby {

namespace {

QPolygonF polyline(const std::vector<ChartPoint>& points) {
    QPolygonF line;
    line.reserve(static_cast<qsizetype>(points.size()));
    for (const auto& point : points) {
        line.append({point.x, point.y});
    }
    return line;
}

QLinearGradient gradient(QPointF from, QPointF to, const QList<QColor>& colors) {
    QLinearGradient gradient(from, to);
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const auto last = std::max<qsizetype>(colors.size() - 1, 1);
        gradient.setColorAt(static_cast<qreal>(i) / static_cast<qreal>(last), colors[i]);
    }
    return gradient;
}

} // namespace

ChartItem::ChartItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setAcceptHoverEvents(true);
}

QString ChartItem::readOut() const {
    const auto readOut = currentReadOut();
    return readOut ? QString::fromStdString(readOut->label) : QString();
}

std::optional<HoverReadOut> ChartItem::currentReadOut() const {
    return hoverIndex_ < 0 ? std::nullopt : readOutAt(static_cast<std::size_t>(hoverIndex_));
}

void ChartItem::hover(int index) {
    setHoverIndex(index >= 0 && static_cast<std::size_t>(index) < count() ? index : -1);
}

void ChartItem::setCurveColors(const QList<QColor>& colors) {
    curveColors_ = colors;
    update();
    Q_EMIT appearanceChanged();
}

void ChartItem::setAreaColors(const QList<QColor>& colors) {
    areaColors_ = colors;
    update();
    Q_EMIT appearanceChanged();
}

void ChartItem::setLabelColor(const QColor& color) {
    labelColor_ = color;
    update();
    Q_EMIT appearanceChanged();
}

void ChartItem::setHaloColor(const QColor& color) {
    haloColor_ = color;
    update();
    Q_EMIT appearanceChanged();
}

void ChartItem::setFontFamily(const QString& family) {
    fontFamily_ = family;
    update();
    Q_EMIT appearanceChanged();
}

QFont ChartItem::font(qreal size, QFont::Weight weight) const {
    QFont font(fontFamily_);
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    return font;
}

void ChartItem::redraw() {
    update();
    Q_EMIT hoverIndexChanged(); // the sample under the pointer is another one
}

void ChartItem::hoverEnterEvent(QHoverEvent* event) {
    pointAt(event->position());
}

void ChartItem::hoverMoveEvent(QHoverEvent* event) {
    pointAt(event->position());
}

void ChartItem::hoverLeaveEvent(QHoverEvent* /*event*/) {
    setHoverIndex(-1);
}

ChartSize ChartItem::chartSize() const {
    return {width() - 2 * overhang(), height() - 2 * overhang()};
}

void ChartItem::pointAt(QPointF position) {
    const QPointF point = position - QPointF(overhang(), overhang());
    const bool inside = QRectF(0, 0, chartSize().width, chartSize().height).contains(point);
    const auto index = inside ? quelby::hoverIndex(point.x(), count()) : std::nullopt;
    setHoverIndex(index ? static_cast<int>(*index) : -1);
}

void ChartItem::setHoverIndex(int index) {
    if (index != hoverIndex_) {
        hoverIndex_ = index;
        update();
        Q_EMIT hoverIndexChanged();
    }
}

void ChartItem::paint(QPainter* painter) {
    if (count() == 0) {
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(overhang(), overhang());
    paintCurve(*painter);
    paintMarks(*painter);
    if (const auto readOut = currentReadOut()) {
        paintReadOut(*painter, *readOut);
    }
}

void ChartItem::paintCurve(QPainter& painter) const {
    const auto line = polyline(curve());
    if (line.size() < 2) {
        return;
    }
    QPolygonF area = line;
    area << QPointF(line.last().x(), chartSize().height) << QPointF(line.first().x(), chartSize().height);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient({0, 0}, {0, chartSize().height}, areaColors_));
    painter.drawPolygon(area);
    constexpr qreal lineWidth = 2;
    painter.setPen(QPen(gradient({0, 0}, {chartSize().width, 0}, curveColors_), lineWidth, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
}

void ChartItem::paintReadOut(QPainter& painter, const HoverReadOut& readOut) const {
    const QPointF point(readOut.point.x, readOut.point.y);
    const QLineF line(point.x(), 0, point.x(), chartSize().height);
    painter.setPen(QPen(haloColor_, 2));
    painter.drawLine(line);
    painter.setPen(QPen(QColor(255, 255, 255, 102), 1));
    painter.drawLine(line);

    constexpr qreal circle = 7;
    constexpr qreal halo = circle + 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(haloColor_);
    painter.drawEllipse(point, halo / 2, halo / 2);
    painter.setBrush(Qt::white);
    painter.drawEllipse(point, circle / 2, circle / 2);

    painter.setFont(font(10, QFont::DemiBold));
    const auto text = QString::fromStdString(readOut.label);
    QRectF label = QRectF(painter.fontMetrics().boundingRect(text)).marginsAdded({6, 3, 6, 3});
    label.moveCenter({readOut.labelCentre.x, readOut.labelCentre.y});
    painter.setBrush(QColor(0, 0, 0, 204));
    painter.drawRoundedRect(label, 4, 4);
    painter.setPen(Qt::white);
    painter.drawText(label, Qt::AlignCenter, text);
}

} // namespace quelby
