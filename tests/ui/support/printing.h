// How a failed comparison prints what the views are made of.
#pragma once

#include <ostream>

#include <QColor>
#include <QString>

#include "ui/bridge/values.h"
#include "ui/presentation/printing.h"

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QColor& color, std::ostream* stream) {
    *stream << color.name(QColor::HexArgb).toStdString();
}

namespace quelby {

inline void PrintTo(const ColorValue& color, std::ostream* stream) {
    PrintTo(*color, stream);
}

// A value as the record in it.
template <typename Value>

requires requires(const Value& value) {
    value.present();
    *value;
}

void PrintTo(const Value& value, std::ostream* stream) {
    *stream << (value.present() ? "" : "absent ");
    PrintTo(*value, stream);
}

} // namespace quelby
