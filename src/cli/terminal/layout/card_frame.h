#pragma once

#include "cli/terminal/layout/styled_line.h"

namespace quelby::cli {

struct CardText {
    Line title;      // in the frame's upper edge
    Line atTheRight; // in the frame's upper edge, at its other end
    Block content;   // as wide as contentWidth() says, or less
};

// What a frame of this many columns leaves to its content.
[[nodiscard]] int contentWidth(int columns);

[[nodiscard]] Block framed(const CardText& card, int columns);

} // namespace quelby::cli
