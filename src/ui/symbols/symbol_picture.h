#pragma once

#include <memory>

class QColor;
class QPainter;
class QRectF;
class QString;
class QSvgRenderer;

namespace quelby {

// One of the program's own symbols of this folder, read once and drawn as often as it is wanted. A name that no
// symbol has draws nothing.
class SymbolPicture {
public:
    explicit SymbolPicture(const QString& name);
    SymbolPicture(const SymbolPicture&) = delete;
    SymbolPicture& operator=(const SymbolPicture&) = delete;
    SymbolPicture(SymbolPicture&&) = delete;
    SymbolPicture& operator=(SymbolPicture&&) = delete;
    ~SymbolPicture();

    // Into the middle of the area, as large as a square in it can be.
    void paint(QPainter& painter, const QRectF& area, const QColor& color) const;

private:
    std::unique_ptr<QSvgRenderer> renderer_; // none where there is no such symbol
};

// For those who draw it once.
void paintSymbol(QPainter& painter, const QRectF& area, const QString& name, const QColor& color);

} // namespace quelby
