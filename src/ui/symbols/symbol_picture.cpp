#include "ui/symbols/symbol_picture.h"

#include <algorithm>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace quelby {

namespace {

// At the resolution that the painter has, so that a symbol is as sharp as its surroundings.
QImage rendered(QSvgRenderer& picture, qreal side, qreal pixelRatio) {
    const int pixels = std::max(1, qRound(side * pixelRatio));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter);
    return image;
}

} // namespace

SymbolPicture::SymbolPicture(const QString& name) {
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(name));
    if (file.open(QIODevice::ReadOnly)) {
        renderer_ = std::make_unique<QSvgRenderer>(file.readAll());
    }
}

SymbolPicture::~SymbolPicture() = default;

void SymbolPicture::paint(QPainter& painter, const QRectF& area, const QColor& color) const {
    const qreal side = std::min(area.width(), area.height());
    if (side <= 0 || !renderer_) {
        return;
    }
    const auto scale = painter.deviceTransform().m11();
    auto image = rendered(*renderer_, side, std::max(scale, 1.0));
    QPainter tint(&image);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(image.rect(), color);
    tint.end();
    const QPointF corner(area.center().x() - side / 2, area.center().y() - side / 2);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(corner, QSizeF(side, side)), image);
}

void paintSymbol(QPainter& painter, const QRectF& area, const QString& name, const QColor& color) {
    SymbolPicture(name).paint(painter, area, color);
}

} // namespace quelby
