// How a failed comparison prints what the views are made of.
#pragma once

#include <ostream>

#include <QColor>
#include <QString>

#include "ui/bridge/element_values.h"

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QColor& color, std::ostream* stream) {
    *stream << color.name(QColor::HexArgb).toStdString();
}

namespace quelby {

inline void PrintTo(const InkValue& ink, std::ostream* stream) {
    *stream << "ink " << ink.name << '@' << ink.opacity;
}

inline void PrintTo(const TextValue& content, std::ostream* stream) {
    *stream << (content.present ? "" : "absent ");
    ::PrintTo(content.text, stream);
    *stream << ' ';
    PrintTo(content.ink, stream);
}

inline void PrintTo(const SymbolValue& symbol, std::ostream* stream) {
    *stream << '<' << symbol.name.toStdString() << "> ";
    PrintTo(symbol.ink, stream);
}

inline void PrintTo(const LabelValue& label, std::ostream* stream) {
    PrintTo(label.symbol, stream);
    *stream << ' ';
    PrintTo(label.text, stream);
}

} // namespace quelby
