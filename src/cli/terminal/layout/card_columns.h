// How cards are laid out side by side.
#pragma once

#include <vector>

#include "cli/terminal/layout/styled_line.h"

namespace quelby::cli {

struct CardColumns {
    int count = 1;  // 1 to 3
    int width = 0;  // of each card, in characters
    int margin = 0; // at the left of the first
};

// As many columns as there is room for in a terminal this wide. Cards do not grow beyond what is easily read.
[[nodiscard]] CardColumns cardColumns(int terminalWidth);

// Each card below the shortest column so far, in the cards' order.
[[nodiscard]] Block inColumns(const std::vector<Block>& cards, const CardColumns& columns);

} // namespace quelby::cli
