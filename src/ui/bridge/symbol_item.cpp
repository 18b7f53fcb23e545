#include "ui/bridge/symbol_item.h"

#include "ui/symbols/symbol_picture.h"

namespace quelby {

SymbolItem::SymbolItem(QQuickItem* parent) : QQuickPaintedItem(parent) {}

void SymbolItem::setName(const QString& name) {
    if (name != name_) {
        name_ = name;
        update();
        Q_EMIT nameChanged();
    }
}

void SymbolItem::setColor(const QColor& color) {
    if (color != color_) {
        color_ = color;
        update();
        Q_EMIT colorChanged();
    }
}

void SymbolItem::paint(QPainter* painter) {
    paintSymbol(*painter, boundingRect(), name_, color_);
}

} // namespace quelby
