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

QFont fontOf(const ChartStyle& style, qreal size, QFont::Weight weight) {
    QFont font(style.fontFamily);
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    return font;
}

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

void ChartItem::setStyle(ChartStyle* style) {
    if (style == style_) {
        return;
    }
    if (style_) {
        style_->disconnect(this);
    }
    style_ = style;
    if (style_) {
        QObject::connect(style_, &ChartStyle::changed, this, [this] { update(); });
    }
    update();
    Q_EMIT styleChanged();
}

void ChartItem::setAreaColors(const QList<QColor>& colors) {
    areaColors_ = colors;
    update();
    Q_EMIT areaColorsChanged();
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
    if (count() == 0 || !style_) {
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(overhang(), overhang());
    paintCurve(*painter, *style_);
    paintMarks(*painter, *style_);
    if (const auto readOut = currentReadOut()) {
        paintReadOut(*painter, *style_, *readOut);
    }
}

void ChartItem::paintCurve(QPainter& painter, const ChartStyle& style) const {
    const auto line = polyline(curve());
    if (line.size() < 2) {
        return;
    }
    QPolygonF area = line;
    area << QPointF(line.last().x(), chartSize().height) << QPointF(line.first().x(), chartSize().height);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient({0, 0}, {0, chartSize().height}, areaColors_));
    painter.drawPolygon(area);
    painter.setPen(QPen(gradient({0, 0}, {chartSize().width, 0}, style.curveColors), style.curveWidth,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
}

void ChartItem::paintReadOut(QPainter& painter, const ChartStyle& style, const HoverReadOut& readOut) const {
    const QPointF point(readOut.point.x, readOut.point.y);
    const QLineF line(point.x(), 0, point.x(), chartSize().height);
    painter.setPen(QPen(style.haloColor, style.lineWidth + style.haloWidth / 2));
    painter.drawLine(line);
    painter.setPen(QPen(style.lineColor, style.lineWidth));
    painter.drawLine(line);

    const qreal radius = style.circleDiameter / 2;
    const qreal haloRadius = radius + style.haloWidth / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(style.haloColor);
    painter.drawEllipse(point, haloRadius, haloRadius);
    painter.setBrush(style.circleColor);
    painter.drawEllipse(point, radius, radius);

    painter.setFont(fontOf(style, style.labelSize, QFont::DemiBold));
    const auto text = QString::fromStdString(readOut.label);
    const QMarginsF padding(style.labelHorizontalPadding, style.labelVerticalPadding,
                            style.labelHorizontalPadding, style.labelVerticalPadding);
    QRectF label = QRectF(painter.fontMetrics().boundingRect(text)).marginsAdded(padding);
    label.moveCenter({readOut.labelCentre.x, readOut.labelCentre.y});
    painter.setBrush(style.labelBackground);
    painter.drawRoundedRect(label, style.labelRadius, style.labelRadius);
    painter.setPen(style.labelColor);
    painter.drawText(label, Qt::AlignCenter, text);
}

} // namespace quelby
