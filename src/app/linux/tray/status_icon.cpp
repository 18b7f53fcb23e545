#include "app/linux/tray/status_icon.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <fmt/format.h>

#include "app/linux/tray/short_title.h"
#include "ui/presentation/elements/metrics.h"

namespace quelby::app {

namespace {

// The capitals of the title in a square, in parts of its side, and their width in parts of the natural one.
constexpr qreal largestText = 0.5;
constexpr qreal smallestText = 0.36;
constexpr qreal narrowest = 0.85;

constexpr int outlineSize = 64; // pixels, from where titles are scaled

QImage transparent(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// Where there is a plate it is the whole picture, and keeps a little off what is drawn on it.
qreal margin(const StatusInk& ink, int height) {
    return ink.plate ? std::max(1, height / 11) : 0;
}

void drawPlate(QPainter& painter, const StatusInk& ink, const QSize& size) {
    if (ink.plate) {
        const qreal radius = size.height() / 5.0;
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgba(*ink.plate));
        painter.drawRoundedRect(QRectF(QPointF(), size), radius, radius);
    }
}

QRectF filledPart(const SymbolPicture& symbol) {
    constexpr int side = 64;
    auto image = transparent(side, side);
    QPainter painter(&image);
    symbol.paint(painter, image.rect(), Qt::black);
    painter.end();
    int left = side;
    int top = side;
    int right = -1;
    int bottom = -1;
    for (int y = 0; y < side; ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(std::as_const(image).scanLine(y));
        for (int x = 0; x < side; ++x) {
            if (qAlpha(line[x]) > 0) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    return {QPointF(left, top) / side, QPointF(right + 1, bottom + 1) / side};
}

QFont titleFont(qreal height) {
    QFont font(QString::fromUtf8(fontFamily));
    font.setPixelSize(std::max(1, qRound(height)));
    font.setWeight(QFont::DemiBold);
    return font;
}

// As an outline, which can be scaled to whole pixels.
QPainterPath outline(const QFont& font, const QString& title) {
    QPainterPath path;
    path.addText(0, 0, font, title);
    return path;
}

// What the compact pictures of a symbol and a title have in common. The figure matters more than the symbol: it
// takes the width, and its height follows from that.
class CompactParts {
public:
    CompactParts(const MeasuredSymbol& symbol, const QString& text)
        : symbol_(symbol)
        , title_(outline(titleFont(outlineSize), text))
        , titleBounds_(title_.boundingRect())
        , capHeight_(QFontMetricsF(titleFont(outlineSize)).capHeight()) {}

    [[nodiscard]] QImage drawn(const StatusInk& ink, int side) const {
        auto image = transparent(side, side);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        drawPlate(painter, ink, image.size());
        const qreal free = margin(ink, side);
        const qreal room = side - 2 * free;
        const int highest = qRound(side * largestText);
        const int lowest = qRound(side * smallestText);
        const int fitting = static_cast<int>(room * capHeight_ / (titleBounds_.width() * narrowest));
        const int height = std::clamp(fitting, lowest, highest);
        const qreal vertical = height / capHeight_;
        const qreal horizontal = std::min(vertical, room / titleBounds_.width());
        const qreal baseline = side - free;
        painter.fillPath(
            QTransform::fromTranslate(side / 2.0 - titleBounds_.center().x() * horizontal, baseline)
                .scale(horizontal, vertical)
                .map(title_),
            QColor::fromRgba(ink.ink));
        const qreal below = baseline - height - 1;
        fitSymbol(painter, QRectF(free, free, room, below - free), ink.ink);
        return image;
    }

private:
    // As large as it can be in the middle of the area.
    void fitSymbol(QPainter& painter, const QRectF& area, QRgb ink) const {
        const auto& filled = symbol_.filled();
        if (filled.isEmpty()) {
            return;
        }
        const qreal side = std::min(area.width() / filled.width(), area.height() / filled.height());
        const QPointF corner = area.center() - filled.center() * side;
        symbol_.picture().paint(painter, QRectF(corner, QSizeF(side, side)), QColor::fromRgba(ink));
    }

    const MeasuredSymbol& symbol_;
    QPainterPath title_;
    QRectF titleBounds_;
    qreal capHeight_;
};

// Themes have no full battery that is still charging.
std::int64_t tenthBelowFull(std::int64_t percent) {
    return std::clamp<std::int64_t>(percent / 10 * 10, 0, 90);
}

} // namespace

MeasuredSymbol::MeasuredSymbol(std::string name)
    : name_(std::move(name)), picture_(QString::fromStdString(name_)), filled_(filledPart(picture_)) {}

QImage symbolIcon(std::string_view symbolName, const StatusInk& ink, int side) {
    auto image = transparent(side, side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPlate(painter, ink, image.size());
    const qreal free = std::max(1.0, margin(ink, side));
    paintSymbol(painter, QRectF(image.rect()).marginsRemoved({free, free, free, free}),
                QString::fromUtf8(symbolName), QColor::fromRgba(ink.ink));
    return image;
}

QImage wideIcon(std::string_view symbolName, std::string_view title, const StatusInk& ink, int height) {
    const auto text = QString::fromUtf8(title).trimmed();
    const auto font = titleFont(height * 0.6);
    const QFontMetricsF metrics(font);
    const int gap = text.isEmpty() ? 0 : height / 6;
    auto image = transparent(height + gap + qRound(metrics.horizontalAdvance(text)) + gap, height);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPlate(painter, ink, image.size());
    const qreal free = std::max(1.0, margin(ink, height));
    paintSymbol(painter, QRectF(free, free, height - 2 * free, height - 2 * free),
                QString::fromUtf8(symbolName), QColor::fromRgba(ink.ink));
    const qreal baseline = std::round((height + metrics.capHeight()) / 2);
    painter.fillPath(outline(font, text).translated(height + gap, baseline), QColor::fromRgba(ink.ink));
    return image;
}

std::vector<QImage> compactIcons(const MeasuredSymbol& symbol, std::string_view title, const StatusInk& ink,
                                 const std::vector<int>& sides) {
    const auto text = QString::fromStdString(shortTitle(title)).trimmed();
    std::vector<QImage> icons;
    if (text.isEmpty()) {
        for (const int side : sides) {
            icons.push_back(symbolIcon(symbol.name(), ink, side));
        }
        return icons;
    }
    const CompactParts parts(symbol, text);
    for (const int side : sides) {
        icons.push_back(parts.drawn(ink, side));
    }
    return icons;
}

QImage compactIcon(std::string_view symbolName, std::string_view title, const StatusInk& ink, int side) {
    return compactIcons(MeasuredSymbol(std::string(symbolName)), title, ink, {side}).front();
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
