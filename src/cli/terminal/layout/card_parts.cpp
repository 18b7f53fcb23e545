#include "cli/terminal/layout/card_parts.h"

#include <algorithm>

#include "base/utf8.h"

namespace quelby::cli {

Line withGlyph(const Symbol& symbol, const Span& text) {
    return {{std::string(glyph(symbol.name)), {.color = symbol.color}}, blanks(1), text};
}

Line switchLine(bool on) {
    return on ? Line{{"● on", {.color = ColorName::green}}}
              : Line{{"○ off", {.color = ColorName::secondary}}};
}

Line statusLine(const Color& dot, const Text& text) {
    return {{"●", {.color = dot}}, blanks(1), span(text)};
}

Line spreadEvenly(const std::vector<Text>& texts, int columns) {
    int taken = 0;
    Line line;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto text = span(texts[i]);
        const int width = displayWidth({text});
        const int room = columns - width;
        const int start =
            texts.size() > 1 ? room * static_cast<int>(i) / (static_cast<int>(texts.size()) - 1) : 0;
        line.push_back(blanks(std::max(start - taken, i == 0 ? 0 : 1)));
        taken = std::max(start, taken + (i == 0 ? 0 : 1)) + width;
        line.push_back(text);
    }
    return line;
}

Block sentence(const Text& text, int columns, const Line& beginning) {
    const int indent = displayWidth(beginning);
    Block block;
    for (const auto& part : wrapped(printable(text.text), columns - indent)) {
        const auto begin = block.empty() ? beginning : Line{blanks(indent)};
        block.push_back(joined(begin, {{part, {.color = text.color}}}));
    }
    return block;
}

void append(Block& block, const Block& more) {
    block.insert(block.end(), more.begin(), more.end());
}

} // namespace quelby::cli
