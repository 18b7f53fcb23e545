// Lines of styled text, and what can be done with them before it is known how many colours there are.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/presentation/elements/elements.h"

namespace quelby::cli {

struct Style {
    Color color;
    std::optional<double> gradient; // 0 to 1 along the gradient of the curves, in place of the colour
    bool bold = false;
    bool inverse = false;

    bool operator==(const Style&) const = default;
};

struct Span {
    std::string text; // printable, without escape sequences
    Style style;

    bool operator==(const Span&) const = default;
};

using Line = std::vector<Span>;
using Block = std::vector<Line>;

[[nodiscard]] Span span(const Text& text);
[[nodiscard]] Span bold(const Text& text);
[[nodiscard]] Span blanks(int columns);

[[nodiscard]] int displayWidth(const Line& line);

// Exactly this many columns: cut at its end, or filled with blanks.
[[nodiscard]] Line fitted(const Line& line, int columns);

// The one at the left, the other at the right end of exactly this many columns. Where there is no room for
// both, the right one is left out.
[[nodiscard]] Line spread(const Line& left, const Line& right, int columns);

// Without the blanks at its end.
[[nodiscard]] Line withoutEnd(Line line);

[[nodiscard]] Line joined(Line line, const Line& more);

// A sentence on as many lines as it needs, broken at its blanks. A word that is too long for a line is cut.
[[nodiscard]] std::vector<std::string> wrapped(std::string_view sentence, int columns);

} // namespace quelby::cli
