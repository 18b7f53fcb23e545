// How a failed comparison prints what the cards are made of. Tests that compare such records include this.
#pragma once

#include <ostream>

#include "ui/presentation/elements.h"

namespace quelby {

inline void PrintTo(const Color& color, std::ostream* stream) {
    *stream << text(color.name);
    if (color.opacity != 1) {
        *stream << '@' << color.opacity;
    }
}

inline void PrintTo(const Text& shown, std::ostream* stream) {
    *stream << '"' << shown.text << "\" ";
    PrintTo(shown.color, stream);
}

inline void PrintTo(const Symbol& symbol, std::ostream* stream) {
    *stream << '<' << symbol.name << "> ";
    PrintTo(symbol.color, stream);
}

inline void PrintTo(const Label& label, std::ostream* stream) {
    PrintTo(label.symbol, stream);
    *stream << ' ';
    PrintTo(label.text, stream);
}

inline void PrintTo(const Bar& shown, std::ostream* stream) {
    *stream << shown.fraction << " full, ";
    PrintTo(shown.color, stream);
}

inline void PrintTo(const Choice& choice, std::ostream* stream) {
    *stream << '"' << choice.text << (choice.selected ? "\" selected" : "\"");
}

} // namespace quelby
