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

void paintSymbol(QPainter& painter, const QRectF& area, const QString& name, const QColor& color) {
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(name));
    const qreal side = std::min(area.width(), area.height());
    if (side <= 0 || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    QSvgRenderer picture(file.readAll());
    const auto scale = painter.deviceTransform().m11();
    auto image = rendered(picture, side, std::max(scale, 1.0));
    QPainter tint(&image);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(image.rect(), color);
    tint.end();
    const QPointF corner(area.center().x() - side / 2, area.center().y() - side / 2);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(corner, QSizeF(side, side)), image);
}

} // namespace quelby
