// The dashboard's colours in a terminal.
#pragma once

#include <string>
#include <string_view>

#include "cli/terminal/layout/styled_line.h"

namespace quelby::cli {

enum class ColorDepth { none, sixteen, twoHundredFiftySix, full };

// What a terminal says of itself in its environment: TERM, COLORTERM, and NO_COLOR, with which its user asks
// for none (https://no-color.org). A variable that is not set is empty here.
[[nodiscard]] ColorDepth colorDepth(std::string_view term, std::string_view colorTerm,
                                    std::string_view noColor);

// The line with the sequences (ECMA-48, SGR) that give it its style; without colours it is nothing but text.
[[nodiscard]] std::string withSequences(const Line& line, ColorDepth depth);

} // namespace quelby::cli
