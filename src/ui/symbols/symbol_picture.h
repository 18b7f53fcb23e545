#pragma once

class QColor;
class QPainter;
class QRectF;
class QString;

namespace quelby {

// Draws one of the program's own symbols of this folder into the middle of the area, as large as a square in
// it can be. A name that no symbol has draws nothing.
void paintSymbol(QPainter& painter, const QRectF& area, const QString& name, const QColor& color);

} // namespace quelby
