#include "app/linux/tray/status_icon.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <fmt/format.h>

#include "ui/presentation/elements/metrics.h"
#include "ui/symbols/symbol_picture.h"

namespace quelby::app {

namespace {

const QColor ink(250, 250, 250);
const QColor edge(0, 0, 0, 150);

QImage transparent(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void drawSymbol(QPainter& painter, const QRectF& area, const QString& name) {
    for (const auto& [x, y] : {std::pair(-0.7, 0.0), {0.7, 0.0}, {0.0, -0.7}, {0.0, 0.7}}) {
        paintSymbol(painter, area.translated(x, y), name, edge);
    }
    paintSymbol(painter, area, name, ink);
}

QFont titleFont(qreal height) {
    QFont font(QString::fromUtf8(fontFamily));
    font.setPixelSize(qRound(height));
    font.setWeight(QFont::DemiBold);
    return font;
}

void drawTitle(QPainter& painter, QPointF baseline, const QFont& font, const QString& title) {
    QPainterPath path;
    path.addText(baseline, font, title);
    painter.strokePath(path, QPen(edge, 1.6));
    painter.fillPath(path, ink);
}

// Themes have no full battery that is still charging.
std::int64_t tenthBelowFull(std::int64_t percent) {
    return std::clamp<std::int64_t>(percent / 10 * 10, 0, 90);
}

} // namespace

QImage symbolIcon(std::string_view symbolName, int side) {
    auto image = transparent(side, side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSymbol(painter, QRectF(1, 1, side - 2, side - 2), QString::fromUtf8(symbolName));
    return image;
}

QImage wideIcon(std::string_view symbolName, std::string_view title, int height) {
    const auto text = QString::fromUtf8(title).trimmed();
    const auto font = titleFont(height * 0.6);
    const QFontMetricsF metrics(font);
    const int gap = text.isEmpty() ? 0 : height / 6;
    auto image = transparent(height + gap + qRound(metrics.horizontalAdvance(text)) + gap, height);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSymbol(painter, QRectF(1, 1, height - 2, height - 2), QString::fromUtf8(symbolName));
    const qreal baseline = (height + metrics.capHeight()) / 2;
    drawTitle(painter, {static_cast<qreal>(height + gap), baseline}, font, text);
    return image;
}

QImage compactIcon(std::string_view symbolName, std::string_view title, int side) {
    const auto text = QString::fromUtf8(title).trimmed();
    if (text.isEmpty()) {
        return symbolIcon(symbolName, side);
    }
    auto image = transparent(side, side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal textHeight = side * 0.45;
    const qreal symbolSide = side - textHeight;
    drawSymbol(painter, QRectF((side - symbolSide) / 2, 0, symbolSide, symbolSide),
               QString::fromUtf8(symbolName));
    auto font = titleFont(textHeight);
    const auto wanted = QFontMetricsF(font).horizontalAdvance(text);
    font.setStretch(wanted > side ? qRound(100 * side / wanted) : 100);
    const auto width = QFontMetricsF(font).horizontalAdvance(text);
    drawTitle(painter, {(side - width) / 2, side - 1.0}, font, text);
    return image;
}

std::string themeIconName(std::string_view symbolName, std::int64_t level) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 6> names{{
        {"desktopcomputer", "computer-symbolic"},
        {"battery.100percent.bolt", "battery-level-100-charged-symbolic"},
        {"battery.75percent", "battery-level-80-symbolic"},
        {"battery.50percent", "battery-level-50-symbolic"},
        {"battery.25percent", "battery-level-30-symbolic"},
        {"battery.0percent", "battery-level-0-symbolic"},
    }};
    for (const auto& [symbol, icon] : names) {
        if (symbol == symbolName) {
            return std::string(icon);
        }
    }
    if (symbolName == "bolt.fill") {
        return fmt::format("battery-level-{}-charging-symbolic", tenthBelowFull(level));
    }
    // Held at the limit: desktops show a battery that does not charge without the bolt.
    return symbolName == "bolt.badge.checkmark.fill"
               ? fmt::format("battery-level-{}-symbolic", tenthBelowFull(level))
               : std::string();
}

} // namespace quelby::app
