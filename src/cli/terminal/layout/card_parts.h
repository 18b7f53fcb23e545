// What several cards have in common when they are written as text.
#pragma once

#include <vector>

#include "cli/terminal/layout/styled_line.h"
#include "cli/terminal/layout/symbol_glyphs.h"

namespace quelby::cli {

// The symbol's character and the text beside it.
[[nodiscard]] Line withGlyph(const Symbol& symbol, const Span& text);

template <typename Card>
[[nodiscard]] Line titleLine(const Card& card) {
    return withGlyph(card.symbol, bold(card.title));
}

// "● on" or "○ off".
[[nodiscard]] Line switchLine(bool on);

[[nodiscard]] Line statusLine(const Color& dot, const Text& text);

// The texts at equal distances, the first at the left and the last at the right end.
[[nodiscard]] Line spreadEvenly(const std::vector<Text>& texts, int columns);

// The sentence behind what begins it, its other lines below its first word.
[[nodiscard]] Block sentence(const Text& text, int columns, const Line& beginning = {});

// The texts as buttons of one row, the selected one inverted.
template <typename Choices>
[[nodiscard]] Line choicesLine(const Choices& choices) {
    Line line;
    for (const auto& choice : choices) {
        line.push_back({" " + choice.text + " ",
                        {.color = choice.selected ? ColorName::accent : ColorName::secondary,
                         .inverse = choice.selected}});
    }
    return line;
}

void append(Block& block, const Block& more);

} // namespace quelby::cli
